#include "map/levelPath.h"

#include "map/plainPath.h"
#include "path/zelPathParse.h"

#include <algorithm>
#include <cstdio>

using namespace zeli;

namespace {

bool endsName(const Side &side, char c) {
  return c == side.marks.divider || c == side.marks.busOpen || c == side.pinDelimiter || c == '\0';
}

// What a name begins with in the grammar of a side.
bool beginsName(const Side &side, char c) {
  static constexpr ByteSet inWords = letter | chars("_\\");
  static constexpr ByteSet inSpice = graphic - chars("[]");
  Grammar *const grammar = side.language->reader.grammar;
  if (grammar == parseVerilog || grammar == parseVHDL)
    return inWords.has(c);
  return grammar == parseSpice && side.ownNames == nullptr ? inSpice.has(c) : graphic.has(c);
}

} // namespace

Bytes LevelPath::refuseAt(std::size_t position, std::int32_t reason) {
  refusal = {reason, static_cast<std::uint32_t>(position)};
  return {};
}

// From the caller's memory: the copy would have to wait for its own stores.
void LevelPath::scan(Bytes path) {
  BlockTest capital = {};
  std::uint32_t pairs = 0;
  std::uint32_t carried = 0; // the last underscore of the block before
  const auto look = [&](Block block, std::size_t behind) {
    const BlockTest isUpper = isWithin(block, 'A', 'Z');
    const BlockTest underscore = isChar(block, '_');
    const std::uint32_t bits = bitsOf(underscore) >> behind;
    capital |= isUpper;
    pairs |= bits & (bits << 1 | carried);
    carried = bits >> (blockBytes - 1);
    return bitsOf(~(isWithin(block, 'a', 'z') | isUpper | isWithin(block, '0', '9') | underscore)) >> behind;
  };
  std::size_t i = 0;
  for (; (i + 1) * blockBytes <= size; ++i)
    others[i] = look(loadBlock(path.data() + i * blockBytes), 0);
  // The rest of the last block belongs to no word.
  const std::size_t rest = size % blockBytes;
  const std::uint32_t beyond = 0xFFFFU << rest & 0xFFFFU;
  if (rest != 0 && i != 0)
    others[i] = look(loadBlock(path.data() + size - blockBytes), blockBytes - rest) | beyond;
  else
    others[i] = rest != 0 ? look(loadPart(path.data(), size), 0) | beyond : beyond;
  traits = static_cast<Traits>((bitsOf(capital) != 0 ? traitUpper : 0) | (pairs != 0 ? traitTwoUnderscores : 0));
}

std::size_t LevelPath::wordEnd(std::size_t start) const {
  std::size_t i = start / blockBytes;
  std::uint32_t bits = others[i] >> (start % blockBytes) << (start % blockBytes);
  while (bits == 0)
    bits = others[++i]; // what stands behind the text belongs to no word
  return i * blockBytes + static_cast<std::size_t>(__builtin_ctz(bits));
}

// Where the name at start ends, which is no plain word.
std::size_t LevelPath::nameEnd(const Route &route, std::size_t start) {
  const Side &from = route.from;
  if (from.ownNames == nullptr)
    return static_cast<std::size_t>(from.language->names.scan(begin() + start, from.setting.handle) - begin());
  // SPICE with brackets: an index is one only at the end of a level.
  std::size_t open = 0;
  std::size_t end = start;
  for (char c = begin()[end]; c != '\0' && c != from.marks.divider; c = begin()[++end]) {
    if (c == '\\' && begin()[end + 1] != '\0')
      ++end;
    else if (c == from.marks.busOpen)
      open = end;
  }
  Bus bus;
  return open > start && readBus(route, open, bus) && bus.end == end ? open : end;
}

bool LevelPath::readNumber(std::size_t &at, bool takesSign, std::int64_t &value, bool &isAsPrinted) {
  const char *const start = begin() + at;
  const char *const firstDigit = takesSign && sign.has(*start) ? start + 1 : start;
  const char *end = firstDigit;
  std::int64_t magnitude = 0;
  for (; digit.has(*end); ++end)
    if (magnitude <= ZEL_MAX_NUMBER)
      magnitude = magnitude * 10 + (*end - '0');
  at += static_cast<std::size_t>(end - start);
  if (end == firstDigit) {
    refuseAt(at, *end == '\0' ? ZEL_REASON_UNBALANCED_BRACKET : ZEL_REASON_UNEXPECTED_CHARACTER);
    return false;
  }
  isAsPrinted = isAsPrinted && *start != '+' && (*firstDigit != '0' || end - start == 1);
  value = *start == '-' ? -magnitude : magnitude;
  if (!isNumber(value))
    refuseAt(static_cast<std::size_t>(start - begin()), ZEL_REASON_NUMBER_OUT_OF_RANGE);
  return isNumber(value);
}

