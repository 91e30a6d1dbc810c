// The self-check of keywords.
#include "spaces/keywords.h"

#include <cstdio>

bool zeli::Keywords::verify() const {
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
