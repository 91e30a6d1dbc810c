#include "spaces/extendedIdentifier.h"

namespace zeli {

namespace {

bool isCompatibility(std::int32_t state) { return state == ZEL_MAP_VHDL || state == ZEL_MAP_TANDEM; }

} // namespace

bool isLegalExtended(Bytes name, const ByteSet &escapable) {
  if (name.size() >= 2 && isExtended(name) &&
      (kindsIn(extendedContent(name)) & (traitBackslash | traitNotGraphic)) == 0)
    return true;
  bool isClosing = false;
  for (const char c : from(name, 1)) {
    if (!escapable.has(c))
      return false;
    if (c == '\\')
      isClosing = !isClosing;
    else if (isClosing)
      return false;
  }
  return isClosing;
}

Spelled writeExtended(Text &work, const Name &body, const HexEscape &escape, const Spelling &spelling, bool folds) {
  return {spell(work, {skipForce(body), body.look.traits}, escape, spelling, folds), '\\', '\\'};
}

bool ExtendedIdentifierRules::isNormal(const Name &name) const {
  return !name.empty() && first.has(name[0]) && name.back() != '_' && isMadeOf(name, normal) &&
         !name.has(traitTwoUnderscores) && !isKeyword(name);
}

bool ExtendedIdentifierRules::isLegal(const Name &name) const {
  if (!isNameLength(name))
    return false;
  return name[0] == '\\' ? isLegalExtended(name, escape.literal) : isNormal(name);
}

zelRefusal ExtendedIdentifierRules::explain(const Name &name) const {
  return explainLength(name, [&]() -> zelRefusal {
    const auto at = [](std::int32_t reason, std::size_t i) {
      return zelRefusal{reason, static_cast<std::uint32_t>(i)};
    };
    if (name[0] == '\\') {
      bool isClosing = false;
      for (std::size_t i = 1; i < name.size(); ++i) {
        if (!escape.literal.has(name[i]) || (isClosing && name[i] != '\\'))
          return at(isClosing ? ZEL_REASON_UNEXPECTED_CHARACTER : ZEL_REASON_ILLEGAL_CHARACTER, i);
        isClosing = name[i] == '\\' && !isClosing;
      }
      return at(isClosing ? ZEL_REASON_NOT_CONVERTED : ZEL_REASON_UNTERMINATED_ESCAPE, isClosing ? 0 : name.size());
    }
    if (!first.has(name[0]))
      return at(ZEL_REASON_ILLEGAL_FIRST_CHARACTER, 0);
    for (std::size_t i = 1; i < name.size(); ++i)
      if (!normal.has(name[i]) || (name[i] == '_' && (name[i - 1] == '_' || i + 1 == name.size())))
        return at(ZEL_REASON_ILLEGAL_CHARACTER, i);
    return at(isKeyword(name) ? ZEL_REASON_RESERVED_WORD : ZEL_REASON_NOT_CONVERTED, 0);
  });
}

[[gnu::flatten]] Spelled ExtendedIdentifierRules::write(const Ident &ident, const Setting &setting, Text &work) const {
  const std::int32_t state = mapStateOf(setting);
  const bool isSensitive = ident.isCaseSensitive();
  const Name &body = ident.body;

  // Capitals matter in a case-sensitive name; under VHDL and TANDEM compatibility in a case-insensitive one.
  const bool caseMatters = (state != ZEL_MAP_MATCH || ident.marker == 'F') && isSensitive != isCompatibility(state);
  const bool isBasic = isNormal(body) && !setting.isReserved(body);
  const bool keepsCapitals = !caseMatters || !body.has(traitUpper);
  if (isBasic && keepsCapitals && (!isSensitive || !isForce(body)))
    return body;
  if (isBasic && !isSensitive) {
    copyLowered(work, body);
    return work.view();
  }
  return writeExtended(work, body, escape, spelling, !isSensitive);
}

[[gnu::flatten]] Ident ExtendedIdentifierRules::read(const Name &name, const Setting &setting, Text &work) const {
  if (!isNameLength(name))
    return refuseIdent();
  const std::int32_t state = mapStateOf(setting);
  if (isNormal(name))
    return {state == ZEL_MAP_VHDL ? 'S' : 'I', name};
  return readExtended(name, work, escape, isCompatibility(state),
                      [&](const Name &plain) { return isNormal(plain) && !setting.isReserved(plain); });
}

} // namespace zeli
