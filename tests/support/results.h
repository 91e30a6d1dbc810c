// Results under the allocator convention: malloc'ed ones with an owner, and an allocator that keeps count.
#ifndef SUPPORT_RESULTS_H
#define SUPPORT_RESULTS_H

#include "core/zel.h"
#include "failingMalloc.h"

#include <cerrno>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>

struct Free {
  void operator()(void *memory) const { std::free(memory); }
};
using Owned = std::unique_ptr<char, Free>;

// What a function returned, and nothing for null.
using Result = std::optional<std::string>;
inline Result resultOf(const char *text) { return text == nullptr ? Result() : Result(text); }
inline Result take(char *result) { return resultOf(Owned(result).get()); }

// Gives exactly the bytes that it is asked for, so that a write past them is noticed; null when malloc fails.
struct Allocator {
  int requests = 0;
  std::uint64_t size = 0;
  Owned memory = nullptr;

  static void *allocate(std::uint64_t size, void *context) {
    auto &self = *static_cast<Allocator *>(context);
    ++self.requests;
    self.size = size;
    self.memory.reset(static_cast<char *>(std::malloc(size)));
    return self.memory.get();
  }
};

// The result of a conversion, which must be the same from malloc, in the caller's buffer and from an allocator; that is
// asked once, for exactly the text and its NUL. Where either has no memory, null and ENOMEM. errno is the conversion's,
// 0 when it set none.
template <typename Conversion> Result convert(Conversion conversion, const char *input) {
  errno = 0;
  const Result result = take(conversion(input, nullptr, nullptr));
  const int error = errno;
  char buffer[ZEL_MAX_NAME + 2] = "?";
  Allocator allocator;
  EXPECT_EQ(resultOf(conversion(input, nullptr, buffer)), result);
  EXPECT_EQ(buffer, result.value_or("?"));
  EXPECT_EQ(resultOf(conversion(input, Allocator::allocate, &allocator)), result);
  EXPECT_EQ(allocator.requests, result ? 1 : 0);
  EXPECT_EQ(allocator.size, result ? result->size() + 1 : 0);
  static const bool mallocFails = failingMalloc::isInPlace();
  for (const bool isOwn : {true, false}) {
    if (!result || !mallocFails)
      break;
    errno = 0;
    failingMalloc::left = 0;
    EXPECT_EQ(isOwn ? conversion(input, nullptr, nullptr) : conversion(input, Allocator::allocate, &allocator),
              nullptr);
    failingMalloc::left = -1;
    EXPECT_EQ(errno, ENOMEM);
  }
  errno = error;
  return result;
}

#endif
