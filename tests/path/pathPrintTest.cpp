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

// Texts and how they are printed, under headings like "from ORKA to Verilog Kirra, explode"; from items, as itemsOf
// shows them.
void expectPrinted(const char *file, int line, const char *table) {
  for (Row &row : rowsOf(file, line, table)) {
    const std::size_t comma = std::min(row.heading.find(", "), row.heading.size());
    const std::vector<std::string> words = wordsOf(row.heading.substr(0, comma));
    const std::string flagWords = comma != row.heading.size() ? row.heading.substr(comma + 2) : "";
    const std::string &source = words.at(1);
    for (const std::string &target : std::vector<std::string>(words.begin() + 3, words.end()))
      for (const int flags : flagsIn(flagWords))
        row.expect(row[1],
                   source == "items" ? printed(built(row[0]), target, flags) : mapped(source, row[0], target, flags),
                   target + ", flags " + std::to_string(flags));
  }
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
    from Verilog to Verilog Kirra KirraHDL:
      {2{a,b}}            {2{a,b}}
      {2{3{a}}}           {2{3{a}}}
      a[3]b               a[3].b
      a[3]{b}             a[3]{.b}
      {a}b                {a}.b
      {}                  {}
      {,a}                {,a}
      a[-200000:1897151]  a[-200000:1897151]
    from Verilog to Sdf Lef:
      {2{a,b}}   {{2{a,b}}}
      {2{3{a}}}  {{2{{3{a}}}}
      {3a}       {a}
    from Verilog to ORKA:
      {2{a}}   (<*2>(a))
      a[3]{b}  a<3,(>b)
      a[3]b    a<3>/b
      a[-5].b  a<-5>/b
      a[-1:1]  a<-1:1>
    from Verilog to VHDL:
      a[3:3]    a(3 to 3)
      a[-1:-2]  a(-1 downto -2)
    from ORKA to Verilog, group:
      a         a
      a,b       {a,b}
      (a,b)     {{a,b}}
      a<0:2:2>  {a[0],a[2]}
      <*2>a     {2{a}}}
      a<0:1,3>  a[0:1],a[3]
    from ORKA to Verilog, group explode:
      a<1:0>  a[1],a[0]
      a<1*1>  {a[1],a[1]}
    from ORKA to Kirra KirraHDL, group:
      a      a}
      a,b    a,b}
      <*2>a  2{a}}}
    from ORKA to VHDL, group:
      a,b         a&&b
      a<0:2:2>,b  a(0)&&a(2)&&b
    from ORKA to Tessel FlatTessel Spice Lef Def Sdf Spf Spef Gcf ORKA, group:
      a    a
      a,b  a,b
    from ORKA to ORKA, group:
      a<0:6:2>        a<0:6:2>
      a<0:3*2>        a<0:3*2>
      a<1,2:3,0:6:2>  a<1,2:3,0:6:2>
      (a<3>,b<1>)     (a<3>,b<1>)
      a<3>,b          a<3>,b
      a<(0,2)>        a<(,0,2)>
      a<((1)2)>       a<((,1),2)>
      a<(1)*3>/b      a<(,1)*3>/b
      <*2>/a          <*2>/a
      (/a)            (/a)
      a<0:5:0>        a<0:5:0>
    from ORKA to ORKA, top:
      a          /a
      /a/b<3:0>  /a/b<3:0>
      a,b<1>     /a,/b<1>
    from VHDL to VHDL, explode:
      a(1 downto 0),b     a(1),a(0)&&b
      @l.c:a(1 downto 0)  @l.c:a(1),@l.c:a(0)
    from VHDL to VHDL, explode group:
      a(1 downto 0)  a(1)&&a(0)
  )");
}

