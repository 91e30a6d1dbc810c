// The class-escape scheme of the spaces without quoting: the bytes of a class stand as they are, all others as escapes.
#ifndef ZEL_SPACES_CLASSESCAPE_H
#define ZEL_SPACES_CLASSESCAPE_H

#include "core/hexEscape.h"
#include "spaces/space.h"

namespace zeli {

struct ClassEscapeRules {
  HexEscape escape; // its literal bytes are the class
  Spelling spelling;

  static constexpr PlainWords plainWords() { return anyWord; }

  bool isLegal(const Name &name) const;
  zelRefusal explain(const Name &name) const {
    return explainLength(name, [&] { return explainFirst(name, 0, escape.literal); });
  }
  Spelled write(const Ident &ident, const Setting &setting, Text &work) const;
  Ident read(const Name &name, const Setting &setting, Text &work) const;
};

constexpr ClassEscapeRules classEscapeRules(const ByteSet &literal) {
  const HexEscape escape = {'#', literal};
  return {escape, Spelling(escape, literal)};
}

} // namespace zeli

#endif
