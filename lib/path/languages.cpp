#include "path/languages.h"

#include "path/zelPath.h"
#include "path/zelPathParse.h"
#include "path/zelPathPrint.h"

#include <iterator>

using namespace zeli;

namespace zeli::languages {

// The codes of the paths' flags are places in the table, counted from 1; code 0 belongs to paths built by hand. The
// separators are those of the handle: pin delimiter, divider, bus brackets.

constexpr PathLanguage verilog = {
    .code = 1,
    .space = SpaceId::Verilog,
    .name = "Verilog",
    .parse = zelParseVerilog,
    .print = zelPathToVerilogEx,
    .separators = {'.', '.', '[', ']'},
    .handle = &zelVerilogHandle,
    .names = {.scan = zeliScanVlog, .tested = &verilogNames, .read = &verilogNames},
    .reader = {.grammar = parseVerilog, .marks = {'.', '[', ']'}},
    .writer = {.printer = &bracePrinter, .names = &verilogNames, .marks = {'.', '[', ']'}, .braces = Braces::verilog},
};

constexpr PathLanguage orka = {
    .code = 2,
    .space = SpaceId::ORKA,
    .name = "ORKA",
    .parse = zelParseORKA,
    .print = zelPathToORKAEx,
    .separators = {'/', '/', '<', '>'},
    .handle = &zelORKAHandle,
    .names = {.scan = zeliScanORKA, .read = &orkaNames},
    .reader = {.grammar = parseORKA, .marks = {'/', '<', '>'}},
    .writer = {.printer = &orkaPrinter, .names = &orkaNames, .marks = {'/', '<', '>'}},
};

constexpr PathLanguage vhdl = {
    .code = 3,
    .space = SpaceId::VHDL,
    .name = "VHDL",
    .parse = zelParseVHDL,
    .print = zelPathToVHDLEx,
    .separators = {':', ':', '(', ')'},
    .handle = &zelVHDLHandle,
    .names = {.scan = zeliScanVHDL, .tested = &vhdlNames, .read = &vhdlNames},
    .reader = {.grammar = parseVHDL, .marks = {':', '(', ')'}},
    .writer = {.printer = &vhdlPrinter, .names = &vhdlNames, .marks = {':', '(', ')'}},
    .isIntroduced = true,
    .hasPlainRanges = false,
};

// Its handle has the separators of netlists, but its paths are Verilog's: tested and printed as such.
constexpr PathLanguage verilogAMS = {
    .code = 4,
    .space = SpaceId::VerilogAMS,
    .name = "VerilogAMS",
    .parse = zelParseVerilogAMS,
    .print = zelPathToVerilogEx,
    .separators = {'/', '/', '<', '>'},
    .handle = &zelVerilogAMSHandle,
    .names = {.scan = zeliScanVlog, .tested = &verilogNames, .read = &verilogAMSNames},
    .reader = {.grammar = parseVerilog, .marks = {'.', '[', ']'}},
    .printedAs = &verilog,
};

// Tested and printed as VHDL.
constexpr PathLanguage vhdlAMS = {
    .code = 5,
    .space = SpaceId::VHDLAMS,
    .name = "VHDLAMS",
    .parse = zelParseVHDLAMS,
    .print = zelPathToVHDLEx,
    .separators = {':', ':', '(', ')'},
    .handle = &zelVHDLAMSHandle,
    .names = {.scan = zeliScanVHDL, .tested = &vhdlNames, .read = &vhdlAMSNames},
    .reader = {.grammar = parseVHDL, .marks = {':', '(', ')'}},
    .printedAs = &vhdl,
    .isIntroduced = true,
    .hasPlainRanges = false,
};

constexpr PathLanguage tessel = {
    .code = 6,
    .space = SpaceId::Tessel,
    .name = "Tessel",
    .parse = zelParseTessel,
    .print = zelPathToTesselEx,
    .separators = {'|', '|', '[', ']'},
    .handle = &zelTesselHandle,
    .names = {.scan = zeliScanTessel, .pathNameBytes = graphic - chars("[]|"), .read = &tesselNames},
    .reader = {.grammar = parseBus, .marks = {'|', '[', ']'}, .busNeedsName = true},
    .writer = {.printer = &bracePrinter, .names = &tesselNames, .marks = {'|', '[', ']'}, .marksLeading = true},
};

// The separators of the handles of Kirra, KirraHDL and Spice stand in no path.
constexpr PathLanguage kirra = {
    .code = 7,
    .space = SpaceId::Kirra,
    .name = "Kirra",
    .parse = zelParseKirra,
    .print = zelPathToKirraEx,
    .separators = {'/', '/', '[', ']'},
    .handle = &zelKirraHandle,
    .names = {.scan = zeliScanKirra, .tested = &kirraNames, .read = &kirraNames, .showsText = false},
    .reader = {.grammar = parseVerilog, .marks = {'.', '[', ']'}},
    .writer = {.printer = &bracePrinter, .names = &kirraNames, .marks = {'.', '[', ']'}, .braces = Braces::kirra},
};

constexpr PathLanguage kirraHDL = {
    .code = 8,
    .space = SpaceId::KirraHDL,
    .name = "KirraHDL",
    .parse = zelParseKirraHDL,
    .print = zelPathToKirraHDLEx,
    .separators = {'/', '/', '[', ']'},
    .handle = &zelKirraHDLHandle,
    .names = {.scan = zeliScanKirraHDL, .tested = &kirraHDLNames, .read = &kirraHDLNames, .showsText = false},
    .reader = {.grammar = parseVerilog, .marks = {'.', '[', ']'}},
    .writer = {.printer = &bracePrinter, .names = &kirraHDLNames, .marks = {'.', '[', ']'}, .braces = Braces::kirra},
};

// Names of LEF and DEF are tested with the default separators, whatever the handle.
constexpr PathLanguage lef = {
    .code = 9,
    .space = SpaceId::Lef,
    .name = "Lef",
    .parse = zelParseLef,
    .print = zelPathToLefEx,
    .separators = lefSeparators,
    .handle = &zelLefHandle,
    .redefines = Redefines::everything,
    .names = {.scan = zeliScanLef,
              .stops = ";",
              .pathNameBytes = pathNameBytes(";", lefSeparators),
              .tested = &lefNames,
              .read = &lefNames},
    .reader = {.grammar = parseBus},
    .writer = {.printer = &bracePrinter, .names = &lefNames, .marksLeading = true},
};

constexpr PathLanguage def = {
    .code = 10,
    .space = SpaceId::Def,
    .name = "DEF",
    .parse = zelParseDef,
    .print = zelPathToDefEx,
    .separators = defSeparators,
    .handle = &zelDefHandle,
    .redefines = Redefines::everything,
    .names = {.scan = zeliScanDef,
              .stops = ";",
              .pathNameBytes = pathNameBytes(";", defSeparators),
              .tested = &defNames,
              .read = &defNames},
    .reader = {.grammar = parseBus},
    .writer = {.printer = &bracePrinter, .names = &defNames, .marksLeading = true},
};

constexpr PathLanguage sdf = {
    .code = 11,
    .space = SpaceId::Sdf,
    .name = "Sdf",
    .parse = zelParseSdf,
    .print = zelPathToSdfEx,
    .separators = sdfSeparators,
    .handle = &zelSdfHandle,
    .redefines = Redefines::everything,
    .names = {.scan = zeliScanSdf, .stops = ":", .pathNameBytes = pathNameBytes(":", sdfSeparators), .read = &sdfNames},
    .reader = {.grammar = parseBus},
    .writer = {.printer = &bracePrinter, .names = &sdfNames, .marksLeading = true},
};

constexpr PathLanguage spf = {
    .code = 12,
    .space = SpaceId::Spf,
    .name = "Spf",
    .parse = zelParseSpf,
    .print = zelPathToSpfEx,
    .separators = spfSeparators,
    .handle = &zelSpfHandle,
    .redefines = Redefines::everything,
    .names = {.scan = zeliScanSpf, .stops = ":", .pathNameBytes = pathNameBytes(":", spfSeparators), .read = &spfNames},
    .reader = {.grammar = parseBus},
    .writer = {.printer = &bracePrinter, .names = &spfNames, .marksLeading = true},
};

constexpr PathLanguage spef = {
    .code = 13,
    .space = SpaceId::Spef,
    .name = "Spef",
    .parse = zelParseSpef,
    .print = zelPathToSpefEx,
    .separators = spefSeparators,
    .handle = &zelSpefHandle,
    .redefines = Redefines::everything,
    .names = {.scan = zeliScanSpef,
              .stops = ":",
              .pathNameBytes = pathNameBytes(":", spefSeparators),
              .read = &spefNames},
    .reader = {.grammar = parseBus},
    .writer = {.printer = &bracePrinter, .names = &spefNames, .marksLeading = true},
};

constexpr PathLanguage gcf = {
    .code = 14,
    .space = SpaceId::Gcf,
    .name = "GCF",
    .parse = zelParseGcf,
    .print = zelPathToGcfEx,
    .separators = gcfSeparators,
    .handle = &zelGcfHandle,
    .redefines = Redefines::everything,
    .names = {.scan = zeliScanGcf, .stops = ":", .pathNameBytes = pathNameBytes(":", gcfSeparators), .read = &gcfNames},
    .reader = {.grammar = parseBus},
    .writer = {.printer = &bracePrinter, .names = &gcfNames, .marksLeading = true},
};

constexpr PathLanguage spice = {
    .code = 15,
    .space = SpaceId::Spice,
    .name = "Spice",
    .parse = zelParseSpice,
    .print = zelPathToSpiceEx,
    .separators = {'/', '/', '[', ']'},
    .handle = &zelSpiceHandle,
    .names = {.scan = zeliScanSpice,
              .pathNameBytes = graphic - chars("."),
              .tested = &spiceNames,
              .read = &spiceNames,
              .convertsOnRequest = false,
              .showsText = false},
    .reader = {.grammar = parseSpice, .marks = {.divider = '.'}},
    .writer = {.printer = &bracePrinter, .names = &spiceNames, .marks = {'.', '[', ']'}},
};

// Goes by the name of VHDL; tested and printed as such.
constexpr PathLanguage vhdl87 = {
    .code = 16,
    .space = SpaceId::VHDL87,
    .name = "VHDL",
    .parse = zelParseVHDL87,
    .print = zelPathToVHDLEx,
    .separators = {':', ':', '(', ')'},
    .handle = &zelVHDL87Handle,
    .names = {.scan = zeliScanVHDL, .tested = &vhdlNames, .read = &vhdl87Names},
    .reader = {.grammar = parseVHDL, .marks = {':', '(', ')'}},
    .printedAs = &vhdl,
    .isIntroduced = true,
    .hasPlainRanges = false,
};

// Reads no divider, but prints one for the levels of other languages.
constexpr PathLanguage flatTessel = {
    .code = 17,
    .space = SpaceId::FlatTessel,
    .name = "FlatTessel",
    .parse = zelParseFlatTessel,
    .print = zelPathToFlatTesselEx,
    .separators = {'\0', '\0', '[', ']'},
    .handle = &zelFlatTesselHandle,
    .redefines = Redefines::busBrackets,
    .names = {.scan = zeliScanFlatTessel, .pathNameBytes = graphic - chars("[]"), .read = &flatTesselNames},
    .reader = {.grammar = parseBus, .marks = {'\0', '[', ']'}},
    .writer = {.printer = &bracePrinter, .names = &flatTesselNames, .marks = {'|', '[', ']'}, .marksLeading = true},
};

} // namespace zeli::languages

