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

// A result as tables state it: the text, "refused" for null with EINVAL, or which errno another null came with.
inline std::string stated(const Result &result, int error) {
  return result ? *result : error == EINVAL ? "refused" : "null, errno " + std::to_string(error);
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

// The stated result of a conversion. It must be the same from malloc, in the caller's buffer and from an allocator,
// which is asked once, for exactly the text and its NUL; where either has no memory, null and ENOMEM. What is not as it
// must be is appended, so that one comparison finds it.
template <typename Conversion> std::string convert(Conversion conversion, const char *input) {
  errno = 0;
  const Result result = take(conversion(input, nullptr, nullptr));
  const int error = errno;
  std::string found = stated(result, error);
  const auto demand = [&found](bool holds, const std::string &complaint) { found += holds ? "" : "; " + complaint; };
  demand(!result || error == 0, "errno " + std::to_string(error));

  char buffer[ZEL_MAX_NAME + 2] = "?";
  const Result returned = resultOf(conversion(input, nullptr, buffer));
  demand(returned == result, "with a buffer " + stated(returned, errno));
  demand(buffer == result.value_or("?"), std::string("in the buffer ") + buffer);

  Memory memory;
  const Result allocated = take(conversion(input, Memory::alloc, &memory));
  demand(allocated == result, "by an allocator " + stated(allocated, errno));
  demand(memory.requests == (result ? 1 : 0), std::to_string(memory.requests) + " requests");
  demand(memory.size == (result ? result->size() + 1 : 0), std::to_string(memory.size) + " bytes requested");

  for (const zelAllocFunc alloc : {zelAllocFunc(), zelAllocFunc(Memory::alloc)}) {
    errno = 0;
    failingMalloc::left = 0;
    const Result none = take(conversion(input, alloc, alloc == nullptr ? nullptr : &memory));
    failingMalloc::left = -1;
    demand(!none && errno == (result ? ENOMEM : error), "without memory " + stated(none, errno));
  }
  errno = error;
  return found;
}

#endif
