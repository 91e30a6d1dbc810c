#include "spaces/classEscape.h"

namespace zeli {

bool ClassEscapeRules::isLegal(const Name &name) const {
  if (!isNameLength(name))
    return false;
  return (spelling.keepsGraphic && !name.withKinds().has(traitNotGraphic)) || isMadeOf(name, escape.literal);
}

Spelled ClassEscapeRules::write(const Ident &ident, const Setting &setting, Text &work) const {
  return spell(work, ident.body, escape, spelling, foldsCase(ident, setting) && ident.body.has(traitUpper));
}

Ident ClassEscapeRules::read(const Name &name, const Setting &, Text &work) const {
  const Name known = name.withKinds();
  return isLegal(known) ? decodeIdent(work, known, escape) : refuseIdent();
}

} // namespace zeli
