// Kirra: netlists of analog simulation. Any graphic or white-space character stands behind a backslash; keywords cannot
// be escaped and stand behind a prefix instead.
#include "spaces/backslash.h"
#include "spaces/exports.h"
#include "spaces/keywords.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *KirraKeywordsA[] = {"abs", "acos", "acosh", "altergroup", "asin", "asinh", "atan", "atan2",
    "atanh"};
constexpr const char *KirraKeywordsC[] = {"ceil", "correlate", "cos", "cosh"};
constexpr const char *KirraKeywordsE[] = {"else", "end", "ends", "exp", "export"};
constexpr const char *KirraKeywordsF[] = {"floor", "for", "function"};
constexpr const char *KirraKeywordsG[] = {"global"};
constexpr const char *KirraKeywordsH[] = {"hypot"};
constexpr const char *KirraKeywordsI[] = {"ic", "if", "inline", "int", "library", "local", "log", "log10"};
constexpr const char *KirraKeywordsM[] = {"march", "max", "min", "model"};
constexpr const char *KirraKeywordsN[] = {"nodeset"};
constexpr const char *KirraKeywordsP[] = {"parameters", "paramset", "plot", "pow", "print"};
constexpr const char *KirraKeywordsR[] = {"real", "return"};
constexpr const char *KirraKeywordsS[] = {"save", "sens", "sin", "sinh", "sqrt", "statistics", "subckt"};
constexpr const char *KirraKeywordsT[] = {"tan", "tanh", "to", "truncate"};
constexpr const char *KirraKeywordsV[] = {"vary"};
constexpr Keywords keywords = {{'a', KirraKeywordsA}, {'c', KirraKeywordsC}, {'e', KirraKeywordsE}, {'f',
    KirraKeywordsF}, {'g', KirraKeywordsG}, {'h', KirraKeywordsH}, {'i', KirraKeywordsI}, {'m', KirraKeywordsM}, {'n',
    KirraKeywordsN}, {'p', KirraKeywordsP}, {'r', KirraKeywordsR}, {'s', KirraKeywordsS}, {'t', KirraKeywordsT}, {'v',
    KirraKeywordsV}};
static_assert(keywords.words() == 55);
// clang-format on

// The words with 'l' stand among those with 'i' on purpose: they are never found, and so plain names of the space.

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = keywordsOf<keywordTable>;

constexpr ByteSet first = letter | chars("_");
constexpr ByteSet nonFirst = wordChar | chars("!");
constexpr Bytes keywordPrefix = "KEYWORD_";

// Whether name must not stand without a prefix, or without one more: a keyword behind at most two prefixes.
bool needsPrefix(Name name) {
  for (int prefixes = 0; prefixes <= 2; ++prefixes) {
    if (isKeyword(name))
      return true;
    if (!startsWith(name, keywordPrefix))
      return false;
    name = Name(from(name, keywordPrefix.size()), 0);
  }
  return false;
}

// Digits only, or digits, letters and digits as in 2n3904; a backslash hides the byte behind it from this rule.
bool isDigitStartName(Bytes name) {
  if (name.empty() || isKeyword(Name(name, 0)))
    return false;
  if (allOf(name, digit))
    return true;
  enum { leadingDigits, letters, rest } phase = leadingDigits;
  for (std::size_t i = 1; i < name.size(); ++i) {
    const char c = name[i];
    if (c == '\\') {
      ++i; // with whatever stands behind it
      continue;
    }
    switch (phase) {
    case leadingDigits:
      if (first.has(c))
        phase = letters;
      else if (!digit.has(c))
        return false;
      break;
    case letters:
      if (digit.has(c))
        phase = rest;
      else if (!first.has(c))
        return false;
      break;
    case rest:
      if (!nonFirst.has(c))
        return false;
    }
  }
  return phase == rest;
}

struct KirraRules : BackslashRules {
  static constexpr PlainWords plainWords() {
    return {0, traitDigitFirst, traitDigitFirst | traitUpper, '\0', isKeyword};
  }

  bool isLegal(const Name &name) const {
    if (!isNameLength(name) || isKeyword(name))
      return false;
    if (digit.has(name[0]))
      return isDigitStartName(name);
    return (first.has(name[0]) || quotes(name, 0)) && (name.isWord() || holdsOnly(plain, name, 0, name.size()));
  }

  zelRefusal explain(const Name &name) const {
    return isKeyword(name) ? zelRefusal{ZEL_REASON_RESERVED_WORD, 0} : BackslashRules::explain(name);
  }

  Spelled write(const Ident &ident, const Setting &setting, Text &work) const {
    const Name &body = ident.body;
    const char initial = body[0];
    if (digit.has(initial) && isDigitStartName(body)) {
      if (!foldsCase(ident, setting))
        return body;
      copyLowered(work, body);
      return work.view();
    }
    if (plain.has(initial) && !first.has(initial))
      work.put('\\');
    const Spelled spelled = BackslashRules::write(ident, setting, work);
    const Bytes written(spelled.data, spelled.length);
    if (!needsPrefix(spelled.data == body.data() ? body : Name(written, 0)))
      return spelled;
    std::memmove(work.bytes + keywordPrefix.size(), written.data(), written.size());
    std::memcpy(work.bytes, keywordPrefix.data(), keywordPrefix.size());
    work.size = keywordPrefix.size() + written.size();
    return work.view();
  }

  Ident read(const Name &name, const Setting &, Text &work) const {
    if (!isNameLength(name))
      return refuseIdent();
    Name unprefixed = name;
    if (startsWith(name, keywordPrefix) && needsPrefix(Name(from(name, keywordPrefix.size()), 0)))
      unprefixed = Name(from(name, keywordPrefix.size()));
    if (Ident ident = unprefixed.isWord() ? Ident{} : readQuoted(unprefixed, work); ident.body.data() != nullptr)
      return ident;
    // A backslash that quotes nothing is refused, other than a faulty argument without setting errno.
    if (unprefixed.has(traitBackslash) && !holdsOnly(anyByte - chars("\\"), unprefixed, 0, unprefixed.size()))
      return {};
    return readLegal(unprefixed, work);
  }
};

constexpr KirraRules rules = {{nonFirst, graphic | white, anyByte - nonFirst, {'#', graphic | white}}};

} // namespace

const Operations zeli::kirraNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalKirra, rules)
ZEL_EXPORT_WRITER(zelIdentToKirra, rules)
ZEL_EXPORT_READER(zelKirraToIdent, rules)
ZEL_EXPORT_WORD(zelIsLegalKirraDigitStartName, isDigitStartName)
ZEL_EXPORT_KEYWORD(zelIsKirraKeyword, isKeyword)
ZEL_EXPORT_CHARACTER(zelIsKirraFirstChar, first)
ZEL_EXPORT_CHARACTER(zelIsKirraNonFirstChar, nonFirst)
ZEL_EXPORT_CHARACTER(zelIsKirraEscapableChar, rules.escapable)
ZEL_EXPORT_VERIFY(zelVerifyKirraKeywords, keywords)
