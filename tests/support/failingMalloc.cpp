// They stand on what would serve without them: the sanitizer's, where there is one, or the C library's. ThreadSanitizer
// allocates before it can bear instrumented functions; there malloc is left alone.
#include "failingMalloc.h"

#include <cstdlib>

// NOLINTBEGIN(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)
namespace failingMalloc {
thread_local int left = -1;
thread_local int failures = 0;

bool isInPlace() {
  left = 0;
  void *volatile block = std::malloc(1);
  left = -1;
  std::free(block);
  return block == nullptr;
}

inline bool fails() {
  const bool isTheOne = left >= 0 && left-- == 0;
  failures += isTheOne ? 1 : 0;
  return isTheOne;
}
} // namespace failingMalloc

#ifndef __has_feature
#define __has_feature(feature) 0
#endif
#if !defined(__SANITIZE_THREAD__) && !__has_feature(thread_sanitizer)
using failingMalloc::fails;

extern "C" {
void *__interceptor_malloc(std::size_t size) __attribute__((weak));
void *__interceptor_calloc(std::size_t count, std::size_t size) __attribute__((weak));
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);

void *malloc(std::size_t size) noexcept {
  return fails() ? nullptr : __interceptor_malloc != nullptr ? __interceptor_malloc(size) : __libc_malloc(size);
}
void *calloc(std::size_t count, std::size_t size) noexcept {
  return fails()                           ? nullptr
         : __interceptor_calloc != nullptr ? __interceptor_calloc(count, size)
                                           : __libc_calloc(count, size);
}
}
#endif
// NOLINTEND(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)
