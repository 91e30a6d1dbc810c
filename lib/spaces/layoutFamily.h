// What LEF and DEF share: most 7-bit characters stand as they are, the separators of the file, '#' and the backslash
// behind a backslash; the mark of an escape is '%', for '#' begins a comment.
#ifndef ZEL_SPACES_LAYOUTFAMILY_H
#define ZEL_SPACES_LAYOUTFAMILY_H

#include "spaces/backslash.h"

namespace zeli {

constexpr ByteSet layoutChar = ascii - white - chars("#;");

constexpr BackslashRules layoutFamily(const ByteSet &plain, const ByteSet &separators) {
  const ByteSet escapable = separators | chars("#\\");
  // The mark stands alone, also where it is a separator.
  return {plain, escapable, escapable - chars("%"), {'%', escapable}};
}

} // namespace zeli

#endif
