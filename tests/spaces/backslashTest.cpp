// Syntax behind a backslash: Spice, SDF, SPEF, GCF, SPF, LEF, DEF, Tessel, FlatTessel with their own characters.
#include "support/rules.h"

TEST(Spice, holdsPunctuation) {
  // The first and the last character are not tested.
  check({.spaces = "Spice",
         .write = R"(Sa.b→a\.b IA.B→a\.b S.a→\.a Sa/b<3>→a/b<3> Smodel→model Sa\→a\\ Sa␣b→a#20b Sé→#e9)",
         .read = R"(a#20b→Ia␣b A\,B→SA,B a#41→Ia#41 \#e9→Ié a\→Ia\ ab\→Iab\ \→I\ a\\→Ia\ .a.→I.a. é.→Ié. a.b→✗
             \.ab→✗)",
         .legal = R"(.a. .ab. a. ab. .. ␣ \ a\.b a\. model (ab))",
         .illegal = R"(a.b a␣b a\␣b a\␣ \.ab aéz a()b)"});
  check({.spaces = "Spice", .states = {ZEL_MAP_MATCH}, .write = R"(IA.B→A\.B)"});
}

TEST(WordFamily, quotesAllPunctuation) {
  // A capital that an escape stands for is no capital of the name.
  check({.spaces = "Sdf Spef Gcf",
         .write = R"(Sa/b→a\/b Sa[3]→a\[3\] Sa.b→a\.b Sa<1>→a\<1\> IA.B→a\.b Sa_1→a_1 Sa\b→a\\b Sa␣b→a\#20b Sé→\#e9
             S␁→\#01 Sa#2E→a\#2E)",
         .read = R"(a\#20b→Ia␣b a\.b→Ia.b A\.b→SA.b a\#41→IaA a\#4a→IaJ a\→✗ a\b→✗ a.b→✗ a#b→✗ a␣b→✗)",
         .legal = R"(a\.b a_1 1a \#01 a\\)",
         .illegal = R"(a\ a\b a/b a# a␣b aé a\é a\␣)"});
  check({.spaces = "Sdf Spef Gcf", .states = {ZEL_MAP_MATCH}, .write = R"(IA.B→A\.B)"});
}

TEST(Spf, holdsAnySevenBitCharacter) {
  check({.spaces = "Spf",
         .write = R"(Sa.b→a.b Sa:b→a\:b Sa/b→a\/b Sa[1]→a\[1\] Sa\b→a\\b IA␣B→a␣b Sa␁→a␁ Sé→\#e9)",
         .read = R"(a.b→Ia.b a\:b→Ia:b a:b→Ia:b a\b→Ia\b a\→Ia\ a#41→IaA \#e9→I\é é→✗)",
         .legal = R"(a␣b a\ a:b [ ␁)",
         .illegal = R"(é \é)"});
}

TEST(LayoutFamily, marksEscapesWithPercent) {
  check({.spaces = "Def Lef",
         .write = R"(Sa/b→a\/b Sa[0]→a\[0\] Sa#b→a\#b Sa#41→a\#41 Sa\b→a\\b IEnd→end Sa.b→a.b Sa␣b→a%20b Sa;b→a%3bb
             Sa␉→a%09 Sé→%e9 Sa␁→a␁ Ia%4A→a%254a Sa%2F→a%2F Sa%23→a%23)",
         .read = R"(a%20b→Ia␣b a.b→Ia.b a\/b→Ia/b a\b→Ia\b a\→Ia\ PINS→SPINS a%41→IaA a\#41→Ia#41 a#b→✗ a;b→✗ a␣b→✗)",
         .legal = R"(PINS end a$b-c a\ a\# \/ ␁ %)",
         .illegal = R"(a# a; a␣b a␊ é a\; a\é)"});
  check({.spaces = "Def", .read = "a/b→Ia/b A[1]→SA[1]", .legal = "a/b [ ]"});
  check({.spaces = "Lef", .read = "a/b→✗ A[1]→✗", .illegal = "a/b [ ]"});
  check({.spaces = "Def Lef", .states = {ZEL_MAP_MATCH}, .write = "IEnd→End"});
}

TEST(Tessel, quotesItsPathSyntax) {
  check({.spaces = "Tessel",
         .write = R"(Sa|b→a\|b IA|B→a\|b Sa[1]→a\[1\] Sa\b→a\\b Sa.b→a.b Sa␣b→a#20b Sé→#e9 Sa#7C→a#7C)",
         .read = R"(a#20b→Ia␣b a\|b→Ia|b a\b→Ia\b a\→Ia\ a#41→IaA a|b→✗ a␣b→✗)",
         .legal = R"(a\ a\b \[ a/b)",
         .illegal = "a|b [ ] a␣b é"});
  check({.spaces = "FlatTessel",
         .write = R"(Sa|b→a|b Sa[1]→a\[1\] Sa\b→a\\b Sa␣b→a#20b Sa#5b→a#5b)",
         .read = R"(a|b→Ia|b a\[→Ia[ a#20→Ia␣ a#41→Ia#41 a\b→✗ a\→✗ a[→✗)",
         .legal = R"(a|b a\\ \])",
         .illegal = R"(a\ a\b a\| [ a␣b)"});
  check({.spaces = "Tessel FlatTessel", .states = {ZEL_MAP_MATCH}, .write = R"(IA[→A\[)"});
}
