#include "path/zelPathScan.h"

#include "core/byteSet.h"
#include "path/languages.h"

using namespace zeli;

namespace {

const char *skip(const char *text, const ByteSet &set) {
  while (set.has(*text))
    ++text;
  return text;
}

// An escaped identifier: graphic characters behind the backslash, and the blank that ends them.
const char *skipEscaped(const char *text) {
  text = skip(text + 1, graphic);
  return *text == ' ' || *text == '\t' ? text + 1 : text;
}

// An extended identifier: up to the closing backslash, doubled ones being inside.
const char *skipExtended(const char *text) {
  static constexpr ByteSet inside = (graphic | chars(" ")) - chars("\\");
  for (++text;;) {
    text = skip(text, inside);
    if (*text != '\\')
      return text;
    ++text;
    if (*text != '\\')
      return text;
    ++text;
  }
}

// A name in which a backslash takes the next character, whatever it is but the end or a byte of 128 or above.
const char *skipQuoting(const char *text, const ByteSet &plain) {
  for (;;) {
    while (*text != '\\' && plain.has(*text))
      ++text;
    if (*text != '\\' || !plain.has('\\'))
      return text;
    ++text;
    if (ascii.has(*text) && *text != '\0')
      ++text;
  }
}

// It ends at the stops of the language and at the separators in force.
const char *skipQuoting(const char *text, const PathLanguage &language, zelHandle handle) {
  const zelHandle separating = separatingHandle(language, handle);
  if (separating == nullptr)
    return skipQuoting(text, language.names.pathNameBytes);
  if (separating->language == &language)
    return skipQuoting(text, *separating->pathNameBytes);
  return skipQuoting(text, pathNameBytes(language.names.stops, separating->separators)); // the handle of another space
}

// Whether the character at text is escaped by the backslash in front of it, which no other backslash escapes.
bool isEscaped(const char *start, const char *text) {
  const char *first = text;
  while (first != start && first[-1] == '\\')
    --first;
  return (text - first) % 2 != 0;
}

} // namespace

const char *zeliScanVlog(const char *text, zelHandle) {
  static constexpr ByteSet plain = letter | digit | chars("_$");
  return *text == '\\' ? skipEscaped(text) : skip(text, plain);
}

const char *zeliScanVHDL(const char *text, zelHandle) {
  static constexpr ByteSet plain = letter | digit | chars("_");
  return *text == '\\' ? skipExtended(text) : skip(text, plain);
}

const char *zeliScanKirraHDL(const char *text, zelHandle) {
  static constexpr ByteSet plain = letter | digit | chars("_");
  return *text == '\\' ? skipEscaped(text) : skip(text, plain);
}

const char *zeliScanORKA(const char *text, zelHandle) {
  static constexpr ByteSet plain = graphic - chars("(),/<>\\");
  if (*text == '\\')
    return skipExtended(text);
  for (;;) {
    text = skip(text, plain);
    // A number in parentheses belongs to the name.
    const char *behind = *text == '(' ? skip(text + 1, digit) : text;
    if (behind <= text + 1 || *behind != ')')
      return text;
    text = behind + 1;
  }
}

const char *zeliScanKirra(const char *text, zelHandle) {
  static constexpr ByteSet brackets = chars("[]{},");
  static constexpr ByteSet plain = graphic - brackets - chars(".\\");
  static constexpr ByteSet behindPair = range(1, 127) - chars(".");
  const char *const start = text;
  for (;;) {
    text = skip(text, plain);
    if (*text != '\\')
      return text;
    ++text;
    if (!graphic.has(*text))
      return text;
    ++text;
    // One more character goes with the pair, even one that would end the name or begin another pair. In the latter case
    // a bracket behind it is escaped, and belongs to the name as well.
    if (behindPair.has(*text))
      ++text;
    if (brackets.has(*text) && isEscaped(start, text))
      ++text;
  }
}

// The scanners of the languages in which a backslash takes the next character: zeliScan<X>.
#define ZELI_QUOTING_SCANNER(scanner, language)                                                                        \
  const char *scanner(const char *text, zelHandle handle) { return skipQuoting(text, language, handle); }

ZELI_QUOTING_SCANNER(zeliScanTessel, languages::tessel)
ZELI_QUOTING_SCANNER(zeliScanFlatTessel, languages::flatTessel)
ZELI_QUOTING_SCANNER(zeliScanSpice, languages::spice)
ZELI_QUOTING_SCANNER(zeliScanLef, languages::lef)
ZELI_QUOTING_SCANNER(zeliScanDef, languages::def)
ZELI_QUOTING_SCANNER(zeliScanSdf, languages::sdf)
ZELI_QUOTING_SCANNER(zeliScanSpf, languages::spf)
ZELI_QUOTING_SCANNER(zeliScanSpef, languages::spef)
ZELI_QUOTING_SCANNER(zeliScanGcf, languages::gcf)
