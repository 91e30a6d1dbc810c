// The rules of the hardware description languages and of the netlists, by names that follow or break one.
#include "support/spaceRules.h"

TEST(Rules, ofIdent) {
  expectRules(HERE, R"(
    Ident:
      write    Sa    Sa
      write    IA␣b  IA␣b
      write    any   any  // what an Ident holds is not checked
      write    S     S
      write    ""    ""
      read     any   any
      read     ""    ""
      legal    Sa
      legal    Ia
      legal    Fa
      legal    S␣
      legal    Ié
      illegal  S
      illegal  I
      illegal  F
      illegal  Xa
      illegal  sa         // markers are capitals
      illegal  a
  )");
}

// An unescaped name always has case, an escaped one only with capitals.
TEST(Rules, ofVerilog) {
  expectRules(HERE, R"(
    Verilog VerilogAMS VerilogA KirraHDL:
      write    SModule  Module                  // no keyword: case counts
      write    Imodule  \module␣
      write    IModule  \module␣  not in MATCH  // lowered, a keyword
      write    IModule  Module    in MATCH
      write    IWire2   wire2     not in MATCH
      write    IA+B     \a+b␣     not in MATCH
      write    IA+B     \A+B␣     in MATCH
      write    SA+B     \A+B␣
      write    FA+B     \A+B␣
      write    Sa␣b     \a#20b␣
      write    S1abc    \1abc␣
      write    S\       \\␣                     // the backslash is escaped like any other
      write    Sé       \#e9␣                   // bytes of 128 and above have no other form
      write    Ia#7F    \a#237f␣  not in MATCH  // would be read as an escape
      read     Abc      SAbc                    // a plain name always has case
      read     \A+b␣    SA+b                    // an escaped one has it when it holds a capital
      read     \abc␉    Iabc                    // ends with any blank
      read     \␣       I
      read     \a␣b␣    Ia␣b                    // what stands in it is not checked
      read     \A#E9␣   SAé                     // hex digits of either case
      read     \a#4A␣   Sa#4A                   // no escape: J needs none
      read     module   refused
      read     \abc     refused                 // not closed
      read     \        refused
      read     a+b      refused
      read     abc      Sabc                    // even without capitals
      legal    Module
      legal    \␣
      legal    \\␣
      legal    \module␣
      illegal  1abc
      illegal  $abc
      illegal  module
      illegal  a-b
      illegal  \
      illegal  \a␣b␣                            // though it is read
    Verilog VerilogAMS VerilogA:
      write    Ia$B  a$b  not in MATCH
      legal    a$1
    KirraHDL:
      write    Ia$B     \a$b␣  not in MATCH
      write    Iln      ln  // stored behind the words with i, so not found
      write    Istrlen  \strlen␣
      legal    and          // no word of KirraHDL
      illegal  a$1
      illegal  strlen
    VerilogA:
      write    Stransitiontri  \transitiontri␣  // two words that lack their comma
      write    Stri            tri              // so this is none
      write    Iac_stim        ac_stim          // out of order, so the search passes it
      legal    acosh                            // passed with it
      legal    transition
      illegal  transitiontri
      illegal  abs
  )");
}

// The prefix ESC_ tells that a name was extended though it could have been basic. The mapping state decides where
// capitals matter.
TEST(Rules, ofVHDL) {
  expectRules(HERE, R"(
    VHDL VHDL87 VHDLAMS:
      write    ISignal     \signal\                    // keywords in any case
      write    Sa__b       \a__b\
      write    S1a         \1a\
      write    Sa␣b        \a␣b\
      write    Sa\b        \a\\b\
      write    IA+B        \a+b\
      write    SA+B        \A+B\
      write    Sa␉         \a#09\
      write    Sé          \#e9\
      write    Sa#5c       \a#5c\                      // no escape: a backslash needs none
      write    S#\         \#\\\                       // no digits behind the mark
      write    FESC_abc    \abc\                       // the prefix says that it was extended
      write    SESC_       \\
      write    SESC_a␣b    \a␣b\
      write    SESC_ESC_a  \ESC_a\                     // one prefix of two
      write    SAbc        \Abc\     in DEFAULT        // basic names would lose the case
      write    SAbc        Abc       not in DEFAULT
      write    FAbc        \Abc\     in DEFAULT MATCH  // forced
      write    FAbc        Abc       in VHDL TANDEM
      write    IAbc        Abc       in DEFAULT MATCH
      write    IAbc        abc       in VHDL TANDEM
      write    IESC_abc    ESC_abc   in DEFAULT MATCH  // a prefix counts only where case does
      write    SESC_Abc    \Abc\
      write    IESC_Abc    esc_abc   in VHDL TANDEM
      read     \a\\b\      Ia\b
      read     \a\b\       Ia\b                        // a backslash that is not doubled
      read     \signal\    Isignal
      read     \Signal\    SSignal
      read     \a#E9\      Iaé
      read     \\          I
      read     \           I                           // its own end
      read     \a\\        Ia\                         // the same
      read     \a1\        SESC_a1                     // could have been a basic name
      read     signal      refused                     // a keyword
      read     \abc        refused
      read     a␣b         refused
      read     abc         Iabc      not in VHDL
      read     abc         Sabc      in VHDL
      read     Abc         IAbc      not in VHDL
      read     Abc         SAbc      in VHDL
      read     ESC_a       IESC_a    not in VHDL
      read     \Abc\       SAbc      in DEFAULT MATCH
      read     \Abc\       SESC_Abc  in VHDL TANDEM
      read     \abc\       SESC_abc
      legal    a_b
      legal    ESC_a
      legal    \\                                      // nothing in it
      legal    \a\\b\
      legal    \signal\
      illegal  a__b                                    // two underscores
      illegal  ab_                                     // one at the end
      illegal  1a
      illegal  SIGNAL
      illegal  \
      illegal  \a\b\
      illegal  \a\\
      illegal  \a␉\
  )");
}