namespace {

constexpr const PathLanguage *byCode[] = {
    &languages::verilog, &languages::orka,      &languages::vhdl,     &languages::verilogAMS, &languages::vhdlAMS,
    &languages::tessel,  &languages::kirra,     &languages::kirraHDL, &languages::lef,        &languages::def,
    &languages::sdf,     &languages::spf,       &languages::spef,     &languages::gcf,        &languages::spice,
    &languages::vhdl87,  &languages::flatTessel};

constexpr bool isOrderedByCode() {
  for (std::size_t i = 0; i < std::size(byCode); ++i)
    if (byCode[i]->code != i + 1)
      return false;
  return true;
}
static_assert(isOrderedByCode());

} // namespace

const PathLanguage *zeli::languageOf(SpaceId space) {
  for (const PathLanguage *language : byCode)
    if (language->space == space)
      return language;
  return nullptr;
}

const PathLanguage *zeli::languageOf(const zelPathRecord *path) {
  const std::uint32_t code = (path->flags >> languageShift) & languageMask;
  return code >= 1 && code <= std::size(byCode) ? byCode[code - 1] : nullptr;
}

// The exported edges of the languages: a parser, the printer that the handle's callers reach and its short form, whose
// name has no Ex behind it (zelPathToSdfEx and zelPathToSdf), and the built-in handle.

