#include "spaces/classEscape.h"

namespace zeli {

bool ClassEscapeRules::isLegal(const Name &name) const { return isNameLength(name) && isMadeOf(name, escape.literal); }

Bytes ClassEscapeRules::write(const Ident &ident, const Setting &setting, Text &work) const {
  return spell(work, ident.body, escape, spelling, foldsCase(ident, setting));
}

Ident ClassEscapeRules::read(const Name &name, const Setting &, Text &work) const {
  return isLegal(name) ? decodeIdent(work, name, escape, 0, quotesNothing) : refuseIdent();
}

} // namespace zeli
