// Paths built, walked, moved about in and cut by any sequence of calls.
#include "fuzz.h"

#include <unordered_set>

using namespace fuzz;

namespace {

constexpr const char *idents[] = {"Stop", "Iu_core", "SA b", "F#23x", "I"};

// Memory that knows what it gave, so that a path must return all of it and nothing else.
struct Memory {
  std::unordered_set<void *> given;

  static void *allocate(uint64_t size, void *context) {
    void *memory = std::malloc(size);
    static_cast<Memory *>(context)->given.insert(memory);
    return memory;
  }
  static void release(void *memory, void *context) {
    require(static_cast<Memory *>(context)->given.erase(memory) == 1, "what is released was given");
    std::free(memory);
  }
};

int32_t number(FuzzedDataProvider &input) {
  return input.ConsumeBool() ? input.ConsumeIntegral<int8_t>()
                             : input.ConsumeIntegralInRange<int32_t>(ZEL_MIN_NUMBER - 2, ZEL_MAX_NUMBER + 2);
}

void add(FuzzedDataProvider &input, zelPath path) {
  const char *ident = input.PickValueInArray(idents);
  switch (input.ConsumeIntegralInRange<int>(0, 9)) {
  case 0:
    return zelPathAddTopIdent(path, ident, 1);
  case 1:
    return zelPathAddIdent(path, ident, 1);
  case 2:
    return zelPathAddLib(path, ident, nullptr, input.ConsumeBool() ? ident : nullptr, 1);
  case 3:
    return zelPathAddIndex(path, number(input));
  case 4:
    return zelPathAddRange(path, number(input), number(input));
  case 5:
    return zelPathAddStepRange(path, number(input), number(input), number(input));
  case 6:
    return zelPathAddRepeat(path, number(input));
  case 7:
    return zelPathAddListStart(path);
  case 8:
    return zelPathAddList(path);
  default:
    return zelPathAddListEnd(path);
  }
}

void readAll(zelPath path) {
  int32_t from = 0;
  int32_t to = 0;
  int32_t step = 0;
  const char *end = nullptr;
  const char *names[3] = {};
  zelPathGetIndex(path);
  zelPathGetRange(path, &from, &to);
  zelPathGetStepRange(path, &from, &to, &step);
  zelPathGetRepeat(path);
  zelPathGetString(path, &end);
  zelPathGetLib(path, names, names + 1, names + 2);
  const char *ident = zelPathGetIdent(path);
  require(ident == nullptr || *ident != '\0', "an Ident of the walk");
}

void walk(zelPath path, int steps) {
  zelPathGenStart(path);
  require(zelPathGetLocation(path) == 0, "a walk starts at 0");
  for (int i = 0; i < steps && zelPathGenNext(path) != ZEL_ITEM_END; ++i) {
    readAll(path);
    const uint32_t location = zelPathGetLocation(path);
    zelPathSetLocation(path, location);
    require(zelPathGetLocation(path) == location, "a location of the walk can be set");
  }
}

void print(FuzzedDataProvider &input, zelPath path) {
  const int32_t flags = input.ConsumeIntegralInRange<int32_t>(0, 31);
  const auto print = input.PickValueInArray(
      {zelPathToVerilogEx, zelPathToVHDLEx, zelPathToORKAEx, zelPathToSdfEx, zelPathToTesselEx, zelPathToKirraEx});
  withEveryMemory([=](zelAllocFunc alloc, void *context) { return print(path, nullptr, flags, alloc, context); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  FuzzedDataProvider input(data, size);
  Memory memory;
  const zelPath path = zelCreatePath(Memory::allocate, &memory);
  while (input.remaining_bytes() != 0) {
    switch (input.ConsumeIntegralInRange<int>(0, 9)) {
    default:
      add(input, path);
      break;
    case 4:
      walk(path, input.ConsumeIntegral<uint8_t>());
      break;
    case 5:
      zelPathSetLocation(path, input.ConsumeIntegral<uint16_t>());
      readAll(path);
      break;
    case 6:
      zelPathSetLocation(path, zelPathGetLastLocation(path));
      break;
    case 7:
      zelPathRemoveFromLocation(path, input.ConsumeIntegral<uint16_t>() % 0x400U, Memory::release, &memory);
      break;
    case 8:
      if (input.ConsumeBool())
        zelPathRemoveIndex(path);
      else
        zelPathRemoveLevel(path);
      break;
    case 9:
      print(input, path);
      break;
    }
  }
  zelFreePath(path, Memory::release, &memory);
  require(memory.given.empty(), "all memory is returned");
  return 0;
}
