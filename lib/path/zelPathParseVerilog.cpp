// The path grammar of Verilog, Kirra and KirraHDL: levels joined by '.', an index or range in brackets, lists and
// repeated groups in braces.
#include "path/zelPathParse.h"

using namespace zeli;

namespace {

enum class State { start, name, comma, dot, brace, bracket, number, colon, second };

char classOf(char c) {
  static constexpr ByteSet nameStart = letter | chars("\\_");
  static constexpr ByteSet numberStart = digit | sign;
  return nameStart.has(c) ? aName : numberStart.has(c) ? aNumber : c;
}

} // namespace

zelPath zeli::parseVerilog(zelPath path, const PathLanguage &language, const char *text) {
  using enum State;
  State state = start;
  bool inBracket = false;
  bool braceOpen = false; // a brace was opened and none closed since
  int depth = 0;
  std::int32_t first = 0;
  std::int32_t last = 0;

  for (;;) {
    switch (classOf(*text)) {
    case '\0': {
      const bool isComplete = depth == 0 && !braceOpen && !inBracket && !isOneOf(state, {comma, dot});
      return isComplete ? path : reject(path, text);
    }
    case aName: {
      const char *const begin = text;
      if (!appendName(path, language, text) || inBracket || state == name)
        return reject(path, begin);
      state = name;
      continue;
    }
    case aNumber: {
      const bool isExpected = (inBracket && isOneOf(state, {bracket, colon})) || state == brace;
      if (!isExpected)
        return reject(path, text);
      const std::int32_t value = readSigned(text);
      if (!isNumber(value))
        return reject(path, text);
      (state == colon ? last : first) = value;
      state = state == colon ? second : number;
      continue;
    }
    case '.':
      if (inBracket || !isOneOf(state, {name, bracket}))
        return reject(path, text);
      if (state == bracket)
        noteMid(path);
      path->flags |= flagHierarchy;
      state = dot;
      break;
    case '[':
      if (state != name)
        return reject(path, text);
      inBracket = true;
      state = bracket;
      break;
    case ':':
      if (!inBracket || state != number)
        return reject(path, text);
      state = colon;
      break;
    case ']':
      if (!inBracket || !isOneOf(state, {number, second}))
        return reject(path, text);
      if (!appendBus(path, state == second, first, last))
        return path;
      inBracket = false;
      state = bracket;
      break;
    case '{':
      if (inBracket || !isOneOf(state, {start, comma, bracket, number}))
        return reject(path, text);
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
        return reject(path, text);
      path->flags |= flagList;
      if (!append(path, kindList))
        return path;
      state = comma;
      break;
    case '}':
      if (!isOneOf(state, {name, brace, bracket}) || !append(path, kindListEnd) || --depth < 0)
        return reject(path, text);
      braceOpen = false;
      state = brace;
      break;
    case ' ':
    case '\t':
      break;
    default:
      return reject(path, text);
    }
    ++text;
  }
}
