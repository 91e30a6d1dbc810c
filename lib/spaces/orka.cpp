// ORKA, the names of a design database: nearly every graphic character and index groups such as "(12)"; 44ORKA, the
// same under another name; and EscORKA, where any other name stands between backslashes.
#include "spaces/exports.h"
#include "spaces/extendedIdentifier.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr ByteSet normal = graphic - chars("(),/<>\\");
constexpr ByteSet escapable = graphic | chars(" ");

// The length of the index group at i; 0 when none stands there. A name does not begin with one.
std::size_t indexGroup(Bytes name, std::size_t i) {
  if (i == 0 || name[i] != '(')
    return 0;
  std::size_t end = i + 1;
  while (end < name.size() && digit.has(name[end]))
    ++end;
  return end > i + 1 && end < name.size() && name[end] == ')' ? end + 1 - i : 0;
}

struct ORKARules {
  HexEscape escape;
  Spelling spelling;

  static constexpr PlainWords plainWords() { return anyWord; }

  bool isLegal(const Name &name) const {
    if (!isNameLength(name))
      return false;
    if (name.isWord() || allOf(name, escape.literal))
      return true;
    for (std::size_t i = 0; i < name.size(); ++i) {
      const std::size_t group = indexGroup(name, i);
      if (group != 0)
        i += group - 1;
      else if (!escape.literal.has(name[i]))
        return false;
    }
    return true;
  }

  zelRefusal explain(const Name &name) const {
    return explainLength(name, [&]() -> zelRefusal {
      std::size_t i = 0;
      while (i < name.size() && (indexGroup(name, i) != 0 || escape.literal.has(name[i])))
        i += std::max<std::size_t>(indexGroup(name, i), 1);
      return {i < name.size() ? ZEL_REASON_ILLEGAL_CHARACTER : ZEL_REASON_NOT_CONVERTED, static_cast<std::uint32_t>(i)};
    });
  }

  Spelled write(const Ident &ident, const Setting &setting, Text &work) const {
    const bool folds = foldsCase(ident, setting);
    const Name &body = ident.body;
    if (body.isWord())
      return spell(work, body, escape, spelling, folds);
    std::size_t done = 0;
    for (std::size_t i = 0; i < body.size(); ++i) {
      const std::size_t group = indexGroup(body, i);
      if (group == 0)
        continue;
      encode(work, from(upTo(body, i), done), escape, spelling, folds);
      done = i + group;
      work.put(from(upTo(body, done), i));
      i = done - 1;
    }
    encode(work, from(body, done), escape, spelling, folds);
    return work.view();
  }

  Ident read(const Name &name, const Setting &, Text &work) const {
    return isLegal(name) ? decodeIdent(work, name, escape) : refuseIdent();
  }
};

constexpr HexEscape plainEscape = {'#', normal};
constexpr ORKARules rules = {plainEscape, Spelling(plainEscape, normal)};

struct EscORKARules {
  HexEscape readerEscape;
  HexEscape writerEscape;
  Spelling spelling;

  static constexpr PlainWords plainWords() { return {0, 0, traitUpper, 'S'}; }

  bool isLegal(const Name &name) const {
    if (!isNameLength(name))
      return false;
    return name[0] == '\\' ? isLegalExtended(name, readerEscape.literal) : rules.isLegal(name);
  }

  static zelRefusal explain(const Name &name) {
    if (isExtended(name) || name.empty() || name[0] != '\\')
      return rules.explain(name);
    return {ZEL_REASON_UNTERMINATED_ESCAPE, static_cast<std::uint32_t>(name.size())};
  }

  Spelled write(const Ident &ident, const Setting &setting, Text &work) const {
    const bool folds = foldsCase(ident, setting);
    const bool wasExtended = ident.isCaseSensitive() && isForce(ident.body);
    if (wasExtended || !rules.isLegal(ident.body))
      return writeExtended(work, ident.body, writerEscape, spelling, folds);
    if (!folds || !ident.body.has(traitUpper))
      return ident.body;
    copyLowered(work, ident.body);
    return work.view();
  }

  // Other than in ORKA, a name that stands as it is has case whatever its letters.
  Ident read(const Name &name, const Setting &, Text &work) const {
    if (!isNameLength(name))
      return refuseIdent();
    if (rules.isLegal(name))
      return {'S', name};
    return readExtended(name, work, readerEscape, false, [](const Name &plain) { return rules.isLegal(plain); });
  }
};

