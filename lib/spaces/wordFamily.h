// What SDF, SPEF and GCF share: letters, digits and '_' stand as they are, all punctuation behind a backslash, and with
// it whatever a file chooses as pin delimiter and bus brackets.
#ifndef ZEL_SPACES_WORDFAMILY_H
#define ZEL_SPACES_WORDFAMILY_H

#include "spaces/backslash.h"
#include "spaces/separators.h"

namespace zeli {

constexpr BackslashRules wordFamily(const Separators &separators) {
  const auto [pinDelimiter, divider, busOpen, busClose] = separators;
  const ByteSet escapable = ((graphic - wordChar) | chars({pinDelimiter, busOpen, busClose})) - beyondAscii;
  return {wordChar, escapable, (anyByte - wordChar) | escapable, {'#', escapable}};
}

} // namespace zeli

#endif
