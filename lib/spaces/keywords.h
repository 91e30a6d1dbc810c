// Reserved words: one array an initial letter, as the language lists them, or one list; and an index that finds a word
// by its first eight bytes.
#ifndef ZEL_SPACES_KEYWORDS_H
#define ZEL_SPACES_KEYWORDS_H

#include "spaces/keywordTest.h"

namespace zeli {

struct KeywordArray {
  char letter = '\0';
  const char *const *words = nullptr;
  std::int32_t count = 0;

  constexpr KeywordArray() = default;

  template <std::size_t N>
  constexpr KeywordArray(char initial, const char *const (&array)[N])
      : letter(initial), words(array), count(static_cast<std::int32_t>(N)) {}
};

struct Keywords {
  KeywordArray arrays[26];

  constexpr Keywords(std::initializer_list<KeywordArray> list) {
    for (const KeywordArray &array : list)
      arrays[array.letter - 'a'] = array;
  }

  constexpr std::int32_t words() const {
    std::int32_t sum = 0;
    for (const KeywordArray &array : arrays)
      sum += array.count;
    return sum;
  }

  // Whether every word begins with its letter and stands behind the word before it; faults go to standard error.
  bool verify() const;
};

// An index of count words at the most, made when the program is compiled: the first eight bytes of a word are hashed to
// slots of which most are empty.
template <std::size_t count> class KeywordTable {
public:
  constexpr explicit KeywordTable(const Keywords &keywords) {
    std::uint16_t used = 0;
    for (const KeywordArray &array : keywords.arrays)
      for (std::int32_t i = 0; i < array.count; ++i) {
        const Bytes word = array.words[i];
        // In an array that is not in order the search misses some words, which are then no keywords.
        if (word[0] == array.letter && tableHas(array.words, array.count, word))
          enter(word, ++used);
      }
  }

  // A list without regard to letters and order.
  constexpr explicit KeywordTable(const char *const (&words)[count]) {
    std::uint16_t used = 0;
    for (const char *const word : words)
      enter(word, ++used);
  }

  // As stored.
  bool has(const Name &word) const { return find<false>(word, word.head()); }

  // In any case.
  bool hasFolded(const Name &word) const { return find<true>(word, lowered(word.head())); }

  // The test for words of this table, all or some.
  constexpr KeywordTest test(bool (*asked)(const Name &word)) const {
    return {asked, longest, nullptr, slots, 64 - slotBits};
  }

  std::size_t longest = 0; // bytes

private:
  static constexpr std::size_t headBytes = 8;
  static constexpr int slotBits = [] {
    int bits = 6;
    while ((std::size_t{1} << bits) < 8 * count)
      ++bits;
    return bits;
  }();
  static constexpr std::size_t slotCount = std::size_t{1} << slotBits;

  struct Entry {
    std::uint64_t head = 0;
    const char *tail = ""; // behind the head
  };

  std::uint16_t slots[slotCount] = {}; // 0 when empty, otherwise an entry, counted from 1
  Entry entries[count + 1];

  constexpr void enter(Bytes word, std::uint16_t entry) {
    std::uint64_t head = 0;
    for (std::size_t at = 0; at < headBytes && at < word.size(); ++at)
      head |= std::uint64_t{static_cast<unsigned char>(word[at])} << (8 * at);
    longest = word.size() > longest ? word.size() : longest;
    entries[entry] = {head, word.size() > headBytes ? word.data() + headBytes : ""};
    std::size_t slot = slotOf(head, 64 - slotBits);
    while (slots[slot] != 0)
      slot = (slot + 1) % slotCount;
    slots[slot] = entry;
  }

  template <bool folds> bool find(Bytes word, std::uint64_t head) const {
    for (std::size_t slot = slotOf(head, 64 - slotBits); slots[slot] != 0; slot = (slot + 1) % slotCount)
      if (const Entry &entry = entries[slots[slot]]; entry.head == head && hasTail<folds>(word, entry.tail))
        return true;
    return false;
  }

  template <bool folds> static bool hasTail(Bytes word, const char *tail) {
    for (std::size_t i = headBytes; i < word.size(); ++i, ++tail)
      if ((folds ? toLower(word[i]) : word[i]) != *tail)
        return false;
    return *tail == '\0';
  }
};

// The tests by a table: of words as stored, and in any case.
template <const auto &table>
constexpr KeywordTest keywordsOf = table.test([](const Name &word) { return table.has(word); });
template <const auto &table>
constexpr KeywordTest foldedKeywordsOf = table.test([](const Name &word) { return table.hasFolded(word); });

} // namespace zeli

#endif
