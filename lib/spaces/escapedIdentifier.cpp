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

zelRefusal EscapedIdentifierRules::explain(const Name &name) const {
  return explainLength(name, [&]() -> zelRefusal {
    if (name[0] == '\\' && !isEscaped(name))
      return {ZEL_REASON_NO_WHITE_SPACE, static_cast<std::uint32_t>(name.size())};
    if (name[0] == '\\') {
      const zelRefusal inside = explainFirst(Name(content(name)), 0, escape.literal);
      return {inside.reason, inside.position + 1};
    }
    if (!first.has(name[0]))
      return {ZEL_REASON_ILLEGAL_FIRST_CHARACTER, 0};
    return isKeyword(name) ? zelRefusal{ZEL_REASON_RESERVED_WORD, 0} : explainFirst(name, 1, normal);
  });
}

[[gnu::flatten]] Spelled EscapedIdentifierRules::write(const Ident &ident, const Setting &setting, Text &work) const {
  const bool folds = foldsCase(ident, setting) && ident.body.has(traitUpper);
  if (isNormal(ident.body)) {
    if (!folds && !setting.isReserved(ident.body))
      return ident.body;
    if (folds) {
      copyLowered(work, ident.body);
      const Name folded(work.view(), 0);
      if (!isKeyword(folded) && !setting.isReserved(folded))
        return folded;
      work.size = 0;
    }
  }

  return {spell(work, ident.body, escape, spelling, folds), '\\', ' '};
}

[[gnu::flatten]] Ident EscapedIdentifierRules::read(const Name &name, const Setting &, Text &work) const {
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
