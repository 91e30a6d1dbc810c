// What VHDL, VHDL-87 and VHDL-AMS share: everything but the reserved words.
#ifndef ZEL_SPACES_VHDLFAMILY_H
#define ZEL_SPACES_VHDLFAMILY_H

#include "spaces/extendedIdentifier.h"

namespace zeli {

constexpr ExtendedIdentifierRules vhdlFamily(bool (*isKeyword)(const Name &word), bool (*isSettled)() = nullptr) {
  constexpr HexEscape escape = {'#', graphic | chars(" ")};
  return {letter, wordChar, escape, spellingExtended(escape), isKeyword, isSettled};
}

} // namespace zeli

#endif
