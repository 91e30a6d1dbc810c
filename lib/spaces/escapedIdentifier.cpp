#include "spaces/escapedIdentifier.h"

#include "core/zelpvt.h"

namespace zeli {

namespace {

bool isEscaped(Bytes name) { return name.size() >= 2 && name.front() == '\\' && white.has(name.back()); }

Bytes content(Bytes escapedName) { return {escapedName.data() + 1, escapedName.size() - 2}; }

} // namespace

bool EscapedIdentifierSpace::isNormal(Bytes name) const {
  return !name.empty() && first.has(name[0]) && allOf(from(name, 1), normal) && !keywords.has(name);
}

bool EscapedIdentifierSpace::isLegal(Bytes name) const {
  if (!isNameLength(name))
    return false;
  if (name[0] == '\\')
    return isEscaped(name) && allOf(content(name), escape.literal);
  return isNormal(name);
}

Bytes EscapedIdentifierSpace::write(const Ident &ident, Text &work) const {
  const bool folds = foldsCase(ident);
  if (isNormal(ident.body)) {
    if (!folds)
      return ident.body;
    encode(work, ident.body, noEscape, true);
    if (!keywords.has(work.view()))
      return work.view();
    work.size = 0;
  }

  work.put('\\');
  encode(work, ident.body, escape, folds);
  work.put(' ');
  return work.view();
}

Ident EscapedIdentifierSpace::read(Bytes name, Text &work) const {
  if (!isNameLength(name))
    return refuseIdent();
  // A normal name is always case-sensitive, an escaped one only when it holds capitals.
  if (isNormal(name))
    return {'S', name};
  if (!isEscaped(name))
    return refuseIdent();
  return decodeIdent(work, content(name), escape, quotesNothing);
}

} // namespace zeli
