// The backslash scheme of the netlist and file formats: a byte that is syntax of the format stands behind a backslash,
// a byte that the format cannot carry stands as an escape. A backslash before any other byte is a byte like others.
#ifndef ZEL_SPACES_BACKSLASH_H
#define ZEL_SPACES_BACKSLASH_H

#include "core/hexEscape.h"
#include "spaces/space.h"

namespace zeli {

struct BackslashRules {
  ByteSet plain;     // the bytes that a name may hold as they are
  ByteSet escapable; // the bytes that a backslash may stand before
  HexEscape escape;
  Spelling spelling;
  bool takesWords; // false where a file chose a letter, digit or '_' as a separator

  // quoted: the bytes that the writer puts a backslash before, also when it writes them as an escape.
  constexpr BackslashRules(const ByteSet &plainBytes, const ByteSet &escapableBytes, const ByteSet &quoted,
                           const HexEscape &hexEscape)
      : plain(plainBytes), escapable(escapableBytes), escape(hexEscape),
        spelling(hexEscape, plainBytes | escapableBytes, quoted), takesWords(true) {
    for (int c = 0; c < 128; ++c)
      if (wordChar.has(static_cast<char>(c)) && (quoted.has(static_cast<char>(c)) || !plain.has(static_cast<char>(c))))
        takesWords = false;
  }

  static constexpr PlainWords plainWords() { return anyWord; }

  // Whether the byte at i is a backslash that only quotes the byte behind it.
  bool quotes(Bytes name, std::size_t i) const {
    return name[i] == '\\' && i + 1 < name.size() && escapable.has(name[i + 1]);
  }

  // Whether every byte from start up to end is quoted or one of set. The last may quote the byte at end.
  bool holdsOnly(const ByteSet &set, Bytes name, std::size_t start, std::size_t end) const;

  bool isWord(const Name &name) const { return takesWords && name.isWord(); }

  bool isLegal(const Name &name) const;
  zelRefusal explain(const Name &name) const;
  Bytes write(const Ident &ident, const Setting &setting, Text &work) const;
  Ident read(const Name &name, const Setting &setting, Text &work) const;

  // The Ident of a name that has been found good.
  Ident readLegal(const Name &name, Text &work) const;
};

} // namespace zeli

#endif
