#include "spaces/backslash.h"

#include "core/zelpvt.h"

namespace zeli {

bool BackslashSpace::holdsOnly(const ByteSet &set, Bytes name, std::size_t start, std::size_t end) const {
  return isMadeOf(set, name, start, end, [this](Bytes s, std::size_t i) { return quotes(s, i); });
}

bool BackslashSpace::isLegal(Bytes name) const { return isNameLength(name) && holdsOnly(plain, name, 0, name.size()); }

Bytes BackslashSpace::write(const Ident &ident, Text &work) const {
  encode(work, ident.body, escape, foldsCase(ident), plain | escapable, {quoted});
  return work.view();
}

Ident BackslashSpace::read(Bytes name, Text &work) const {
  return isLegal(name) ? readLegal(name, work) : refuseIdent();
}

Ident BackslashSpace::readLegal(Bytes name, Text &work) const {
  return decodeIdent(work, name, escape, [this](Bytes s, std::size_t i) { return quotes(s, i); });
}

} // namespace zeli
