// What VHDL, VHDL-87 and VHDL-AMS share: everything but the reserved words.
#ifndef ZEL_SPACES_VHDLFAMILY_H
#define ZEL_SPACES_VHDLFAMILY_H

#include "spaces/extendedIdentifier.h"

namespace zeli {

constexpr ExtendedIdentifierSpace vhdlFamily(bool (*isKeyword)(Bytes word)) {
  return {letter, letter | digit | chars("_"), {'#', graphic | chars(" ")}, isKeyword};
}

} // namespace zeli

#endif
