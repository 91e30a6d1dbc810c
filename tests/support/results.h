// Results under the allocator convention: malloc'ed ones with an owner, and an allocator that keeps count.
#ifndef SUPPORT_RESULTS_H
#define SUPPORT_RESULTS_H

#include "core/zel.h"
#include "failingMalloc.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
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

// Gives exactly the bytes that it is asked for, so that a write past them is noticed; or none at all.
struct Allocator {
  bool gives = true;
  int requests = 0;
  std::uint64_t size = 0;
  Owned memory = nullptr;

  static void *allocate(std::uint64_t size, void *context) {
    auto &self = *static_cast<Allocator *>(context);
    ++self.requests;
    self.size = size;
    self.memory.reset(self.gives ? static_cast<char *>(std::malloc(size)) : nullptr);
    return self.memory.get();
  }
};

// The result of a conversion, which must be the same from malloc, in the caller's buffer and from an allocator; that is
// asked once, for exactly the text and its NUL. Where either has no memory, null and ENOMEM. errno is the conversion's,
// 0 when it set none.
template <typename Conversion> Result convert(Conversion conversion, const char *input) {
  errno = 0;
  const Owned owned(conversion(input, nullptr, nullptr));
  const int error = errno;
  char buffer[ZEL_MAX_NAME + 2];
  buffer[0] = '?';
  Allocator allocator;
  char *const inBuffer = conversion(input, nullptr, buffer);
  const char *const allocated = conversion(input, Allocator::allocate, &allocator);
  if (owned) {
    EXPECT_EQ(inBuffer, buffer);
    EXPECT_STREQ(inBuffer, owned.get());
    EXPECT_STREQ(allocated, owned.get());
    EXPECT_EQ(allocator.size, std::strlen(owned.get()) + 1);
  } else {
    EXPECT_EQ(inBuffer, nullptr);
    EXPECT_EQ(buffer[0], '?');
    EXPECT_EQ(allocated, nullptr);
  }
  EXPECT_EQ(allocator.requests, owned ? 1 : 0);
  static const bool mallocFails = failingMalloc::isInPlace();
  for (const bool ofMalloc : {true, false}) {
    if (!owned || (ofMalloc && !mallocFails))
      continue;
    errno = 0;
    allocator.gives = false;
    failingMalloc::left = ofMalloc ? 0 : -1;
    EXPECT_EQ(ofMalloc ? conversion(input, nullptr, nullptr) : conversion(input, Allocator::allocate, &allocator),
              nullptr);
    failingMalloc::left = -1;
    EXPECT_EQ(errno, ENOMEM);
  }
  errno = error;
  return resultOf(owned.get());
}

#endif
