// What the library spaces share: a library is a directory, and its name consists of what any file system takes.
#ifndef ZEL_SPACES_FILENAME_H
#define ZEL_SPACES_FILENAME_H

#include "spaces/classEscape.h"

namespace zeli {

constexpr ByteSet fileNameChar = letter | digit | chars("_@#");
constexpr HexEscape fileNameEscape = {'#', fileNameChar};

} // namespace zeli

#endif
