// Words over a class of characters: NVerilog, Print, EDIF, Ascii, and the library names.
#include "support/rules.h"

TEST(ClassEscape, holdsTheClass) {
  check({.spaces = "NVerilog Print Edif200 Edif300",
         .write = R"(Sa␣b→a#20b IABC→abc SABC→ABC FABC→ABC Sa\→a\ Sé→#e9 Sa#7F→a#237F)",
         .read = "a#20b→Ia␣b a#4A→Sa#4A A#e9→SAé a#E9→Iaé a␣b→✗ é→✗",
         .legal = R"(!~ a\ module #)",
         .illegal = "␣ a␉ é"});
  check({.spaces = "NVerilog Print Edif200 Edif300 Ascii", .states = {ZEL_MAP_MATCH}, .write = "IABC→ABC"});
  check({.spaces = "Ascii",
         .write = "Sa␣b→a␣b IA␉→a␉ Sé→#e9 Sa#7f→a#7f Sa#23e9→a#2323e9",
         .read = "a#e9→Iaé a#20→Ia#20 a␉B→Sa␉B é→✗",
         .legal = "␣ ␁",
         .illegal = "é aé"});
}

TEST(LibraryNT, marksCapitalsThatMatter) {
  check({.spaces = "LibraryNT",
         .write = R"(Icon→%%con ICon→%%Con Scon→%%con SCon→%Con SCOM1→%C%O%M1 ILPT9→%%LPT9 Icom10→com10
             Iconsole→console SMyLib→%My%Lib FMyLib→%My%Lib IMyLib→MyLib SESC_a→%E%S%C_a Smy␣lib→my#20lib Sa%b→a#25b
             Sa@b→a@b Sa-b→a#2db Ia#2A→a#232A Sa#2A→a#232%A)",
         .legal = "com10 console com con1 %%con %%COM1 %a a%B @ #",
         .illegal = "Con COM1 lpt9 prn nul AUX %%foo %% %%con1 %%%a % a% a%1 a%%b a.b é"});
  check({.spaces = "LibraryNT",
         .states = allStates,
         .read = R"(%My%Lib→SMyLib MyLib→IMyLib %mY→SMy %ABC→SAbc %%aux→Iaux %%AUX→IAUX a#20b→Ia␣b A#20%b→Sa␣B
             %a#4A→SA#4a %a#2A→SA* a#4A→Ia#4A a#2%a→Sa#2A con→✗ %%foo→✗ %→✗ a-b→✗)"});
  check({.spaces = "LibraryNT",
         .states = {ZEL_MAP_MATCH},
         .write = "SMyLib→MyLib FMyLib→%My%Lib IMyLib→MyLib SCon→Con FCon→%Con Icon→%%con Scon→%%con"});
  for (const std::string &word : split("aux con nul prn PRN Com0 com9 lpt0 LPT9"))
    EXPECT_EQ(zelIsNTKeyword(word.c_str()), 1) << word;
  for (const std::string &word : split("com com10 lptx lpt aux1 co xcon é"))
    EXPECT_EQ(zelIsNTKeyword(word.c_str()), 0) << word;
}

TEST(LibraryUnix, foldsInEveryState) {
  const char *const spaces = "LibraryUnix Library Filesys";
  check({.spaces = spaces,
         .states = allStates,
         .write = "IMixed→mixed SMixed→Mixed IESC_top→esc_top Scon→con Sa.b→a#2eb Sa#2E→a#232E Sa%b→a#25b",
         .read = "top→Itop a#2eb→Ia.b a#2Eb→Ia.b con→Icon a.b→✗ a%b→✗",
         .legal = "Con a_@#9",
         .illegal = "a.b %a a␣b é"});
  check({.spaces = spaces, .read = "Top→STop A#2eb→SA.b"});
  check({.spaces = spaces, .states = {ZEL_MAP_MATCH}, .read = "Top→FTop A#2eb→FA.b"});
  check({.spaces = spaces, .states = {ZEL_MAP_VHDL, ZEL_MAP_DEFAULT}, .write = "SESC_top→ESC_top FESC_top→ESC_top"});
  check({.spaces = spaces, .states = {ZEL_MAP_TANDEM, ZEL_MAP_MATCH}, .write = "SESC_top→top FESC_top→top SESC_→"});
}
