// What SDF, SPEF and GCF share: letters, digits and '_' stand as they are, all punctuation behind a backslash, and with
// it whatever a file chooses as pin delimiter and bus brackets.
#ifndef ZEL_SPACES_WORDFAMILY_H
#define ZEL_SPACES_WORDFAMILY_H

#include "spaces/backslash.h"
#include "spaces/currentHandle.h"

namespace zeli {

constexpr ByteSet wordChar = letter | digit | chars("_");

constexpr BackslashSpace wordFamily(const Separators &separators) {
  const ByteSet syntax =
      (graphic - wordChar) | separatorSet({separators.pinDelimiter, separators.busOpen, separators.busClose});
  const ByteSet escapable = syntax - beyondAscii;
  return {.plain = wordChar,
          .escapable = escapable,
          .quoted = (anyByte - wordChar) | escapable,
          .escape = {'#', escapable}};
}

} // namespace zeli

#endif
