// The bus-bracket grammar of the file formats and of Tessel: levels joined by a divider, an index or range between two
// bracket characters, all three chosen by the format or by the file; no lists or repeats.
#include "path/zelPathParse.h"

using namespace zeli;

namespace {

enum class State { start, name, divider, bracket, number, colon, second };

// The marks of the file, as the switch knows them.
constexpr char aDivider = '/';
constexpr char aBusOpen = '[';
constexpr char aBusClose = ']';
constexpr char nothing = '?';

constexpr ByteSet numberStart = digit | sign;

bool startsName(const Punctuation &marks, State state, bool inBus, char c) {
  if (!graphic.has(c) || c == marks.divider || c == marks.busOpen || c == marks.busClose)
    return false;
  if (c == ':' && (inBus || state == State::number))
    return false;
  return !(numberStart.has(c) && (inBus || state == State::bracket || state == State::colon));
}

// A mark may be any character, also one with another meaning.
char classOf(const Punctuation &marks, State state, bool inBus, char c) {
  if (c == '\0')
    return c;
  if (startsName(marks, state, inBus, c))
    return aName;
  if (c == marks.divider)
    return aDivider;
  if (c == marks.busOpen)
    return aBusOpen;
  if (numberStart.has(c))
    return aNumber;
  if (c == ':')
    return c;
  if (c == marks.busClose)
    return aBusClose;
  return blank.has(c) ? ' ' : nothing;
}

} // namespace

zelPath zeli::parseBus(zelPath path, const PathLanguage &language, const char *text) {
  using enum State;
  const Punctuation marks = marksOf(path->handle, language.reader.marks);
  State state = start;
  bool inBus = false;
  std::int32_t first = 0;
  std::int32_t last = 0;

  for (;;) {
    switch (classOf(marks, state, inBus, *text)) {
    case '\0':
      return inBus || state == divider ? reject(path, text) : path;
    case aName: {
      const char *const begin = text;
      if (!appendName(path, language, text) || inBus || state == name)
        return reject(path, begin);
      state = name;
      continue;
    }
    case aDivider:
      if (state == start) {
        path->flags |= flagLeadingDivider;
        break;
      }
      if (inBus || !isOneOf(state, {name, bracket}))
        return reject(path, text);
      if (state == bracket)
        noteMid(path);
      path->flags |= flagHierarchy;
      state = divider;
      break;
    case aBusOpen:
      // The rest of the text is read all the same.
      if (language.reader.busNeedsName && state != name)
        reject(path, text);
      inBus = true;
      state = bracket;
      break;
    case aNumber: {
      if (!inBus || !isOneOf(state, {bracket, colon}))
        return reject(path, text);
      const std::int32_t value = readSigned(text);
      if (!isNumber(value))
        return reject(path, text);
      (state == colon ? last : first) = value;
      state = state == colon ? second : number;
      continue;
    }
    case ':':
      if (!inBus || state != number)
        return reject(path, text);
      state = colon;
      break;
    case aBusClose:
      if (!inBus || !isOneOf(state, {number, second}))
        return reject(path, text);
      if (!appendBus(path, state == second, first, last))
        return path;
      inBus = false;
      state = bracket;
      break;
    case ' ':
      break;
    default:
      return reject(path, text);
    }
    ++text;
  }
}
