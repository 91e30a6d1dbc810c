// What the printers write, and what they expand to.
#include "path/pathSupport.h"

namespace {

constexpr int explode = ZEL_PRINT_EXPLODE;
constexpr int top = ZEL_PRINT_TOP;
constexpr int group = ZEL_PRINT_GROUP;

// The flags of each alternative, as in "plain or explode noRepeat".
std::vector<int> flagsIn(const std::string &words) {
  const std::map<std::string, int> names = {
      {"explode", explode}, {"noRepeat", ZEL_PRINT_NOREPEAT}, {"group", group}, {"top", top}, {"plain", 0}};
  std::vector<int> alternatives = {0};
  for (const std::string &word : wordsOf(words))
    if (word == "or")
      alternatives.push_back(0);
    else
      alternatives.back() |= names.at(word);
  return alternatives;
}

// From a language, or from items as itemsOf shows them, to others, under which flags; a text, and what is printed.
void expectPrinted(const char *file, int line, const char *table) {
  for (Row &row : rowsOf(file, line, table))
    for (const std::string &target : wordsOf(row[1]))
      for (const int flags : flagsIn(row[2]))
        row.expect(row[4],
                   row[0] == "items" ? printed(built(row[3]), target, flags) : mapped(row[0], row[3], target, flags),
                   target + ", flags " + std::to_string(flags));
}

// One path in every target: ORKA, VHDL, those with bars, those with slashes, GCF, SPICE, and the Verilog group.
TEST(PathPrint, EveryTarget) {
  const char *const columns[] = {"ORKA", "VHDL",  "Tessel FlatTessel",     "Lef Def Sdf Spf Spef",
                                 "Gcf",  "Spice", "Verilog Kirra KirraHDL"};
  for (Row &row : rowsOf(HERE, R"(
    a/b<3>     :a:b(3)           a|b[3]          a/b[3]          a.b<3>          a.b[3]          a.b[3]
    /a/b<3:0>  :a:b(3 downto 0)  a|b[3:0]        a/b[3:0]        a.b<3:0>        a.b[3:0]        a.b[3:0]
    a<0:4:2>   a(0),a(2),a(4)    a[0],a[2],a[4]  a[0],a[2],a[4]  a<0>,a<2>,a<4>  a[0],a[2],a[4]  a[0],a[2],a[4]
    a,b/c      :a&&:b:c          a,b|c           a,b/c           a,b.c           a,b.c           a,b.c
    <*2>(a,b)  !ERROR!a&&b       {2{a,b}}        {2{a,b}}        {2{a,b}}        {2{a,b}}        2{a,b}
    <*2>a      !ERROR!a          {2{a            {2{a            {2{a            {2{a            2{a}}
    a,<*2>(b)  a&&!ERROR!b       a,{2{b}}        a,{2{b}}        a,{2{b}}        a,{2{b}}        a,2{b}
  )"))
    for (std::size_t column = 0; column < std::size(columns); ++column)
      for (const std::string &target : wordsOf(columns[column]))
        row.expect(row[column], mapped("ORKA", row[0], target, ZEL_PRINT_NOCOMPLEX), target);
}

TEST(PathPrint, ListsGroupsAndRepeats) {
  expectPrinted(HERE, R"(
    Verilog  Verilog Kirra KirraHDL  plain          {2{a,b}}            {2{a,b}}
    Verilog  Verilog Kirra KirraHDL  plain          a[3]b               a[3].b
    Verilog  Verilog Kirra KirraHDL  plain          a[3]{b}             a[3]{.b}
    Verilog  Verilog Kirra KirraHDL  plain          {a}b                {a}.b
    Verilog  Verilog Kirra KirraHDL  plain          {}                  {}
    Verilog  Verilog Kirra KirraHDL  plain          {,a}                {,a}
    Verilog  Verilog Kirra KirraHDL  plain          a[-200000:1897151]  a[-200000:1897151]
    Verilog  Sdf Lef                 plain          {2{a,b}}            {{2{a,b}}}
    Verilog  Sdf Lef                 plain          {2{3{a}}}           {{2{{3{a}}}}
    Verilog  Sdf Lef                 plain          {3a}                {a}
    Verilog  ORKA                    plain          {2{a}}              (<*2>(a))
    Verilog  ORKA                    plain          a[3]{b}             a<3,(>b)
    Verilog  ORKA                    plain          a[-1:1]             a<-1:1>
    Verilog  VHDL                    plain          a[3:3]              a(3 to 3)
    Verilog  VHDL                    plain          a[-1:-2]            a(-1 downto -2)
    ORKA     Verilog                 group          a                   a
    ORKA     Verilog                 group          a,b                 {a,b}
    ORKA     Verilog                 group          (a,b)               {{a,b}}
    ORKA     Verilog                 group          a<0:2:2>            {a[0],a[2]}
    ORKA     Verilog                 group          <*2>a               {2{a}}}
    ORKA     Verilog                 group          a<0:1,3>            a[0:1],a[3]
    ORKA     Verilog                 group explode  a<1:0>              a[1],a[0]
    ORKA     Verilog                 group explode  a<1*1>              {a[1],a[1]}
    ORKA     Kirra KirraHDL          group          a,b                 a,b}
    ORKA     Kirra KirraHDL          group          <*2>a               2{a}}}
    ORKA     VHDL                    group          a<0:2:2>,b          a(0)&&a(2)&&b
    ORKA     Tessel FlatTessel Spice Lef Def Sdf Spf Spef Gcf ORKA  group          a                   a
    ORKA     ORKA                    group          a<1,2:3,0:6:2>      a<1,2:3,0:6:2>
    ORKA     ORKA                    group          (a<3>,b<1>)         (a<3>,b<1>)
    ORKA     ORKA                    group          a<(0,2)>            a<(,0,2)>
    ORKA     ORKA                    group          a<(1)*3>/b          a<(,1)*3>/b
    ORKA     ORKA                    group          <*2>/a              <*2>/a
    ORKA     ORKA                    group          a<0:5:0>            a<0:5:0>
    ORKA     ORKA                    top            /a/b<3:0>           /a/b<3:0>
    ORKA     ORKA                    top            a,b<1>              /a,/b<1>
    VHDL     VHDL                    explode        a(1 downto 0),b     a(1),a(0)&&b
    VHDL     VHDL                    explode        @l.c:a(1 downto 0)  @l.c:a(1),@l.c:a(0)
    VHDL     VHDL                    explode group  a(1 downto 0)       a(1)&&a(0)
  )");
}

// Dividers in front, which only some targets have; library references, which only VHDL has; names as each space spells
// them.
TEST(PathPrint, Names) {
  expectPrinted(HERE, R"(
    Tessel      Tessel FlatTessel     plain    |top|a[3]          |top|a[3]
    Tessel      Sdf Spf Spef Lef Def  plain    |top|a[3]          /top/a[3]
    Tessel      Verilog Kirra KirraHDL Spice  plain    |top|a[3]          top.a[3]
    Sdf(x)      Lef                   plain    axb\/c             a/b\/c
    Sdf         Gcf                   plain    /a                 .a
    Sdf         Gcf                   plain    /[3]               <3>
    Sdf         ORKA VHDL             plain    /a                 a
    Sdf         Sdf                   plain    /                  ""
    Sdf         Verilog               plain    a.b                ""
    VHDL        ORKA Sdf Verilog      plain    @l.c(v):a          a
    VHDL        ORKA Sdf Verilog      plain    @c                 ""
    VHDL        Verilog               plain    :Top:\a b\(3)      top.\a#20b [3]
    VHDL        VHDL                  plain    @l.c(v)            @l.c(v)
    VHDL        VHDL                  plain    @l.c               @l.c
    VHDL        VHDL                  plain    @c                 @c
    VHDL        VHDL                  plain    @l.c:a             @l.c:a
    VHDL        VHDL                  plain    a&&@c              a&&@c
    Verilog     VHDL                  plain    \a+b .A.c          :\a+b\:\A\:c
    Spice       Verilog               plain    a[3]               \a[3]␣
    Spice       Tessel                plain    a[3]               a\[3\]
    Kirra       Verilog               plain    Table\[0\]\[2\].x  \Table[0][2] .x
    Kirra       Kirra                 plain    a\.b.c             a\.b.c
    VHDL87      VHDL                  plain    quantity:b         :quantity:b  // accepted and converted by the words of VHDL87
    VHDLAMS     VHDL                  plain    quantity:b         ::b  // accepted, but does not convert by its own words
    VerilogAMS  VHDL                  plain    analog.b           ::b  // the same
    items       Verilog               plain    Sa - Sb            a..b
    items       ORKA                  plain    Sa S Sb            a//b
    items       Sdf                   plain    Xa [3] Sb          [3]/b
    items       VHDL                  plain    - Sb               b
    items       Verilog ORKA          plain    @Sl.Sc Sa          a
    items       VHDL                  plain    @Sl.Sc(Sv) Sa      @l.c(v):a
    Tessel      Tessel                explode  ||a[1:0]           |a[1],|a[0]
    Tessel      Lef(.<>) Def(.<>) Sdf(.<>) Spf(.<>) Spef(.<>) Gcf(.<>)  explode  |a|b<[1:0]         .a.b\<<1>,.a.b\<<0>
  )");
  const Path path = built("Sa");
  zelPathAddLib(path.get(), nullptr, nullptr, nullptr, 1);
  zelPathAddLib(path.get(), "Sl", nullptr, "Sv", 1);
  EXPECT_EQ(printed(path, "VHDL"), ":a@@l.(v)");
}

TEST(PathPrint, ShortForms) { // the long ones with malloc, in the order of the targets
  const Path path = parse("Tessel", "|a|b[1:0]");
  auto target = printedLanguages.begin();
  for (const auto shortForm : {zelPathToVerilog, zelPathToKirra, zelPathToKirraHDL, zelPathToVHDL, zelPathToORKA,
                               zelPathToTessel, zelPathToFlatTessel, zelPathToLef, zelPathToDef, zelPathToSdf,
                               zelPathToSpf, zelPathToSpef, zelPathToGcf, zelPathToSpice})
    EXPECT_EQ(take(shortForm(path.get(), nullptr, explode)), printed(path, *target++, explode));
}

TEST(PathPrint, NothingAndTooMuch) {
  const std::string longest = std::string(1023, 'a') + '.' + std::string(1023, 'b');
  for (const std::string &target : printedLanguages)
    for (int flags = 0; flags < 32; ++flags) {
      SCOPED_TRACE(target + ' ' + std::to_string(flags));
      EXPECT_EQ(printed(nullptr, target, flags) + printed(built(""), target, flags), "");
      EXPECT_EQ(mapped("Verilog", 'a' + longest, target, flags), "refused");
      EXPECT_EQ(printed(built('S' + repeated("é", ZEL_MAX_NAME)), target, flags & ~(group | top)), "");
    }
  EXPECT_EQ(mapped("Verilog", longest, "Verilog"), longest);
}

// Before the first identifier a name begins where the path does, and a range there keeps it so; behind a list separator
// a range leaves the beginning of the name where it was. A repeat behind the first index is all that varies. The names
// behind the first of an ORKA path begin at the identifier, without the mark.
TEST(PathExplode, Enumerations) {
  expectPrinted(HERE, R"(
    ORKA     Verilog  plain or explode  a<0:6:2>                 a[0],a[2],a[4],a[6]
    ORKA     Verilog  plain or explode  a<6:0:2>                 a[6],a[4],a[2],a[0]
    ORKA     Verilog  plain or explode  a<0:5:2>                 a[0],a[2],a[4]
    ORKA     Verilog  plain or explode  a<3:3:2>                 a[3]
    ORKA     Verilog  plain or explode  a<0:1:5>                 a[0]
    ORKA     Verilog  plain or explode  a<0:300:150>             a[0],a[150],a[300]
    ORKA     Verilog  plain or explode  a<(0,2,4)>               a[0],a[2],a[4]
    ORKA     Verilog  plain or explode  a<(1)>                   a[1]
    ORKA     Verilog  plain or explode  a<(1)(2)>                a[1],a[2]
    ORKA     Verilog  plain or explode  a<(0,1)>/b<(2,3)>        a[0].b[2],a[0].b[3],a[1].b[2],a[1].b[3]
    ORKA     Verilog  plain or explode  a<0*2>                   a[0],a[0],a[0]
    ORKA     Verilog  plain or explode  a<3*0>                   a[3]
    ORKA     Verilog  plain or explode  a<0:1*1>                 a[0],a[1],a[0],a[1]
    ORKA     Verilog  plain or explode  a<(0,1)*1>               a[0],a[1],a[0],a[1]
    ORKA     Verilog  plain or explode  a<(0:1*1)>               a[0],a[1],a[0],a[1]
    ORKA     Verilog  plain or explode  a<1,2>,b<3,4>            a[1],a[2],b[3],b[4]
    ORKA     Verilog  plain or explode  a<((0,1)*1(2))*1>        a[0],a[1],a[0],a[1],a[2],a[0],a[1],a[0],a[1],a[2]
    ORKA     Verilog  plain             a<1*1,3>                 a[1][3],a[1][3]
    ORKA     Verilog  plain             a<1:0>/b<0:2:2>          a[1:0].b[0],a[1:0].b[2]
    ORKA     Verilog  explode           a<1,2:3>                 a[1],a[2],a[3]
    ORKA     Verilog  explode           a<(0:1*1,5)>             a[0],a[1],a[0],a[1],a[5]
    ORKA     ORKA     noRepeat          a<0*2>                   a<0>,a<0>,a<0>
    ORKA     ORKA     noRepeat          a<0:1*1>                 a<0>,a<1>,a<0>,a<1>
    ORKA     ORKA     noRepeat          <*200>a                  <*200>a
    ORKA     ORKA     noRepeat          <*2>a<0*200>/b           <*2>a<0*200>/b
    ORKA     ORKA     noRepeat          a<1:0>                   a<1:0>
    ORKA     ORKA     noRepeat          a<0*1>,b                 a<0>,a<0>,b
    ORKA     ORKA     explode noRepeat  a<0:2:2>                 a<0>,a<2>
    ORKA     ORKA     explode noRepeat  (a<1:0>,b)               (a<1>,a<0>,b)
    ORKA     ORKA     explode noRepeat  <*2>(a<1:0>)             <*2>(a<1:0>)
    ORKA     ORKA     explode noRepeat  /a<1:0>                  /a<1>,a<0>
    ORKA     ORKA     explode top       /a<1:0>                  /a<1>,/a<0>
    Verilog  Verilog  explode           a[3:0]                   a[3],a[2],a[1],a[0]
    Verilog  Verilog  explode           a[5:5]                   a[5]
    Verilog  Verilog  explode           a[-1:1]                  a[-1],a[0],a[1]
    Verilog  Verilog  explode           a.b[1:0],c               a.b[1],a.b[0],c
    Verilog  Verilog  explode           {a[1:0],b[1:0].c}        {a[1],a[0],b[1].c,b[0].c}
    Gcf      Verilog  plain             a<1><2>                  a[1],a[2]
    Gcf      Verilog  explode           a<1:0><5:4>              a[1],a[0],a[5],a[4]
    Gcf      Verilog  explode           a<1><2>.b<3:4><5>        a[1].b[3],a[1].b[4],a[1].b[5],a[2].b[3],a[2].b[4],a[2].b[5]
    Gcf      Verilog  explode           <1:0>.a<1:0>             [1]a[1],[1]a[0],[0]a[1],[0]a[0]
    items    Verilog  explode           Sa , [1:0] Sb [1:0]      a,a,a,a,[1:0]b[1:0]
    items    Verilog  explode           Sa , [3] [1:0] Sb [1:0]  a,a,a,[3][1:0]b[1],b[0]
  )");
  EXPECT_EQ(mapped("ORKA", "a<0*124>", "Verilog"), "a[0]" + repeated(",a[0]", 124));
}

// The bits of a range, as many as a text holds, in names short and long, alone or with a level or an outer range.
TEST(PathExplode, EveryValueUpToTheLimit) {
  for (const std::size_t length : {1U, 7U, 16U, 40U, 300U, 680U, 1020U, 2030U})
    for (const std::string behind : {"", ".b"})
      for (const int outer : {-1, 0, 2}) {
        const auto write = [&](const std::string &outerIndex, const std::string &index) {
          std::string text = outer < 0 ? "" : "a[";
          text.append(outer < 0 ? "" : outerIndex).append(outer < 0 ? "" : "].");
          return text.append(length, 'n').append("[").append(index).append("]").append(behind);
        };
        std::string all;
        for (int last = 0; all.size() <= ZEL_MAX_NAME; last += last < 12 ? 1 : 7) {
          all.clear();
          for (int i = 0; i <= std::max(outer, 0); ++i)
            for (int bit = 0; bit <= last; ++bit)
              all.append(all.empty() ? "" : ",").append(write(std::to_string(i), std::to_string(bit)));
          const std::string text = write("0:" + std::to_string(outer), "0:" + std::to_string(last));
          EXPECT_EQ(mapped("Verilog", text, "Verilog", explode), all.size() <= ZEL_MAX_NAME ? all : "refused");
        }
      }
}

// Groups stay as they are, and so does what is in them when they are to be expanded.
TEST(PathExplode, GroupRepeats) {
  expectPrinted(HERE, R"(
    ORKA   Verilog  explode or explode noRepeat  <*2>a<1:0>,b<1:0>    2{a[1:0]}},b[1],b[0]
    ORKA   Verilog  explode or explode noRepeat  <*2>(a<1:0>,b<1:0>)  2{a[1:0],b[1],b[0]}
    ORKA   Verilog  explode or explode noRepeat  <*2>a<0:2:2>         2{a!ERROR!}}
    ORKA   Verilog  plain     <*2>(a<0:2:2>)       2{a[0],a[2]}
    ORKA   Verilog  plain     <*2>a<0:2:2>         2{a[0],a[2]}}
    ORKA   Verilog  noRepeat  <*2>a<0:2:2>         2{a!ERROR!}}
    ORKA   Verilog  noRepeat  <*2>a<1,2*3>         2{a[1][2]!ERROR!}}
    items  ORKA     plain     Sa [3] <*2> Sb }     a<3,<*2>>b)
    items  Verilog  plain     Sa [0:2:2] <*2> Sb    a[0]2{.b,a[2]2{.b}}
    items  Verilog  plain     Sa [0:2:2] <*200> Sb  a[0],a[2]200{.b}}  // a long repeat ends a name
    items  Verilog  plain     Sa <*2> Sb [0:2:2]    a2{.b[0],b[2]}}
    items  Verilog  explode   <*2> , Sa [1:0] } Sb [1:0]  2{}},a[1:0]}.b[1],b[0]
  )");
}

TEST(PathExplode, EndlessEnumerationsAreGivenUp) {
  for (const std::string &endless : wordsOf("a<0:5:0> a<5:5:0> a<0:5:0*1> a<1,0:5:0> (b,a<0:5:0>) a<0*1897151>"))
    for (const std::string &target : printedLanguages)
      EXPECT_EQ(mapped("ORKA", endless, target, explode), "refused") << endless << " in " << target;
  for (const char *const listed : {"a<(0,1)>", "<*2>a<(0,1)>"})
    EXPECT_DEATH(mapped("ORKA", listed, "ORKA", ZEL_PRINT_NOREPEAT), "setupExplode: Illegal position in zelPath\n");
}

} // namespace
