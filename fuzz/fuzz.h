// What the fuzz targets share: input taken apart, and checks that stop at the first finding.
#ifndef ZEL_FUZZ_FUZZ_H
#define ZEL_FUZZ_FUZZ_H

#include "path/languages.h"

#include <cerrno>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <memory>
#include <optional>
#include <stdexcept>

inline void require(bool holds, const char *what) {
  if (!holds)
    throw std::logic_error(what); // which nobody catches
}

using Result = std::optional<std::string>;
inline Result resultOf(const char *text) { return text == nullptr ? Result() : Result(text); }

// The result of make(alloc, context), which must be the same in every kind of memory and not exceed the limit.
template <typename Make> Result inEveryMemory(Make make, size_t limit = ZEL_MAX_NAME) {
  errno = 0;
  const std::unique_ptr<char, decltype(&std::free)> owned(make(nullptr, nullptr), std::free);
  require(owned != nullptr || errno == 0 || errno == EINVAL, "errno of a refusal");
  Result result = resultOf(owned.get());
  require(!result || result->size() <= limit, "length of a result");

  char buffer[ZEL_MAX_NAME + 2];
  require(resultOf(make(nullptr, buffer)) == result, "buffer result equals malloc result");
  static zelRing ring = nullptr;
  require(resultOf(make(zelAllocRing, &ring)) == result, "ring result equals malloc result");
  return result;
}

// The name of a space of the input's choice.
inline const char *space(FuzzedDataProvider &input) {
  const char *const *name = zelGetAllSpaceNames();
  for (int steps = input.ConsumeIntegral<uint8_t>(); steps > 0; --steps)
    name = name[1] != nullptr ? name + 1 : zelGetAllSpaceNames();
  return *name;
}

// A handle of a space with separators of the input's choice; Verilog's for a space without paths.
using Handle = std::unique_ptr<const zelHandleRecord, decltype(&zelFreeHandle)>;
inline Handle handle(FuzzedDataProvider &input, const char *space) {
  std::vector<uint8_t> separators = input.ConsumeBytes<uint8_t>(4);
  separators.resize(4);
  const zelHandle chosen = zelGetHandle(space, separators[0], separators[1], separators[2], separators[3]);
  return {chosen != nullptr ? chosen : zelVerilogHandle, zelFreeHandle};
}

inline Result print(zelPath path, const Handle &language, int32_t flags) {
  return inEveryMemory(
      [&](auto... memory) { return language->language->print(path, language.get(), flags, memory...); });
}

struct Item {
  int kind;
  std::array<int32_t, 7> numbers; // as they read
  bool hasIdent;                  // and one that stays short enough when it is escaped
  bool operator==(const Item &other) const { return kind == other.kind && numbers == other.numbers; }
};

// Reads everything from a location on, and returns the items behind it.
inline std::vector<Item> walk(zelPath path, uint32_t location = 0) {
  std::vector<Item> found;
  zelPathSetLocation(path, location);
  for (int kind = ZEL_ITEM_NONE; kind != ZEL_ITEM_END; kind = zelPathGenNext(path)) {
    const char *texts[4];
    zelPathGetString(path, texts);
    zelPathGetLib(path, texts + 1, texts + 2, texts + 3);
    const Result ident = resultOf(zelPathGetIdent(path));
    require(ident != "", "an Ident of the walk");
    Item item = {kind, {zelPathGetIndex(path), zelPathGetRepeat(path)}, ident && ident->size() - 2 < 500};
    zelPathGetRange(path, &item.numbers[2], &item.numbers[3]);
    zelPathGetStepRange(path, &item.numbers[4], &item.numbers[5], &item.numbers[6]);
    if (kind != ZEL_ITEM_NONE) // as behind a step range of small numbers
      found.push_back(item);
    location = zelPathGetLocation(path);
    zelPathSetLocation(path, location);
    require(zelPathGetLocation(path) == location, "a location of the walk can be set");
  }
  require(zelPathGenNext(path) == ZEL_ITEM_END, "the walk stays at its end");
  return found;
}

#endif
