#include "spaces/extendedIdentifier.h"

#include "core/zelpvt.h"

namespace zeli {

namespace {

bool isCompatibility(std::int32_t state) { return state == ZEL_MAP_VHDL || state == ZEL_MAP_TANDEM; }

} // namespace

bool isLegalExtended(Bytes name, const ByteSet &escapable) {
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

Bytes writeExtended(Text &work, Bytes body, const HexEscape &escape, bool folds) {
  work.put('\\');
  encode(work, skipForce(body), escape, folds, doubledBackslash);
  work.put('\\');
  return work.view();
}

bool ExtendedIdentifierSpace::isNormal(Bytes name) const {
  if (name.empty() || !first.has(name[0]) || name.back() == '_')
    return false;
  for (std::size_t i = 1; i < name.size(); ++i)
    if (!normal.has(name[i]) || (name[i] == '_' && name[i - 1] == '_'))
      return false;
  return !isKeyword(name);
}

bool ExtendedIdentifierSpace::isLegal(Bytes name) const {
  if (!isNameLength(name))
    return false;
  return name[0] == '\\' ? isLegalExtended(name, escape.literal) : isNormal(name);
}

Bytes ExtendedIdentifierSpace::write(const Ident &ident, Text &work) const {
  const std::int32_t state = zelGetMapState();
  const bool isSensitive = ident.isCaseSensitive();
  const Bytes body = ident.body;

  // Capitals matter in a case-sensitive name; under VHDL and TANDEM compatibility in a case-insensitive one.
  const bool caseMatters = (state != ZEL_MAP_MATCH || ident.marker == 'F') && isSensitive != isCompatibility(state);
  const bool isBasic = isNormal(body);
  const bool keepsCapitals = !caseMatters || !hasUpper(body);
  if (isBasic && keepsCapitals && (!isSensitive || !isForce(body)))
    return body;
  if (isBasic && !isSensitive) {
    encode(work, body, escape, true, doubledBackslash);
    return work.view();
  }
  return writeExtended(work, body, escape, !isSensitive);
}

Ident ExtendedIdentifierSpace::read(Bytes name, Text &work) const {
  if (!isNameLength(name))
    return refuseIdent();
  const std::int32_t state = zelGetMapState();
  if (isNormal(name))
    return {state == ZEL_MAP_VHDL ? 'S' : 'I', name};
  return readExtended(name, work, escape, isCompatibility(state), [this](Bytes plain) { return isNormal(plain); });
}

} // namespace zeli
