// The escaped-identifier scheme of the Verilog family (IEEE 1364, 3.7.1): a name that is not a normal one stands
// between a backslash and one blank.
#ifndef ZEL_SPACES_ESCAPEDIDENTIFIER_H
#define ZEL_SPACES_ESCAPEDIDENTIFIER_H

#include "core/hexEscape.h"
#include "spaces/keywords.h"

namespace zeli {

struct EscapedIdentifierSpace {
  ByteSet first;
  ByteSet normal;
  HexEscape escape; // its literal bytes are the ones that may stand in an escaped identifier
  const Keywords &keywords;

  bool isNormal(Bytes name) const;
  bool isLegal(Bytes name) const;
  Bytes write(const Ident &ident, Text &work) const;
  Ident read(Bytes name, Text &work) const;
};

} // namespace zeli

#endif
