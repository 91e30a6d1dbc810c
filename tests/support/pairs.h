// Every pair of spaces, and of the languages of paths, over names of every habit.
#ifndef SUPPORT_PAIRS_H
#define SUPPORT_PAIRS_H

#include "spaces.h"

inline const std::vector<std::string> pathLanguages = wordsOf(
    "Verilog ORKA VHDL VerilogAMS VHDLAMS Tessel Kirra KirraHDL Lef Def Sdf Spf Spef Gcf Spice VHDL87 FlatTessel");

// Plain, with capitals, reserved words of every language, prefixes, underscores, marks and digits, escaped as several
// spaces do it, of bytes that none can hold, at the limit of length and behind it, and empty; as Idents and without a
// marker.
inline std::vector<std::string> namesOfEveryHabit() {
  std::vector<std::string> names = wordsOf(R"(
      a clk_2 Sa Iclk_2 Data IData FData SESC_a ESC_a module Smodule signal Isignal model Imodel KEYWORD_model con %%con
      analog laplace_np pure xnor PURE quantity log10 const LPT1 zout group tabledimension Model KEYWORD_ esc_a Aux
      a$b S$a 1abc S1abc 2n3904 a__b Sa__b a_ Sa_ _a _ abcdefghijklmno__q A_long_Word_of_33_bytes_ends_In_Z \a+b␣ \A+b␣ \a␣b\ \A\ a\.b a\[3\] 'a:b' a.b a/b a|b a[3] a(3) a<3> (3)
      a#23 Sa#2320 #2320 Sa%41 a%41 %41 Sa#41 a#41 é Sé aé Sa␣b Sa\b a\ \ "" S)");
  for (const std::size_t length : {std::size_t{ZEL_MAX_NAME}, std::size_t{ZEL_MAX_NAME} + 1})
    for (const char *marker : {"", "S", "I"})
      for (const char c : {'a', 'A', '\xe9'})
        names.push_back(marker + std::string(length, c));
  return names;
}

// Calls visit in the mapping states and VHDL modes between which shortcuts may differ.
template <typename Visit> void inEverySetting(Visit visit) {
  for (const auto &[state, mode] : {std::pair(ZEL_MAP_DEFAULT, 2), {ZEL_MAP_DEFAULT, 0}, {ZEL_MAP_VHDL, 2}}) {
    const MapState mapState(state);
    const VHDLMode vhdlMode(mode);
    SCOPED_TRACE("state " + std::to_string(state) + ", VHDL mode " + std::to_string(mode));
    if (!testing::Test::HasFailure()) // others would say the same
      visit();
  }
}

#endif
