#include "path/scan.h"

#include "core/byteSet.h"
#include "core/handle.h"

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
  constexpr ByteSet inside = (graphic | chars(" ")) - chars("\\");
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
  constexpr ByteSet sevenBit = range(1, 127);
  for (;;) {
    text = skip(text, plain - chars("\\"));
    if (*text != '\\' || !plain.has(*text))
      return text;
    ++text;
    if (sevenBit.has(*text))
      ++text;
  }
}

// Whether the character at text is escaped by the backslash in front of it, which no other backslash escapes.
bool isEscaped(const char *start, const char *text) {
  const char *first = text;
  while (first != start && first[-1] == '\\')
    --first;
  return (text - first) % 2 != 0;
}

// Likewise, up to a separator of the handle or the stop of the format.
const char *skipQuoting(const char *text, zelHandle handle, char stop) {
  ByteSet stops;
  stops.add(stop);
  stops.add(handle->separators.divider);
  stops.add(handle->separators.busOpen);
  stops.add(handle->separators.busClose);
  return skipQuoting(text, graphic - stops);
}

} // namespace

const char *zeli::skipDigits(const char *text) { return skip(text, digit); }

const char *zeliScanVlog(const char *text, zelHandle) {
  constexpr ByteSet plain = letter | digit | chars("_$");
  return *text == '\\' ? skipEscaped(text) : skip(text, plain);
}

const char *zeliScanVHDL(const char *text, zelHandle) {
  constexpr ByteSet plain = letter | digit | chars("_");
  return *text == '\\' ? skipExtended(text) : skip(text, plain);
}

const char *zeliScanKirraHDL(const char *text, zelHandle) {
  constexpr ByteSet plain = letter | digit | chars("_");
  return *text == '\\' ? skipEscaped(text) : skip(text, plain);
}

const char *zeliScanORKA(const char *text, zelHandle) {
  constexpr ByteSet plain = graphic - chars("(),/<>\\");
  if (*text == '\\')
    return skipExtended(text);
  for (;;) {
    text = skip(text, plain);
    // A number in parentheses belongs to the name.
    const char *behind = *text == '(' ? skipDigits(text + 1) : text;
    if (behind <= text + 1 || *behind != ')')
      return text;
    text = behind + 1;
  }
}

const char *zeliScanTessel(const char *text, zelHandle) { return skipQuoting(text, graphic - chars("[]|")); }

const char *zeliScanFlatTessel(const char *text, zelHandle) { return skipQuoting(text, graphic - chars("[]")); }

const char *zeliScanSpice(const char *text, zelHandle) { return skipQuoting(text, graphic - chars(".")); }

const char *zeliScanKirra(const char *text, zelHandle) {
  constexpr ByteSet brackets = chars("[]{},");
  constexpr ByteSet plain = graphic - brackets - chars(".\\");
  constexpr ByteSet behindPair = range(1, 127) - chars(".");
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

const char *zeliScanLef(const char *text, zelHandle handle) { return skipQuoting(text, handle, ';'); }

const char *zeliScanDef(const char *text, zelHandle handle) { return skipQuoting(text, handle, ';'); }

const char *zeliScanSdf(const char *text, zelHandle handle) { return skipQuoting(text, handle, ':'); }

const char *zeliScanSpf(const char *text, zelHandle handle) { return skipQuoting(text, handle, ':'); }

const char *zeliScanSpef(const char *text, zelHandle handle) { return skipQuoting(text, handle, ':'); }

const char *zeliScanGcf(const char *text, zelHandle handle) { return skipQuoting(text, handle, ':'); }
