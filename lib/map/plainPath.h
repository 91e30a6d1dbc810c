// Paths whose text needs no parsing: levels that are words in both languages, and at most one index or range behind the
// last. They are copied, with other marks between the levels.
#ifndef ZEL_MAP_PLAINPATH_H
#define ZEL_MAP_PLAINPATH_H

#include "path/languages.h"

namespace zeli {

constexpr std::size_t plainPathLength = 255;
constexpr std::size_t plainPathRoom = 1 + plainPathLength + 2 * blockBytes;

// The path in the language of to, in room (plainPathRoom bytes); without data where it is not such a path, which says
// nothing of it. Only in the default mapping state, which it does not determine.
Bytes mapPlainPath(const char *text, zelHandle from, zelHandle to, std::uint32_t flags, char *room);

} // namespace zeli

#endif
