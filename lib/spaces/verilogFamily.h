// What Verilog, Verilog-AMS and Verilog-A share: everything but the reserved words.
#ifndef ZEL_SPACES_VERILOGFAMILY_H
#define ZEL_SPACES_VERILOGFAMILY_H

#include "spaces/escapedIdentifier.h"

namespace zeli {

constexpr EscapedIdentifierSpace verilogFamily(const Keywords &keywords) {
  return {letter | chars("_"), letter | digit | chars("_$"), {'#', graphic}, keywords};
}

} // namespace zeli

#endif
