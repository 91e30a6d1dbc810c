// Paths built, walked, moved about in and cut by any sequence of calls.
#include "fuzz.h"

#include <unordered_set>

namespace {

std::unordered_set<void *> given;
void *allocate(uint64_t size, void *) { return *given.insert(std::malloc(size)).first; }
void release(void *memory, void *) {
  require(given.erase(memory) == 1, "what is released was given");
  std::free(memory);
}

// Indexed by the kind of item, except the last.
constexpr void (*adders[])(zelPath path, const char *ident, const int32_t *numbers) = {
    [](zelPath path, const char *ident, const int32_t *) { zelPathAddTopIdent(path, ident, 1); },
    [](zelPath path, const char *ident, const int32_t *) { zelPathAddIdent(path, ident, 1); },
    [](zelPath path, const char *, const int32_t *n) { zelPathAddIndex(path, n[0]); },
    [](zelPath path, const char *, const int32_t *n) { zelPathAddRange(path, n[0], n[1]); },
    [](zelPath path, const char *, const int32_t *n) { zelPathAddStepRange(path, n[0], n[1], n[2]); },
    [](zelPath path, const char *, const int32_t *n) { zelPathAddRepeat(path, n[0]); },
    [](zelPath path, const char *, const int32_t *) { zelPathAddListStart(path); },
    [](zelPath path, const char *, const int32_t *) { zelPathAddList(path); },
    [](zelPath path, const char *, const int32_t *) { zelPathAddListEnd(path); },
    [](zelPath path, const char *s, const int32_t *n) { zelPathAddLib(path, s, nullptr, n[0] < 0 ? s : nullptr, 1); },
};

// Adds an item and returns what the walk is to read of it.
Item add(FuzzedDataProvider &input, zelPath path) {
  const int kind = input.ConsumeIntegralInRange<int>(ZEL_ITEM_TOP_IDENT, ZEL_ITEM_LIST_END + 1);
  int32_t n[3];
  for (int32_t &number : n)
    number = input.ConsumeBool() ? input.ConsumeIntegral<int8_t>()
                                 : input.ConsumeIntegralInRange<int32_t>(ZEL_MIN_NUMBER - 2, ZEL_MAX_NUMBER + 2);
  adders[kind](path, input.PickValueInArray({"Stop", "Iu_core", "SA b", "F#23x", "I"}), n);
  Item item = {kind <= ZEL_ITEM_LIST_END ? kind : ZEL_ITEM_LIB, {-1, -1, -1, -1, -1, -1, 0}, false};
  if (kind == ZEL_ITEM_INDEX || kind == ZEL_ITEM_REPEAT)
    item.numbers[kind == ZEL_ITEM_INDEX ? 0 : 1] = n[0];
  if (kind == ZEL_ITEM_RANGE || kind == ZEL_ITEM_STEP_RANGE)
    std::copy(n, n + 2, &item.numbers[2]);
  if (kind == ZEL_ITEM_STEP_RANGE)
    std::copy(n, n + 3, &item.numbers[4]);
  return item;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  FuzzedDataProvider input(data, size);
  const zelPath path = zelCreatePath(allocate, nullptr);
  std::vector<Item> added;
  bool isCut = false;
  while (input.remaining_bytes() != 0) {
    const int call = input.ConsumeIntegralInRange<int>(0, 9);
    const uint32_t argument = input.ConsumeIntegral<uint16_t>();
    isCut = isCut || call > 6;
    if (call < 5)
      added.push_back(add(input, path));
    else if (call == 5)
      walk(path, argument % 2 == 0 ? argument : zelPathGetLastLocation(path));
    else if (call == 6)
      print(path, handle(input, space(input)), static_cast<int32_t>(argument % 32));
    else if (call == 7)
      zelPathRemoveFromLocation(path, argument % 0x400U, release, nullptr);
    else
      (call == 8 ? zelPathRemoveIndex : zelPathRemoveLevel)(path);
  }
  const std::vector<Item> found = walk(path);
  if (!isCut && (zelPathGetFlag(path) & ZEL_PATH_ERROR) == 0) // as by a number out of range
    require(found == added, "the walk finds what was added");
  zelFreePath(path, release, nullptr);
  require(given.empty(), "all memory is returned");
  return 0;
}
