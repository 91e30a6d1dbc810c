// The rules of the hardware description languages and of the netlists, by names that follow or break one.
#include "support/spaceRules.h"

TEST(Rules, ofIdent) {
  expectRules(HERE, R"(
    Ident:
      both     IA␣b  IA␣b
      write    any   any   // what an Ident holds is not checked
      read     any   any
      write    ""    ""
      legal    S␣ Fa
      illegal  I Xa
      illegal  sa          // markers are capitals
  )");
}

// An unescaped name always has case, an escaped one only with capitals.
TEST(Rules, ofVerilog) {
  expectRules(HERE, R"(
    Verilog VerilogAMS VerilogA KirraHDL:
      both     Sabc     abc
      both     SModule  Module                  // no keyword: case counts
      both     Imodule  \module␣
      write    IModule  \module␣  not in MATCH  Module  in MATCH  // lowered, a keyword
      write    IWire2   wire2     not in MATCH
      write    IA+B     \a+b␣     not in MATCH  \A+B␣   in MATCH
      both     SA+b     \A+b␣
      write    FA+B     \A+B␣
      both     Ia␣b     \a#20b␣
      both     I1abc    \1abc␣
      both     I\       \\␣                     // the backslash is escaped like any other
      both     Ié       \#e9␣                   // bytes of 128 and above have no other form
      read     \abc␉    Iabc                    // ends with any blank
      read     \␣       I
      legal    \␣
      read     \a␣b␣    Ia␣b                    // what stands in it is not checked
      illegal  \a␣b␣
      read     \A#E9␣   SAé                     // hex digits of either case
      read     \a#4A␣   Sa#4A                   // no escape: J needs none
      refused  module \ a-b 1abc $abc
      refused  \abc                             // not closed
    Verilog VerilogAMS VerilogA:
      both     Sa$1     a$1
    KirraHDL:
      both     Ia$b     \a$b␣
      refused  a$1
      both     Sln      ln                      // stored behind the words with i, so not found
  )");
}

// The prefix ESC_ tells that a name was extended though it could have been basic. The mapping state decides where
// capitals matter.
TEST(Rules, ofVHDL) {
  expectRules(HERE, R"(
    VHDL VHDL87 VHDLAMS:
      write    ISignal     \signal\                     // keywords in any case
      both     SSignal     \Signal\
      both     Ia__b       \a__b\
      both     Ia␣b        \a␣b\
      both     Ia\b        \a\\b\
      write    IA+B        \a+b\
      both     SA+B        \A+B\
      both     Ia␉         \a#09\
      both     Ié          \#e9\
      both     I#\         \#\\\                        // no digits behind the mark
      both     SESC_abc    \abc\                        // the prefix says that it was extended
      write    FESC_abc    \abc\
      write    SESC_       \\
      write    SESC_a␣b    \a␣b\
      write    SESC_ESC_a  \ESC_a\                      // one prefix of two
      write    SESC_Abc    \Abc\
      write    IESC_Abc    ESC_Abc  in DEFAULT MATCH  esc_abc   in VHDL TANDEM  // a prefix counts only where case does
      write    SAbc        \Abc\    in DEFAULT        Abc       not in DEFAULT  // basic names would lose the case
      write    FAbc        \Abc\    in DEFAULT MATCH  Abc       in VHDL TANDEM  // forced
      write    IAbc        Abc      in DEFAULT MATCH  abc       in VHDL TANDEM
      read     abc         Iabc     not in VHDL       Sabc      in VHDL
      read     Abc         IAbc     not in VHDL       SAbc      in VHDL
      read     \Abc\       SAbc     in DEFAULT MATCH  SESC_Abc  in VHDL TANDEM
      read     \a#E9\      Iaé
      read     \\          I
      legal    \\                                       // nothing in it
      read     \           I                            // its own end
      illegal  \ \a\\ \a\b\ \a␉\
      read     \a\\        Ia\                          // the same
      read     \a\b\       Ia\b                         // a backslash that is not doubled
      refused  signal SIGNAL \abc a␣b 1a
      refused  a__b                                     // two underscores
      refused  ab_                                      // one at the end
  )");
}

