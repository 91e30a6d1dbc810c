// What all path parsers share. A grammar is one loop over the characters of the text, with a state and one switch that
// says what a character does; what it does not name refuses the text.
#ifndef ZEL_PATH_ZELPATHPARSE_H
#define ZEL_PATH_ZELPATHPARSE_H

#include "core/text.h"
#include "path/languages.h"
#include "path/zelPath.h"

#include <initializer_list>

namespace zeli {

Grammar parseVerilog; // also of Kirra and KirraHDL
Grammar parseVHDL;
Grammar parseORKA;
Grammar parseBus; // of the file formats and Tessel
Grammar parseSpice;

// The parser of a language; null with EINVAL for a null text, or ENOMEM.
zelPath parsePath(const PathLanguage &language, const char *text, zelHandle handle, zelAllocFunc alloc, void *context);

// What a switch takes the characters for that begin a name or a number; punctuation and the end stand for themselves.
constexpr char aName = 'a';
constexpr char aNumber = '0';

// Ends a parse that refuses its text at a place, or could not add to the path (errno is then set): what was read so far
// stays.
inline zelPath reject(zelPath path, const char *text) {
  if ((path->flags & flagError) == 0) {
    errno = EINVAL;
    path->refusedAt = text;
  }
  path->flags |= flagError;
  return path;
}

// Appends the name at text, not converted yet, and moves text behind it. False when it is over-long or not legal in the
// language, or could not be added.
bool appendName(zelPath path, const PathLanguage &language, const char *&text, Kind mark = kindNone);

// Reads decimal digits, none giving 0, and moves text behind them. A number out of the range of paths gives one that no
// append takes, however many digits it has.
std::int32_t readDigits(const char *&text);

// The same behind an optional sign.
std::int32_t readSigned(const char *&text);

template <typename State> bool isOneOf(State state, std::initializer_list<State> states) {
  for (const State candidate : states)
    if (state == candidate)
      return true;
  return false;
}

// Appends the index, or range, of a bus that was read, and notes which.
bool appendBus(zelPath path, bool isRange, std::int32_t first, std::int32_t last);

// A level separator follows: notes an index or range in the middle of the path.
void noteMid(zelPath path);

constexpr ByteSet blank = chars(" \t");
constexpr ByteSet sign = chars("+-");

} // namespace zeli

#endif
