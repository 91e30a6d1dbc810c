// Paths of nothing but words that stand as they are on the other side, and numbers in brackets: most paths. They are
// tested where they stand, and copied with other marks between the words.
#ifndef ZEL_MAP_PLAINPATH_H
#define ZEL_MAP_PLAINPATH_H

#include "map/expandRanges.h"
#include "map/route.h"

namespace zeli {

// Whether the word in path from start up to end, which may be empty, stands as it is on the other side of the route;
// its capitals and "__" are asked elsewhere.
bool takesWord(const Route &route, Bytes path, std::size_t start, std::size_t end);

// cppcheck-suppress noConstructor ; it is read before anything is asked
class PlainPath {
public:
  // Whether path, which is not empty, is such a one. If not, what follows is about its levels, each with the mark
  // behind it, in front of the first that is not.
  bool read(Bytes path, const Route &route);

  // Where they start in the path: behind a divider in front.
  std::size_t start() const { return first; }

  // The levels in the other language, which copyTo puts where there is room for so much. That may be where the path
  // lies.
  std::size_t size() const { return isExpanded ? expandedSize : levelsSize(); }
  void copyTo(char *result) const;

private:
  Bytes text;
  std::size_t first;
  Punctuation from;
  Punctuation to;
  bool isIntroduced; // a divider is to stand in front
  bool isExpanded;   // a range was, to single bits

  std::size_t expandedSize;
  char expanded[expandedRoom];

  std::size_t levelsSize() const { return text.size() + (isIntroduced ? 1 : 0); }
  void copyLevels(char *result) const;
  bool expand(std::size_t open, std::size_t close);
};

} // namespace zeli

#endif