TEST(Rules, ofORKA) {
  expectRules(HERE, R"(
    ORKA 44ORKA:
      both     SA/b        A#2fb                    // a capital of its own
      write    IA/b        a#2fb      not in MATCH  A#2fb  in MATCH
      write    IA(12)B(0)  a(12)b(0)  not in MATCH  // indexes stand in names
      both     I(3)a       #283#29a                 // but not in front
      both     Ia(3        a#283                    // not closed
      both     Ia(3(4)     a#283(4)
      both     Ia((3))     a#28(3)#29               // only the inner one
      both     Ia<b>       a#3cb#3e
      both     Ia#28(3)    a#2328(3)                // would be read as an escape
      read     a#2Fb       Ia/b
      legal    a(3)(4)
      refused  (3)a a() a(x) a(3 a(3)) a(3␣) é
  )");
}

// A plain name has case, whatever its letters.
TEST(Rules, ofEscORKA) {
  expectRules(HERE, R"(
    EscORKA:
      both     Sabc       abc
      both     Ia␣b       \a␣b\
      both     SA␣b       \A␣b\
      write    IA␣b       \a␣b\    not in MATCH  \A␣b\  in MATCH
      write    IAbc       abc      not in MATCH  Abc    in MATCH
      both     SESC_abc   \abc\                  // the prefix says that it was escaped
      both     SESC_a(3)  \a(3)\                 // could have been plain
      both     I(3)       \(3)\                  // could not: no index in front
      write    FESC_(3)   \(3)\
      write    IESC_(3)   esc_(3)  not in MATCH  // no prefix without case
      write    IESC_a␣b   \a␣b\
      write    SESC_      \\
      both     Sa(3)      a(3)
      both     Ia\b       \a\\b\
      both     Ia␉        \a#09\
      both     Sa#2f      a#2f
      both     I␣#09      \␣#2309\
      write    S␣#2341    \␣#232341\             // an escaped mark is escaped again in front of anything
      read     \␣#2341\   I␣#2341                // no escape: A needs none
      read     \␣#2323\   I␣#23
      both     I␣#00      \␣#00\                 // never decoded
      read     \Abc\      SAbc
      read     \\         I
      legal    \\
      refused  a/b (3)
      illegal  \a\b\ \a␉\
  )");
}

// What is read is not otherwise checked. A keyword is written behind KEYWORD_, which then needs protection itself.
TEST(Rules, ofKirra) {
  expectRules(HERE, R"(
    Kirra:
      both     Ia.b   a\.b
      write    IA.B   a\.b  not in MATCH  A\.B  in MATCH
      both     I!ab   \!ab
      both     Ia\b   a\\b
      both     Ié     \#e9   // an escape, its mark quoted
      both     I␁q    \#01q
      both     Ia␉    a\␉    // blanks are quoted
      both     Ia#41  a\#41  // the mark is always quoted
      read     a\A    SaA
      read     a#01   Ia␁    // also where the mark is not
      read     a\#E9  Iaé
      illegal  !a a.b a\␁
      illegal  a\é           // of no class
    Kirra:
      both     Imodel                  KEYWORD_model  // a keyword
      read     model                   Imodel
      illegal  model
      both     SModel                  Model          // keywords are in lower case
      write    IModel                  KEYWORD_model  not in MATCH  Model                  in MATCH
      write    IKEYWORD_model          keyword_model  not in MATCH  KEYWORD_KEYWORD_model  in MATCH
      both     SKEYWORD_model          KEYWORD_KEYWORD_model
      both     SKEYWORD_KEYWORD_model  KEYWORD_KEYWORD_KEYWORD_model
      write    SKEYWORD_KEYWORD_KEYWORD_model         KEYWORD_KEYWORD_KEYWORD_model  // deeper ones are left alone
      read     KEYWORD_KEYWORD_KEYWORD_KEYWORD_model  SKEYWORD_KEYWORD_KEYWORD_KEYWORD_model
      both     SKEYWORD_foo            KEYWORD_foo    // foo is no keyword
      both     Ilog                    log            // stored behind the words with i, so not found
      read     KEYWORD_log             SKEYWORD_log
    Kirra:
      both     I2n3904  2n3904  // a part number: digits, letters, a digit, anything
      write    I2N3904  2n3904  not in MATCH  2N3904  in MATCH
      both     I1abc    \1abc   // lacks the digit behind the letters
      both     I1_      \1_
      both     I1a2!    1a2!
      both     I1!      \1!
      both     I1a2.    \1a2\.  // not anything
      write    S1a\.2   1a\.2   // backslashes stand as they are
      write    S1a2\    1a2\    // even the last
      write    S1a\     \1a\\   // but no digit in front of it
      legal    1_2 1a2\
      legal    1\éz9            // whatever is quoted
      illegal  1abc 1_ 1a2. 1a-2 1a!2 1a\
  )");
}

TEST(Rules, ofKirraAreNoErrorsWhenABackslashQuotesNothing) {
  for (const char *name : {"a\\", "a\\\xe9", "\\\x01z"})
    EXPECT_EQ(convert(zelKirraToIdent, name), "null, errno 0") << shown(name);
}

// The tests that are no operation of a space.
TEST(Rules, holdForPartsOfNames) {
  for (Row &row : rowsOf(HERE, R"(
    a part number of Kirra:
      yes  12       // digits alone
      yes  1a2\-    // whatever is quoted
      yes  1\-a2
      no   1a2-
      no   real     // a keyword
      no   ""
    a device name of NT:
      yes  aux
      yes  con
      yes  nul
      yes  PRN      // in any case
      yes  Com0     // one digit
      yes  lpt9
      no   com
      no   com10
      no   lptx
      no   xcon
      no   ""
    a plain name of Vellum:
      yes  'a:b'
      no   \a\
      no   ""
  )")) {
    const std::map<std::string, zelIsLegalFunc> tests = {{"a part number of Kirra", zelIsLegalKirraDigitStartName},
                                                         {"a device name of NT", zelIsNTKeyword},
                                                         {"a plain name of Vellum", zelIsLegalVellumNormal}};
    row.expect(row[0], tests.at(row.heading)(row[1].c_str()) == 1 ? "yes" : "no");
    EXPECT_EQ(tests.at(row.heading)(nullptr), 0);
  }
}

TEST(Rules, ofFlatORKARespellThePathSyntax) {
  for (Row &row : rowsOf(HERE, R"(
    flat:
      a/b<3>          a|b(3)
      x#(|)           x#23#28#7c#29
    hierarchical:
      a|b(3)          a/b<3>
      x#23#28#7c#29   x#(|)
      #7C#2#41#       #7C#2#41#       // other escapes are none of its own
      x(M=2)y(M=3)    xy              // a multiplicity is dropped
      x(M=0)          x<M=0>          // unless it is zero
      x(M=0)(M=1)z    x<M=0>z
      x(M=-1)         x
      x(M=␣03z)y      xy              // up to what is no digit
      x(M=a)          x<M=a>
      x(M=2           x<M=2           // not closed
      (M=             <M=
      (M=)            <M=>
      (M=1#29)        ""              // closed by what is no escape in it
      (M=+2)          ""
      (m=1)           <m=1>
      (M=99999999999999999999)  ""
      x(M=2|y         x<M=2/y
      x)(M=2          x><M=2
  )")) {
    const auto respell = row.heading == "flat" ? zelORKAToORKAFlat : zelORKAFlatToORKA;
    row.expect(row[1], take(respell(row[0].c_str())).value_or("null"));
  }
  for (const auto respell : {zelORKAToORKAFlat, zelORKAFlatToORKA}) {
    EXPECT_EQ(take(respell("")), "");
    EXPECT_EQ(respell(nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);
    failingMalloc::left = 0;
    EXPECT_EQ(respell("a"), nullptr);
    EXPECT_EQ(errno, ENOMEM);
  }
}