// Dividers in front, which only some targets have; library references, which only VHDL has; names as each space spells
// them.
TEST(PathPrint, Names) {
  expectPrinted(HERE, R"(
    from Tessel to Tessel FlatTessel:
      |top|a[3]  |top|a[3]
      a|b        a|b
    from Tessel to Tessel, explode:
      ||a[1:0]  |a[1],|a[0]
    from Tessel to Sdf Spf Spef Lef Def:
      |top|a[3]  /top/a[3]
    from Tessel to Verilog Kirra KirraHDL Spice:
      |top|a[3]  top.a[3]
    from Tessel to Lef(.<>) Def(.<>) Sdf(.<>) Spf(.<>) Spef(.<>) Gcf(.<>), explode:
      |a|b<[1:0]  .a.b\<<1>,.a.b\<<0>
    from Sdf(x) to Lef:
      axb\/c  a/b\/c
    from Sdf to Gcf:
      /a    .a
      /[3]  <3>
    from Sdf to ORKA VHDL:
      /a  a
    from Sdf to Sdf:
      /  ""
    from Sdf to Verilog:
      a.b    ""
      a.b/c  .c
    from VHDL to ORKA Sdf Verilog:
      @l.c(v):a  a
      @c         ""
    from VHDL to Verilog:
      :Top:\a b\(3)  top.\a#20b [3]
    from VHDL to VHDL:
      @l.c(v)   @l.c(v)
      @l.c      @l.c
      @c        @c
      a@l.c(v)  a@l.c(v)
      @l.c:a    @l.c:a
      a&&@c     a&&@c
    from Verilog to VHDL:
      \a+b .A.c  :\a+b\:\A\:c
    from Spice to Verilog:
      a_3.b  a_3.b
      a[3]   \a[3]␣
    from Spice to Tessel:
      a[3]  a\[3\]
    from Verilog to Kirra:
      \Table[0][2] .x  Table\[0\]\[2\].x
    from Kirra to Verilog:
      Table\[0\]\[2\].x  \Table[0][2] .x
    from Kirra to Kirra:
      a\.b.c  a\.b.c
    from KirraHDL to KirraHDL:
      \a+b .c  \a+b .c
    from VHDL87 to VHDL:
      quantity:b  :quantity:b  // accepted and converted by the words of VHDL87
    from VHDLAMS to VHDL:
      quantity:b  ::b  // accepted, but does not convert by its own words
    from VerilogAMS to VHDL:
      analog.b  ::b  // the same
    from items to Verilog:
      Sa - Sb  a..b
    from items to ORKA:
      Sa S Sb  a//b
    from items to Sdf:
      Xa [3] Sb  [3]/b
    from items to VHDL:
      - Sb           b
      @Sl.Sc(Sv) Sa  @l.c(v):a
    from items to Verilog ORKA:
      @Sl.Sc Sa  a
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
    from ORKA to Verilog, plain or explode:
      a<0:6:2>           a[0],a[2],a[4],a[6]
      a<6:0:2>           a[6],a[4],a[2],a[0]
      a<0:5:2>           a[0],a[2],a[4]
      a<5:0:2>           a[5],a[3],a[1]
      a<3:3:2>           a[3]
      a<0:1:5>           a[0]
      a<0:300:150>       a[0],a[150],a[300]
      a<(0,2,4)>         a[0],a[2],a[4]
      a<(1)>             a[1]
      a<1,0:4:2>         a[1],a[0],a[2],a[4]
      a<(1)(2)>          a[1],a[2]
      a<((1,2)3)>        a[1],a[2],a[3]
      a<(0,1)>/b<(2,3)>  a[0].b[2],a[0].b[3],a[1].b[2],a[1].b[3]
      a<0*2>             a[0],a[0],a[0]
      a<3*0>             a[3]
      a<0:1*1>           a[0],a[1],a[0],a[1]
      a<0:2:2*1>         a[0],a[2],a[0],a[2]
      a<(0,1)*1>         a[0],a[1],a[0],a[1]
      a<(0:1*1)>         a[0],a[1],a[0],a[1]
      a<3,1*1,4>         a[3],a[1],a[1],a[4]
      a<1,2>,b<3,4>      a[1],a[2],b[3],b[4]
      a<((0,1)*1(2))*1>  a[0],a[1],a[0],a[1],a[2],a[0],a[1],a[0],a[1],a[2]
    from ORKA to Verilog:
      a<1,2:3>         a[1],a[2:3]
      a<1*1,3>         a[1][3],a[1][3]
      a<1:0>/b<0:2:2>  a[1:0].b[0],a[1:0].b[2]
    from ORKA to Verilog, explode:
      a<1,2:3>       a[1],a[2],a[3]
      a<(1:0,5)*1>   a[1],a[0],a[5],a[1],a[0],a[5]
      a<(0:1*1,5)>   a[0],a[1],a[0],a[1],a[5]
      a<1:0>/b<2,3>  a[1].b[2],a[1].b[3],a[0].b[2],a[0].b[3]
    from ORKA to ORKA, noRepeat:
      a<0*2>          a<0>,a<0>,a<0>
      a<0:1*1>        a<0>,a<1>,a<0>,a<1>
      <*200>a         <*200>a
      a<1,2>          a<1,2>
      <*2>a<0*1>      <*2>a<0*1>
      <*2>a<0*200>/b  <*2>a<0*200>/b
      a<0:6:2>        a<0:6:2>
      a<1:0>          a<1:0>
      a<0*1>,b        a<0>,a<0>,b
    from ORKA to ORKA, explode noRepeat:
      a<0:2:2>      a<0>,a<2>
      a<(0,2)>      a<0>,a<2>
      a<1:0>/b      a<1>/b,a<0>/b
      (a<1:0>,b)    (a<1>,a<0>,b)
      <*2>(a<1:0>)  <*2>(a<1:0>)
      /a<1:0>       /a<1>,a<0>
    from ORKA to ORKA, explode top:
      /a<1:0>  /a<1>,/a<0>
    from Verilog to Verilog, explode:
      a[3:0]             a[3],a[2],a[1],a[0]
      a[5:5]             a[5]
      a[-1:1]            a[-1],a[0],a[1]
      a.b[1:0],c         a.b[1],a.b[0],c
      a[122:125]         a[122],a[123],a[124],a[125]
      a[1:0].b[5:4]      a[1].b[5],a[1].b[4],a[0].b[5],a[0].b[4]
      {a[1:0],b[1:0].c}  {a[1],a[0],b[1].c,b[0].c}
    from Gcf to Verilog:
      a<1><2>      a[1],a[2]
      a<1:0><5:4>  a[1:0],a[5:4]
    from Gcf to Verilog, explode:
      a<1:0><5:4>        a[1],a[0],a[5],a[4]
      a<1><2>.b<3:4><5>  a[1].b[3],a[1].b[4],a[1].b[5],a[2].b[3],a[2].b[4],a[2].b[5]
      <3:0>              [3],[2],[1],[0]
      <1:0>.a<1:0>       [1]a[1],[1]a[0],[0]a[1],[0]a[0]
    from items to Verilog, explode:
      Sa , [1:0] Sb            a,a,[1:0]b
      Sa , [1:0] Sb [1:0]      a,a,a,a,[1:0]b[1:0]
      Sa , [3] [1:0] Sb [1:0]  a,a,a,[3][1:0]b[1],b[0]
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
    from ORKA to Verilog, explode or explode noRepeat:
      <*2>a<1:0>,b<1:0>    2{a[1:0]}},b[1],b[0]
      <*2>(a<1:0>,b<1:0>)  2{a[1:0],b[1],b[0]}
      <*2>a<0:2:2>         2{a!ERROR!}}
    from ORKA to Verilog:
      <*2>(a<0:2:2>)  2{a[0],a[2]}
      <*2>a<0:2:2>    2{a[0],a[2]}}
    from ORKA to Verilog, noRepeat:
      <*2>a<0:2:2>  2{a!ERROR!}}
      <*2>a<1,2*3>  2{a[1][2]!ERROR!}}
    from items to ORKA:
      Sa <*2> Sb        a,<*2>b
      Sa [3] <*2> Sb }  a<3,<*2>>b)
    from items to Verilog:
      Sa <*2> Sb [0:2:2]  a2{.b[0],b[2]}}
    from items to Verilog, explode:
      <*2> , Sa [1:0] } Sb [1:0]  2{}},a[1:0]}.b[1],b[0]
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
