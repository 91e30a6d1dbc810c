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

[[gnu::flatten]] Spelled BackslashRules::write(const Ident &ident, const Setting &setting, Text &work) const {
  const bool folds = foldsCase(ident, setting) && ident.body.has(traitUpper);
  if (takesWords)
    return spell(work, ident.body, escape, spelling, folds);
  encode(work, ident.body, escape, spelling, folds);
  return work.view();
}

[[gnu::flatten]] Ident BackslashRules::read(const Name &name, const Setting &, Text &work) const {
  if (!isNameLength(name))
    return refuseIdent();
  if (isWord(name))
    return identByCase(name);
  if (Ident ident = readQuoted(name, work); ident.body.data() != nullptr)
    return ident;
  const Unquoted unquoted = unquote(work, name);
  return unquoted.isLegal ? identOfUnquoted(name, unquoted.roles, work) : refuseIdent();
}

Ident BackslashRules::readLegal(const Name &name, Text &work) const {
  if (isWord(name))
    return identByCase(name);
  return identOfUnquoted(name, unquote(work, name).roles, work);
}

// Finds the backslashes at once, and copies what lies between them in runs.
Ident BackslashRules::readQuoted(const Name &name, Text &work) const {
  constexpr std::size_t longest = 64;
  if (!takesWords || name.size() > longest)
    return {};
  std::uint64_t backslashes = 0;
  std::uint64_t others = 0;
  forEachBlock(name, [&](Block block, std::size_t at) {
    backslashes |= std::uint64_t{bitsOf(isChar(block, '\\'))} << at;
    others |= std::uint64_t{allBits & ~bitsOf(isWordChar(block))} << at;
  });
  others &= ~std::uint64_t{0} >> (longest - name.size());
  const std::uint64_t quoted = backslashes << 1;
  if (((backslashes & quoted) | backslashes >> (name.size() - 1)) != 0)
    return {};

  const auto roleAt = [&](std::size_t i) -> unsigned { return roles[static_cast<unsigned char>(name[i])]; };
  const auto lowest = [](std::uint64_t bits) { return static_cast<std::size_t>(__builtin_ctzll(bits)); };
  unsigned unquotedRoles = 0;
  for (std::uint64_t bits = others & ~(backslashes | quoted); bits != 0; bits &= bits - 1)
    unquotedRoles |= roleAt(lowest(bits));
  unsigned quotedRoles = 0;
  char *to = work.bytes;
  std::size_t start = 0;
  const auto copyUpTo = [&](std::size_t end) {
    copyRun(to, name.data(), name.size(), start, end);
    to += end - start;
    start = end + 1;
  };
  for (; backslashes != 0; backslashes &= backslashes - 1) {
    copyUpTo(lowest(backslashes));
    quotedRoles |= roleAt(start);
  }
  copyUpTo(name.size());
  if (((unquotedRoles & notPlainRole) | (quotedRoles & notEscapableRole)) != 0)
    return {};
  work.size = static_cast<std::size_t>(to - work.bytes);
  return identOfUnquoted(name, unquotedRoles | quotedRoles, work);
}

BackslashRules::Unquoted BackslashRules::unquote(Text &out, Bytes name) const {
  const auto roleAt = [&](std::size_t i) -> unsigned { return roles[static_cast<unsigned char>(name[i])]; };
  unsigned unquotedRoles = 0;
  unsigned quotedRoles = 0;
  char *to = out.bytes;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (quotes(name, i))
      quotedRoles |= roleAt(++i);
    else
      unquotedRoles |= roleAt(i);
    *to++ = name[i];
  }
  out.size = static_cast<std::size_t>(to - out.bytes);
  return {(unquotedRoles & notPlainRole) == 0, unquotedRoles | quotedRoles};
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
  const int kinds = ((rolesSeen & backslashRole) != 0 ? traitBackslash : 0) |
                    ((rolesSeen & notGraphicRole) != 0 ? traitNotGraphic : 0);
  return identByCase({work.view(), static_cast<Traits>((name.look.traits & ~kindsOfOther) | kinds)});
}

} // namespace zeli
