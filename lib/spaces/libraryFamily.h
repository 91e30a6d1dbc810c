// What the library spaces share: a library is a directory, and its name consists of what any file system takes.
#ifndef ZEL_SPACES_LIBRARYFAMILY_H
#define ZEL_SPACES_LIBRARYFAMILY_H

#include "spaces/classEscape.h"

namespace zeli {

constexpr ByteSet fileNameChar = wordChar | chars("@#");
constexpr HexEscape fileNameEscape = {'#', fileNameChar};

} // namespace zeli

#endif
