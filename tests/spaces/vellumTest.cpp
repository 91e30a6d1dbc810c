// Vellum: quoted where a character is syntax, between backslashes where case matters.
#include "support/rules.h"

TEST(Vellum, writesQuotesBackslashesAndSpacesAtTheEnds) {
  check(
      {.spaces = "Vellum",
       .write = R"(SAbc→\Abc\ FAbc→\Abc\ Sabc→abc IAbc→Abc SESC_abc→\abc\ SESC_Abc→\Abc\ SESC_→\\ IESC_abc→ESC_abc)"});
  check({.spaces = "Vellum",
         .states = {ZEL_MAP_MATCH},
         .write = R"(SAbc→Abc FAbc→\Abc\ Sabc→abc IAbc→Abc SA:b→'A:b' SESC_abc→\abc\ SESC_Abc→\Abc\ FESC_abc→\abc\)"});
  check({.spaces = "Vellum",
         .states = allStates,
         .write = R"(Sa:b→'a:b' Sit's→'it''s' S'→'''' Ia"b→'a"b' Sa\b→'a\b' Sa<b→'a<b' S␣a→#20a Sa␣→a#20 S␣→#20
             S␣␣→#20#20 Sa␣␣b→a␣␣b I␣:␣→'#20:#20' Sa␉→a#09 Sé→#e9 Sa#20→a#20 FA\b→\A\\b\ FA␣→\A␣\ FA'b→\A'b\
             FA␉→\A#09\ FA#09→\A#2309\)"});
}

TEST(Vellum, readsQuotedStretchesAndDecodesSpacesAtTheEnds) {
  check({.spaces = "Vellum",
         .states = allStates,
         .read = R"(\abc\→SESC_abc \Abc\→SAbc \a\\b\→SESC_a\b \\→SESC_ \a#09\→SESC_a#09 Abc→IAbc 'a:b'→Ia:b
             "a:b"→Ia:b 'it''s'→Iit's "it's"→Iit's "a""b"→Ia"b 'a"b'→Ia"b ''→I ''''→I' x'a:'y→Ixa:y a'␣'b→Ia␣b
             '\'→I\ #20a→I␣a ''#20a→I␣a '#20a'→I␣a a#20→Ia␣ 'a:#20'→Ia:␣ 'a:'#20→Ia:␣ a#20b→Ia#20b 'a:#20'b→Ia:#20b
             'a#20''b'→Ia#20'b a#20''→Ia#20 #20#20→I␣␣ #20#20a→I␣#20a a#E9→Iaé a:b→✗ ␣a→✗ 'a→✗ \a→✗ \→✗)",
         .legal = R"(a a␣b Abc 'a:b' "a<b" 'it''s' '' '\' a'␣'b x'a:'y 'a"b' \a\ \a\\b\ \\ \'\ \␣a␣\)",
         .illegal = R"(␣ ␣a a␣ a:b a<b a\b a␉ aé 'a a" '␣a' "␣a" 'a␣' a'␣' 'a"b:'c" \ \a \a\b\ \a\\ \a␉\)"});
  EXPECT_EQ(zelIsLegalVellumNormal("'a:b'"), 1);
  EXPECT_EQ(zelIsLegalVellumNormal(R"(\a\)"), 0);
}
