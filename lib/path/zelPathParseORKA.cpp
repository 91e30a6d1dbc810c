// The ORKA path grammar: levels joined by '/', indexes in angle brackets with ranges, steps, lists and repeats, lists
// in parentheses, and repeated groups behind a prefix <*count>.
#include "path/zelPathParse.h"

using namespace zeli;

namespace {

enum class State { start, less, star, count, prefix, slash, name, listStart, comma, listEnd, index };

enum class IndexState { start, first, colon, second, secondColon, third, star, count, listStart, comma, listEnd };

// Ends an index that is refused, at the character that it is refused for.
const char *rejectIndex(zelPath path, const char *text) {
  reject(path, text);
  return text;
}

// Appends the list starts that were read since the last item. They wait for an item, since a list that nothing was read
// for could not be printed.
bool appendListStarts(zelPath path, int &pending) {
  for (; pending > 0; --pending)
    if (!append(path, kindIndexListStart))
      return false;
  return true;
}

// Takes back those whose item could not be added.
void removeListStarts(zelPath path) {
  while (lastItem(path) == kindIndexListStart)
    removeLastByte(path);
}

// Reads one index, text standing behind its '<', and returns the place behind its '>'.
const char *parseORKAIndex(zelPath path, const char *text) {
  using enum IndexState;
  IndexState state = start;
  std::int32_t from = 0;
  std::int32_t to = 0;
  int depth = 0;
  int pendingStarts = 0;

  for (;;) {
    switch (digit.has(*text) ? aNumber : *text) {
    case aNumber: {
      const char *const number = text;
      const std::int32_t value = readDigits(text);
      if (!isNumber(value) || isOneOf(state, {first, second, third, count}))
        return rejectIndex(path, number);
      while (blank.has(*text))
        ++text;
      const bool goesOn = *text == ':' && (state != secondColon && state != star);
      bool isAdded = goesOn || appendListStarts(path, pendingStarts);
      if (state == colon) {
        to = value;
        path->flags |= flagRange;
        isAdded = isAdded && (goesOn || appendRange(path, from, to));
        state = second;
      } else if (state == secondColon) {
        const std::int32_t numbers[] = {from, to, value};
        path->flags |= flagComplexIndex;
        isAdded = isAdded && appendNumbers(path, kindStepRange, 3, numbers);
        state = third;
      } else if (state == star) {
        isAdded = isAdded && appendNumber(path, kindIndexRepeat, value);
        state = count;
      } else {
        from = value;
        path->flags |= flagIndex;
        isAdded = isAdded && (goesOn || appendNumber(path, kindIndex, from));
        state = first;
      }
      if (!isAdded) {
        removeListStarts(path);
        return rejectIndex(path, number);
      }
      continue;
    }
    case '>':
      if (depth != 0 || !isOneOf(state, {first, second, third, count, listEnd}))
        return rejectIndex(path, text);
      return text + 1;
    case ':':
      if (!isOneOf(state, {first, second}))
        return rejectIndex(path, text);
      state = state == first ? colon : secondColon;
      break;
    case '(':
      if (!isOneOf(state, {start, count, listStart, listEnd}))
        return rejectIndex(path, text);
      ++pendingStarts;
      ++depth;
      state = listStart;
      break;
    case ',':
      if (!isOneOf(state, {first, second, third, count}))
        return rejectIndex(path, text);
      state = comma;
      break;
    case ')':
      if (!isOneOf(state, {first, second, third, count, listEnd}) || depth == 0 || !append(path, kindIndexListEnd))
        return rejectIndex(path, text);
      --depth;
      state = listEnd;
      break;
    case '*':
      if (!isOneOf(state, {first, second, third, listEnd}))
        return rejectIndex(path, text);
      path->flags |= flagComplexIndex;
      state = star;
      break;
    default:
      return rejectIndex(path, text);
    }
    ++text;
  }
}

// A number is one only in a repeat prefix, and so is the star in front of it; everywhere else they belong to names.
char classOf(State state, char c) {
  static constexpr ByteSet nameStart = graphic - chars("(),/<>");
  if (state == State::star && digit.has(c))
    return aNumber;
  return nameStart.has(c) && !(state == State::less && c == '*') ? aName : c;
}

} // namespace

zelPath zeli::parseORKA(zelPath path, const PathLanguage &language, const char *text) {
  using enum State;
  State state = start;
  bool topPending = false;
  int depth = 0;

  for (;;) {
    switch (classOf(state, *text)) {
    case '\0':
      return depth < 1 && isOneOf(state, {name, listEnd, index}) ? path : reject(path, text);
    case aName: {
      const char *const begin = text;
      if (!appendName(path, language, text, topPending ? kindTopMark : kindNone) ||
          isOneOf(state, {less, star, count, name, listEnd}))
        return reject(path, begin);
      topPending = false;
      state = name;
      continue;
    }
    case aNumber: {
      const std::int32_t value = readDigits(text);
      if (!isNumber(value))
        return reject(path, text);
      path->flags |= flagRepeat;
      if (!appendNumber(path, kindGroupRepeat, value))
        return path;
      state = count;
      continue;
    }
    case '*':
      state = star;
      break;
    case '/':
      if (isOneOf(state, {start, prefix, listStart, comma}))
        topPending = true;
      else if (isOneOf(state, {name, index}))
        path->flags |= flagHierarchy;
      else
        return reject(path, text);
      if (state == index)
        noteMid(path);
      state = slash;
      break;
    case '<':
      if (isOneOf(state, {start, listStart, comma})) {
        state = less;
        break;
      }
      text = parseORKAIndex(path, text + 1);
      if (state != name)
        return reject(path, text);
      state = index;
      continue;
    case '>':
      if (state != count)
        return reject(path, text);
      state = prefix;
      break;
    case '(':
      if (!isOneOf(state, {start, prefix, comma}) || !append(path, kindListStart))
        return reject(path, text);
      ++depth;
      state = listStart;
      break;
    case ',':
      if (!isOneOf(state, {name, index}) || !append(path, kindList))
        return reject(path, text);
      path->flags |= flagList;
      state = comma;
      break;
    case ')':
      if (!isOneOf(state, {name, index}) || !append(path, kindListEnd) || --depth < 0)
        return reject(path, text);
      state = listEnd;
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
