// Reserved words: one array an initial letter, searched in stored order.
#ifndef ZEL_SPACES_KEYWORDS_H
#define ZEL_SPACES_KEYWORDS_H

#include "core/text.h"

#include <cstdint>
#include <initializer_list>

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

  // As stored: a word that does not begin with a lower-case letter is none.
  bool has(Bytes word) const;
  // In any case.
  bool hasFolded(Bytes word) const;

  // Whether every word begins with its letter and stands behind the word before it; faults go to standard error.
  bool verify() const;
};

// A word in lower case for a keyword test. No keyword is longer than this holds; a longer word gives an empty view.
struct FoldedWord {
  char bytes[64];
  Bytes view;

  explicit FoldedWord(Bytes word) {
    if (word.size() > sizeof bytes)
      return;
    for (std::size_t i = 0; i < word.size(); ++i)
      bytes[i] = toLower(word[i]);
    view = {bytes, word.size()};
  }
};

} // namespace zeli

#endif
