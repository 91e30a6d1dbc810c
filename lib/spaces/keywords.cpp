// Keyword lookup and self-check.
#include "spaces/keywords.h"

#include "core/zelpvt.h"

#include <cstdio>

namespace zeli {

bool Keywords::has(Bytes word) const {
  if (word.empty() || !lower.has(word[0]))
    return false;
  const KeywordArray &array = arrays[word[0] - 'a'];
  return tableHas(array.words, array.count, word);
}

bool Keywords::hasFolded(Bytes word) const { return has(FoldedWord(word).view); }

bool Keywords::verify() const {
  bool isSound = true;
  for (const KeywordArray &array : arrays) {
    const char *previous = "";
    for (std::int32_t i = 0; i < array.count; ++i) {
      const char *word = array.words[i];
      if (word[0] != array.letter) {
        std::fprintf(stderr, "Error: Expected keyword '%s' to start with character '%c'\n", word, array.letter);
        isSound = false;
      }
      if (std::strcmp(word, previous) <= 0) {
        std::fprintf(stderr, "Error: keyword '%s' should precede keyword '%s'\n", word, previous);
        isSound = false;
      }
      previous = word;
    }
  }
  return isSound;
}

} // namespace zeli
