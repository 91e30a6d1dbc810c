#include "spaces/backslash.h"

namespace zeli {

bool BackslashRules::holdsOnly(const ByteSet &set, Bytes name, std::size_t start, std::size_t end) const {
  for (std::size_t i = start; i < end; ++i) {
    if (quotes(name, i))
      ++i;
    else if (!set.has(name[i]))
      return false;
  }
  return true;
}

bool BackslashRules::isLegal(const Name &name) const {
  return isNameLength(name) && (isWord(name) || holdsOnly(plain, name, 0, name.size()));
}

zelRefusal BackslashRules::explain(const Name &name) const {
  return explainLength(name, [&]() -> zelRefusal {
    std::size_t i = 0;
    while (i < name.size() && (plain.has(name[i]) || quotes(name, i)))
      i += quotes(name, i) ? 2 : 1;
    if (i >= name.size())
      return {ZEL_REASON_NOT_CONVERTED, 0};
    const bool isOpen = name[i] == '\\' && i + 1 == name.size();
    return {isOpen ? ZEL_REASON_UNTERMINATED_ESCAPE : ZEL_REASON_ILLEGAL_CHARACTER, static_cast<std::uint32_t>(i)};
  });
}

Bytes BackslashRules::write(const Ident &ident, const Setting &setting, Text &work) const {
  const bool folds = foldsCase(ident, setting);
  if (takesWords)
    return spell(work, ident.body, escape, spelling, folds);
  encode(work, ident.body, escape, spelling, folds);
  return work.view();
}

Ident BackslashRules::read(const Name &name, const Setting &, Text &work) const {
  return isLegal(name) ? readLegal(name, work) : refuseIdent();
}

Ident BackslashRules::readLegal(const Name &name, Text &work) const {
  return decodeIdent(work, name, escape, traitBackslash, [this](Bytes s, std::size_t i) { return quotes(s, i); });
}

} // namespace zeli
