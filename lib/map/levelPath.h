// Paths straight from text to text: levels joined by marks, with an index or a range behind any of them. Most paths are
// such, and most of their levels are words that stand as they are in both languages. Pins behind a delimiter of their
// own and element letters are known here only.
#ifndef ZEL_MAP_LEVELPATH_H
#define ZEL_MAP_LEVELPATH_H

#include "map/expandRanges.h"
#include "map/route.h"

namespace zeli {

// What one path is mapped in. The result lies in it.
class LevelPath {
public:
  static constexpr std::size_t longest = 2 * maxName;

  // Why and where the path was refused.
  zelRefusal refusal = {};

  // The path on the other side of the route; without data where it is refused. A grammar with more than levels may
  // still read it.
  Bytes map(Bytes given, const Route &route);

private:
  // An index or a range in the text.
  struct Bus {
    std::size_t end;
    std::int64_t first;
    std::int64_t last;
    bool isRange;
    bool isAsPrinted;
  };

  std::size_t size = 0;
  std::size_t written = 0;

  // Those to be expanded, and the bracket of the last.
  std::size_t rangeCount = 0;
  std::size_t rangeOpen = 0;
  // cppcheck-suppress uninitMemberVarPrivate ; what is large is deliberately not cleared for every path
  RangePlace ranges[mostRanges];

  // cppcheck-suppress uninitMemberVarPrivate
  char text[longest + 1]; // with a NUL behind it
  // cppcheck-suppress uninitMemberVarPrivate
  char respelled[1 + maxName]; // behind room for one mark

  Bytes refuseAt(std::size_t position, std::int32_t reason);
  std::size_t nameEnd(const Route &route, std::size_t start);
  bool readNumber(std::size_t &at, bool takesSign, std::int64_t &value, bool &isAsPrinted);
  bool readBus(const Route &route, std::size_t open, Bus &bus);
  bool mapBus(const Route &route, std::size_t open, const Bus &bus);
  bool respell(const Route &route, std::size_t start, std::size_t end, bool isElement);
  bool put(std::size_t place, const Spelled &spelled);
};

} // namespace zeli

#endif
