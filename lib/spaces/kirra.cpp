// Kirra: netlists of analog simulation. Any graphic or white-space character stands behind a backslash; keywords cannot
// be escaped and stand behind a prefix instead.
#include "core/zelpvt.h"
#include "spaces/backslash.h"
#include "spaces/keywords.h"

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

constexpr ByteSet first = letter | chars("_");
constexpr ByteSet nonFirst = first | digit | chars("!");
constexpr Bytes keywordPrefix = "KEYWORD_";

// Whether name must not stand without a prefix, or without one more: a keyword behind at most two prefixes.
bool needsPrefix(Bytes name) {
  for (int prefixes = 0; prefixes <= 2; ++prefixes) {
    if (keywords.has(name))
      return true;
    if (!startsWith(name, keywordPrefix))
      return false;
    name = from(name, keywordPrefix.size());
  }
  return false;
}

// Digits only, or digits, letters and digits as in 2n3904; a backslash hides the byte behind it from this rule.
bool isDigitStartName(Bytes name) {
  if (name.empty() || keywords.has(name))
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

struct KirraSpace : BackslashSpace {
  bool isLegal(Bytes name) const {
    if (!isNameLength(name) || keywords.has(name))
      return false;
    if (digit.has(name[0]))
      return isDigitStartName(name);
    return (first.has(name[0]) || quotes(name, 0)) && holdsOnly(plain, name, 0, name.size());
  }

  Bytes write(const Ident &ident, Text &work) const {
    const char initial = ident.body[0];
    if (digit.has(initial) && isDigitStartName(ident.body)) {
      encode(work, ident.body, noEscape, foldsCase(ident));
      return work.view();
    }
    if (plain.has(initial) && !first.has(initial))
      work.put('\\');
    const Bytes written = BackslashSpace::write(ident, work);
    if (!needsPrefix(written))
      return written;
    std::memmove(work.bytes + keywordPrefix.size(), work.bytes, work.size);
    std::memcpy(work.bytes, keywordPrefix.data(), keywordPrefix.size());
    work.size += keywordPrefix.size();
    return work.view();
  }

  Ident read(Bytes name, Text &work) const {
    if (!isNameLength(name))
      return refuseIdent();
    if (startsWith(name, keywordPrefix) && needsPrefix(from(name, keywordPrefix.size())))
      name = from(name, keywordPrefix.size());
    // A backslash that quotes nothing is refused, other than a faulty argument without setting errno.
    return holdsOnly(anyByte - chars("\\"), name, 0, name.size()) ? readLegal(name, work) : Ident{};
  }
};

constexpr KirraSpace space = {
    {.plain = nonFirst, .escapable = graphic | white, .quoted = anyByte - nonFirst, .escape = {'#', graphic | white}}};

} // namespace

int zelIsLegalKirra(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToKirra(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelKirraToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsLegalKirraDigitStartName(const char *name) noexcept { return isDigitStartName(wholeBytes(name)) ? 1 : 0; }

int zelIsKirraKeyword(const char *word) noexcept { return keywords.has(wholeBytes(word)) ? 1 : 0; }

int zelIsKirraFirstChar(int c) noexcept { return isIn(first, c); }

int zelIsKirraNonFirstChar(int c) noexcept { return isIn(nonFirst, c); }

int zelIsKirraEscapableChar(int c) noexcept { return isIn(space.escapable, c); }

int zelVerifyKirraKeywords() noexcept { return keywords.verify() ? 1 : 0; }
