// What Verilog, Verilog-AMS and Verilog-A share: everything but the reserved words.
#ifndef ZEL_SPACES_VERILOGFAMILY_H
#define ZEL_SPACES_VERILOGFAMILY_H

#include "spaces/escapedIdentifier.h"

namespace zeli {

constexpr EscapedIdentifierRules verilogFamily(const KeywordTest &isKeyword) {
  return escapedIdentifierRules(letter | chars("_"), wordChar | chars("$"), isKeyword);
}

} // namespace zeli

#endif
