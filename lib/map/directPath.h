// Paths straight from text to text: levels joined by dividers, and at most one index or range behind the last. Most
// paths are such, and most of their levels are words that stand as they are in both languages.
#ifndef ZEL_MAP_DIRECTPATH_H
#define ZEL_MAP_DIRECTPATH_H

#include "path/languages.h"

namespace zeli {

// What a direct mapping works in. The result lies in it.
struct DirectPath {
  static constexpr std::size_t longest = 255;

  char text[1 + longest + blockBytes]; // the text behind room for a divider, marks exchanged in their place
  char respelled[16 * longest + 16];   // the result where a level is spelt anew, behind such room, too

  // The path at pathText in the language of to. Without data where it is no such path, or anything in it is refused;
  // that says nothing of it. Only in the default mapping state, which it does not determine.
  Bytes map(const char *pathText, zelHandle from, zelHandle to, std::uint32_t flags);
};

} // namespace zeli

#endif
