// The path grammar of Verilog, Kirra and KirraHDL: levels joined by '.', an index or range in brackets, lists and
// repeated groups in braces.
#include "path/parse.h"

using namespace zeli;

namespace {

enum class State { start, name, comma, dot, brace, bracket, number, colon, second };

constexpr ByteSet nameStart = letter | chars("\\_");

zelPath parse(zelPath path, const Language &language, const char *text) {
  using enum State;
  State state = start;
  bool inBracket = false;
  bool braceOpen = false; // a brace was opened and none closed since
  int depth = 0;
  std::int32_t first = 0;
  std::int32_t last = 0;

  for (;;) {
    const char c = *text;
    if (c == '\0') {
      const bool isComplete = depth == 0 && !braceOpen && !inBracket && state != comma && state != dot;
      return isComplete ? path : reject(path);
    }
    if (nameStart.has(c)) {
      if (!readName(path, language, text) || inBracket || state == name)
        return reject(path);
      state = name;
      continue;
    }
    const bool takesNumber = (inBracket && isOneOf(state, {bracket, colon})) || state == brace;
    if (takesNumber && (digit.has(c) || sign.has(c))) {
      const std::int32_t value = readSigned(text);
      if (!isNumber(value))
        return reject(path);
      (state == colon ? last : first) = value;
      state = state == colon ? second : number;
      continue;
    }

    switch (c) {
    case '.':
      if (inBracket || !isOneOf(state, {name, bracket}))
        return reject(path);
      if (state == bracket)
        noteMid(path);
      path->flags |= flagHierarchy;
      state = dot;
      break;
    case '[':
      if (state != name)
        return reject(path);
      inBracket = true;
      state = bracket;
      break;
    case ':':
      if (!inBracket || state != number)
        return reject(path);
      state = colon;
      break;
    case ']':
      if (!inBracket || !isOneOf(state, {number, second}))
        return reject(path);
      if (!appendBus(path, state == second, first, last))
        return path;
      inBracket = false;
      state = bracket;
      break;
    case '{':
      if (inBracket || !isOneOf(state, {start, comma, bracket, number}))
        return reject(path);
      braceOpen = true;
      if (state == number) {
        path->flags |= flagRepeat;
        if (!appendNumber(path, kindGroupRepeat, first))
          return path;
      }
      ++depth;
      if (!append(path, kindListStart))
        return path;
      state = brace;
      break;
    case ',':
      if (!isOneOf(state, {name, brace, bracket}))
        return reject(path);
      path->flags |= flagList;
      if (!append(path, kindList))
        return path;
      state = comma;
      break;
    case '}':
      if (!isOneOf(state, {name, brace, bracket}) || !append(path, kindListEnd) || --depth < 0)
        return reject(path);
      braceOpen = false;
      state = brace;
      break;
    case ' ':
    case '\t':
      break;
    default:
      return reject(path);
    }
    ++text;
  }
}

zelPath parse(const char *text, const Language &language, zelAllocFunc alloc, void *context) {
  const zelPath path = startPath(text, language, nullptr, alloc, context);
  return path == nullptr ? nullptr : parse(path, language, text);
}

} // namespace

zelPath zelParseVerilog(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  return parse(text, verilogLanguage, alloc, context);
}

zelPath zelParseVerilogAMS(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  return parse(text, verilogAMSLanguage, alloc, context);
}

zelPath zelParseKirra(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  return parse(text, kirraLanguage, alloc, context);
}

zelPath zelParseKirraHDL(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  return parse(text, kirraHDLLanguage, alloc, context);
}
