#include "map/plainPath.h"

namespace zeli {

bool takesWord(const Route &route, Bytes path, std::size_t start, std::size_t end) {
  if (start == end)
    return false;
  const char *const word = path.data() + start;
  const std::size_t length = end - start;
  std::uint64_t head = 0;
  if (start + sizeof head <= path.size())
    head = loadWord(word) & (length < sizeof head ? (std::uint64_t{1} << (8 * length)) - 1 : ~std::uint64_t{0});
  else
    head = headWord(word, length);
  const Traits traits = firstTraits.of[static_cast<unsigned char>(*word)] |
                        (word[length - 1] == '_' ? Traits{traitUnderscoreLast} : Traits{});
  return (traits & route.unless) == 0 && !hasPrefix(head) && !route.isKeyword(Name({word, length}, Look{0, head}));
}

namespace {

// Whether the digits from start up to end are printed as they stand.
bool takesNumber(Bytes path, std::size_t start, std::size_t end) {
  constexpr std::size_t mostDigits = 6;
  static_assert(ZEL_MAX_NUMBER >= 999'999);
  if (start == end || end - start > mostDigits || (path[start] == '0' && end - start > 1))
    return false;
  return allOf(from(upTo(path, end), start), digit);
}

} // namespace

bool PlainPath::read(Bytes path, const Route &route) {
  constexpr Traits traitsOfAll = traitUpper | traitTwoUnderscores;
  if (!route.takesPlainPaths || path.empty() || path.size() > maxName ||
      ((route.unless & traitsOfAll) != 0 && (lookAt(path).traits & route.unless & traitsOfAll) != 0))
    return false;
  from = route.from.marks;
  to = route.to.marks;
  const std::size_t first = route.from.language->isIntroduced && path[0] == from.divider ? 1 : 0;
  bool isDivided = false;
  enum { inName, inFirst, inLast, behindBus } state = inName;
  std::size_t start = first; // of the word or number
  for (std::size_t i = 0; i < path.size(); i += blockBytes)
    for (std::uint32_t bits = othersFrom(path, i); bits != 0; bits &= bits - 1) {
      const std::size_t at = i + static_cast<std::size_t>(__builtin_ctz(bits));
      if (at < first)
        continue;
      const char mark = path[at];
      if (mark == from.divider) {
        if (state == inName ? !takesWord(route, path, start, at) : state != behindBus || start != at)
          return false;
        state = inName;
        isDivided = true;
      } else if (mark == from.busOpen && mark != '\0' && to.busOpen != '\0') {
        if (state != inName || !takesWord(route, path, start, at))
          return false;
        state = inFirst;
      } else {
        const bool isRange = mark == ':' && state == inFirst && route.takesRanges;
        const bool isEnd = mark == from.busClose && (state == inFirst || state == inLast);
        if (!(isRange || isEnd) || !takesNumber(path, start, at))
          return false;
        state = isRange ? inLast : behindBus;
      }
      start = at + 1;
    }
  if (state == inName ? !takesWord(route, path, start, path.size()) : state != behindBus || start != path.size())
    return false;
  text = zeli::from(path, first);
  isIntroduced = isDivided && route.to.language->isIntroduced;
  return size() <= maxName;
}

void PlainPath::copyTo(char *result) const {
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