TEST(Rules, ofORKA) {
  expectRules(HERE, R"(
    ORKA 44ORKA:
      write    SA/b        A#2fb
      write    IA/b        a#2fb      not in MATCH
      write    IA/b        A#2fb      in MATCH
      write    IA(12)B(0)  a(12)b(0)  not in MATCH  // indexes stand in names
      write    S(3)a       #283#29a                 // but not in front
      write    Sa(3        a#283                    // not closed
      write    Sa(3(4)     a#283(4)
      write    Sa((3))     a#28(3)#29               // only the inner one
      write    Sa<b>       a#3cb#3e
      write    Ia#2F       a#232f     not in MATCH  // would be read as an escape
      write    Sa#28(3)    a#2328(3)                // the same
      read     a(3)        Ia(3)
      read     A#2fb       SA/b                     // a capital of its own
      read     a#2Fb       Ia/b
      read     a#4A        Sa#4A                    // no escape: J needs none
      read     a#28        Ia(
      read     A           SA
      legal    a(12)b
      legal    a(3)(4)
      illegal  (3)a
      illegal  a()
      illegal  a(x)
      illegal  a(3
      illegal  a(3))
      illegal  a(3␣)
      illegal  a(-1)
      illegal  é
  )");
}

// A plain name has case, whatever its letters.
TEST(Rules, ofEscORKA) {
  expectRules(HERE, R"(
    EscORKA:
      write    Ia␣b      \a␣b\
      write    SA␣b      \A␣b\
      write    Sabc      abc                    // the plain name has case
      write    IAbc      abc      not in MATCH
      write    IAbc      Abc      in MATCH
      write    SESC_abc  \abc\                  // the prefix says that it was escaped
      write    SESC_     \\
      write    IESC_a␣b  \a␣b\
      write    FESC_(3)  \(3)\
      write    IESC_(3)  esc_(3)  not in MATCH  // no prefix without case
      write    S(3)      \(3)\                  // no index in front
      write    Sa(3)     a(3)
      write    Sa␉       \a#09\
      write    Sa#2f     a#2f
      write    S␣#09     \␣#2309\
      write    S␣#2341   \␣#232341\             // an escaped mark is escaped again in front of anything
      write    S␣#00     \␣#00\                 // never decoded
      write    IA␣b      \A␣b\    in MATCH
      read     abc       Sabc                   // whatever its letters
      read     \abc\     SESC_abc
      read     \a(3)\    SESC_a(3)              // could have been plain
      read     \Abc\     SAbc
      read     \a␣b\     Ia␣b
      read     \(3)\     I(3)                   // could not
      read     \a\\b\    Ia\b
      read     \\        I
      read     \␣#2341\  I␣#2341                // no escape: A needs none
      read     \␣#2309\  I␣#09
      read     \␣#2323\  I␣#23
      read     a/b       refused
      legal    \a␣b\
      legal    \\
      illegal  (3)
      illegal  \a\b\
      illegal  \a␉\
  )");
}

// What is read is not otherwise checked. A keyword is written behind KEYWORD_, which then needs protection itself.
TEST(Rules, ofKirra) {
  expectRules(HERE, R"(
    Kirra:
      write    Sa.b   a\.b
      write    IA.B   a\.b  not in MATCH
      write    IA.B   A\.B  in MATCH
      write    S!ab   \!ab
      write    Sa\b   a\\b
      write    Sé     \#e9   // an escape, its mark quoted
      write    S␁q    \#01q
      write    Sa␉    a\␉    // blanks are quoted
      write    Sa#41  a\#41  // the mark is always quoted
      read     A\.b   SA.b
      read     a\A    SaA
      read     a#01   Ia␁    // also where the mark is not
      read     a\#E9  Iaé
      legal    \.a
      legal    a\␉
      legal    \#01
      illegal  !a
      illegal  a.b
      illegal  a\é           // of no class
      illegal  a\␁
    Kirra:
      write    Imodel                  KEYWORD_model  // a keyword
      write    SModel                  Model
      write    Ilog                    log            // stored behind the words with i, so not found
      write    IKEYWORD_model          keyword_model          not in MATCH
      write    IKEYWORD_model          KEYWORD_KEYWORD_model  in MATCH
      write    SKEYWORD_KEYWORD_model  KEYWORD_KEYWORD_KEYWORD_model
      write    SKEYWORD_KEYWORD_KEYWORD_model  KEYWORD_KEYWORD_KEYWORD_model  // deeper ones are left alone
      write    SKEYWORD_foo            KEYWORD_foo    // foo is no keyword
      write    IModel                  Model                  in MATCH  // keywords are in lower case
      read     model                   Imodel
      read     KEYWORD_model           Imodel
      read     KEYWORD_KEYWORD_model   SKEYWORD_model
      read     KEYWORD_foo             SKEYWORD_foo
      read     KEYWORD_log             SKEYWORD_log
      read     KEYWORD_KEYWORD_KEYWORD_KEYWORD_model  SKEYWORD_KEYWORD_KEYWORD_KEYWORD_model
      legal    log
      legal    KEYWORD_model
      legal    Model
      illegal  model
    Kirra:
      write    S2n3904  2n3904  // a part number: digits, letters, a digit, anything
      write    I2N3904  2n3904  not in MATCH
      write    I2N3904  2N3904  in MATCH
      write    S1abc    \1abc   // lacks the digit behind the letters
      write    S1_      \1_
      write    S1a2!    1a2!
      write    S1a2.    \1a2\.  // not anything
      write    S1a\.2   1a\.2   // backslashes stand as they are
      write    S1a2\    1a2\    // even the last
      write    S1a\     \1a\\   // but no digit in front of it
      write    S1!      \1!
      legal    1_2
      legal    1a2!
      legal    1a2\
      legal    1\éz9            // whatever is quoted
      illegal  1abc
      illegal  1_
      illegal  1a2.
      illegal  1a-2
      illegal  1a\
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
      yes  1
      yes  2n3904   // digits, letters, a digit
      yes  1_2
      yes  1a2!     // and what may stand in a name
      yes  1a2\-    // whatever is quoted
      yes  1\-a2
      no   1abc
      no   1_
      no   1a2-
      no   1a\
      no   real     // a keyword
      no   ""
    a device name of NT:
      yes  aux
      yes  con
      yes  nul
      yes  prn
      yes  PRN      // in any case
      yes  Com0     // one digit
      yes  lpt9
      no   com
      no   com10
      no   lptx
      no   aux1
      no   co
      no   xcon
      no   é
      no   ""
    a plain name of Vellum:
      yes  a
      yes  'a:b'
      no   \a\
      no   ""
    a name of ORKA:
      yes  a(3)
      no   (3)
      no   ""
  )")) {
    const std::map<std::string, zelIsLegalFunc> tests = {{"a part number of Kirra", zelIsLegalKirraDigitStartName},
                                                         {"a device name of NT", zelIsNTKeyword},
                                                         {"a plain name of Vellum", zelIsLegalVellumNormal},
                                                         {"a name of ORKA", zelIsLegalORKA}};
    row.expect(row[0], tests.at(row.heading)(row[1].c_str()) == 1 ? "yes" : "no");
  }
  for (const zelIsLegalFunc test :
       {zelIsLegalKirraDigitStartName, zelIsNTKeyword, zelIsLegalVellumNormal, zelIsLegalORKA})
    EXPECT_EQ(test(nullptr), 0);
}

TEST(Rules, ofFlatORKARespellThePathSyntax) {
  for (Row &row : rowsOf(HERE, R"(
    flat:
      a/b<3>          a|b(3)
      x#(|)           x#23#28#7c#29
      ""              ""
    hierarchical:
      a|b(3)          a/b<3>
      x#23#28#7c#29   x#(|)
      #7C#2#41#       #7C#2#41#       // other escapes are none of its own
      x(M=2)          x               // a multiplicity is dropped
      x(M=2)y(M=3)    xy
      x(M=0)          x<M=0>          // unless it is zero
      x(M=0)(M=1)z    x<M=0>z
      x(M=-1)         x
      x(M=␣3z)y       xy              // up to what is no digit
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
      ""              ""
  )")) {
    const auto respell = row.heading == "flat" ? zelORKAToORKAFlat : zelORKAFlatToORKA;
    row.expect(row[1], take(respell(row[0].c_str())).value_or("null"));
  }
  for (const auto respell : {zelORKAToORKAFlat, zelORKAFlatToORKA}) {
    EXPECT_EQ(respell(nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);
    failingMalloc::left = 0;
    EXPECT_EQ(respell("a"), nullptr);
    EXPECT_EQ(errno, ENOMEM);
  }
}