#define ZELI_PARSER(parser, language)                                                                                  \
  zelPath parser(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) noexcept {                     \
    return parsePath(language, text, handle, alloc, context);                                                          \
  }

#define ZELI_PRINTER(printer, language)                                                                                \
  char *printer##Ex(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context) noexcept {  \
    return printPath(language, path, handle, flags, alloc, context);                                                   \
  }                                                                                                                    \
  char *printer(zelPath path, zelHandle handle, std::int32_t flags) noexcept {                                         \
    return printPath(language, path, handle, flags, nullptr, nullptr);                                                 \
  }

#define ZELI_HANDLE(handle, language)                                                                                  \
  static constexpr zelHandleRecord handle##Record = {                                                                  \
      builtInHandle,         &(language), (language).separators,                                                       \
      (language).names.read, nullptr,     &(language).names.pathNameBytes};                                            \
  const zelHandle handle = &handle##Record;

ZELI_PARSER(zelParseVerilog, languages::verilog)
ZELI_PARSER(zelParseVerilogAMS, languages::verilogAMS)
ZELI_PARSER(zelParseVHDL, languages::vhdl)
ZELI_PARSER(zelParseVHDL87, languages::vhdl87)
ZELI_PARSER(zelParseVHDLAMS, languages::vhdlAMS)
ZELI_PARSER(zelParseORKA, languages::orka)
ZELI_PARSER(zelParseKirra, languages::kirra)
ZELI_PARSER(zelParseKirraHDL, languages::kirraHDL)
ZELI_PARSER(zelParseSpice, languages::spice)
ZELI_PARSER(zelParseTessel, languages::tessel)
ZELI_PARSER(zelParseFlatTessel, languages::flatTessel)
ZELI_PARSER(zelParseLef, languages::lef)
ZELI_PARSER(zelParseDef, languages::def)
ZELI_PARSER(zelParseSdf, languages::sdf)
ZELI_PARSER(zelParseSpf, languages::spf)
ZELI_PARSER(zelParseSpef, languages::spef)
ZELI_PARSER(zelParseGcf, languages::gcf)

