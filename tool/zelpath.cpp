// zelpath: prints one hierarchical name in every path language, or maps it from one name space to another.
#include "zel.h"
#include "zptOpt.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace {

zelRing zptRing = nullptr;

struct Language {
  int32_t pathType;
  const char *space;
  const char *label;
  zelPath (*parse)(const char *text, zelHandle handle, zelAllocFunc alloc, void *context);
  char *(*print)(zelPath path, zelHandle handle, int32_t flags);
  zelIdentToNameFunc identToName;
};

// In the order of the output. A path type without a record is accepted, and nothing is printed for it.
constexpr Language languages[] = {
    {zptVerilog, "Verilog", "Verilog: ", zelParseVerilog, zelPathToVerilog, zelIdentToVerilog},
    {zptTessel, "Tessel", "Tessel:    ", zelParseTessel, zelPathToTessel, zelIdentToTessel},
    {zptKirra, "Kirra", "Kirra:    ", zelParseKirra, zelPathToKirra, zelIdentToKirra},
    {zptGcf, "Gcf", "Gcf:    ", zelParseGcf, zelPathToGcf, zelIdentToGcf},
    {zptKirraHDL, "KirraHDL", "KirraHDL:    ", zelParseKirraHDL, zelPathToKirraHDL, zelIdentToKirraHDL},
    {zptSpice, "Spice", "Spice:    ", zelParseSpice, zelPathToSpice, zelIdentToSpice},
    {zptORKA, "ORKA", "ORKA:    ", zelParseORKA, zelPathToORKA, zelIdentToORKA},
    {zptVHDL, "VHDL", "VHDL:    ", zelParseVHDL, zelPathToVHDL, zelIdentToVHDL},
};

struct FlagWord {
  int flag;
  const char *word;
};

constexpr FlagWord flagWords[] = {
    {ZEL_PATH_ERROR, "ERROR! "},
    {ZEL_PATH_HIERARCHY, "Hierarchy "},
    {ZEL_PATH_INDEX, "Index "},
    {ZEL_PATH_RANGE, "Range "},
    {ZEL_PATH_COMPLEX, "Complex "},
    {ZEL_PATH_MID_INDEX, "MidIndex "},
    {ZEL_PATH_MID_RANGE, "MidRange "},
    {ZEL_PATH_LIST, "List "},
    {ZEL_PATH_REPEAT, "Repeat "},
    {ZEL_PATH_SINGLE_VERILOG, "SingleVerilog "},
    {ZEL_PATH_SINGLE_ORKA, "SingleORKA "},
    {ZEL_PATH_SINGLE_VHDL, "SingleVHDL "},
};

struct PrintOption {
  const bool *given;
  int32_t flag;
};

constexpr PrintOption printOptions[] = {
    {&zptExplode, ZEL_PRINT_EXPLODE}, {&zptNoRepeat, ZEL_PRINT_NOREPEAT}, {&zptNoComplex, ZEL_PRINT_NOCOMPLEX},
    {&zptGroup, ZEL_PRINT_GROUP},     {&zptTop, ZEL_PRINT_TOP},
};

const char *shown(const char *text) { return text != nullptr ? text : "(null)"; }

// ---- The items of a path: what the dump writes behind their label, and how they are copied.

void writeNothing(zelPath, const Language &) {}

void writeText(zelPath path, const Language &) {
  const char *end = nullptr;
  const char *const start = zelPathGetString(path, &end);
  if (start != nullptr)
    std::fwrite(start, 1, static_cast<size_t>(end - start), stdout);
}

void writeIndex(zelPath path, const Language &) { std::printf("%d", zelPathGetIndex(path)); }

void writeRange(zelPath path, const Language &) {
  int32_t from = 0;
  int32_t to = 0;
  zelPathGetRange(path, &from, &to);
  std::printf("%d:%d", from, to);
}

void writeStepRange(zelPath path, const Language &) {
  int32_t from = 0;
  int32_t to = 0;
  int32_t step = 0;
  zelPathGetStepRange(path, &from, &to, &step);
  std::printf("%d:%d:%d", from, to, step);
}

void writeRepeat(zelPath path, const Language &) { std::printf("%d", zelPathGetRepeat(path)); }

void writeIdent(const char *ident, const Language &language) {
  if (ident != nullptr)
    std::fputs(shown(language.identToName(ident, zelAllocRing, &zptRing)), stdout);
}

void writeLib(zelPath path, const Language &language) {
  const char *library = nullptr;
  const char *cell = nullptr;
  const char *view = nullptr;
  zelPathGetLib(path, &library, &cell, &view);
  writeIdent(library, language);
  std::putchar('.');
  writeIdent(cell, language);
  std::putchar(':');
  writeIdent(view, language);
}

void copyNothing(zelPath, zelPath) {}
void copyTopIdent(zelPath from, zelPath to) { zelPathAddTopIdent(to, zelPathGetIdent(from), 1); }
void copyIdent(zelPath from, zelPath to) { zelPathAddIdent(to, zelPathGetIdent(from), 1); }
void copyIndex(zelPath from, zelPath to) { zelPathAddIndex(to, zelPathGetIndex(from)); }
void copyRepeat(zelPath from, zelPath to) { zelPathAddRepeat(to, zelPathGetRepeat(from)); }
void copyListStart(zelPath, zelPath to) { zelPathAddListStart(to); }
void copyList(zelPath, zelPath to) { zelPathAddList(to); }
void copyListEnd(zelPath, zelPath to) { zelPathAddListEnd(to); }

void copyRange(zelPath from, zelPath to) {
  int32_t first = 0;
  int32_t last = 0;
  zelPathGetRange(from, &first, &last);
  zelPathAddRange(to, first, last);
}

