// Paths straight from text to text: levels joined by marks, with an index or a range behind any of them. Most paths are
// such, and most of their levels are words that stand as they are in both languages. Pins behind a delimiter of their
// own and element letters are known here only.
#ifndef ZEL_MAP_LEVELPATH_H
#define ZEL_MAP_LEVELPATH_H

#include "map/route.h"

namespace zeli {

// What one path is mapped in. The result lies in it.
class LevelPath {
public:
  static constexpr std::size_t longest = 2 * maxName;

  // What levels alone do not say.
  static constexpr std::uint32_t wholePathFlags = ZEL_PRINT_GROUP | ZEL_PRINT_TOP;

  // Why and where the path was refused.
  zelRefusal refusal = {};

  // The path on the other side of the route; without data where it is refused. A grammar with more than levels may
  // still read it.
  Bytes map(Bytes path, const Route &route);

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
  std::size_t copied = 0; // up to here the text stands in respelled
  std::size_t written = 0;
  Traits traits = 0;
  std::uint32_t others[longest / blockBytes + 2]; // a bit a byte that no word holds

  // Behind room for one mark: the text, whose marks are exchanged in their places; and the result
  // once something is spelt anew.
  char text[1 + longest + 1];
  char respelled[1 + maxName];

  char *begin() { return text + 1; }

  void scan(Bytes path);
  std::size_t wordEnd(std::size_t start) const;
  Bytes refuseAt(std::size_t position, std::int32_t reason);
  std::size_t nameEnd(const Route &route, std::size_t start);
  bool readNumber(std::size_t &at, bool takesSign, std::int64_t &value, bool &isAsPrinted);
  bool readBus(const Route &route, std::size_t open, Bus &bus);
  bool mapBus(const Route &route, std::size_t open, const Bus &bus);
  bool respell(const Route &route, std::size_t start, std::size_t end, bool isElement);
  bool flush(std::size_t end);
  bool put(const Spelled &spelled);
};

} // namespace zeli

#endif
