// One path from any language to any other, with any flags and separators.
#include "fuzz.h"

namespace {

using Path = std::unique_ptr<zelPathRecord, decltype([](zelPath path) { zelFreePath(path, nullptr, nullptr); })>;
bool isValid(const Path &path) { return (zelPathGetFlag(path.get()) & ZEL_PATH_ERROR) == 0; }

// Whether the items are names with at most one index each.
bool arePlain(const std::vector<Item> &items) {
  for (size_t i = 0; i < items.size(); ++i) {
    const bool isIndex = items[i].kind >= ZEL_ITEM_INDEX && items[i].kind <= ZEL_ITEM_STEP_RANGE;
    if (!items[i].hasIdent && !(isIndex && i > 0 && items[i - 1].hasIdent))
      return false;
  }
  return true;
}

// A valid, plain path reads back from its own language as it was.
void checkRoundTrip(const zeli::PathLanguage &language, const char *source) {
  const Path path(language.parse(source, nullptr, nullptr, nullptr));
  const std::vector<Item> items = walk(path.get());
  if (!isValid(path) || !arePlain(items))
    return;
  const Result text = inEveryMemory([&](auto... memory) { return language.print(path.get(), nullptr, 0, memory...); });
  // SPF, LEF and DEF write blanks and control characters as they stand; paths cannot hold them.
  if (!text || std::any_of(text->begin(), text->end(), [](char c) { return (c >= 0 && c <= ' ') || c == 0x7f; }))
    return;
  const Path again(language.parse(text->c_str(), nullptr, nullptr, nullptr));
  // Nor names that begin with a digit, as Kirra writes them.
  if (language.parse != zelParseKirra || isValid(again))
    require(walk(again.get()) == items, text->c_str());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  FuzzedDataProvider input(data, size);
  const Handle from = handle(input, space(input));
  const Handle to = handle(input, space(input));
  const int32_t flags = input.ConsumeIntegralInRange<int32_t>(0, 31);
  zelSetMapState(input.ConsumeIntegralInRange<int32_t>(ZEL_MAP_VHDL, ZEL_MAP_MATCH));
  const std::string text = input.ConsumeRemainingBytesAsString();
  // ORKA without repeats cannot write a bracketed list, which ends the process.
  if (to->language->print == zelPathToORKAEx &&
      (flags & (ZEL_PRINT_NOREPEAT | ZEL_PRINT_EXPLODE)) == ZEL_PRINT_NOREPEAT && text.find('(') != std::string::npos)
    return 0;

  const Path path(from->language->parse(text.c_str(), from.get(), nullptr, nullptr));
  require(path != nullptr, "a text has a path");
  const Result printed = print(path.get(), to, flags);
  const Result mapped = inEveryMemory([&](auto... memory) {
    return zelPathMapperEx(text.c_str(), from.get(), to.get(), static_cast<uint32_t>(flags), "", "", memory...);
  });
  require(mapped == (isValid(path) ? printed : Result()), "the mapper parses and prints");
  walk(path.get());
  require(print(path.get(), to, flags) == printed, "neither a walk nor printing changes a path");
  checkRoundTrip(*from->language, text.c_str());
  return 0;
}
