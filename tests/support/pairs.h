// Every pair of spaces, and of the languages of paths, over names of every habit.
#ifndef SUPPORT_PAIRS_H
#define SUPPORT_PAIRS_H

#include "spaces.h"

inline const std::vector<std::string> pathLanguages = wordsOf(
    "Verilog ORKA VHDL VerilogAMS VHDLAMS Tessel Kirra KirraHDL Lef Def Sdf Spf Spef Gcf Spice VHDL87 FlatTessel");

// Plain, with capitals, keywords, marks and digits, escaped as several spaces do it, of bytes that none can hold, at
// the limit of length and behind it, and empty; as Idents and without a marker.
inline std::vector<std::string> namesOfEveryHabit() {
  std::vector<std::string> names = wordsOf(R"(
      a clk_2 Sa Iclk_2 Data IData FData SESC_a ESC_a module Smodule signal Isignal model Imodel KEYWORD_model con %%con
      a$b S$a 1abc S1abc 2n3904 a__b Sa__b a_ Sa_ \a+b␣ \A+b␣ \a␣b\ \A\ a\.b a\[3\] 'a:b' a.b a/b a|b a[3] a(3) a<3> (3)
      a#23 Sa#2320 #2320 Sa%41 a%41 %41 Sa#41 a#41 é Sé aé Sa␣b Sa\b a\ \ "" S)");
  for (const std::size_t length : {std::size_t{ZEL_MAX_NAME}, std::size_t{ZEL_MAX_NAME} + 1})
    for (const char *marker : {"", "S", "I"})
      for (const char c : {'a', 'A', '\xe9'})
        names.push_back(marker + std::string(length, c));
  return names;
}

// Calls visit(from, to, name), up to the first that fails.
template <typename Visit> void forEachPair(const std::vector<std::string> &spaces, Visit visit) {
  const std::vector<std::string> names = namesOfEveryHabit();
  for (const std::string &from : spaces)
    for (const std::string &to : spaces)
      for (const std::string &name : names)
        if (!testing::Test::HasFailure())
          visit(from, to, name);
}
template <typename Visit> void forEachPairOfSpaces(Visit visit) { forEachPair(allSpaces(), visit); }
template <typename Visit> void forEachPairOfLanguages(Visit visit) { forEachPair(pathLanguages, visit); }

#endif
