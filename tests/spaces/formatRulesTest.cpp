// The rules of the file formats and of the simple spaces, by names that follow or break one.
#include "support/spaceRules.h"

TEST(Rules, ofSpice) {
  expectRules(HERE, R"(
    Spice:
      both     Ia.b     a\.b
      write    IA.B     a\.b  not in MATCH  A\.B  in MATCH
      both     SA,B     A\,B
      both     Ia/b<3>  a/b<3>  // plain in SPICE
      write    Sé       #e9
      read     a#20b    Ia␣b
      read     \#e9     Ié
      read     a\       Ia\
      read     \        I\      // quotes nothing
      read     é.       Ié.     // what is read is not checked
      legal    .ab.             // the first and the last are not tested
      legal    ␣ (ab)
      refused  a.b a\␣b \.ab aéz
  )");
}

TEST(Rules, ofTimingAndParasitics) {
  expectRules(HERE, R"(
    Sdf Spef Gcf:
      both     Ia.b    a\.b
      write    IA.B    a\.b  not in MATCH  A\.B  in MATCH
      both     SA.b    A\.b
      both     Ia\b    a\\b
      both     Ia␣b    a\#20b  // the mark is quoted as well
      both     Ié      \#e9
      both     I␁      \#01
      both     I1a     1a      // a digit may begin
      write    Sa#2E   a\#2E   // no escape: the dot is quoted
      read     a\#4a   IaJ     // what an escape stands for is no capital of the name
      refused  a\ a\b a#b a\␣
      refused  a\é             // of no class
    Spf:
      both     Ia.b    a.b
      both     Ia:b    a\:b
      both     Ia[1]   a\[1\]
      both     Ia\b    a\\b
      both     Ia␁     a␁
      write    IA␣B    a␣b  not in MATCH
      write    Sé      \#e9
      read     \#e9    I\é     // the backslash stays
      read     a:b     Ia:b
      read     a\b     Ia\b
      read     a\      Ia\
      read     a#41    IaA     // an escape of anything
      legal    a␣b a\ [
      refused  é
      refused  \é              // a byte of 128 or above has only the escape
  )");
}

TEST(Rules, ofLayout) {
  expectRules(HERE, R"(
    Def Lef:
      both     Ia#b   a\#b
      both     Ia\b   a\\b
      both     Ia/b   a\/b
      both     Ia.b   a.b
      both     Ia␣b   a%20b
      both     Ia;b   a%3bb   // ends a statement
      both     Ié     %e9
      both     I␁     ␁
      write    Ia%4A  a%254a  not in MATCH  // would be read as an escape
      write    Sa%2F  a%2F    // no escape: the divider is quoted
      both     Ia#41  a\#41   // the mark is the percent sign
      both     SPINS  PINS    // reserved words are names
      write    IEnd   End     in MATCH
      read     a\b    Ia\b
      read     a%41   IaA
      legal    a$b-c %
      refused  a# a; a\; a\é
    Def:
      read     a/b   Ia/b     // names of DEF may hold separators
      read     A[1]  SA[1]
      legal    [
    Lef:
      refused  a/b            // those of LEF may not
      refused  A[1] [ ]
  )");
}

TEST(Rules, ofTessel) {
  expectRules(HERE, R"(
    Tessel:
      both     Ia|b   a\|b
      write    IA|B   a\|b  not in MATCH  A\|B  in MATCH
      both     Ia[1]  a\[1\]
      both     Ia\b   a\\b
      both     Ié     #e9
      write    Sa#7C  a#7C    // no escape: the bar is quoted
      read     a\b    Ia\b
      read     a\     Ia\     // quotes nothing
      read     a#41   IaA     // an escape of anything
      legal    a/b
      refused  a|b [ é
    FlatTessel:
      both     Ia|b   a|b     // no divider here
      both     Ia[1]  a\[1\]
      both     Ia\b   a\\b
      both     Ia␣b   a#20b
      write    Sa#5b  a#5b    // no escape: the bracket is quoted
      write    IA[    a\[   not in MATCH  A\[  in MATCH
      refused  a\ a\b a\| [ a␣b
  )");
}

TEST(Rules, ofWords) {
  expectRules(HERE, R"(
    NVerilog Print Edif200 Edif300:
      both     Ia␣b     a#20b
      both     SAé      A#e9
      write    IABC     abc  not in MATCH  ABC  in MATCH
      write    FABC     ABC
      read     a#E9     Iaé
      legal    !~
      legal    module              // no keywords
      refused  a␉ é
    Ascii:
      both     Sa␉B     a␉B        // any ASCII
      both     I␁       ␁
      both     Ié       #e9
      write    Sa#23e9  a#2323e9   // would be read as a mark that is escaped
      write    IABC     abc  not in MATCH  ABC  in MATCH
      refused  aé
  )");
}

// Names of directories, where capitals or device names would clash.
TEST(Rules, ofLibraries) {
  expectRules(HERE, R"(
    LibraryNT:
      both     Icon      %%con                 // a device name
      write    ICon      %%Con                 // I keeps its capitals
      write    SCon      %Con      not in MATCH  Con  in MATCH  // the capital is marked, so no device name
      write    FCon      %Con
      write    SCOM1     %C%O%M1   not in MATCH  // a mark a capital
      write    Iconsole  console               // no device name
      write    FMyLib    %My%Lib               // whatever the state
      write    SMyLib    MyLib     in MATCH
      write    SESC_a    %E%S%C_a  not in MATCH
      both     Ia%b      a#25b
      both     Ia-b      a#2db
      write    Sa#2A     a#232%A   not in MATCH  // the digit of the escape is a capital
      read     %My%Lib   SMyLib
      read     %mY       SMy                   // a mark makes a capital, none a small letter
      read     %%AUX     IAUX                  // two in front are of the device name
      read     A#20%b    Sa␣B
      read     %a#4A     SA#4a                 // no escape: J needs none
      read     a#2%a     Sa#2A                 // a mark ends an escape
      legal    con1 %%COM1 a%B
      refused  Con                             // in any case
      refused  lpt9 %%%a % a%%b é
      refused  %%foo                           // no device name
      refused  %%con1                          // nor this
      refused  a%1                             // only letters have capitals
    LibraryUnix Library Filesys:
      write    IMixed    mixed                 // in every state
      write    SMixed    Mixed
      both     Icon      con                   // no device names
      both     Ia%b      a#25b
      write    IESC_top  esc_top               // a prefix counts only where case does
      write    SESC_top  ESC_top  in VHDL DEFAULT  top   in TANDEM MATCH
      write    FESC_top  ESC_top  in VHDL DEFAULT  top   in TANDEM MATCH
      write    SESC_     ""       in TANDEM MATCH
      read     Top       STop     not in MATCH     FTop  in MATCH  // the only reader that forces case
      read     A#2eb     SA.b     not in MATCH     FA.b  in MATCH
      read     a#2Eb     Ia.b
      legal    a_@#9
      refused  a.b %a é
  )");
}

TEST(Rules, ofVellum) {
  expectRules(HERE, R"(
    Vellum:
      write    SAbc       \Abc\  not in MATCH  Abc  in MATCH  // plain names have no case
      write    FAbc       \Abc\                // forced in every state
      both     IAbc       Abc
      write    SESC_      \\
      write    IESC_abc   ESC_abc
      write    SA:b       'A:b'  in MATCH
      both     SESC_abc   \abc\                // the prefix says that it was escaped
      write    FESC_abc   \abc\
      both     Ia:b       'a:b'
      both     Iit's      'it''s'              // a quote is doubled
      both     I'         ''''
      both     Ia\b       'a\b'
      both     I␣a        #20a                 // blanks at the ends are escaped
      both     Ia␣        a#20
      write    I␣:␣       '#20:#20'            // between the quotes
      both     Ia␉        a#09
      both     Ié         #e9
      write    FA\b       \A\\b\               // a backslash is doubled
      write    FA'b       \A'b\
      write    FA␉        \A#09\
      read     \Abc\      SAbc
      read     \a\\b\     SESC_a\b
      read     \\         SESC_
      read     \a#09\     SESC_a#09
      read     "a""b"     Ia"b
      read     x'a:'y     Ixa:y                // quotes may stand inside
      read     '\'        I\                   // plain between quotes
      read     ''#20a     I␣a                  // an escaped blank is read in front of all else
      read     'a:#20'    Ia:␣                 // in front of the closing quote
      read     'a:'#20    Ia:␣                 // and at the end
      read     a#20b      Ia#20b               // but not inside
      read     'a:#20'b   Ia:#20b
      read     'a#20''b'  Ia#20'b
      read     a#20''     Ia#20
      read     #20#20a    I␣#20a
      read     a#E9       Iaé
      legal    a␣b "a<b" \\
      legal    \␣a␣\                           // blanks count there
      refused  ␣a a␣ a" 'a␣' a'␣' \ \a\b\ \a\\ \a␉\
      refused  '␣a'                            // blanks at the ends
      refused  'a"b:'c"                        // the other quote opens
  )");
}