constexpr HexEscape writerEscape = {'#', escapable, false};
constexpr EscORKARules extendedRules = {{'#', escapable}, writerEscape, spellingExtended(writerEscape)};

// Flat ORKA spells the syntax of a path with characters that are plain text elsewhere, and encodes these.
constexpr Bytes pathSyntax = "/<>";
constexpr Bytes flatSyntax = "|()";
constexpr ByteSet flatEncoded = chars("#()|");

char translated(char c, Bytes syntax, Bytes other) {
  const std::size_t place = syntax.find(c);
  return place == Bytes::npos ? c : other[place];
}

// The byte that flat text encodes at i, NUL when it encodes none there.
char flatDecoded(Bytes flat, std::size_t i) {
  const char value = flat[i] == '#' ? hexPair(flat, i + 1) : '\0';
  return flatEncoded.has(value) && !upper.has(flat[i + 2]) ? value : '\0';
}

// Whether flat text begins with a multiplicity, "(M=n)" with n not zero, as far as the number.
bool startsMultiplicity(Bytes flat) {
  constexpr Bytes opening = "(M=";
  if (!startsWith(flat, opening))
    return false;
  std::size_t i = opening.size();
  while (i < flat.size() && white.has(flat[i]))
    ++i;
  if (i < flat.size() && (flat[i] == '+' || flat[i] == '-'))
    ++i;
  while (i < flat.size() && flat[i] == '0')
    ++i;
  return i < flat.size() && digit.has(flat[i]);
}

// For a text of length characters each of which becomes at most width. (calloc watches the product.)
char *flatBuffer(std::size_t length, std::size_t width) {
  auto *buffer = static_cast<char *>(std::calloc(length + 1, width));
  if (buffer == nullptr)
    errno = ENOMEM;
  return buffer;
}

} // namespace

const Operations zeli::orkaNames = operationsOf<rules>;
const Operations zeli::escORKANames = operationsOf<extendedRules>;

ZEL_EXPORT_LEGAL(zelIsLegalORKA, rules)
ZEL_EXPORT_WRITER(zelIdentToORKA, rules)
ZEL_EXPORT_READER(zelORKAToIdent, rules)
ZEL_EXPORT_LEGAL(zelIsLegal44ORKA, rules)
ZEL_EXPORT_WRITER(zelIdentTo44ORKA, rules)
ZEL_EXPORT_READER(zel44ORKAToIdent, rules)
ZEL_EXPORT_LEGAL(zelIsLegalEscORKA, extendedRules)
ZEL_EXPORT_WRITER(zelIdentToEscORKA, extendedRules)
ZEL_EXPORT_READER(zelEscORKAToIdent, extendedRules)
ZEL_EXPORT_CHARACTER(zelIsORKANormalChar, normal)
ZEL_EXPORT_CHARACTER(zelIsORKAEscapableChar, escapable)

char *zelORKAToORKAFlat(const char *path) noexcept {
  if (path == nullptr) {
    errno = EINVAL;
    return nullptr;
  }
  const Bytes text = path;
  char *flat = flatBuffer(text.size(), 3);
  if (flat == nullptr)
    return nullptr;
  char *out = flat;
  for (const char c : text) {
    if (flatEncoded.has(c))
      out += zelToPoundHex(out, c);
    else
      *out++ = translated(c, pathSyntax, flatSyntax);
  }
  *out = '\0';
  return flat;
}

char *zelORKAFlatToORKA(const char *flat) noexcept {
  if (flat == nullptr) {
    errno = EINVAL;
    return nullptr;
  }
  const Bytes text = flat;
  char *path = flatBuffer(text.size(), 1);
  if (path == nullptr)
    return nullptr;
  const std::size_t lastClose = text.rfind(')');
  char *out = path;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char decoded = flatDecoded(text, i);
    if (decoded != '\0') {
      *out++ = decoded;
      i += 2;
    } else if (lastClose != Bytes::npos && i < lastClose && startsMultiplicity(from(text, i))) {
      i = text.find(')', i);
    } else {
      *out++ = translated(text[i], flatSyntax, pathSyntax);
    }
  }
  *out = '\0';
  return path;
}
