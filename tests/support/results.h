// Results under the allocator convention, from every kind of memory and without any.
#ifndef SUPPORT_RESULTS_H
#define SUPPORT_RESULTS_H

#include "core/zel.h"

#include <cerrno>
#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <string>

// malloc and calloc fail on request, for all that is linked into a test program: the library and the tests, but not
// what they share with others. Of this thread:
namespace failingMalloc {
extern thread_local int left; // calls that are served before one fails; none fails while it is negative
extern thread_local int failures;
} // namespace failingMalloc

// What a function returned, and nothing for null.
using Result = std::optional<std::string>;
inline Result resultOf(const char *text) { return text == nullptr ? Result() : Result(text); }
inline Result take(char *result) {
  Result taken = resultOf(result);
  std::free(result);
  return taken;
}

// For the allocator convention: gives exactly the bytes that it is asked for, so that a write past them is noticed, and
// null when malloc fails.
struct Memory {
  int requests = 0;
  int live = 0; // blocks that were not released
  std::uint64_t size = 0;

  static void *alloc(std::uint64_t size, void *context) {
    auto &self = *static_cast<Memory *>(context);
    ++self.requests;
    self.size = size;
    void *const block = std::malloc(size);
    self.live += block != nullptr ? 1 : 0;
    return block;
  }
  static void free(void *block, void *context) {
    --static_cast<Memory *>(context)->live;
    std::free(block);
  }
};

// The result of a conversion, which must be the same from malloc, in the caller's buffer and from an allocator; that is
// asked once, for exactly the text and its NUL. Where either has no memory, null and ENOMEM. errno is the conversion's,
// 0 when it set none.
template <typename Conversion> Result convert(Conversion conversion, const char *input) {
  errno = 0;
  Result result = take(conversion(input, nullptr, nullptr));
  const int error = errno;
  char buffer[ZEL_MAX_NAME + 2] = "?";
  Memory memory;
  EXPECT_EQ(resultOf(conversion(input, nullptr, buffer)), result);
  EXPECT_EQ(buffer, result.value_or("?"));
  EXPECT_EQ(take(conversion(input, Memory::alloc, &memory)), result);
  EXPECT_EQ(memory.requests, result ? 1 : 0);
  EXPECT_EQ(memory.size, result ? result->size() + 1 : 0);
  for (const zelAllocFunc alloc : {zelAllocFunc(), zelAllocFunc(Memory::alloc)}) {
    errno = 0;
    failingMalloc::left = 0;
    EXPECT_EQ(conversion(input, alloc, alloc == nullptr ? nullptr : &memory), nullptr);
    failingMalloc::left = -1;
    EXPECT_EQ(errno, result ? ENOMEM : error);
  }
  errno = error;
  return result;
}

#endif
