// Vellum: a case-blind name of printable characters, between quotes where one of them is syntax; or a case-sensitive
// name between backslashes.
#include "spaces/exports.h"
#include "spaces/extendedIdentifier.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr ByteSet quoteMarks = chars("'\"");
constexpr ByteSet syntax = chars(":<\\");

constexpr HexEscape escape = {'#', graphic | chars(" ")};
constexpr Spelling extended = spellingExtended(escape);
constexpr Spelling doubledQuote(escape, escape.literal, chars("'"), '\'');

bool isNormal(Bytes name) {
  if (name.empty() || name.front() == ' ' || name.back() == ' ')
    return false;
  if (name.size() >= 2 && ((quoteMarks.has(name.front()) && name[1] == ' ') ||
                           (quoteMarks.has(name.back()) && name[name.size() - 2] == ' ')))
    return false;
  char open = '\0'; // the quote mark that is to close the stretch
  for (const char c : name) {
    if (!escape.literal.has(c))
      return false;
    if (c == open)
      open = '\0';
    else if (open == '\0' && quoteMarks.has(c))
      open = c;
    else if (open == '\0' && syntax.has(c))
      return false;
  }
  return open == '\0';
}

// Whether "#20" stands at i for a space at either end of the name, where a plain one is not legal.
bool isEndSpace(Bytes name, std::size_t i, char open, bool isFirst) {
  if (hexPair(name, i + 1) != ' ')
    return false;
  const Bytes behind = from(name, i + 3);
  return isFirst || behind.empty() || (behind.size() == 1 && behind[0] == open);
}

Ident readNormal(const Name &name, Text &work) {
  if (name.isWord())
    return {'I', name};
  char open = '\0';
  for (std::size_t i = 0; i < name.size(); ++i) {
    const char c = name[i];
    if (c == open) {
      if (i + 1 == name.size() || name[i + 1] != open) {
        open = '\0';
        continue;
      }
      ++i; // doubled
    } else if (open == '\0' && quoteMarks.has(c)) {
      open = c;
      continue;
    } else if (c == escape.mark && (escape.isEscape(name, i) || isEndSpace(name, i, open, work.size == 0))) {
      work.put(hexPair(name, i + 1));
      i += 2;
      continue;
    }
    work.put(c);
  }
  return {'I', Name(work.view())};
}

Bytes writeNormal(const Name &body, Text &work) {
  if (body.isWord())
    return body;
  const bool isQuoted = !allOf(body, anyByte - syntax - quoteMarks);
  const bool startsInSpace = body.front() == ' ';
  const bool endsInSpace = body.size() > 1 && body.back() == ' ';
  if (isQuoted)
    work.put('\'');
  if (startsInSpace)
    escape.put(work, ' ');
  const std::size_t start = startsInSpace ? 1 : 0;
  encode(work, upTo(from(body, start), body.size() - start - (endsInSpace ? 1 : 0)), escape, doubledQuote, false);
  if (endsInSpace)
    escape.put(work, ' ');
  if (isQuoted)
    work.put('\'');
  return work.view();
}

struct VellumRules {
  static constexpr PlainWords plainWords() { return {0, traitUpper, 0, 'I'}; }

  static bool isLegal(const Name &name) {
    return isNameLength(name) &&
           (name.isWord() || (name[0] == '\\' ? isLegalExtended(name, escape.literal) : isNormal(name)));
  }

  static zelRefusal explain(const Name &name) {
    return explainLength(name, [&] { return explainFirst(name, 0, escape.literal); });
  }

  // Only a name between backslashes has case. In the mapping state MATCH none needs it, and the force prefix alone
  // tells that a name stood between them.
  static Spelled write(const Ident &ident, const Setting &setting, Text &work) {
    const bool keepsCase = mapStateOf(setting) == ZEL_MAP_MATCH && ident.marker != 'F';
    if (ident.isCaseSensitive() && (keepsCase ? isForce(ident.body) : ident.body.has(traitUpper)))
      return writeExtended(work, ident.body, escape, extended, false);
    return writeNormal(ident.body, work);
  }

  // Between backslashes nothing is an escape.
  static Ident read(const Name &name, const Setting &, Text &work) {
    if (!isLegal(name))
      return refuseIdent();
    if (name[0] != '\\')
      return readNormal(name, work);
    work.put(force);
    const bool copiedUpper = decode(work, extendedContent(name), noEscape, quotesBackslash);
    return {'S', Name(copiedUpper ? skipForce(work.view()) : work.view())};
  }
};

constexpr VellumRules rules;

} // namespace

const Operations zeli::vellumNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalVellum, rules)
ZEL_EXPORT_WRITER(zelIdentToVellum, rules)
ZEL_EXPORT_READER(zelVellumToIdent, rules)
ZEL_EXPORT_WORD(zelIsLegalVellumNormal, isNormal)
