// Kirra: single characters behind a backslash, keywords behind a prefix, names that start with digits.
#include "support/rules.h"

TEST(Kirra, quotesSingleCharacters) {
  check({.spaces = "Kirra",
         .write = R"(Sa.b→a\.b Sa␣b→a\␣b IA.B→a\.b Sa!b→a!b S!ab→\!ab Sa\b→a\\b Sé→\#e9 S␁q→\#01q Sa␉→a\␉ S#q→\#q
             Sa#41→a\#41)",
         // What is read is not otherwise checked.
         .read = R"(a\.b→Ia.b A\.b→SA.b a\␣b→Ia␣b a.b→Ia.b model→Imodel a\A→SaA a#01→Ia␁ a\#E9→Iaé é→Ié)",
         .legal = R"(a\.b \.a _a a! a\␉ log KEYWORD_model Model \#01)",
         .illegal = R"(model !a a.b #a a\ a\é a\␁ a␣b é)"});
  check({.spaces = "Kirra",
         .states = {ZEL_MAP_MATCH},
         .write = R"(IModel→Model IA.B→A\.B I2N3904→2N3904 IKEYWORD_model→KEYWORD_KEYWORD_model)"});
  // A backslash that quotes nothing.
  for (const char *name : {"a\\", "a\\\xe9", "\\\x01z"}) {
    EXPECT_EQ(convert(zelKirraToIdent, name), Result()) << name;
    EXPECT_EQ(errno, 0) << name;
  }
}

TEST(Kirra, prefixesKeywords) {
  check({.spaces = "Kirra",
         .write = R"(Imodel→KEYWORD_model IModel→KEYWORD_model SModel→Model Ilog→log IKEYWORD_model→keyword_model
             SKEYWORD_model→KEYWORD_KEYWORD_model SKEYWORD_KEYWORD_model→KEYWORD_KEYWORD_KEYWORD_model
             SKEYWORD_KEYWORD_KEYWORD_model→KEYWORD_KEYWORD_KEYWORD_model
             SKEYWORD_KEYWORD_KEYWORD_KEYWORD_model→KEYWORD_KEYWORD_KEYWORD_KEYWORD_model SKEYWORD_foo→KEYWORD_foo)",
         .read = R"(KEYWORD_model→Imodel KEYWORD_KEYWORD_model→SKEYWORD_model KEYWORD_foo→SKEYWORD_foo
             KEYWORD_KEYWORD_KEYWORD_model→SKEYWORD_KEYWORD_model KEYWORD_log→SKEYWORD_log KEYWORD_→SKEYWORD_
             KEYWORD_KEYWORD_KEYWORD_KEYWORD_model→SKEYWORD_KEYWORD_KEYWORD_KEYWORD_model)"});
}

TEST(Kirra, startsWithDigitsAsPartNumbersDo) {
  // As it stands, backslashes too.
  check({.spaces = "Kirra",
         .write = R"(S12→12 S2n3904→2n3904 I2N3904→2n3904 S1abc→\1abc S1_→\1_ S1_2→1_2 S1!→\1! S1a2!→1a2!
             S1a2.→\1a2\. S1a\.2→1a\.2 S1a2\→1a2\ S1a\→\1a\\)",
         .legal = R"(12 2n3904 1_2 1a2! 1a2\ 1\éz9)",
         .illegal = R"(1abc 1_ 1! 1a2. 1a2# 1a-2 1a\)"});
  for (const std::string &name : split(R"(12 1 2n3904 1_2 1a2! 1a2\- 1\-a2 1a2\)"))
    EXPECT_EQ(zelIsLegalKirraDigitStartName(name.c_str()), 1) << name;
  for (const std::string &name : split(R"(1abc 1_ 1a2- 1a\ model)"))
    EXPECT_EQ(zelIsLegalKirraDigitStartName(name.c_str()), 0) << name;
}
