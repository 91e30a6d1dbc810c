// The ring: results that recycle themselves.
#include "core/zel.h"

#include <cstring>
#include <gtest/gtest.h>
#include <malloc.h>
#include <string>

namespace {
void *put(zelRing &ring, const std::string &text) {
  return std::memcpy(zelAllocRing(text.size() + 1, &ring), text.c_str(), text.size() + 1);
}

// The heap tells the size of a block exactly only under AddressSanitizer.
void expectCapacity(void *buffer, std::size_t capacity) {
#ifdef __SANITIZE_ADDRESS__
  EXPECT_EQ(malloc_usable_size(buffer), capacity);
#else
  EXPECT_GE(malloc_usable_size(buffer), capacity);
#endif
}
} // namespace

TEST(Ring, marksWhatIsTenAllocationsOld) {
  zelRing ring = nullptr;
  void *results[40] = {};
  for (int i = 0; i < 40; ++i) {
    results[i] = put(ring, "result " + std::to_string(i));
    for (int j = i < 14 ? 0 : i - 14; j <= i; ++j)
      EXPECT_EQ(static_cast<char *>(results[j]), j <= i - 10 ? "@DEAD!" : "result " + std::to_string(j)) << i;
    EXPECT_EQ(results[i], results[i < 15 ? i : i - 15]);
  }
  zelFreeRing(&ring);
  EXPECT_EQ(ring, nullptr);
}

TEST(Ring, growsItsBuffersOnly) {
  zelRing ring = nullptr;
  const auto roundTo = [&ring](std::uint64_t size) {
    void *const buffer = zelAllocRing(size, &ring);
    for (int i = 0; i < 14; ++i)
      EXPECT_NE(zelAllocRing(1, &ring), buffer);
    return buffer;
  };
  void *const first = roundTo(10);
  expectCapacity(first, 20);
  std::memset(first, 'x', 20);
  EXPECT_EQ(roundTo(20), first);
  EXPECT_EQ(static_cast<char *>(first)[19], 'x'); // not cleared
  void *const grown = roundTo(21);
  expectCapacity(grown, 21);
  EXPECT_EQ(roundTo(5), grown);
  EXPECT_EQ(roundTo(21), grown);
  expectCapacity(grown, 21);
  expectCapacity(roundTo(2048), 2048);
  zelFreeRing(&ring);
}

TEST(Ring, isSeparateFromOthersAndTakesEmptyOnes) {
  zelRing one = nullptr;
  zelRing other = nullptr;
  char *const kept = zelNewString("kept", zelAllocRing, &one);
  for (int i = 0; i < 20; ++i)
    EXPECT_STREQ(zelNewIdent(1, "ab", zelAllocRing, &other), "Iab");
  EXPECT_STREQ(kept, "kept");
  zelFreeRing(&one);
  zelFreeRing(&one);
  zelFreeRing(&other);
  zelFreeRing(nullptr);
  EXPECT_EQ(zelAllocRing(1, nullptr), nullptr);
}
