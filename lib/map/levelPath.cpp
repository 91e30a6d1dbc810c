#include "map/levelPath.h"

#include "map/plainPath.h"
#include "path/zelPathParse.h"

#include <cstdio>

using namespace zeli;

namespace {

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

// Where the name at start ends.
std::size_t LevelPath::nameEnd(const Route &route, std::size_t start) {
  const Side &source = route.from;
  if (source.ownNames == nullptr)
    return static_cast<std::size_t>(source.language->names.scan(text + start, source.setting.handle) - text);
  // SPICE with brackets: an index is one only at the end of a level.
  std::size_t open = 0;
  std::size_t end = start;
  for (char c = text[end]; c != '\0' && c != source.marks.divider; c = text[++end]) {
    if (c == '\\' && text[end + 1] != '\0')
      ++end;
    else if (c == source.marks.busOpen)
      open = end;
  }
  Bus bus;
  return open > start && readBus(route, open, bus) && bus.end == end ? open : end;
}

bool LevelPath::readNumber(std::size_t &at, bool takesSign, std::int64_t &value, bool &isAsPrinted) {
  const char *const start = text + at;
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
    refuseAt(static_cast<std::size_t>(start - text), ZEL_REASON_NUMBER_OUT_OF_RANGE);
  return isNumber(value);
}

bool LevelPath::readBus(const Route &route, std::size_t open, Bus &bus) {
  const PathLanguage &language = *route.from.language;
  const bool takesSign = language.reader.grammar == parseBus || language.reader.grammar == parseVerilog;
  bus.isAsPrinted = true;
  std::size_t at = open + 1;
  if (!readNumber(at, takesSign, bus.first, bus.isAsPrinted))
    return false;
  bus.isRange = text[at] == ':' && language.hasPlainRanges;
  if (bus.isRange && !readNumber(++at, takesSign, bus.last, bus.isAsPrinted))
    return false;
  bus.end = at + 1;
  if (text[at] == route.from.marks.busClose)
    return true;
  refuseAt(at, text[at] == '\0' ? ZEL_REASON_UNBALANCED_BRACKET : ZEL_REASON_UNEXPECTED_CHARACTER);
  return false;
}

bool LevelPath::mapBus(const Route &route, std::size_t open, const Bus &bus) {
  const Punctuation &marks = route.to.marks;
  if (marks.busOpen == '\0') {
    refuseAt(open, ZEL_REASON_NOT_WRITABLE);
    return false;
  }
  const bool isDirected = bus.isRange && !route.to.language->hasPlainRanges;
  if (bus.isRange && route.expandsRanges) {
    if (rangeCount == mostRanges) {
      refuseAt(open, ZEL_REASON_NOT_WRITABLE);
      return false;
    }
    ranges[rangeCount++] = {written + 1, static_cast<std::int32_t>(bus.first), static_cast<std::int32_t>(bus.last)};
    rangeOpen = open;
    return put(open, Spelled({}, marks.busOpen, marks.busClose));
  }
  if (bus.isAsPrinted && !isDirected)
    return put(open, Spelled(Bytes(text + open + 1, bus.end - open - 2), marks.busOpen, marks.busClose));
  char printed[64];
  const auto first = static_cast<long>(bus.first);
  const auto last = static_cast<long>(bus.last);
  const char *const join = !isDirected ? ":" : first > last ? " downto " : " to ";
  const int length = bus.isRange ? std::snprintf(printed, sizeof printed, "%ld%s%ld", first, join, last)
                                 : std::snprintf(printed, sizeof printed, "%ld", first);
  return put(open, Spelled(Bytes(printed, static_cast<std::size_t>(length)), marks.busOpen, marks.busClose));
}

bool LevelPath::put(std::size_t place, const Spelled &spelled) {
  if (written + spelled.size() > maxName) {
    refuseAt(place, ZEL_REASON_RESULT_TOO_LONG);
    return false;
  }
  spelled.copyTo(respelled + 1 + written);
  written += spelled.size();
  return true;
}

// Reads the name of a level, and writes it behind what stands before it.
bool LevelPath::respell(const Route &route, std::size_t start, std::size_t end, bool isElement) {
  const Side &source = route.from;
  std::size_t nameStart = start;
  if (isElement && source.element != '\0') {
    if (start == end || toLower(text[start]) != toLower(source.element)) {
      refuseAt(start, ZEL_REASON_NO_ELEMENT_LETTER);
      return false;
    }
    ++nameStart;
  }
  if (nameStart == end) {
    refuseAt(nameStart, text[nameStart] == '\0' ? ZEL_REASON_UNEXPECTED_END : ZEL_REASON_UNEXPECTED_CHARACTER);
    return false;
  }
  const bool isLettered = isElement && route.to.element != '\0';
  if (isLettered && !put(start, Bytes(&route.to.element, 1)))
    return false;
  const Name name(Bytes(text + nameStart, end - nameStart));
  if (name.size() > maxName) {
    refuseAt(nameStart + maxName, ZEL_REASON_TOO_LONG);
    return false;
  }
  if (route.takesWords() && name.isWord() && !name.has(route.unless) && takesWord(route, name, 0, name.size()))
    return put(nameStart, name);

  const auto refuseName = [&](const Operations *names) {
    const zelRefusal inside = source.explain(*names, name);
    refuseAt(nameStart + inside.position, inside.reason);
    return false;
  };
  if (!beginsName(source, name.front())) {
    refuseAt(nameStart, ZEL_REASON_ILLEGAL_FIRST_CHARACTER);
    return false;
  }
  if (route.tested != nullptr && !route.tested->isLegal(name, source.setting))
    return refuseName(route.tested);
  Text readWork;
  const Ident ident = source.read(name, readWork);
  if (ident.body.data() == nullptr)
    return refuseName(source.names);
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
  return put(nameStart, spelled);
}

Bytes LevelPath::map(Bytes given, const Route &route) {
  const Side &source = route.from;
  const Side &target = route.to;
  if (given.empty())
    return refuseAt(0, ZEL_REASON_EMPTY);
  if (given.size() > longest)
    return refuseAt(longest, ZEL_REASON_TOO_LONG);
  if ((route.printFlags & Route::wholePathFlags) != 0)
    return refuseAt(0, ZEL_REASON_NOT_WRITABLE);

  refusal = {};
  rangeCount = 0;
  PlainPath plain;
  if (plain.read(given, route)) {
    plain.copyTo(respelled);
    return {respelled, plain.size()};
  }
  size = given.size();
  moveBytes(text, given.data(), size);
  text[size] = '\0';
  // The levels that were found to be plain are kept.
  plain.copyTo(respelled + 1);
  written = plain.size();
  bool isDivided = written != 0;
  const std::size_t first = plain.start();
  std::size_t start = first + written;
  bool sawPin = false;
  for (;;) {
    const std::size_t end = nameEnd(route, start);
    Bus bus = {};
    const bool hasBus = text[end] == source.marks.busOpen && source.marks.busOpen != '\0';
    if (hasBus && !readBus(route, end, bus))
      return {};
    const std::size_t markPlace = hasBus ? bus.end : end;
    const char mark = text[markPlace];
    const bool isLast = mark == '\0';
    if (isLast && markPlace != size)
      return refuseAt(markPlace, ZEL_REASON_ILLEGAL_CHARACTER);

    if (isLast && start != first && (sawPin || route.kind == ZEL_KIND_PIN))
      respelled[written] = target.pinDelimiter != '\0' ? target.pinDelimiter : target.marks.divider;
    if (!respell(route, start, end, route.isElement(isLast)) || (hasBus && !mapBus(route, end, bus)))
      return {};
    if (isLast)
      break;

    const bool isPin = mark == source.pinDelimiter && source.pinDelimiter != '\0';
    if (!isPin && mark != source.marks.divider)
      return refuseAt(markPlace, ZEL_REASON_UNEXPECTED_CHARACTER);
    if (sawPin)
      return refuseAt(markPlace, ZEL_REASON_SECOND_PIN_DELIMITER);
    sawPin = isPin;
    if (!put(markPlace, Bytes(&target.marks.divider, 1)))
      return {};
    isDivided = true;
    start = markPlace + 1;
  }

  Bytes result(respelled + 1, written);
  if (isDivided && target.language->isIntroduced) {
    if (written == maxName)
      return refuseAt(0, ZEL_REASON_RESULT_TOO_LONG);
    respelled[0] = target.marks.divider;
    result = {respelled, written + 1};
    for (std::size_t i = 0; i < rangeCount; ++i)
      ++ranges[i].place;
  }
  if (rangeCount == 0)
    return result;
  const std::size_t expandedSize = expandRanges(result, ranges, rangeCount, text);
  return expandedSize == 0 ? refuseAt(rangeOpen, ZEL_REASON_RESULT_TOO_LONG) : Bytes(text, expandedSize);
}
