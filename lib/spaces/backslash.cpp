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

Spelled BackslashRules::write(const Ident &ident, const Setting &setting, Text &work) const {
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
  std::size_t copied = 0; // up to here
  std::size_t next = 0;   // what stands before is known
  unsigned seen = 0;
  const auto copyUpTo = [&](std::size_t end) {
    copyRun(to, name.data(), name.size(), copied, end);
    to += end - copied;
  };
  for (std::size_t i = 0; i < name.size(); i += blockBytes)
    for (std::uint32_t bits = takesWords ? othersFrom(name, i) : bytesFrom(name, i); bits != 0; bits &= bits - 1) {
      const std::size_t at = i + static_cast<std::size_t>(__builtin_ctz(bits));
      if (at < next)
        continue;
      if (!quotes(name, at)) {
        seen |= roleOf(name[at]);
        continue;
      }
      copyUpTo(at);
      copied = at + 1;
      next = at + 2;
      seen |= roleOf(name[copied]) & ~unsigned{notPlainRole};
    }
  copyUpTo(name.size());
  out.size = static_cast<std::size_t>(to - out.bytes);
  return {(seen & notPlainRole) == 0, seen};
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
