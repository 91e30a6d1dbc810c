// The path languages: one row each says all that a language has of its own. Scanners, grammars, printers and handles
// take their facts from here.
#ifndef ZEL_PATH_LANGUAGES_H
#define ZEL_PATH_LANGUAGES_H

#include "path/zelPathScan.h"
#include "spaces/handle.h"
#include "spaces/spaces.h"

namespace zeli {

using PathParser = zelPath (*)(const char *text, zelHandle handle, zelAllocFunc alloc, void *context);
using PathPrinter = char *(*)(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context);

struct ItemPrinter;
struct PathLanguage;

// Which separators a file of the format may redefine. A path of a language where that is everything keeps the handle
// that it is read with; all others read and print as their rows say, whatever the handle.
enum class Redefines { nothing, everything, busBrackets };

// What stands between levels and around a bus; NUL for none.
struct Punctuation {
  char divider = '\0';
  char busOpen = '\0';
  char busClose = '\0';
};

// How the braces of a language open and close when they are printed.
enum class Braces {
  balanced, // a repeat brings an outer brace, which the end of its list closes
  verilog,  // a repeat stands inside a list; what is still open is closed at the end
  kirra     // as verilog, but the brace that closes a group is never opened
};

constexpr ByteSet pathNameBytes(const char *stops, const Separators &separators) {
  return graphic - chars(stops) - chars({separators.divider, separators.busOpen, separators.busClose});
}

// A language's names: where one ends in a text, what a path demands of it, and how it becomes an Ident.
struct NameReader {
  zeliScanner *scan;
  // Where a backslash takes the next character into the name: the bytes that end one beside the separators, and all
  // that do not under those of the row.
  const char *stops = "";
  ByteSet pathNameBytes = {};
  const Operations *tested = nullptr; // as whose names they must be legal; null for anything that scans
  const Operations *read = nullptr;   // as whose names they are read
  bool convertsOnRequest = true;      // zelPathGetIdent converts them
  bool showsText = true;              // zelPathGetString shows them
};

// Reads text, from its beginning, into an empty path; returns the path.
using Grammar = zelPath(zelPath path, const PathLanguage &language, const char *text);

// How its paths are read. The marks are those of all that words need: levels, an index, a range. A grammar may have
// further ones of its own.
struct PathReader {
  Grammar *grammar;
  Punctuation marks = {};
  bool busNeedsName = false; // a bus is an error that does not follow a name
};

// How paths are printed in it; without a printer for a language that another one prints.
struct PathWriter {
  const ItemPrinter *printer = nullptr;
  const Operations *names = nullptr;
  Punctuation marks = {};
  bool marksLeading = false; // a text that began with a divider gets one in front of every name
  Braces braces = Braces::balanced;
};

struct PathLanguage {
  std::uint8_t code; // in the flags of a path
  SpaceId space;

  // The template of its handles.
  const char *name;
  PathParser parse;
  PathPrinter print;
  Separators separators;   // unless others are chosen
  const zelHandle *handle; // the built-in one
  Redefines redefines = Redefines::nothing;
  NameReader names;
  PathReader reader;
  PathWriter writer = {};
  const PathLanguage *printedAs = nullptr; // the language whose printer its handles have, if not its own
  bool isIntroduced = false;               // a divider stands in front of the first of several levels
  bool hasPlainRanges = true;              // a range is two numbers and a ':'
};

inline const PathLanguage &printingLanguage(const PathLanguage &language) {
  return language.printedAs != nullptr ? *language.printedAs : language;
}

namespace languages {
extern const PathLanguage verilog;
extern const PathLanguage verilogAMS;
extern const PathLanguage vhdl;
extern const PathLanguage vhdl87;
extern const PathLanguage vhdlAMS;
extern const PathLanguage orka;
extern const PathLanguage kirra;
extern const PathLanguage kirraHDL;
extern const PathLanguage spice;
extern const PathLanguage tessel;
extern const PathLanguage flatTessel;
extern const PathLanguage lef;
extern const PathLanguage def;
extern const PathLanguage sdf;
extern const PathLanguage spf;
extern const PathLanguage spef;
extern const PathLanguage gcf;
} // namespace languages

// By the space it belongs to; null for a space without paths.
const PathLanguage *languageOf(SpaceId space);

// The language that a path was read in; null for a path built by hand.
const PathLanguage *languageOf(const zelPathRecord *path);

// The handle whose separators count for a language: the given one, or the built-in one for null; null where they are
// fixed.
inline zelHandle separatingHandle(const PathLanguage &language, zelHandle given) {
  if (language.redefines != Redefines::everything)
    return nullptr;
  return given != nullptr ? given : *language.handle;
}

// The marks of a handle, or those of the row where it is null.
inline Punctuation marksOf(zelHandle handle, const Punctuation &fixed) {
  if (handle == nullptr)
    return fixed;
  return {handle->separators.divider, handle->separators.busOpen, handle->separators.busClose};
}

} // namespace zeli

#endif
