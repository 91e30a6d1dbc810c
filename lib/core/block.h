// Sixteen bytes of a name at a time, by the compiler's vector types. All that is known of a processor stands here.
#ifndef ZEL_CORE_BLOCK_H
#define ZEL_CORE_BLOCK_H

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeli {

constexpr std::size_t blockBytes = 16;

using Block = unsigned char __attribute__((vector_size(blockBytes)));

// All bits of a byte where a test holds, none where it fails.
using BlockTest = signed char __attribute__((vector_size(blockBytes)));

// As bitsOf gives it for a test that holds everywhere.
constexpr std::uint32_t allBits = (1U << blockBytes) - 1;

inline Block loadBlock(const char *bytes) {
  Block block;
  std::memcpy(&block, bytes, sizeof block);
  return block;
}

inline void storeBlock(char *bytes, Block block) { std::memcpy(bytes, &block, sizeof block); }

inline std::uint64_t loadWord(const char *bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

inline std::uint32_t loadHalf(const char *bytes) {
  std::uint32_t half = 0;
  std::memcpy(&half, bytes, sizeof half);
  return half;
}

// The first eight of size bytes, the first in the lowest place; zero where there are none.
inline std::uint64_t headWord(const char *bytes, std::size_t size) {
  if (size >= 8)
    return loadWord(bytes);
  if (size >= 4)
    return loadHalf(bytes) | std::uint64_t{loadHalf(bytes + size - 4)} << (8 * (size - 4));
  if (size == 0)
    return 0;
  const auto at = [bytes](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(bytes[i])} << (8 * i); };
  return at(0) | at(size / 2) | at(size - 1);
}

// Fewer than sixteen bytes, zeros behind them. Nothing outside them is read.
inline Block loadPart(const char *bytes, std::size_t size) {
  // Put together in registers: a vector read from two stored words would wait for them.
  using Words = std::uint64_t __attribute__((vector_size(blockBytes)));
  const std::uint64_t tail = size < 8 ? 0 : loadWord(bytes + size - 8) >> 8 >> (8 * (15 - size));
  return reinterpret_cast<Block>(Words{headWord(bytes, size), tail});
}

// As memmove; names are so short that a call costs more than the copy.
inline void moveBytes(char *to, const char *from, std::size_t size) {
  if (size > 4 * blockBytes) {
    std::memmove(to, from, size);
  } else if (size >= blockBytes) {
    // All is loaded before anything is stored. The parts overlap where there is less.
    const Block first = loadBlock(from);
    const Block last = loadBlock(from + size - blockBytes);
    if (size > 2 * blockBytes) {
      const Block second = loadBlock(from + blockBytes);
      storeBlock(to + size - 2 * blockBytes, loadBlock(from + size - 2 * blockBytes));
      storeBlock(to + blockBytes, second);
    }
    storeBlock(to, first);
    storeBlock(to + size - blockBytes, last);
  } else if (size >= sizeof(std::uint64_t)) {
    const std::uint64_t first = loadWord(from);
    const std::uint64_t last = loadWord(from + size - sizeof last);
    std::memcpy(to, &first, sizeof first);
    std::memcpy(to + size - sizeof last, &last, sizeof last);
  } else if (size >= sizeof(std::uint32_t)) {
    const std::uint32_t first = loadHalf(from);
    const std::uint32_t last = loadHalf(from + size - sizeof last);
    std::memcpy(to, &first, sizeof first);
    std::memcpy(to + size - sizeof last, &last, sizeof last);
  } else if (size != 0) {
    const char first = from[0];
    const char middle = from[size / 2];
    const char last = from[size - 1];
    to[0] = first;
    to[size / 2] = middle;
    to[size - 1] = last;
  }
}

// As moveBytes, the bytes changed on the way, by blocks of which only a part may count.
template <typename Change> void moveChanged(char *to, const char *from, std::size_t size, Change change) {
  if (size >= blockBytes && size <= 4 * blockBytes) {
    const Block first = change(loadBlock(from));
    const Block last = change(loadBlock(from + size - blockBytes));
    if (size > 2 * blockBytes) {
      const Block second = change(loadBlock(from + blockBytes));
      const Block third = change(loadBlock(from + size - 2 * blockBytes));
      storeBlock(to + blockBytes, second);
      storeBlock(to + size - 2 * blockBytes, third);
    }
    storeBlock(to, first);
    storeBlock(to + size - blockBytes, last);
    return;
  }
  std::size_t i = 0;
  if (size > blockBytes) {
    std::memmove(to, from, size);
    from = to;
    for (; i + blockBytes <= size; i += blockBytes)
      storeBlock(to + i, change(loadBlock(to + i)));
  }
  char rest[blockBytes];
  storeBlock(rest, change(loadPart(from + i, size - i)));
  std::memcpy(to + i, rest, size - i);
}

// The eight bytes of a text of at least so many from a place in it on; fewer at its end, behind them zeros.
inline std::uint64_t wordAt(const char *bytes, std::size_t size, std::size_t at) {
  const std::size_t last = size - sizeof(std::uint64_t);
  const std::size_t start = at < last ? at : last;
  return loadWord(bytes + start) >> (8 * (at - start) & 63);
}

// Copies the part of a text from start up to end, where the sixteen bytes behind to are free.
inline void copyRun(char *to, const char *bytes, std::size_t size, std::size_t start, std::size_t end) {
  if (size < sizeof(std::uint64_t) || end - start > blockBytes) {
    std::memcpy(to, bytes + start, end - start);
    return;
  }
  const std::uint64_t words[2] = {wordAt(bytes, size, start), wordAt(bytes, size, start + sizeof(std::uint64_t))};
  std::memcpy(to, words, sizeof words);
}

inline BlockTest isChar(Block block, char c) {
  return reinterpret_cast<BlockTest>(block == static_cast<unsigned char>(c));
}

inline BlockTest isWithin(Block block, char first, char last) {
  // Moved so that first is the least signed number: processors compare those at once.
  using Signed = signed char __attribute__((vector_size(blockBytes)));
  const auto moved = static_cast<unsigned char>(first + 128);
  return reinterpret_cast<BlockTest>(reinterpret_cast<Signed>(block - moved) <=
                                     static_cast<signed char>(last - first - 128));
}

// For tests of which no two hold for one byte: compilers make more of | than one instruction.
inline BlockTest anyOf(BlockTest a, BlockTest b, BlockTest c) { return a + b + c; }

// The first eight bytes, as headWord gives them.
inline std::uint64_t headOf(Block block) {
  using Words = std::uint64_t __attribute__((vector_size(blockBytes)));
  return reinterpret_cast<Words>(block)[0];
}

inline BlockTest isWordChar(Block block) {
  return anyOf(isWithin(block | ('a' - 'A'), 'a', 'z'), isWithin(block, '0', '9'), isChar(block, '_'));
}

// One bit a byte, the first byte's the lowest; the way for any processor.
inline std::uint32_t portableBits(BlockTest test) {
  std::uint64_t words[2];
  std::memcpy(words, &test, sizeof words);
  std::uint32_t bits = 0;
  for (int i = 0; i < 2; ++i) // the product gathers the top bits of the eight bytes in the top byte
    bits |= static_cast<std::uint32_t>(((words[i] >> 7 & 0x0101010101010101U) * 0x0102040810204080U) >> 56) << (8 * i);
  return bits;
}

inline std::uint32_t bitsOf(BlockTest test) {
#if defined(__SSE2__)
  using Chars = char __attribute__((vector_size(blockBytes)));
  return static_cast<std::uint32_t>(__builtin_ia32_pmovmskb128(reinterpret_cast<Chars>(test)));
#else
  return portableBits(test);
#endif
}

} // namespace zeli

#endif
