// One path from any language to any other, with any flags and separators.
#include "fuzz.h"

#include <iterator>
#include <vector>

using namespace fuzz;

namespace {

struct Language {
  const char *space;
  zelPath (*parse)(const char *text, zelHandle handle, zelAllocFunc alloc, void *context);
  char *(*print)(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc, void *context);
};

constexpr Language languages[] = {
    {"Verilog", zelParseVerilog, zelPathToVerilogEx},
    {"VerilogAMS", zelParseVerilogAMS, zelPathToVerilogEx},
    {"VHDL", zelParseVHDL, zelPathToVHDLEx},
    {"VHDL87", zelParseVHDL87, zelPathToVHDLEx},
    {"VHDLAMS", zelParseVHDLAMS, zelPathToVHDLEx},
    {"ORKA", zelParseORKA, zelPathToORKAEx},
    {"Tessel", zelParseTessel, zelPathToTesselEx},
    {"FlatTessel", zelParseFlatTessel, zelPathToFlatTesselEx},
    {"Kirra", zelParseKirra, zelPathToKirraEx},
    {"KirraHDL", zelParseKirraHDL, zelPathToKirraHDLEx},
    {"Lef", zelParseLef, zelPathToLefEx},
    {"Def", zelParseDef, zelPathToDefEx},
    {"Sdf", zelParseSdf, zelPathToSdfEx},
    {"Spf", zelParseSpf, zelPathToSpfEx},
    {"Spef", zelParseSpef, zelPathToSpefEx},
    {"Gcf", zelParseGcf, zelPathToGcfEx},
    {"Spice", zelParseSpice, zelPathToSpiceEx},
};

struct FreePath {
  void operator()(zelPath path) const { zelFreePath(path, nullptr, nullptr); }
};
using Path = std::unique_ptr<zelPathRecord, FreePath>;

// The items of a path as numbers, with the bounds of those that have any.
std::vector<int> items(zelPath path) {
  std::vector<int> found;
  zelPathGenStart(path);
  for (int item = zelPathGenNext(path); item != ZEL_ITEM_END; item = zelPathGenNext(path)) {
    found.push_back(item);
    int32_t from = 0;
    int32_t to = 0;
    zelPathGetRange(path, &from, &to);
    found.insert(found.end(), {zelPathGetIndex(path), from, to, zelPathGetRepeat(path)});
  }
  require(zelPathGenNext(path) == ZEL_ITEM_END, "the walk stays at its end");
  return found;
}

bool hasItem(const std::vector<int> &found, int item) {
  for (size_t i = 0; i < found.size(); i += 5)
    if (found[i] == item)
      return true;
  return false;
}

bool isIndex(int item) { return item == ZEL_ITEM_INDEX || item == ZEL_ITEM_RANGE || item == ZEL_ITEM_INDEX_REPEAT; }

// Whether an index is followed by another, which most printers write as a list of names.
bool hasAdjacentIndexes(const std::vector<int> &found) {
  for (size_t i = 5; i < found.size(); i += 5)
    if (isIndex(found[i - 5]) && isIndex(found[i]))
      return true;
  return false;
}

const Language &language(FuzzedDataProvider &input) {
  return languages[input.ConsumeIntegralInRange<size_t>(0, std::size(languages) - 1)];
}

// Whether every level has an Ident that stays short enough when it is escaped, and there is no library reference.
bool hasEveryIdent(zelPath path) {
  zelPathGenStart(path);
  for (int item = zelPathGenNext(path); item != ZEL_ITEM_END; item = zelPathGenNext(path)) {
    if (item == ZEL_ITEM_LIB)
      return false;
    const char *ident = item <= ZEL_ITEM_IDENT ? zelPathGetIdent(path) : "Sx";
    if (zelIsLegalIdent(ident) == 0 || std::strlen(ident) > ZEL_MAX_NAME / 4)
      return false;
  }
  return true;
}

// A path of levels and buses alone reads back from its own language with
// as many items.
void checkRoundTrip(const Language &language, const char *source) {
  constexpr int excluded = ZEL_PATH_LIST | ZEL_PATH_REPEAT | ZEL_PATH_ERROR;
  const Path path(language.parse(source, nullptr, nullptr, nullptr));
  const std::vector<int> found = items(path.get());
  if ((zelPathGetFlag(path.get()) & excluded) != 0 || hasItem(found, ZEL_ITEM_LIST_START) ||
      hasItem(found, ZEL_ITEM_INDEX_LIST_START) || hasAdjacentIndexes(found) || !hasEveryIdent(path.get()))
    return;
  // A level behind an index that no name precedes gets no separator.
  if (found.empty() || found[0] > ZEL_ITEM_IDENT)
    return;
  const String text(language.print(path.get(), nullptr, 0, nullptr, nullptr));
  if (text == nullptr)
    return;
  const Path again(language.parse(text.get(), nullptr, nullptr, nullptr));
  // Kirra writes names that begin with a digit, SPF, LEF and DEF write blanks or control characters as they stand;
  // paths cannot hold them.
  const bool isKirra = std::strcmp(language.space, "Kirra") == 0;
  if (isKirra && (zelPathGetFlag(again.get()) & ZEL_PATH_ERROR) != 0)
    return;
  for (const char *c = text.get(); *c != '\0'; ++c)
    if (*c <= ' ' || *c == 0x7f)
      return;
  require(items(again.get()).size() == found.size(), text.get());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  FuzzedDataProvider input(data, size);
  const Language &from = language(input);
  const Language &to = language(input);
  const auto fromHandle = handle(input, from.space);
  const auto toHandle = handle(input, to.space);
  const int32_t flags = input.ConsumeIntegralInRange<int32_t>(0, 31);
  zelSetMapState(input.ConsumeIntegralInRange<int32_t>(ZEL_MAP_VHDL, ZEL_MAP_MATCH));
  const std::string text = input.ConsumeRemainingBytesAsString();

  const Path path(from.parse(text.c_str(), fromHandle.get(), nullptr, nullptr));
  require(path != nullptr, "a text has a path");
  const std::vector<int> found = items(path.get());
  // ORKA without repeats cannot write a bracketed list, which ends the process.
  const bool canEnd = hasItem(found, ZEL_ITEM_INDEX_LIST_START) && (flags & ZEL_PRINT_NOREPEAT) != 0 &&
                      (flags & ZEL_PRINT_EXPLODE) == 0 && std::strcmp(to.space, "ORKA") == 0;
  if (canEnd)
    return 0;
  const String printed = withEveryMemory(
      [&](zelAllocFunc alloc, void *context) { return to.print(path.get(), toHandle.get(), flags, alloc, context); });
  require(items(path.get()) == found, "printing leaves the items alone");

  const bool isValid = (zelPathGetFlag(path.get()) & ZEL_PATH_ERROR) == 0;
  const String mapped = withEveryMemory([&](zelAllocFunc alloc, void *context) {
    return zelPathMapperEx(text.c_str(), fromHandle.get(), toHandle.get(), static_cast<uint32_t>(flags), nullptr,
                           nullptr, alloc, context);
  });
  require(same(mapped.get(), isValid ? printed.get() : nullptr), "the mapper parses and prints");

  checkRoundTrip(from, text.c_str());
  return 0;
}
