#include "spaces/escapedIdentifier.h"

namespace zeli {

namespace {

bool isEscaped(Bytes name) { return name.size() >= 2 && name.front() == '\\' && white.has(name.back()); }

Bytes content(Bytes escapedName) { return {escapedName.data() + 1, escapedName.size() - 2}; }

} // namespace

bool EscapedIdentifierRules::isNormal(const Name &name) const {
  return !name.empty() && first.has(name[0]) && isMadeOf(name, normal) && !isKeyword(name);
}

bool EscapedIdentifierRules::isLegal(const Name &name) const {
  if (!isNameLength(name))
    return false;
  if (name[0] == '\\')
    return isEscaped(name) && (kindsIn(content(name)) & traitNotGraphic) == 0;
  return isNormal(name);
}

Bytes EscapedIdentifierRules::write(const Ident &ident, const Setting &setting, Text &work) const {
  const bool folds = foldsCase(ident, setting) && ident.body.has(traitUpper);
  if (isNormal(ident.body)) {
    if (!folds)
      return ident.body;
    copyLowered(work, ident.body);
    if (!isKeyword(Name(work.view(), 0)))
      return work.view();
    work.size = 0;
  }

  work.put('\\');
  spell(work, ident.body, escape, spelling, folds);
  work.put(' ');
  return work.view();
}

Ident EscapedIdentifierRules::read(const Name &name, const Setting &, Text &work) const {
  if (!isNameLength(name))
    return refuseIdent();
  // A normal name is always case-sensitive, an escaped one only when it holds capitals.
  if (isNormal(name))
    return {'S', name};
  if (!isEscaped(name))
    return refuseIdent();
  return decodeIdent(work, {content(name), name.look.traits}, escape);
}

} // namespace zeli
