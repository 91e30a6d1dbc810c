// What the fuzz targets share: input taken apart, and checks that stop at the first finding.
#ifndef ZEL_FUZZ_FUZZ_H
#define ZEL_FUZZ_FUZZ_H

#include "core/zel.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fuzzer/FuzzedDataProvider.h>
#include <memory>
#include <string>

namespace fuzz {

inline void require(bool holds, const char *what) {
  if (holds)
    return;
  std::fprintf(stderr, "Does not hold: %s\n", what);
  std::abort();
}

struct Free {
  void operator()(char *memory) const { std::free(memory); }
};
using String = std::unique_ptr<char, Free>;

inline bool same(const char *a, const char *b) {
  return a == nullptr || b == nullptr ? a == b : std::strcmp(a, b) == 0;
}

inline void *exactly(uint64_t size, void *asked) {
  *static_cast<uint64_t *>(asked) = size;
  return std::malloc(size);
}

// Runs make(alloc, context) with every kind of memory; the results must agree. Returns the one of malloc.
template <typename Make> String withEveryMemory(Make make) {
  errno = 0;
  String result(make(nullptr, nullptr));
  const int error = errno;
  require(result != nullptr || error == 0 || error == EINVAL, "errno of a refusal");

  char buffer[ZEL_MAX_NAME + 2];
  require(same(make(nullptr, buffer), result.get()), "buffer result equals malloc result");

  static zelRing ring = nullptr;
  require(same(make(zelAllocRing, &ring), result.get()), "ring result equals malloc result");

  uint64_t asked = 0;
  const String copy(make(exactly, &asked));
  require(same(copy.get(), result.get()), "allocator result equals malloc result");
  require(copy == nullptr || asked == std::strlen(copy.get()) + 1, "size asked of the allocator");
  return result;
}

inline uint32_t separator(FuzzedDataProvider &input) { return input.ConsumeIntegral<uint8_t>(); }

struct FreeHandle {
  void operator()(zelHandle handle) const { zelFreeHandle(handle); }
};

// A handle of a space with separators of the input's choice.
inline std::unique_ptr<const zelHandleRecord, FreeHandle> handle(FuzzedDataProvider &input, const char *space) {
  const uint32_t pin = separator(input);
  const uint32_t divider = separator(input);
  const uint32_t open = separator(input);
  return std::unique_ptr<const zelHandleRecord, FreeHandle>(zelGetHandle(space, pin, divider, open, separator(input)));
}

} // namespace fuzz

#endif
