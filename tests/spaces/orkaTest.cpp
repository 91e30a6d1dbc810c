// ORKA, 44ORKA, EscORKA and flat ORKA.
#include "support/rules.h"

TEST(ORKA, holdsIndexGroupsAndEscapesTheRest) {
  check({.spaces = "ORKA 44ORKA",
         .write = R"(SA/b→A#2fb IA/b→a#2fb Ia␣b→a#20b Sa(3)→a(3) IA(12)B(0)→a(12)b(0) S(3)a→#283#29a Sa()→a#28#29
             Sa(3→a#283 Sa(3(4)→a#283(4) Sa((3))→a#28(3)#29 Sa,b→a#2cb Sa<b>→a#3cb#3e Sa\→a#5c Sé→#e9 Sa[1]→a[1]
             Ia#2F→a#232f Sa#28(3)→a#2328(3))",
         .read = R"(a(3)→Ia(3) A#2fb→SA/b a#2fb→Ia/b a#2Fb→Ia/b a#4A→Sa#4A a#28→Ia( a#01→Ia␁ (3)a→✗ a/b→✗)",
         .legal = R"(a(3) a(12)b a(3)(4) a#2fb a[1] a|b)",
         .illegal = R"((3)a a() a(x) a(3 a(3)) a(3␣) a(-1) a,b a/b a␣b a\ é)"});
  check({.spaces = "ORKA", .states = {ZEL_MAP_MATCH}, .write = "IA/b→A#2fb", .read = "A→SA"});
  EXPECT_EQ(convert(zelIdentToORKA, "SA/b"), "A#2fb");
  EXPECT_EQ(convert(zelORKAToIdent, "a#2fb"), "Ia/b");
  EXPECT_EQ(zelIsLegalORKA("a(3)"), 1);
}

TEST(EscORKA, extendsWhatORKADoesNotHold) {
  check({.spaces = "EscORKA",
         // An escaped mark is escaped again in front of anything.
         .write = R"(Ia␣b→\a␣b\ IA␣b→\a␣b\ SA␣b→\A␣b\ Sabc→abc IAbc→abc SAbc→Abc SESC_abc→\abc\ SESC_→\\
             IESC_abc→esc_abc IESC_a␣b→\a␣b\ FESC_(3)→\(3)\ IESC_(3)→esc_(3) S(3)→\(3)\ Sa(3)→a(3) Sa\b→\a\\b\
             Sa␉→\a#09\ Sa#2f→a#2f S␣#41→\␣#41\ S␣#20→\␣#20\ S␣#09→\␣#2309\ S␣#23→\␣#2323\ S␣#2341→\␣#232341\
             S␣#00→\␣#00\)",
         // A plain name has case, whatever its letters.
         .read = R"(abc→Sabc Abc→SAbc \abc\→SESC_abc \a(3)\→SESC_a(3) \a#2f\→SESC_a#2f \Abc\→SAbc \a␣b\→Ia␣b
             \A␣b\→SA␣b \(3)\→I(3) \a\\b\→Ia\b \→I \\→I \␣#2341\→I␣#2341 \␣#2309\→I␣#09 \␣#2323\→I␣#23 \a→✗ a/b→✗)",
         .legal = R"(a(3) \a␣b\ \\ \a\\b\)",
         .illegal = R"(a␣b (3) \ \a \a\b\ \a␉\)"});
  check({.spaces = "EscORKA", .states = {ZEL_MAP_MATCH}, .write = R"(IA␣b→\A␣b\ IAbc→Abc)"});
}

TEST(FlatORKA, respellsThePathSyntax) {
  for (const Row &row : rowsOf("a/b<3>→a|b(3) x#(|)→x#23#28#7c#29 →"))
    EXPECT_EQ(take(zelORKAToORKAFlat(row.input.c_str())), row.result);
  for (const Row &row : rowsOf(R"(a|b(3)→a/b<3> x#23#28#7c#29→x#(|) #7C#2#41#→#7C#2#41# x(M=2)→x x(M=2)y(M=3)→xy
           x(M=0)→x<M=0> x(M=0)(M=1)z→x<M=0>z x(M=-1)→x x(M=␣3z)y→xy x(M=a)→x<M=a> x(M=2→x<M=2 (M=→<M= (M=)→<M=>
           (M=1#29)→ (m=1)→<m=1> (M=99999999999999999999)→ x(M=2|y→x<M=2/y →)"))
    EXPECT_EQ(take(zelORKAFlatToORKA(row.input.c_str())), row.result) << row.input;
  EXPECT_EQ(zelORKAToORKAFlat(nullptr), nullptr);
  EXPECT_EQ(zelORKAFlatToORKA(nullptr), nullptr);
}
