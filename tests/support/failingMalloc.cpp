// The linker is told to wrap both functions (--wrap), whatever serves them: the C library or a sanitizer.
#include "results.h"

namespace failingMalloc {
thread_local int left = -1;
thread_local int failures = 0;
} // namespace failingMalloc

namespace {
bool fails() {
  using namespace failingMalloc;
  const bool isTheOne = left >= 0 && left-- == 0;
  failures += isTheOne ? 1 : 0;
  return isTheOne;
}
} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void *__real_malloc(std::size_t size);
void *__real_calloc(std::size_t count, std::size_t size);
void *__wrap_malloc(std::size_t size) { return fails() ? nullptr : __real_malloc(size); }
void *__wrap_calloc(std::size_t count, std::size_t size) { return fails() ? nullptr : __real_calloc(count, size); }
}
// NOLINTEND(bugprone-reserved-identifier)
