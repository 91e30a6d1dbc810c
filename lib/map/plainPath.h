// Paths of nothing but words that stand as they are on the other side, and numbers in brackets: most paths. They are
// tested where they stand, and copied with other marks between the words.
#ifndef ZEL_MAP_PLAINPATH_H
#define ZEL_MAP_PLAINPATH_H

#include "map/route.h"

namespace zeli {

// Whether the word in path from start up to end, which may be empty, stands as it is on the other side of the route;
// its capitals and "__" are asked elsewhere.
bool takesWord(const Route &route, Bytes path, std::size_t start, std::size_t end);

class PlainPath {
public:
  // Whether path is such a one.
  bool read(Bytes path, const Route &route);

  // The path in the other language, which copyTo puts where there is room for so much. That may be where the path lies.
  std::size_t size() const { return text.size() + (isIntroduced ? 1 : 0); }
  void copyTo(char *to) const;

private:
  Bytes text; // without the divider in front
  Punctuation from;
  Punctuation to;
  bool isIntroduced; // a divider is to stand in front
};

} // namespace zeli

#endif
