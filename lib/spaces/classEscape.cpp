#include "spaces/classEscape.h"

#include "core/zelpvt.h"

namespace zeli {

bool ClassEscapeSpace::isLegal(Bytes name) const { return isNameLength(name) && allOf(name, escape.literal); }

Bytes ClassEscapeSpace::write(const Ident &ident, Text &work) const {
  encode(work, ident.body, escape, foldsCase(ident));
  return work.view();
}

Ident ClassEscapeSpace::read(Bytes name, Text &work) const {
  return isLegal(name) ? decodeIdent(work, name, escape, quotesNothing) : refuseIdent();
}

} // namespace zeli
