// The extended-identifier scheme of the VHDL family (IEEE 1076, 13.4.3): a name that is not a basic identifier stands
// between backslashes, a backslash inside doubled.
#ifndef ZEL_SPACES_EXTENDEDIDENTIFIER_H
#define ZEL_SPACES_EXTENDEDIDENTIFIER_H

#include "core/hexEscape.h"
#include "spaces/space.h"

namespace zeli {

// Whether name has the outer form of an extended identifier. A lone backslash does: it opens and closes at once.
inline bool isExtended(Bytes name) { return !name.empty() && name.front() == '\\' && name.back() == '\\'; }
inline Bytes extendedContent(Bytes name) {
  return name.size() < 2 ? Bytes{""} : Bytes{name.data() + 1, name.size() - 2};
}

// Whether a name that begins with a backslash is a well-formed extended identifier over a set of bytes, which holds all
// graphic ones.
bool isLegalExtended(Bytes name, const ByteSet &escapable);

// A backslash inside is doubled: how that is written, and for decode the first of the two.
constexpr Spelling spellingExtended(const HexEscape &escape) { return Spelling(escape, escape.literal, chars("\\")); }
inline bool quotesBackslash(Bytes s, std::size_t i) { return s[i] == '\\' && i + 1 < s.size() && s[i + 1] == '\\'; }

// body, without a force prefix, as an extended identifier.
Spelled writeExtended(Text &work, const Name &body, const HexEscape &escape, const Spelling &spelling, bool folds);

// Reads an extended identifier. A content that would also be a name as it stands keeps the force prefix, by which it is
// written back extended; one with capitals only when keepsCapitals.
template <typename IsNormal>
Ident readExtended(const Name &name, Text &work, const HexEscape &escape, bool keepsCapitals, IsNormal isNormal) {
  if (!isExtended(name))
    return refuseIdent();
  const Name content = Name(extendedContent(name)).withKinds();
  const bool standsAsItIs = !content.has(traitMark | traitBackslash);
  work.put(force);
  const bool copiedUpper = standsAsItIs ? content.has(traitUpper) : decode(work, content, escape, quotesBackslash);
  const Name plain = standsAsItIs ? content : Name(skipForce(work.view()));
  if ((copiedUpper && !keepsCapitals) || !isNormal(plain))
    return {copiedUpper ? 'S' : 'I', plain};
  if (standsAsItIs)
    work.put(content);
  return {'S', Name(work.view())};
}

struct ExtendedIdentifierRules {
  ByteSet first;
  ByteSet normal;
  HexEscape escape; // its literal bytes are the ones that may stand in an extended identifier
  Spelling spelling;
  KeywordTest isKeyword;

  constexpr PlainWords plainWords() const {
    constexpr Traits never = traitDigitFirst | traitUnderscoreFirst | traitUnderscoreLast | traitTwoUnderscores;
    return {never, never | traitUpper, never, 'I', isKeyword};
  }

  bool isNormal(const Name &name) const;
  bool isLegal(const Name &name) const;
  zelRefusal explain(const Name &name) const;
  Spelled write(const Ident &ident, const Setting &setting, Text &work) const;
  Ident read(const Name &name, const Setting &setting, Text &work) const;
};

} // namespace zeli

#endif
