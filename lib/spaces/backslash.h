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
  bool takesWords;  // false where a file chose a letter, digit or '_' as a separator
  bool quotesWords; // whether a backslash may stand before one of these

  // What each byte is to the reader.
  enum Role : std::uint8_t {
    backslashRole = 1,
    notPlainRole = 2,
    markRole = 4,
    notGraphicRole = 8,
    notEscapableRole = 16
  };
  std::uint8_t roles[256] = {};

  // quoted: the bytes that the writer puts a backslash before, also when it writes them as an escape.
  constexpr BackslashRules(const ByteSet &plainBytes, const ByteSet &escapableBytes, const ByteSet &quoted,
                           const HexEscape &hexEscape)
      : plain(plainBytes), escapable(escapableBytes), escape(hexEscape),
        spelling(hexEscape, plainBytes | escapableBytes, quoted), takesWords(true), quotesWords(false) {
    for (int i = 0; i < 256; ++i) {
      const auto c = static_cast<char>(i);
      if (wordChar.has(c)) {
        takesWords = takesWords && !quoted.has(c) && plain.has(c);
        quotesWords = quotesWords || escapable.has(c);
      }
      roles[i] = static_cast<std::uint8_t>(
          (c == '\\' ? backslashRole : 0) | (plain.has(c) ? 0 : notPlainRole) | (c == '#' || c == '%' ? markRole : 0) |
          (graphic.has(c) ? 0 : notGraphicRole) | (escapable.has(c) ? 0 : notEscapableRole));
    }
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
  Spelled write(const Ident &ident, const Setting &setting, Text &work) const;
  Ident read(const Name &name, const Setting &setting, Text &work) const;

  // The Ident of a name that has been found good.
  Ident readLegal(const Name &name, Text &work) const;

  // The Ident of a name of ordinary length of which every byte is plain or quoted, and no two backslashes stand
  // together; without data for any other.
  Ident readQuoted(const Name &name, Text &work) const;

private:
  struct Unquoted {
    bool isLegal;
    unsigned roles; // of all bytes but the backslashes that only quote, as far as words do not have them
  };

  // Copies a name to out without the backslashes that only quote.
  Unquoted unquote(Text &out, Bytes name) const;

  // The Ident of a name of which work holds the unquoted copy.
  Ident identOfUnquoted(const Name &name, unsigned rolesSeen, Text &work) const;
};

} // namespace zeli

#endif