bool LevelPath::readBus(const Route &route, std::size_t open, Bus &bus) {
  const PathLanguage &language = *route.from.language;
  const bool takesSign = language.reader.grammar == parseBus || language.reader.grammar == parseVerilog;
  bus.isAsPrinted = true;
  std::size_t at = open + 1;
  if (!readNumber(at, takesSign, bus.first, bus.isAsPrinted))
    return false;
  bus.isRange = begin()[at] == ':' && language.hasPlainRanges;
  if (bus.isRange && !readNumber(++at, takesSign, bus.last, bus.isAsPrinted))
    return false;
  bus.end = at + 1;
  if (begin()[at] == route.from.marks.busClose)
    return true;
  refuseAt(at, begin()[at] == '\0' ? ZEL_REASON_UNBALANCED_BRACKET : ZEL_REASON_UNEXPECTED_CHARACTER);
  return false;
}

bool LevelPath::mapBus(const Route &route, std::size_t open, const Bus &bus) {
  const Punctuation &marks = route.to.marks;
  const bool isDirected = bus.isRange && !route.to.language->hasPlainRanges;
  if (bus.isRange && (route.printFlags & ZEL_PRINT_EXPLODE) != 0) {
    refuseAt(open, ZEL_REASON_NOT_WRITABLE);
    return false;
  }
  if (bus.isAsPrinted && !isDirected) {
    begin()[open] = marks.busOpen;
    begin()[bus.end - 1] = marks.busClose;
    return true;
  }
  char printed[64];
  const auto first = static_cast<long>(bus.first);
  const auto last = static_cast<long>(bus.last);
  const char *const join = !isDirected ? ":" : first > last ? " downto " : " to ";
  const int length =
      bus.isRange
          ? std::snprintf(printed, sizeof printed, "%c%ld%s%ld%c", marks.busOpen, first, join, last, marks.busClose)
          : std::snprintf(printed, sizeof printed, "%c%ld%c", marks.busOpen, first, marks.busClose);
  if (!flush(open) || !put(Bytes(printed, static_cast<std::size_t>(length))))
    return false;
  copied = bus.end;
  return true;
}

bool LevelPath::put(const Spelled &spelled) {
  if (written + spelled.size() > maxName) {
    refuseAt(copied, ZEL_REASON_RESULT_TOO_LONG);
    return false;
  }
  spelled.copyTo(respelled + 1 + written);
  written += spelled.size();
  return true;
}

bool LevelPath::flush(std::size_t end) {
  const bool isDone = put(Bytes(begin() + copied, end - copied));
  copied = end;
  return isDone;
}

// Reads the name of a level, and writes it behind what stands before it.
bool LevelPath::respell(const Route &route, std::size_t start, std::size_t end, bool isElement) {
  const Side &from = route.from;
  std::size_t nameStart = start;
  if (isElement && from.element != '\0') {
    if (start == end || toLower(begin()[start]) != toLower(from.element)) {
      refuseAt(start, ZEL_REASON_NO_ELEMENT_LETTER);
      return false;
    }
    ++nameStart;
  }
  if (nameStart == end) {
    refuseAt(nameStart, begin()[nameStart] == '\0' ? ZEL_REASON_UNEXPECTED_END : ZEL_REASON_UNEXPECTED_CHARACTER);
    return false;
  }
  const Name name(Bytes(begin() + nameStart, end - nameStart));
  const auto refuseName = [&](const Operations *names) {
    const zelRefusal inside = from.explain(*names, name);
    refuseAt(nameStart + inside.position, inside.reason);
    return false;
  };
  if (!beginsName(from, name.front())) {
    refuseAt(nameStart, ZEL_REASON_ILLEGAL_FIRST_CHARACTER);
    return false;
  }
  if (route.tested != nullptr && !route.tested->isLegal(name, from.setting))
    return refuseName(route.tested);
  Text readWork;
  const Ident ident = from.read(name, readWork);
  if (ident.body.data() == nullptr)
    return refuseName(from.names);
  if (!isNameLength(ident.body)) {
    refuseAt(nameStart, ident.body.empty() ? ZEL_REASON_NOT_CONVERTED : ZEL_REASON_TOO_LONG);
    return false;
  }
  Text writeWork;
  const Spelled spelled = route.to.write(ident, writeWork);
  if (spelled.isRefused() || spelled.size() > maxName) {
    refuseAt(nameStart, spelled.isRefused() ? ZEL_REASON_NOT_WRITABLE : ZEL_REASON_RESULT_TOO_LONG);
    return false;
  }
  const bool isLettered = isElement && route.to.element != '\0';
  if (!flush(start) || (isLettered && !put(Bytes(&route.to.element, 1))) || !put(spelled))
    return false;
  copied = end;
  return true;
}