void copyStepRange(zelPath from, zelPath to) {
  int32_t first = 0;
  int32_t last = 0;
  int32_t step = 0;
  zelPathGetStepRange(from, &first, &last, &step);
  zelPathAddStepRange(to, first, last, step);
}

void copyLib(zelPath from, zelPath to) {
  const char *library = nullptr;
  const char *cell = nullptr;
  const char *view = nullptr;
  zelPathGetLib(from, &library, &cell, &view);
  zelPathAddLib(to, library, cell, view, 1);
}

struct Item {
  const char *label;
  void (*write)(zelPath path, const Language &language);
  void (*copy)(zelPath from, zelPath to);
};

// Indexed by item. Index lists and index repeats have no function that would add them to a copy.
constexpr Item items[] = {
    {" Top Ident ", writeText, copyTopIdent},
    {" Ident ", writeText, copyIdent},
    {" Index:  ", writeIndex, copyIndex},
    {" Range:  ", writeRange, copyRange},
    {" Step:   ", writeStepRange, copyStepRange},
    {" Repeat: ", writeRepeat, copyRepeat},
    {" Start list", writeNothing, copyListStart},
    {" List", writeNothing, copyList},
    {" Finish list", writeNothing, copyListEnd},
    {" Index list", writeNothing, copyNothing},
    {" Index list end", writeNothing, copyNothing},
    {" Index repeat: ", writeRepeat, copyNothing},
    {" Lib: ", writeLib, copyLib},
};
static_assert(std::size(items) == ZEL_ITEM_END);

constexpr Item noItem = {" ERROR!", writeNothing, copyNothing};

// Calls visit(item) for every item of path, with the walk standing on it.
template <typename Visit> void forEachItem(zelPath path, Visit visit) {
  zelPathGenStart(path);
  for (int kind = zelPathGenNext(path); kind != ZEL_ITEM_END; kind = zelPathGenNext(path))
    visit(kind >= 0 && kind < ZEL_ITEM_END ? items[kind] : noItem);
}

// ---- Translation: one path in every language.

void dump(zelPath path, const Language &language) {
  std::fputs("Flags: ", stdout);
  const int flags = zelPathGetFlag(path);
  for (const FlagWord &row : flagWords) {
    if ((flags & row.flag) != 0)
      std::fputs(row.word, stdout);
  }
  std::putchar('\n');
  forEachItem(path, [&](const Item &item) {
    std::fputs(item.label, stdout);
    item.write(path, language);
    std::putchar('\n');
  });
  std::putchar('\n');
}

void print(const Language &language, zelPath path, zelHandle handle, int32_t flags) {
  char *const text = language.print(path, handle, flags);
  std::printf("%s%s\n", language.label, shown(text));
  std::free(text);
}

void translate(const Language &input) {
  const zelHandle handle = zelGetHandle(input.space, 0, 0, 0, 0);
  zelPath path = input.parse(zptPath, handle, nullptr, nullptr);
  if (path == nullptr)
    return;
  if (zptParse)
    dump(path, input);
  int32_t flags = 0;
  for (const PrintOption &row : printOptions)
    flags |= *row.given ? row.flag : 0;
  for (const Language &language : languages) {
    if (&language != &input)
      print(language, path, handle, flags);
  }
  // The input's own line shows what a path built item by item prints, with the Idents borrowed from the parsed one.
  zelPath copy = zelCreatePath(nullptr, nullptr);
  if (copy != nullptr) {
    forEachItem(path, [&](const Item &item) { item.copy(path, copy); });
    print(input, copy, handle, flags);
  }
  zelFreePath(copy, nullptr, nullptr);
  zelFreePath(path, nullptr, nullptr);
}

const Language *languageOf(int32_t pathType) {
  for (const Language &language : languages) {
    if (language.pathType == pathType)
      return &language;
  }
  return nullptr;
}

// ---- Mapping: one path between two name spaces, and back.

zelHandle mappingHandle(const char *space) {
  const zelHandle handle = zelGetHandle(space, 0, 0, 0, 0);
  if (handle == nullptr) {
    std::fprintf(stderr, "Could not get handle for the namespace:%s\n", shown(space));
    std::puts("Quitting the mapping.");
  }
  return handle;
}

void mapThereAndBack(zelHandle from, zelHandle to) {
  char *const mapped = zelPathMapper(zptPath, from, to, 0, nullptr, nullptr);
  if (mapped == nullptr) {
    std::puts("Could not map the path. Please check the path and try.");
    return;
  }
  std::printf("The pathname: %s   mapped from:%s to:%s as follows:\n%s\n", zptPath, fromSpace, toSpace, mapped);
  char *const original = zelPathMapper(mapped, to, from, 0, "", "");
  std::printf("The original pathname mapped back as:\n%s\n\n", shown(original));
  std::free(original);
  std::free(mapped);
}

void map() {
  const zelHandle from = mappingHandle(fromSpace);
  if (from == nullptr)
    return;
  const zelHandle to = mappingHandle(toSpace);
  if (to != nullptr)
    mapThereAndBack(from, to);
  zelFreeHandle(to);
  zelFreeHandle(from);
}

} // namespace

int main(int argc, char *argv[]) {
  zptParseCmd(argc, argv);
  if (zptDoHelp)
    zptPrintOptions(true);
  if (zptPath == nullptr) {
    zptPrintOptions(false); // nothing, behind the full help
  } else if (zptMap) {
    map();
  } else if (const Language *const input = languageOf(zptPathType)) {
    translate(*input);
  }
  return 0;
}
