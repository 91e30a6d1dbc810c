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
  const bool folds = foldsCase(ident, setting) && ident.body.has(traitUpper);
  if (takesWords)
    return spell(work, ident.body, escape, spelling, folds);
  encode(work, ident.body, escape, spelling, folds);
  return work.view();
}

Ident BackslashRules::read(const Name &name, const Setting &, Text &work) const {
  if (!isNameLength(name))
    return refuseIdent();
  if (isWord(name))
    return identByCase(name);
  const Unquoted unquoted = unquote(work, name);
  return unquoted.isLegal ? identOfUnquoted(name, unquoted.roles, work) : refuseIdent();
}

Ident BackslashRules::readLegal(const Name &name, Text &work) const {
  if (isWord(name))
    return identByCase(name);
  return identOfUnquoted(name, unquote(work, name).roles, work);
}

BackslashRules::Unquoted BackslashRules::unquote(Text &out, Bytes name) const {
  const auto roleOf = [this](char c) -> unsigned { return roles[static_cast<unsigned char>(c)]; };
  char *to = out.bytes;
  unsigned role = roleOf(name[0]);
  unsigned isUnquoted = 1; // 0 for a byte behind a backslash that quotes it
  unsigned isIllegal = 0;
  unsigned seen = 0;
  const auto copy = [&](char c, unsigned nextRole) {
    const unsigned onlyQuotes = role / backslashRole & nextRole / escapableRole & isUnquoted;
    isIllegal |= role / notPlainRole & isUnquoted & ~onlyQuotes;
    seen |= role;
    *to = c;
    to += 1 - onlyQuotes;
    isUnquoted = 1 - onlyQuotes;
    role = nextRole;
  };
  for (std::size_t i = 1; i < name.size(); ++i)
    copy(name[i - 1], roleOf(name[i]));
  copy(name.back(), 0);
  out.size = static_cast<std::size_t>(to - out.bytes);
  return {isIllegal == 0, seen};
}

Ident BackslashRules::identOfUnquoted(const Name &name, unsigned rolesSeen, Text &work) const {
  if ((rolesSeen & markRole) != 0) {
    work.size = 0;
    const bool copiedUpper = decode(work, name, escape, [this](Bytes s, std::size_t i) { return quotes(s, i); });
    return {copiedUpper ? 'S' : 'I', Name(work.view())};
  }
  if (quotesWords)
    return identByCase(Name(work.view()));
  // The words in the name are those of its body.
  const int kinds =
      (rolesSeen & backslashRole ? traitBackslash : 0) | (rolesSeen & notGraphicRole ? traitNotGraphic : 0);
  return identByCase({work.view(), static_cast<Traits>((name.look.traits & ~kindsOfOther) | kinds)});
}

} // namespace zeli
