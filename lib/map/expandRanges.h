// Ranges to single bits: a path for every combination of their numbers.
#ifndef ZEL_MAP_EXPANDRANGES_H
#define ZEL_MAP_EXPANDRANGES_H

#include "core/text.h"

namespace zeli {

struct RangePlace {
  std::size_t place; // in the path without the numbers
  std::int32_t first;
  std::int32_t last;
};

constexpr std::size_t mostRanges = 8;

// What expandRanges needs of a buffer.
constexpr std::size_t expandedRoom = maxName + 3 * blockBytes;

// Writes path with every combination of the numbers of count ranges, one at least, at their places: divided by commas,
// those of the last range changing first. Returns the size, or 0 where that is more than the longest name.
std::size_t expandRanges(Bytes path, const RangePlace *ranges, std::size_t count, char *expanded);

} // namespace zeli

#endif
