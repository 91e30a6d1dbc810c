// What VHDL, VHDL-87 and VHDL-AMS share: everything but the reserved words.
#ifndef ZEL_SPACES_VHDLFAMILY_H
#define ZEL_SPACES_VHDLFAMILY_H

#include "spaces/extendedIdentifier.h"

namespace zeli {

constexpr ExtendedIdentifierRules vhdlFamily(const KeywordTest &isKeyword) {
  constexpr HexEscape escape = {'#', graphic | chars(" ")};
  return {letter, wordChar, escape, spellingExtended(escape), isKeyword};
}

} // namespace zeli

#endif
