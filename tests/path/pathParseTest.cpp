// What each grammar accepts, and what it keeps of what it refuses: languages, then a text, its items and what is noted
// of it, in the spelling of pathSupport.h; behind "each", several texts of which the same is kept.
#include "path/pathSupport.h"

namespace {

void expectParsed(const char *file, int line, const char *table) {
  for (Row &row : rowsOf(file, line, table)) {
    const bool isEach = row[0] == "each";
    for (const std::string &source : wordsOf(row.heading))
      for (const std::string &text : isEach ? wordsOf(row.cells[1]) : std::vector{row[0]}) {
        const Path path = parse(source, text.c_str());
        const std::string where = std::string(text).append(" of ").append(source);
        row.expect(row[isEach ? 2 : 1], itemsOf(path.get()), where);
        row.expect(row[isEach ? 3 : 2], flagsOf(path.get()), where);
      }
  }
}

TEST(PathParse, Verilog) {
  expectParsed(HERE, R"(
    Verilog VerilogAMS Kirra KirraHDL:
      ""                       ""
      ␣a . b␣                  a b                      hierarchy
      each  a. a..b a.{b}  a  error hierarchy
      each  .a [3] ,a  ""  error
      a b                      a b                      error       // of blanks, only one between names is refused
      each  aé a[1:2:3] a[.b] a[3{ a[-␣3] a[] a{  a  error
      a[3].b                   a [3] b                  hierarchy index mid-index
      a[7:0].b                 a [7:0] b                hierarchy range mid-range
      a[ 3 : 0 ]               a [3:0]                  range
      a[-4:+2]                 a [-4:2]                 range
      a[-]                     a [0]                    index
      a[3]{b}                  a [3] { b }              index
      a[1][2]                  a [1]                    error index
      a[,b]                    a , b                    error list  // the comma is taken right behind an open bracket
      a[}                      a }                      error
      a,                       a ,                      error list
      a[-200001]               a                        error       // out of range
      a[18446744073709551617]  a                        error       // 2^64 + 1
      {2{a,b}}                 { <*2> { a , b } }       repeat list
      {-2{a}}                  { <*-2> { a } }          repeat
      {2{3{a}}}                { <*2> { <*3> { a } } }  repeat
      {3a}                     { a }                                // a number counts only in front of a brace
      {,a}                     { , a }                  list
      {a}3                     { a }                                // nor here
      {a},b                    { a } , b                list
      a,{b}                    a , { b }                list
      a,,b                     a ,                      error list
      {a                       { a                      error
      {2}                      {                        error
      {a}}                     { a } }                  error
      {a}.b                    { a }                    error
      {a}[3]                   { a }                    error
      {1897152{a}}             {                        error       // out of range
    Verilog VerilogAMS:
      \a.b .c   \a.b␣ c  hierarchy
      \a+b␉     \a+b␉
      a$1._     a$1 _    hierarchy
      \a.b c    \a.b␣ c  error
      \ab       ""       error  // not closed
      analog    analog          // the words of Verilog count, those of VerilogAMS when the name is converted
      a.module  a        error hierarchy
      $a        ""       error
      a:b       a        error
      a[1].3b   a [1]    error hierarchy index mid-index
    KirraHDL:
      \a$b .c   \a$b␣ c  hierarchy
      a$b       a        error  // no $ in names
    Kirra:
      a\.b.c     a\.b c      hierarchy
      \+a[3]     \+a [3]     index
      a\+[3]     ""          error
      a!.b[0:3]  a! b [0:3]  hierarchy range
      a.model    a           error hierarchy
      a\         ""          error
    // The character behind an escaped one is taken untested: a bracket there is part of the name, a divider never.
    Kirra:
      Table\[0\]\[2\].x  Table\[0\]\[2\] x  hierarchy
      \{\,\}\,[3]        \{\,\}\, [3]       index
      a\[0\][3]          ""                 error
      a\+\[3.b           a\+\[3 b           hierarchy
      a\+\[3]            a\+\[3             error
      a\+\+[3]           a\+\+ [3]          index
      a\+\\\\[3]          a\+\\\\ [3]         index      // behind two backslashes a bracket is not escaped
      a\+\.b             ""                 error
  )");
}

TEST(PathParse, VHDL) {
  const VHDLMode allWords(2); // the reserved words of VHDL count, whatever the variant
  expectParsed(HERE, R"(
    VHDL VHDLAMS VHDL87:
      :top:u1(3)          top u1 [3]            hierarchy index
      ␣: a : b␣           a b                   hierarchy
      a(7 downto 0)       a [7:0]               index range
      a(5 to 3)           a [5:3]               index range      // the direction word does not count
      a(7downto 0)        a [7:0]               index range
      a(7 DownTo␉0)       a [7:0]               index range
      a( 1 to␣␣2 )        a [1:2]               index range
      a(3):b              a [3] b               hierarchy index mid-index
      a(3)b               a [3]                 error index
      a(3 )               a                     error index      // the blank takes the bracket with it
      a(3 ))              a [3]                 index            // so it needs another
      each  a(7␣downto0) a(7␣downto a(3␣␣ a(0␣to␣3␣to␣4) a() a(-1) a(3:4) a(1897152) a(1␣to␣1897152)  a  error index
      each  a:(3) a: a:@c a:Entity  a  error hierarchy
      each  (3) "" : 1a pure a__b \ \a \a␉b\ \aé\  ""  error
      each  @ @.c @l␣c @l.c.d @l.c(v @l.c(v␣w) @l.c(v)( @c(v) @a__b  ""  error
      a b                 a                     error
      aé                  a                     error
      a,b,c               a , b , c             list
      a& b                a , b                 list
      a&b                 a ,                   error list       // the character behind & goes unread
      a&bc                a , c                 list             // so c is left of bc
      a&                  a ,                   error list
      a,b&c               a , b                 error list
      ,a                  , a                   list
      a,:b                a ,                   error hierarchy list
      @l.c(v)             @Il.Ic(Iv)
      ␣@ l . c ( v )␣     @Il.Ic(Iv)
      a(3)@c              a [3] @-.Ic           index
      @l.c(v):a           @Il.Ic(Iv) a          hierarchy
      @c:a                @-.Ic a               hierarchy
      a(3)@c:b            a [3] @-.Ic b         hierarchy index  // behind a lone cell no index is noted
      a(1 to 2)@l.c(v):b  a [1:2] @Il.Ic(Iv) b  hierarchy index range mid-range
      @l.c,a              , a                   list             // only a colon and the end keep a library reference
      quantity            quantity                               // a word of VHDLAMS alone counts when the name is converted
      \a b\:c             \a b\ c               hierarchy
      \a\\b\(3)           \a\\b\ [3]            index
      \a:(b\              \a:(b\
      \a\b                \a\                   error            // the backslash closes it
  )");
}

// Names are not tested for legality. What was read of a refused index stays, brackets that hold or close nothing do
// not, and the rest is read as if the index had ended there.
TEST(PathParse, ORKA) {
  expectParsed(HERE, R"(
    ORKA:
      /a            ^a
      /top/u1<1>/n  ^top u1 [1] n          hierarchy index mid-index
      ␣/ a / b␣     ^a b                   hierarchy
      /a,/b         ^a , ^b                list
      (a,b)         { a , b }              list
      <*2>(a,b)     <*2> { a , b }         repeat list
      < *2 >a       <*2> a                 repeat
      (<*2>a)       { <*2> a }             repeat
      each  "" / ,a /(a) <* <*1897152>a  ""  error
      a,            a ,                    error list
      (a            { a                    error
      a)            a }                    error
      ()            {                      error
      ((a))         {                      error
      (a),b         { a }                  error
      (a)/b         { a }                  error
      each  a> aé a< a(x) a(3 a()  a  error
      <2>           2                      error                                // no repeat
      <*2>          <*2>                   error repeat
      <*2><*3>a     <*2>                   error repeat
      a(12)(3)b/c   a(12)(3)b c            hierarchy
      2*3+[:].{}    2*3+[:].{}
      \             \
      \a/ b\/c      \a/ b\ c               hierarchy
      a\b\          a \b\                  error
      a<3>          a [3]                  index
      a<0 :7␉>      a [0:7]                index range
      a<0:7:2>      a [0:7:2] ?            index range complex-index            // the walk trips over the step of a short step range
      a<0:6:2*200>  a [0:6:2] ? [*200]     index range complex-index
      a<1,2:3,4>    a [1] [2:3] [4]        index range
      a<1*2,3>      a [1] [*2] [3]         index complex-index
      a<(1,2)*3>    a ( [1] [2] ) [*3]     index complex-index
      a<((1,2)3)>   a ( ( [1] [2] ) [3] )  index
      a<0:7>/b      a [0:7] b              hierarchy index range mid-range
      a<0:200:2>/b  a [0:200:2] b          hierarchy index range complex-index  // not of a long one
      a<1*200>/b    a [1] [*200] b         hierarchy index complex-index
      a<3           a [3]                  error index
      a<3:>         a                      error index
      a<3: 4>       a 4                    error index                          // no blank there
      a<3:4:2:1>    a [3:4:2] ? :1         error index range complex-index
      a<1)>         a [1] }                error index                          // closes no index list
      a<*2>         a *2                   error
      a<(1,(2))>    a ( [1]                error index
      a<1><2>       a [1] [2]              error index
      a<1,>         a [1]                  error index
      a<1,,2>       a [1] , 2              error index list
      a<,1>         a , 1                  error list
      a<1 2>        a [1] 2                error index
      a<1:2 3/b     a [1:2] 3 b            error hierarchy index range
      a<1*2*3>      a [1] [*2] *3          error index complex-index
      a<()>         a }                    error                                // holds nothing
      a<(1)         a ( [1] )              error index
      a<((1,2),3)>  a ( ( [1] [2] ) , 3 }  error index list
      a<1897152>    a 1897152              error
      a<1*1897152>  a [1] 1897152          error index complex-index
  )");
}

// Separators may have another meaning of their own. LEF and DEF names are tested for the characters of the format
// itself, whatever the handle.
TEST(PathParse, BusFormats) {
  expectParsed(HERE, R"(
    Sdf Spf Spef Lef Def:
      ""                  ""
      a/b[3]              a b [3]              hierarchy index
      ␣a / b [ 3 ]␣       a b [3]              hierarchy index
      /a/b                a b                  hierarchy leading-divider
      / //a               a                    leading-divider
      a[3]/b              a [3] b              hierarchy index mid-index
      [3:0]/b             [3:0] b              hierarchy range mid-range
      a[1][2:0]           a [1] [2:0]          index range
      a[3[4]              a [4]                index                            // a bus opens anew anywhere
      a[-3:+4]            a [-3:4]             range
      a[-:-]              a [0:0]              range
      a/                  a                    error hierarchy
      a//b                a                    error hierarchy
      a[3]/               a [3]                error hierarchy index mid-index  // an index is noted before the next level
      a[3]]               a [3]                error index
      each  a] aé a[:3] a[3:] a[/b] a[1:2:3] a[3␣4] a[-200001] a[1897152]  a  error
      a[b]                a b                  error
    Sdf Spf Spef:
      a\/b\[3\]/c  a\/b\[3\] c  hierarchy
      a:b          a ''         error  // a colon ends a name and starts none
      :a           '' ''        error  // so names without characters come of it
    Lef Def:
      a:b/c          a:b c          hierarchy  // the colon is a character of names
      a\/b\[3\]/c\#  a\/b\[3\] c\#  hierarchy
      a#b            ""             error
      a;b            a              error
    Gcf:
      a.b<3>       a b [3]        hierarchy index
      a<1:0><5:4>  a [1:0] [5:4]  range
      a:b          a ''           error
    Tessel:
      |top|a[3]  top a [3]  hierarchy index leading-divider
      a\|b\[|c   a\|b\[ c   hierarchy
      [3]        [3]        error index
      a|[3]|b    a [3] b    error hierarchy index mid-index
      a[3[4]     a [4]      error index
      ||[        ""         error leading-divider
    FlatTessel:
      a|b/c:d[1:0]  a|b/c:d [1:0]  range
      a\[3          a\[3
      a\[3]         a\[3           error
      a␁b           a              error
    Spice:
      ""       ""
      a.b.c    a b c   hierarchy
      a[3]     a[3]
      a\.b.c   a\.b c  hierarchy
      a..b     a       error hierarchy
      a.       a       error hierarchy
      a b      a b     error
      [a       ""      error
      a:b      ""      error
      a:.b     a: b    hierarchy
      ab\:c    ab\:c
    Sdf(.<>) Spf(.<>) Spef(.<>) Lef(.<>) Def(.<>):
      a.b<3>       a b [3]       hierarchy index
      ..a          a             leading-divider
      a\.b<1:0>.c  a\.b [1:0] c  hierarchy range mid-range
    Spf(.<>):
      a/b[3]  a/b[3]  // plain, now that they separate nothing
    Lef(.<>):
      a/b  ""  error  // never in a name of LEF
    Lef(\):
      a\b  a b  hierarchy
    Def(.<>):
      a/b  a/b
    Spef(:):
      a:b     a b  hierarchy
    Sdf(xoc):
      axbo3c  a b [3]  hierarchy index
      xa\xb   a\xb     leading-divider
      o1:0c   [1:0]    range
    Sdf(1):
      a1b   a b  hierarchy
      a[1]  a    error
  )");
}

TEST(PathParse, NamesUpToTheLimit) {
  const std::string longest(ZEL_MAX_NAME, 'a');
  for (std::size_t i = 0; i < pathLanguages.size(); ++i) {
    SCOPED_TRACE(pathLanguages[i]);
    EXPECT_EQ(internals::languageOf(parse(pathLanguages[i], "a").get()), i + 1);
    EXPECT_EQ(parse(pathLanguages[i], nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);
    const Path kept = parse(pathLanguages[i], longest.c_str());
    EXPECT_EQ(itemsOf(kept.get()) + flagsOf(kept.get()), longest);
    EXPECT_EQ(flagsOf(parse(pathLanguages[i], (longest + "a").c_str()).get()), "error");
    for (const std::string &escaped : {"\\" + longest + "a ", "\\" + longest + "a\\", repeated("\\+", 1024)})
      EXPECT_TRUE(hasError(parse(pathLanguages[i], escaped.c_str()).get())) << shown(escaped);
  }
}

} // namespace
