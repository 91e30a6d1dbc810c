// Names that are awkward for one space or another: fragments that some rule looks for, mixed with any bytes. The same
// ones in every run.
#ifndef SUPPORT_AWKWARDNAMES_H
#define SUPPORT_AWKWARDNAMES_H

#include "rules.h"

#include <random>

// Each fragment alone, then count mixtures of up to five.
inline std::vector<std::string> awkwardNames(int count) {
  const std::vector<std::string> fragments = split(R"~(a B _ 9 z0 __ ESC_ ESC_ESC_a ESC_Abc module Model signal con Com1
      1a2 12 1a2\. KEYWORD_ KEYWORD_KEYWORD_KEYWORD_model # #2 #23 #2323 #20 #2f #2A #41 #E9 #00 #01 % %25 %41 %20 %2F \ \\ '
      " ␣ (3) ( ) / [1] : < . | ! $ ; ␉ ␁ é)~");
  std::vector<std::string> names = fragments;
  std::mt19937 random(20260101); // its sequence is the same everywhere
  for (int i = 0; i < count; ++i) {
    std::string name;
    for (auto parts = random() % 5; parts < 5; ++parts)
      name += random() % 6 == 0 ? std::string(1, static_cast<char>(1 + random() % 255))
                                : fragments[random() % fragments.size()];
    names.push_back(name);
  }
  return names;
}

#endif
