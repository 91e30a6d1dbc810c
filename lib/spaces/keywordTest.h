// How reserved words are asked for: most words are told apart from them by their length or their first eight bytes.
#ifndef ZEL_SPACES_KEYWORDTEST_H
#define ZEL_SPACES_KEYWORDTEST_H

#include "core/zelpvt.h"

namespace zeli {

// The first eight bytes of a word, the first in the lowest place, with its capitals lowered.
constexpr std::uint64_t lowered(std::uint64_t head) {
  constexpr std::uint64_t each = 0x0101010101010101;
  const std::uint64_t low = head & 0x7F * each;
  const std::uint64_t isFromA = low + (0x80 - 'A') * each;
  const std::uint64_t isPastZ = low + (0x7F - 'Z') * each;
  return head | ((isFromA & ~isPastZ & ~head & 0x80 * each) >> 2);
}

// The slot that a table of keywords keeps for the first eight bytes of a word, the same in any case; shift leaves the
// bits of its number.
constexpr std::size_t slotOf(std::uint64_t head, int shift) {
  return static_cast<std::size_t>((head | 0x2020202020202020) * 0x9E3779B97F4A7C15U >> shift);
}

// The reserved words of a space.
struct KeywordTest {
  bool (*has)(const Name &word) = nullptr; // null where there are none
  std::size_t longest = 0;                 // bytes
  // Zero until the first test determines which words are reserved; null where that is constant.
  const std::atomic<std::int32_t> *determined = nullptr;
  // The slots of a table with all of them, in which most other words find nothing; or null.
  const std::uint16_t *slots = nullptr;
  int slotShift = 0;

  bool isSettled() const { return determined == nullptr || determined->load(std::memory_order_relaxed) != 0; }

  // False where no word of that head is one.
  bool mayHave(std::uint64_t head) const { return slots == nullptr || slots[slotOf(head, slotShift)] != 0; }

  bool operator()(const Name &word) const {
    return ((word.size() <= longest && mayHave(word.head())) || !isSettled()) && has != nullptr && has(word);
  }
};

} // namespace zeli

#endif
