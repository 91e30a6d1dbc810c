// The ring: results that recycle themselves.
#include "support/results.h"

#include <cstring>

TEST(Ring, reusesItsBuffersAndMarksWhatIsTenAllocationsOld) {
  zelRing ring = nullptr;
  char *results[40] = {};
  // Of lengths that grow and shrink, up to the 20 bytes that the smallest buffer holds.
  const auto text = [](int i) { return std::to_string(i) + std::string(static_cast<unsigned>(i * 7 % 18), 'x'); };
  for (int i = 0; i < 40; ++i) {
    results[i] = zelNewString(text(i).c_str(), zelAllocRing, &ring);
    for (int j = i < 14 ? 0 : i - 14; j <= i; ++j)
      EXPECT_EQ(resultOf(results[j]), j <= i - 10 ? "@DEAD!" : text(j)) << i;
    EXPECT_EQ(results[i], results[i < 15 ? i : i - 15]);
  }
  zelFreeRing(&ring);
  EXPECT_EQ(ring, nullptr);
  zelFreeRing(&ring);
  zelFreeRing(nullptr);
}

TEST(Ring, staysUsableWithoutMemory) {
  zelRing ring = nullptr;
  // No ring, no first buffer; then in every second round no larger one.
  for (unsigned call = 0; call < 100; ++call) {
    const bool fails = call < 2 || call / 15 % 2 != 0;
    errno = 0;
    failingMalloc::left = !fails ? -1 : call == 1 ? 1 : 0;
    void *const buffer = zelAllocRing(20 + call, &ring);
    EXPECT_EQ(buffer == nullptr, fails) << call;
    EXPECT_EQ(failingMalloc::left, -1);
    if (buffer != nullptr)
      std::memset(buffer, 'x', 20 + call); // a write past it would be noticed
    EXPECT_EQ(errno, fails ? ENOMEM : 0) << call;
    EXPECT_EQ(ring == nullptr, call == 0);
  }
  zelFreeRing(&ring);
  EXPECT_EQ(zelAllocRing(1, nullptr), nullptr);
  EXPECT_EQ(errno, EINVAL);
}
