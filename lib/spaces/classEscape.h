// The class-escape scheme of the spaces without quoting: the bytes of a class stand as they are, all others as escapes.
#ifndef ZEL_SPACES_CLASSESCAPE_H
#define ZEL_SPACES_CLASSESCAPE_H

#include "core/hexEscape.h"

namespace zeli {

struct ClassEscapeSpace {
  HexEscape escape; // its literal bytes are the class

  bool isLegal(Bytes name) const;
  Bytes write(const Ident &ident, Text &work) const;
  Ident read(Bytes name, Text &work) const;
};

} // namespace zeli

#endif