Bytes LevelPath::map(Bytes path, const Route &route) {
  const Side &from = route.from;
  const Side &to = route.to;
  if (path.empty())
    return refuseAt(0, ZEL_REASON_EMPTY);
  if (path.size() > longest)
    return refuseAt(longest, ZEL_REASON_TOO_LONG);
  if ((route.printFlags & wholePathFlags) != 0)
    return refuseAt(0, ZEL_REASON_NOT_WRITABLE);

  refusal = {};
  PlainPath plain;
  if (plain.read(path, route)) {
    plain.copyTo(begin());
    return {begin(), plain.size()};
  }
  size = path.size();
  std::memcpy(begin(), path.data(), size);
  begin()[size] = '\0';
  scan(path);
  const bool areWordsPlain = route.takesWords() && (traits & route.unless) == 0;
  const bool hasElements = from.element != '\0' || to.element != '\0';

  const std::size_t first = from.language->isIntroduced && *begin() == from.marks.divider ? 1 : 0;
  std::size_t start = copied = first;
  written = 0;
  bool isDivided = false;
  bool sawPin = false;
  for (;;) {
    std::size_t end = wordEnd(start);
    const bool isWord = end != start && endsName(from, begin()[end]);
    bool isPlain = areWordsPlain && isWord && takesWord(route, path, start, end);
    if (!isWord || from.ownNames != nullptr) {
      const std::size_t found = nameEnd(route, start);
      isPlain = isPlain && found == end;
      end = found;
    }
    Bus bus = {};
    const bool hasBus = begin()[end] == from.marks.busOpen && from.marks.busOpen != '\0';
    if (hasBus && !readBus(route, end, bus))
      return {};
    const std::size_t markPlace = hasBus ? bus.end : end;
    const char mark = begin()[markPlace];
    const bool isLast = mark == '\0';
    if (isLast && markPlace != size)
      return refuseAt(markPlace, ZEL_REASON_ILLEGAL_CHARACTER);

    // The separator in front of a pin, which may not stand in respelled yet.
    if (isLast && start != first && (sawPin || route.kind == ZEL_KIND_PIN))
      begin()[start - 1] = to.pinDelimiter != '\0' ? to.pinDelimiter : to.marks.divider;
    const bool isElement = hasElements && route.isElement(isLast);
    if ((!isPlain || isElement) && !respell(route, start, end, isElement))
      return {};
    if (hasBus && !mapBus(route, end, bus))
      return {};
    if (isLast)
      break;

    const bool isPin = mark == from.pinDelimiter && from.pinDelimiter != '\0';
    if (!isPin && mark != from.marks.divider)
      return refuseAt(markPlace, ZEL_REASON_UNEXPECTED_CHARACTER);
    if (sawPin)
      return refuseAt(markPlace, ZEL_REASON_SECOND_PIN_DELIMITER);
    sawPin = isPin;
    begin()[markPlace] = to.marks.divider;
    isDivided = true;
    start = markPlace + 1;
  }

  char *result = begin() + first;
  std::size_t length = size - first;
  if (copied != first) {
    if (!flush(size))
      return {};
    result = respelled + 1;
    length = written;
  }
  if (isDivided && to.language->isIntroduced) {
    *--result = to.marks.divider;
    ++length;
  }
  if (length > maxName)
    return refuseAt(0, ZEL_REASON_RESULT_TOO_LONG);
  refusal = {};
  return {result, length};
}
