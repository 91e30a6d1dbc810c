#include "map/plainPath.h"

namespace zeli {

namespace {

// The first eight of the bytes from start up to end, the first in the lowest place; zero where there are none.
std::uint64_t headOf(Bytes path, std::size_t start, std::size_t end) {
  constexpr std::size_t headBytes = sizeof(std::uint64_t);
  if (path.size() < headBytes)
    return headWord(path.data() + start, end - start);
  const std::uint64_t head = wordAt(path.data(), path.size(), start);
  return end - start < headBytes ? head & ~(~std::uint64_t{0} << (8 * (end - start))) : head;
}

// Whether the word characters from start up to end are a number as it is printed, and in range.
bool takesNumber(Bytes path, std::size_t start, std::size_t end) {
  constexpr std::size_t mostDigits = 6;
  static_assert(ZEL_MAX_NUMBER >= 999'999);
  const std::size_t length = end - start;
  if (length - 1 >= mostDigits)
    return false;
  // A digit is 0x3 before a half byte to which six can be added.
  constexpr std::uint64_t each = 0x0101010101010101;
  const std::uint64_t word = headOf(path, start, end) | 0x30 * each << (8 * length);
  const std::uint64_t high = word & (word + 6 * each) & 0xF0 * each;
  return high == 0x30 * each && (path[start] != '0' || length == 1);
}

// A bit for each of the 64 bytes from i on that no word has.
[[gnu::noinline]] std::uint64_t marksFrom(Bytes path, std::size_t i) {
  std::uint64_t bits = 0;
  for (std::size_t block = 0; block < 64 && i + block < path.size(); block += blockBytes)
    bits |= std::uint64_t{othersFrom(path, i + block)} << block;
  return bits;
}

} // namespace

bool takesWord(const Route &route, Bytes path, std::size_t start, std::size_t end) {
  if (start == end)
    return false;
  const std::uint64_t head = headOf(path, start, end);
  if ((route.unless & traitUnderscoreLast) != 0 && path[end - 1] == '_')
    return false;
  const Traits traits = firstTraits.of[head & 0xFF];
  return (traits & route.unless) == 0 && !hasPrefix(traits, head) &&
         !route.isKeyword(Bytes(path.data() + start, end - start), head);
}

[[gnu::flatten]] bool PlainPath::read(Bytes path, const Route &route) {
  constexpr Traits traitsOfAll = traitUpper | traitTwoUnderscores;
  from = route.from.marks;
  to = route.to.marks;
  first = route.from.language->isIntroduced && path[0] == from.divider ? 1 : 0;
  isIntroduced = false;
  isExpanded = false;
  text = Bytes(path.data() + first, 0);
  if (!route.takesPlainPaths || path.size() > maxName ||
      ((route.unless & traitsOfAll) != 0 && (lookAt(path).traits & route.unless & traitsOfAll) != 0))
    return false;
  enum { inName, inFirst, inLast, behindBus } state = inName;
  bool isDivided = false;
  std::size_t partStart = first; // of the word or number
  std::size_t open = 0;          // the last bracket
  std::size_t rangeOpen = 0;     // the bracket of a range that is expanded ...
  std::size_t rangeClose = 0;
  for (std::size_t i = 0; i < path.size(); i += 64)
    for (std::uint64_t bits = marksFrom(path, i); bits != 0; bits &= bits - 1) {
      const std::size_t at = i + static_cast<std::size_t>(__builtin_ctzll(bits));
      if (at < first)
        continue;
      const char mark = path[at];
      if (mark == from.divider && mark != '\0') {
        if (state == inName ? !takesWord(route, path, partStart, at) : state != behindBus || partStart != at)
          return false;
        state = inName;
        isDivided = true;
        if (rangeClose == 0) // a range to be expanded is no level that stands
          text = Bytes(text.data(), at + 1 - first);
      } else if (mark == from.busOpen && mark != '\0' && to.busOpen != '\0') {
        if (state != inName || !takesWord(route, path, partStart, at))
          return false;
        state = inFirst;
        open = at;
      } else {
        const bool isRange = mark == ':' && state == inFirst && route.takesRanges;
        const bool isEnd = mark == from.busClose && (state == inFirst || state == inLast);
        if (!(isRange || isEnd) || !takesNumber(path, partStart, at))
          return false;
        if (state == inLast && route.expandsRanges) {
          if (rangeClose != 0)
            return false;
          rangeOpen = open;
          rangeClose = at;
        }
        state = isRange ? inLast : behindBus;
      }
      partStart = at + 1;
    }
  if (state == inName ? !takesWord(route, path, partStart, path.size())
                      : state != behindBus || partStart != path.size())
    return false;
  if (isDivided && route.to.language->isIntroduced && path.size() - first == maxName)
    return false;
  isIntroduced = isDivided && route.to.language->isIntroduced;
  text = Bytes(text.data(), path.size() - first);
  if (rangeClose == 0 || expand(rangeOpen - first, rangeClose - first))
    return true;
  isIntroduced = false;
  text = Bytes(text.data(), 0);
  return false;
}

// Expands the range between the brackets of text; false where that is too much.
bool PlainPath::expand(std::size_t open, std::size_t close) {
  const auto readNumber = [this](std::size_t &at) {
    std::int32_t number = 0;
    for (; digit.has(text[at]); ++at)
      number = number * 10 + (text[at] - '0');
    return number;
  };
  std::size_t at = open + 1;
  RangePlace asked = {levelsSize() - text.size() + at, readNumber(at), 0};
  asked.last = readNumber(++at);

  char levels[maxName + 1];
  copyLevels(levels);
  const std::size_t behind = text.size() - close;
  std::memmove(levels + asked.place, levels + levelsSize() - behind, behind);
  expandedSize = expandRanges({levels, asked.place + behind}, &asked, 1, expanded);
  isExpanded = expandedSize != 0;
  return isExpanded;
}

void PlainPath::copyTo(char *result) const {
  if (isExpanded)
    std::memcpy(result, expanded, expandedSize);
  else
    copyLevels(result);
}

void PlainPath::copyLevels(char *result) const {
  // What is to be added to the marks.
  const auto change = [](Block block, char mark, char other) {
    return reinterpret_cast<Block>(isChar(block, mark)) & static_cast<unsigned char>(other - mark);
  };
  moveChanged(result + (isIntroduced ? 1 : 0), text.data(), text.size(), [&](Block block) {
    return block + change(block, from.divider, to.divider) + change(block, from.busOpen, to.busOpen) +
           change(block, from.busClose, to.busClose);
  });
  if (isIntroduced)
    *result = to.divider;
}

} // namespace zeli
