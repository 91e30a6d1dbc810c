// The backslash scheme of the netlist and file formats: a byte that is syntax of the format stands behind a backslash,
// a byte that the format cannot carry stands as an escape. A backslash before any other byte is a byte like others.
#ifndef ZEL_SPACES_BACKSLASH_H
#define ZEL_SPACES_BACKSLASH_H

#include "core/hexEscape.h"

namespace zeli {

constexpr ByteSet beyondAscii = range(128, 255);

struct BackslashSpace {
  ByteSet plain;     // the bytes that a name may hold as they are
  ByteSet escapable; // the bytes that a backslash may stand before
  ByteSet quoted;    // the bytes that the writer puts a backslash before, also when it writes them as an escape
  HexEscape escape;

  // Whether the byte at i is a backslash that only quotes the byte behind it.
  bool quotes(Bytes name, std::size_t i) const {
    return name[i] == '\\' && i + 1 < name.size() && escapable.has(name[i + 1]);
  }

  // As isMadeOf, with these quotes.
  bool holdsOnly(const ByteSet &set, Bytes name, std::size_t start, std::size_t end) const;

  bool isLegal(Bytes name) const;
  Bytes write(const Ident &ident, Text &work) const;
  Ident read(Bytes name, Text &work) const;

  // The Ident of a name that has been found good.
  Ident readLegal(Bytes name, Text &work) const;
};

} // namespace zeli

#endif
