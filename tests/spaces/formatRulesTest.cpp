// The rules of the file formats and of the simple spaces, by names that follow or break one.
#include "support/spaceRules.h"

TEST(Rules, ofSpice) {
  expectRules(HERE, R"(
    Spice:
      write    Sa.b     a\.b
      write    IA.B     a\.b  not in MATCH
      write    IA.B     A\.B  in MATCH
      write    Sa/b<3>  a/b<3>  // plain in SPICE
      write    Sé       #e9
      read     a#20b    Ia␣b
      read     A\,B     SA,B
      read     a#41     Ia#41   // no escape: A needs none
      read     \#e9     Ié
      read     a\       Ia\
      read     \        I\      // quotes nothing
      read     a\\      Ia\
      read     é.       Ié.     // what is read is not checked
      legal    .ab.             // the first and the last are not tested
      legal    ␣
      legal    a\.b
      legal    (ab)
      illegal  a.b
      illegal  a\␣b
      illegal  \.ab
      illegal  aéz
  )");
}

TEST(Rules, ofTimingAndParasitics) {
  expectRules(HERE, R"(
    Sdf Spef Gcf:
      write    Sa.b    a\.b
      write    IA.B    a\.b  not in MATCH
      write    IA.B    A\.B  in MATCH
      write    Sa\b    a\\b
      write    Sa␣b    a\#20b  // the mark is quoted as well
      write    Sé      \#e9
      write    S␁      \#01
      write    Sa#2E   a\#2E   // no escape: the dot is quoted
      read     a\#20b  Ia␣b
      read     A\.b    SA.b
      read     a\#4a   IaJ     // what an escape stands for is no capital of the name
      legal    1a              // a digit may begin
      legal    \#01
      legal    a\\
      illegal  a\
      illegal  a\b
      illegal  a#b
      illegal  a\é             // of no class
      illegal  a\␣
    Spf:
      write    Sa.b   a.b
      write    Sa:b   a\:b
      write    Sa[1]  a\[1\]
      write    Sa\b   a\\b
      write    IA␣B   a␣b  not in MATCH
      write    Sa␁    a␁
      write    Sé     \#e9
      read     a\:b   Ia:b
      read     a:b    Ia:b
      read     a\b    Ia\b
      read     a\     Ia\
      read     a#41   IaA  // an escape of anything
      read     \#e9   I\é  // the backslash stays
      legal    a␣b
      legal    a\
      legal    [
      legal    ␁
      illegal  é
      illegal  \é          // a byte of 128 or above has only the escape
  )");
}

TEST(Rules, ofLayout) {
  expectRules(HERE, R"(
    Def Lef:
      write    Sa#b   a\#b
      write    Sa#41  a\#41
      write    Sa\b   a\\b
      write    Sa.b   a.b
      write    Sa␣b   a%20b
      write    Sa;b   a%3bb                 // ends a statement
      write    Sé     %e9
      write    Sa␁    a␁
      write    Ia%4A  a%254a  not in MATCH  // would be read as an escape
      write    Sa%2F  a%2F                  // no escape: the divider is quoted
      write    Sa%23  a%23                  // nor this
      write    IEnd   End     in MATCH
      read     a%20b  Ia␣b
      read     a\/b   Ia/b
      read     a\b    Ia\b
      read     PINS   SPINS                 // reserved words are names
      read     a%41   IaA
      read     a\#41  Ia#41                 // the mark is the percent sign
      legal    a$b-c
      legal    a\#
      legal    ␁
      legal    %
      illegal  a#
      illegal  a;
      illegal  a\;
      illegal  a\é
    Def:
      read     a/b   Ia/b  // names of DEF may hold separators
      read     A[1]  SA[1]
      legal    [
      legal    ]
    Lef:
      illegal  a/b  // those of LEF may not
      illegal  A[1]
      illegal  [
      illegal  ]
  )");
}

TEST(Rules, ofTessel) {
  expectRules(HERE, R"(
    Tessel:
      write    Sa|b   a\|b
      write    IA|B   a\|b  not in MATCH
      write    Sa[1]  a\[1\]
      write    Sa\b   a\\b
      write    Sé     #e9
      write    Sa#7C  a#7C  // no escape: the bar is quoted
      write    IA[    A\[   in MATCH
      read     a\|b   Ia|b
      read     a\b    Ia\b
      read     a\     Ia\   // quotes nothing
      read     a#41   IaA   // an escape of anything
      legal    \[
      legal    a/b
      illegal  a|b
      illegal  [
      illegal  é
    FlatTessel:
      write    Sa|b   a|b    // no divider here
      write    Sa[1]  a\[1\]
      write    Sa\b   a\\b
      write    Sa␣b   a#20b
      write    Sa#5b  a#5b   // no escape: the bracket is quoted
      write    IA[    A\[  in MATCH
      read     a|b    Ia|b
      read     a\[    Ia[
      read     a#20   Ia␣
      read     a#41   Ia#41  // no escape: A needs none
      legal    a\\
      legal    \]
      illegal  a\
      illegal  a\b
      illegal  a\|
      illegal  [
      illegal  a␣b
  )");
}

TEST(Rules, ofWords) {
  expectRules(HERE, R"(
    NVerilog Print Edif200 Edif300:
      write    Sa␣b   a#20b
      write    IABC   abc  not in MATCH
      write    IABC   ABC  in MATCH
      write    FABC   ABC
      write    Sé     #e9
      write    Sa#7F  a#237F  // would be read as an escape
      read     a#4A   Sa#4A   // no escape: J needs none
      read     A#e9   SAé
      read     a#E9   Iaé
      legal    !~
      legal    module         // no keywords
      legal    #
      illegal  a␣b
      illegal  a␉
      illegal  é
    Ascii:
      write    Sa␣b     a␣b
      write    IA␉      a␉   not in MATCH
      write    Sé       #e9
      write    Sa#7f    a#7f      // no escape: ASCII needs none
      write    Sa#23e9  a#2323e9  // would be read as a mark that is escaped
      write    IABC     ABC  in MATCH
      read     a#e9     Iaé
      read     a#20     Ia#20
      read     a␉B      Sa␉B      // any ASCII
      legal    ␣
      legal    ␁
      illegal  é
      illegal  aé
  )");
}

// Names of directories, where capitals or device names would clash.
TEST(Rules, ofLibraries) {
  expectRules(HERE, R"(
    LibraryNT:
      write    Icon      %%con                   // a device name
      write    ICon      %%Con                   // I keeps its capitals
      write    SCon      %Con      not in MATCH  // the capital is marked, so no device name
      write    SCon      Con       in MATCH
      write    SCOM1     %C%O%M1   not in MATCH  // a mark a capital
      write    ILPT9     %%LPT9
      write    Iconsole  console                 // no device name
      write    FMyLib    %My%Lib                 // whatever the state
      write    IMyLib    MyLib
      write    SESC_a    %E%S%C_a  not in MATCH
      write    Sa%b      a#25b
      write    Sa@b      a@b
      write    Sa-b      a#2db
      write    Ia#2A     a#232A                  // would be read as an escape
      write    Sa#2A     a#232%A   not in MATCH  // the digit of the escape is a capital
      write    SMyLib    MyLib     in MATCH
      write    FCon      %Con
      write    Scon      %%con
      read     %My%Lib   SMyLib
      read     %mY       SMy                     // a mark makes a capital, none a small letter
      read     %ABC      SAbc                    // the same
      read     %%aux     Iaux
      read     %%AUX     IAUX                    // two in front are of the device name
      read     a#20b     Ia␣b
      read     A#20%b    Sa␣B
      read     %a#4A     SA#4a                   // no escape: J needs none
      read     %a#2A     SA*
      read     a#4A      Ia#4A
      read     a#2%a     Sa#2A                   // a mark ends an escape
      legal    con1
      legal    %%COM1
      legal    %a
      legal    a%B
      legal    @
      legal    #
      illegal  Con                               // in any case
      illegal  lpt9
      illegal  AUX
      illegal  %%foo                             // no device name
      illegal  %%con1                            // nor this
      illegal  %%%a
      illegal  %
      illegal  a%1                               // only letters have capitals
      illegal  a%%b
      illegal  é
    LibraryUnix Library Filesys:
      write    IMixed    mixed              // in every state
      write    SMixed    Mixed
      write    IESC_top  esc_top            // a prefix counts only where case does
      write    Scon      con                // no device names
      write    Sa.b      a#2eb
      write    Sa#2E     a#232E             // would be read as an escape
      write    Sa%b      a#25b
      write    SESC_top  ESC_top  in VHDL DEFAULT
      write    SESC_top  top      in TANDEM MATCH
      write    FESC_top  ESC_top  in VHDL DEFAULT
      write    FESC_top  top      in TANDEM MATCH
      write    SESC_     ""       in TANDEM MATCH
      read     Top       STop     not in MATCH
      read     Top       FTop     in MATCH  // the only reader that forces case
      read     A#2eb     SA.b     not in MATCH
      read     A#2eb     FA.b     in MATCH
      read     top       Itop
      read     a#2Eb     Ia.b
      read     con       Icon
      legal    Con
      legal    a_@#9
      illegal  a.b
      illegal  %a
      illegal  a␣b
      illegal  é
  )");
}

TEST(Rules, ofVellum) {
  expectRules(HERE, R"(
    Vellum:
      write    SAbc       \Abc\  not in MATCH  // plain names have no case
      write    SAbc       Abc    in MATCH
      write    FAbc       \Abc\                // forced in every state
      write    IAbc       Abc
      write    SESC_Abc   \Abc\
      write    SESC_      \\
      write    IESC_abc   ESC_abc
      write    Sabc       abc
      write    SA:b       'A:b'  in MATCH
      write    SESC_abc   \abc\
      write    FESC_abc   \abc\
      write    Sit's      'it''s'              // a quote is doubled
      write    S'         ''''
      write    Sa\b       'a\b'
      write    S␣a        #20a                 // blanks at the ends are escaped
      write    Sa␣        a#20
      write    S␣␣        #20#20
      write    I␣:␣       '#20:#20'            // between the quotes
      write    Sa␉        a#09
      write    Sé         #e9
      write    FA\b       \A\\b\               // a backslash is doubled
      write    FA'b       \A'b\
      write    FA␉        \A#09\
      write    FA#09      \A#2309\
      read     \abc\      SESC_abc             // the prefix says that it was escaped
      read     \Abc\      SAbc
      read     \a\\b\     SESC_a\b
      read     \\         SESC_
      read     \a#09\     SESC_a#09
      read     Abc        IAbc
      read     'a:b'      Ia:b
      read     'it''s'    Iit's
      read     "a""b"     Ia"b
      read     ''''       I'
      read     x'a:'y     Ixa:y                // quotes may stand inside
      read     a'␣'b      Ia␣b
      read     '\'        I\                   // plain between quotes
      read     #20a       I␣a
      read     ''#20a     I␣a                  // an escaped blank is read in front of all else
      read     'a:#20'    Ia:␣                 // in front of the closing quote
      read     'a:'#20    Ia:␣                 // and at the end
      read     a#20b      Ia#20b               // but not inside
      read     'a:#20'b   Ia:#20b
      read     'a#20''b'  Ia#20'b
      read     a#20''     Ia#20
      read     #20#20a    I␣#20a
      read     a#E9       Iaé
      legal    a␣b
      legal    "a<b"
      legal    '\'
      legal    \\
      legal    \␣a␣\                           // blanks count there
      illegal  ␣a
      illegal  a␣
      illegal  a"
      illegal  '␣a'                            // blanks at the ends
      illegal  'a␣'
      illegal  a'␣'
      illegal  'a"b:'c"                        // the other quote opens
      illegal  \
      illegal  \a\b\
      illegal  \a\\
      illegal  \a␉\
  )");
}
