// The escaped-identifier scheme of the Verilog family (IEEE 1364, 3.7.1): a name that is not a normal one stands
// between a backslash and one blank.
#ifndef ZEL_SPACES_ESCAPEDIDENTIFIER_H
#define ZEL_SPACES_ESCAPEDIDENTIFIER_H

#include "core/hexEscape.h"
#include "spaces/space.h"

namespace zeli {

struct EscapedIdentifierRules {
  ByteSet first;
  ByteSet normal;
  HexEscape escape; // its literal bytes, the graphic ones, may stand in an escaped identifier
  Spelling spelling;
  KeywordTest isKeyword;

  constexpr PlainWords plainWords() const {
    return {traitDigitFirst, traitDigitFirst, traitDigitFirst | traitUpper, 'S', isKeyword};
  }

  bool isNormal(const Name &name) const;
  bool isLegal(const Name &name) const;
  zelRefusal explain(const Name &name) const;
  Spelled write(const Ident &ident, const Setting &setting, Text &work) const;
  Ident read(const Name &name, const Setting &setting, Text &work) const;
};

constexpr EscapedIdentifierRules escapedIdentifierRules(const ByteSet &first, const ByteSet &normal,
                                                        const KeywordTest &isKeyword) {
  constexpr HexEscape escape = {'#', graphic};
  return {first, normal, escape, Spelling(escape, graphic), isKeyword};
}

} // namespace zeli

#endif
