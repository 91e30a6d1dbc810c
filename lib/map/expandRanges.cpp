#include "map/expandRanges.h"

#include "path/zelPath.h"

namespace zeli {

namespace {

std::int32_t stepOf(const RangePlace &range) { return range.first <= range.last ? 1 : -1; }

// Moves on to the next combination of numbers; false behind the last.
bool advance(std::int32_t *numbers, const RangePlace *ranges, std::size_t count) {
  for (std::size_t i = count; i-- > 0;) {
    if (numbers[i] != ranges[i].last) {
      numbers[i] += stepOf(ranges[i]);
      return true;
    }
    numbers[i] = ranges[i].first;
  }
  return false;
}

} // namespace

std::size_t expandRanges(Bytes path, const RangePlace *ranges, std::size_t count, char *expanded) {
  constexpr std::size_t longestNumber = 8;
  const std::size_t outer = count - 1; // ranges in front of the last
  if (count > mostRanges || path.size() + outer * longestNumber > maxName)
    return 0;
  std::int32_t numbers[mostRanges] = {};
  for (std::size_t i = 0; i < outer; ++i)
    numbers[i] = ranges[i].first;
  const RangePlace &last = ranges[outer];
  const Bytes behind = from(path, last.place);

  // What stands between two numbers of the last range: the end of a path, a comma, and the next path up to its number.
  char between[maxName + 1 + blockBytes];
  std::memcpy(between, behind.data(), behind.size());
  between[behind.size()] = ',';
  char *const lead = between + behind.size() + 1;
  char *to = expanded;
  const auto fits = [&](std::size_t more) { return static_cast<std::size_t>(to - expanded) + more <= maxName; };
  for (;;) {
    char *leadEnd = lead;
    std::size_t copied = 0;
    for (std::size_t i = 0; i < count; ++i) {
      const Bytes part = from(upTo(path, ranges[i].place), copied);
      std::memcpy(leadEnd, part.data(), part.size());
      leadEnd += part.size();
      if (i < outer)
        leadEnd = writeNumber(leadEnd, numbers[i]);
      copied = ranges[i].place;
    }
    const auto leadSize = static_cast<std::size_t>(leadEnd - lead);
    const std::size_t size = behind.size() + 1 + leadSize;
    if (!fits(leadSize))
      return 0;
    std::memcpy(to, lead, leadSize);
    to += leadSize;
    for (std::int32_t number = last.first;; number += stepOf(last)) {
      to = writeNumber(to, number);
      if (number == last.last)
        break;
      if (!fits(size))
        return 0;
      for (std::size_t i = 0; i < size; i += blockBytes)
        storeBlock(to + i, loadBlock(between + i));
      to += size;
    }
    if (!fits(behind.size()))
      return 0;
    std::memcpy(to, between, behind.size() + 1);
    to += behind.size();
    if (!advance(numbers, ranges, outer))
      return static_cast<std::size_t>(to - expanded);
    ++to; // the comma
  }
}

} // namespace zeli