ZELI_PRINTER(zelPathToVerilog, languages::verilog)
ZELI_PRINTER(zelPathToVHDL, languages::vhdl)
ZELI_PRINTER(zelPathToORKA, languages::orka)
ZELI_PRINTER(zelPathToKirra, languages::kirra)
ZELI_PRINTER(zelPathToKirraHDL, languages::kirraHDL)
ZELI_PRINTER(zelPathToSpice, languages::spice)
ZELI_PRINTER(zelPathToTessel, languages::tessel)
ZELI_PRINTER(zelPathToFlatTessel, languages::flatTessel)
ZELI_PRINTER(zelPathToLef, languages::lef)
ZELI_PRINTER(zelPathToDef, languages::def)
ZELI_PRINTER(zelPathToSdf, languages::sdf)
ZELI_PRINTER(zelPathToSpf, languages::spf)
ZELI_PRINTER(zelPathToSpef, languages::spef)
ZELI_PRINTER(zelPathToGcf, languages::gcf)

ZELI_HANDLE(zelVerilogHandle, languages::verilog)
ZELI_HANDLE(zelVerilogAMSHandle, languages::verilogAMS)
ZELI_HANDLE(zelVHDLHandle, languages::vhdl)
ZELI_HANDLE(zelVHDL87Handle, languages::vhdl87)
ZELI_HANDLE(zelVHDLAMSHandle, languages::vhdlAMS)
ZELI_HANDLE(zelORKAHandle, languages::orka)
ZELI_HANDLE(zelKirraHandle, languages::kirra)
ZELI_HANDLE(zelKirraHDLHandle, languages::kirraHDL)
ZELI_HANDLE(zelSpiceHandle, languages::spice)
ZELI_HANDLE(zelTesselHandle, languages::tessel)
ZELI_HANDLE(zelFlatTesselHandle, languages::flatTessel)
ZELI_HANDLE(zelLefHandle, languages::lef)
ZELI_HANDLE(zelDefHandle, languages::def)
ZELI_HANDLE(zelSdfHandle, languages::sdf)
ZELI_HANDLE(zelSpfHandle, languages::spf)
ZELI_HANDLE(zelSpefHandle, languages::spef)
ZELI_HANDLE(zelGcfHandle, languages::gcf)
