// What the printers write. A case reads "text -> printed text".
#include "path/pathSupport.h"

namespace {

constexpr int explode = ZEL_PRINT_EXPLODE;
constexpr int noRepeat = ZEL_PRINT_NOREPEAT;
constexpr int group = ZEL_PRINT_GROUP;
constexpr int top = ZEL_PRINT_TOP;

template <typename... Case>
void expectPrinted(const char *source, std::initializer_list<const char *> spaces, int flags, const Case *...cases) {
  for (const char *const target : spaces)
    for (const std::string &row : {std::string(cases)...}) {
      const std::string text = row.substr(0, row.find(" -> "));
      EXPECT_EQ(text + " -> " + mapped(source, text, target, flags), row) << target;
    }
}

// One path in every target: ORKA, VHDL, the targets with bars, with slashes, GCF, SPICE, and the Verilog group.
TEST(PathPrint, EveryTarget) {
  const char *const rows[][7] = {
      {"a/b<3>", ":a:b(3)", "a|b[3]", "a/b[3]", "a.b<3>", "a.b[3]", "a.b[3]"},
      {"/a/b<3:0>", ":a:b(3 downto 0)", "a|b[3:0]", "a/b[3:0]", "a.b<3:0>", "a.b[3:0]", "a.b[3:0]"},
      {"a<3>/b<0:3>", ":a(3):b(0 to 3)", "a[3]|b[0:3]", "a[3]/b[0:3]", "a<3>.b<0:3>", "a[3].b[0:3]", "a[3].b[0:3]"},
      {"a<0:4:2>", "a(0),a(2),a(4)", "a[0],a[2],a[4]", "a[0],a[2],a[4]", "a<0>,a<2>,a<4>", "a[0],a[2],a[4]",
       "a[0],a[2],a[4]"},
      {"a<0:1,3>", "a(0 to 1),a(3)", "a[0:1],a[3]", "a[0:1],a[3]", "a<0:1>,a<3>", "a[0:1],a[3]", "a[0:1],a[3]"},
      {"a<1*1>", "a(1),a(1)", "a[1],a[1]", "a[1],a[1]", "a<1>,a<1>", "a[1],a[1]", "a[1],a[1]"},
      {"a,b/c", ":a&&:b:c", "a,b|c", "a,b/c", "a,b.c", "a,b.c", "a,b.c"},
      {"(a,b)", "a&&b", "{a,b}", "{a,b}", "{a,b}", "{a,b}", "{a,b}"},
      {"<*2>(a,b)", "!ERROR!a&&b", "{2{a,b}}", "{2{a,b}}", "{2{a,b}}", "{2{a,b}}", "2{a,b}"},
      {"<*2>a", "!ERROR!a", "{2{a", "{2{a", "{2{a", "{2{a", "2{a}}"},
      {"<*200>a,b", "!ERROR!a&&b", "{200{a}},b", "{200{a}},b", "{200{a}},b", "{200{a}},b", "200{a}},b"},
      {"(<*2>a,b)", "!ERROR!a&&b", "{{2{a}},b}", "{{2{a}},b}", "{{2{a}},b}", "{{2{a}},b}", "{2{a}},b}"},
      {"(<*2>a)", "!ERROR!a", "{{2{a}}", "{{2{a}}", "{{2{a}}", "{{2{a}}", "{2{a}"},
      {"a,<*2>(b)", "a&&!ERROR!b", "a,{2{b}}", "a,{2{b}}", "a,{2{b}}", "a,{2{b}}", "a,2{b}"}};
  const std::initializer_list<const char *> columns[] = {
      {"ORKA"}, {"VHDL"},  {"Tessel", "FlatTessel"},        {"Lef", "Def", "Sdf", "Spf", "Spef"},
      {"Gcf"},  {"Spice"}, {"Verilog", "Kirra", "KirraHDL"}};
  for (const auto &row : rows)
    for (std::size_t column = 0; column < std::size(columns); ++column)
      for (const char *const target : columns[column])
        for (const int flags : {0, static_cast<int>(ZEL_PRINT_NOCOMPLEX)})
          EXPECT_EQ(mapped("ORKA", row[0], target, flags), row[column]) << row[0] << " in " << target;
}

TEST(PathPrint, Numbers) {
  expectPrinted("Verilog", {"Verilog"}, 0, "a[-200000:1897151] -> a[-200000:1897151]", "a[-5] -> a[-5]");
  expectPrinted("Verilog", {"ORKA"}, 0, "a[-5].b -> a<-5>/b", "a[-1:1] -> a<-1:1>");
  expectPrinted("Verilog", {"VHDL"}, 0, "a[3:3] -> a(3 to 3)", "a[-1:-2] -> a(-1 downto -2)", "a[-5] -> a(-5)");
}

TEST(PathPrint, BraceTargetsFromVerilog) {
  expectPrinted("Verilog", {"Verilog", "Kirra", "KirraHDL"}, 0, "{2{a,b}} -> {2{a,b}}", "{2{3{a}}} -> {2{3{a}}}",
                "a[3]b -> a[3].b", "a[3]{b} -> a[3]{.b}", "{a}b -> {a}.b", "{} -> {}", "{,a} -> {,a}");
  expectPrinted("Verilog", {"Sdf", "Lef"}, 0, "{2{a,b}} -> {{2{a,b}}}", "{2{3{a}}} -> {{2{{3{a}}}}", "{3a} -> {a}");
}

TEST(PathPrint, Group) {
  expectPrinted("ORKA", {"Verilog"}, group, "a -> a", "a,b -> {a,b}", "(a,b) -> {{a,b}}", "a<0:2:2> -> {a[0],a[2]}",
                "<*2>a -> {2{a}}}", "a<0:1,3> -> a[0:1],a[3]");
  expectPrinted("ORKA", {"Verilog"}, group | explode, "a<1:0> -> a[1],a[0]", "a<1*1> -> {a[1],a[1]}");
  expectPrinted("ORKA", {"Kirra", "KirraHDL"}, group, "a -> a}", "a,b -> a,b}", "<*2>a -> 2{a}}}");
  expectPrinted("ORKA", {"VHDL"}, group, "a,b -> a&&b", "a<0:2:2>,b -> a(0)&&a(2)&&b");
  expectPrinted("VHDL", {"VHDL"}, explode, "a(1 downto 0),b -> a(1),a(0)&&b");
  expectPrinted("VHDL", {"VHDL"}, explode | group, "a(1 downto 0) -> a(1)&&a(0)");
  expectPrinted("ORKA", {"Tessel", "FlatTessel", "Spice", "Lef", "Def", "Sdf", "Spf", "Spef", "Gcf", "ORKA"}, group,
                "a -> a", "a,b -> a,b");
}

TEST(PathPrint, ORKA) {
  expectPrinted("ORKA", {"ORKA"}, group, "a<0:6:2> -> a<0:6:2>", "a<0:3*2> -> a<0:3*2>", "/a,/b -> /a,/b",
                "a<1,2:3,0:6:2> -> a<1,2:3,0:6:2>", "(a<3>,b<1>) -> (a<3>,b<1>)", "a<3>,b -> a<3>,b",
                "a<(0,2)> -> a<(,0,2)>", "a<((1)2)> -> a<((,1),2)>", "a<(1)*3>/b -> a<(,1)*3>/b", "<*2>/a -> <*2>/a",
                "(/a) -> (/a)");
  expectPrinted("ORKA", {"ORKA"}, top, "a -> /a", "/a/b<3:0> -> /a/b<3:0>", "a,b<1> -> /a,/b<1>");
  expectPrinted("Verilog", {"ORKA"}, 0, "{2{a}} -> (<*2>(a))", "a[3]{b} -> a<3,(>b)", "a[3]b -> a<3>/b");
  expectPrinted("VHDL", {"ORKA", "Sdf", "Verilog"}, 0, "@l.c(v):a -> a", "@c -> ");
  EXPECT_EQ(printed(built("Sa <*2> Sb"), "ORKA"), "a,<*2>b");
  EXPECT_EQ(printed(built("Sa [3] <*2> Sb }"), "ORKA"), "a<3,<*2>>b)");
  EXPECT_EQ(printed(built("[3]"), "ORKA"), "<3>");
}

TEST(PathPrint, ORKAExploded) {
  expectPrinted("ORKA", {"ORKA"}, noRepeat, "a<0*2> -> a<0>,a<0>,a<0>", "a<0:1*1> -> a<0>,a<1>,a<0>,a<1>",
                "<*2>a -> <*2>a", "<*200>a -> <*200>a", "<*2>a<0*1> -> <*2>a<0*1>", "<*2>a<0*200>/b -> <*2>a<0*200>/b",
                "a<0:6:2> -> a<0:6:2>", "a<1:0> -> a<1:0>", "a<1,2> -> a<1,2>", "a<0*1>,b -> a<0>,a<0>,b");
  expectPrinted("ORKA", {"ORKA"}, explode | noRepeat, "a<0:2:2> -> a<0>,a<2>", "a<(0,2)> -> a<0>,a<2>",
                "a<1:0>/b -> a<1>/b,a<0>/b", "(a<1:0>,b) -> (a<1>,a<0>,b)", "<*2>(a<1:0>) -> <*2>(a<1:0>)",
                "/a<1:0> -> /a<1>,a<0>"); // the names behind the first begin at the identifier
  expectPrinted("ORKA", {"ORKA"}, explode | top, "/a<1:0> -> /a<1>,/a<0>");
  const Path path = parse("ORKA", "a<(0,1)>");
  EXPECT_DEATH(zelPathToORKA(path.get(), nullptr, noRepeat), "setupExplode: Illegal position in zelPath\n");
}

TEST(PathPrint, VHDLLibraryReferences) {
  expectPrinted("VHDL", {"VHDL"}, 0, "@l.c(v) -> @l.c(v)", "@l.c -> @l.c", "@c -> @c", "a@l.c(v) -> a@l.c(v)",
                "@l.c:a -> @l.c:a", "a&&@c -> a&&@c");
  expectPrinted("VHDL", {"VHDL"}, explode, "@l.c:a(1 downto 0) -> @l.c:a(1),@l.c:a(0)");
  EXPECT_EQ(printed(built("@Sl.Sc(Sv) Sa"), "VHDL"), "@l.c(v):a"); // references make a path hierarchical
  const Path path = built("Sa");
  zelPathAddLib(path.get(), nullptr, nullptr, nullptr, 1);
  zelPathAddLib(path.get(), "Sl", nullptr, "Sv", 1);
  EXPECT_EQ(printed(path, "VHDL"), ":a@@l.(v)");
}

TEST(PathPrint, LeadingDividers) {
  expectPrinted("Tessel", {"Tessel", "FlatTessel"}, 0, "|top|a[3] -> |top|a[3]", "a|b -> a|b");
  expectPrinted("Tessel", {"Tessel"}, explode, "||a[1:0] -> |a[1],|a[0]");
  expectPrinted("Tessel", {"Sdf", "Spf", "Spef", "Lef", "Def"}, 0, "|top|a[3] -> /top/a[3]");
  expectPrinted("Tessel", {"Verilog", "Kirra", "KirraHDL", "Spice"}, 0, "|top|a[3] -> top.a[3]");
  expectPrinted("Sdf", {"Gcf"}, 0, "/a -> .a", "/[3] -> <3>");
  expectPrinted("Sdf", {"ORKA", "VHDL"}, 0, "/a -> a");
  expectPrinted("Sdf", {"Sdf"}, 0, "/ -> ");
}

TEST(PathPrint, Handles) {
  for (const char *const target : {"Lef", "Def", "Sdf", "Spf", "Spef", "Gcf"}) {
    const Handle handle = handleOf(target, '.', '<', '>');
    EXPECT_EQ(printed(parse("Tessel", "|a|b[3]"), target, 0, handle.get()), ".a.b<3>") << target;
    EXPECT_EQ(printed(parse("Tessel", "a[1:0]"), target, 0, handle.get()), "a<1:0>") << target;
    EXPECT_EQ(printed(parse("Tessel", "a<b"), target, 0, handle.get()), R"(a\<b)") << target;
    EXPECT_EQ(printed(parse("Tessel", "a[1:0]"), target, explode, handle.get()), "a<1>,a<0>") << target;
  }
  const Handle letters = handleOf("Sdf", 'x', 0, 0);
  EXPECT_EQ(printed(parse("Tessel", "a|b"), "Sdf", 0, letters.get()), "axb");
  EXPECT_EQ(printed(parse("Tessel", "a|b[3]"), "Tessel", 0, letters.get()), "a|b[3]");
  // A path read with one handle is printed with another.
  EXPECT_EQ(printed(parse("Sdf", R"(axb\/c)", letters.get()), "Lef"), R"(a/b\/c)");
}

TEST(PathPrint, NamesAreTranslated) {
  expectPrinted("Verilog", {"VHDL"}, 0, R"(\a+b .A.c -> :\a+b\:\A\:c)");
  expectPrinted("VHDL", {"Verilog"}, 0, R"(:Top:\a b\(3) -> top.\a#20b [3])");
  expectPrinted("Spice", {"Spice", "Verilog"}, 0, "a_3.b -> a_3.b");
  expectPrinted("Spice", {"Verilog"}, 0, "a[3] -> \\a[3] ");
  expectPrinted("Spice", {"Tessel"}, 0, "a[3] -> a\\[3\\]");
  expectPrinted("Kirra", {"Kirra"}, 0, R"(a\.b.c -> a\.b.c)");
  expectPrinted("KirraHDL", {"KirraHDL"}, 0, R"(\a+b .c -> \a+b .c)");
  expectPrinted("VHDL87", {"VHDL"}, 0, "quantity:b -> :quantity:b");
  expectPrinted("VHDLAMS", {"VHDL"}, 0, "quantity:b -> ::b"); // accepted as in VHDL, but converted by its own words
  expectPrinted("VerilogAMS", {"VHDL"}, 0, "analog.b -> ::b");
}

TEST(PathPrint, NamesThatCannotBeWritten) {
  for (const char *const ident : {"-", "S", "Xa"}) { // null and no Idents
    EXPECT_EQ(printed(built(std::string("Sa ") + ident + " Sb"), "Verilog"), "a..b");
    EXPECT_EQ(printed(built(std::string("Sa ") + ident + " Sb"), "ORKA"), "a//b");
    EXPECT_EQ(printed(built(ident + std::string(" [3] Sb")), "Sdf"), "[3]/b");
    EXPECT_EQ(printed(built(ident + std::string(" Sb")), "VHDL"), "b");
  }
  expectPrinted("Sdf", {"Verilog"}, 0, "a.b -> ", "a.b/c -> .c"); // scans, but does not convert
  const std::string wide = "S" + std::string(ZEL_MAX_NAME, '\x80');
  for (const char *const target : targets)
    EXPECT_EQ(printed(built(wide), target), "") << target;
}

TEST(PathPrint, NothingAndTooMuch) {
  const Path cut = built("[3] [3] [3] [3] [3] [3] [3] [3] [3] [3]");
  cut->used = 0; // what follows an empty first chunk does not count
  const std::string longest = std::string(1023, 'a') + '.' + std::string(1023, 'b');
  const std::string tooLong = 'a' + longest;
  const std::string huge = 'S' + std::string(ZEL_MAX_NAME, 'a');
  const std::string many = repeated(huge + " [3] ", 4);
  for (const char *const target : targets)
    for (int flags = 0; flags < everyFlag; ++flags) {
      SCOPED_TRACE(target + (' ' + std::to_string(flags)));
      EXPECT_EQ(taken(printerOf(target)(nullptr, nullptr, flags, nullptr, nullptr)), "");
      EXPECT_EQ(printed(built(""), target, flags), "");
      EXPECT_EQ(printed(cut, target, flags), "");
      EXPECT_EQ(mapped("Verilog", tooLong, target, flags), "EINVAL");
      EXPECT_EQ(printed(built(many), target, flags), "EINVAL");
    }
  EXPECT_EQ(mapped("Verilog", longest, "Verilog"), longest);
  EXPECT_EQ(printed(built(huge), "Verilog", group), huge.substr(1));
}

TEST(PathPrint, ShortForms) { // the long ones with malloc
  char *(*const shortForms[])(zelPath, zelHandle, std::int32_t) noexcept = {
      zelPathToVerilog, zelPathToKirra,      zelPathToKirraHDL, zelPathToVHDL, zelPathToORKA,
      zelPathToTessel,  zelPathToFlatTessel, zelPathToLef,      zelPathToDef,  zelPathToSdf,
      zelPathToSpf,     zelPathToSpef,       zelPathToGcf,      zelPathToSpice};
  const Path path = parse("Sdf", "/a/b[1:0]");
  const Handle dots = handleOf("Sdf", '.', '<', '>');
  for (std::size_t i = 0; i < std::size(targets); ++i)
    EXPECT_EQ(taken(shortForms[i](path.get(), dots.get(), explode)), printed(path, targets[i], explode, dots.get()));
}

TEST(PathExplode, RangesAndSteps) {
  expectPrinted("Verilog", {"Verilog"}, explode, "a[3:0] -> a[3],a[2],a[1],a[0]", "a[5:5] -> a[5]",
                "a[-1:1] -> a[-1],a[0],a[1]", "a[122:125] -> a[122],a[123],a[124],a[125]", "a[3] -> a[3]",
                "a[1:0].b[5:4] -> a[1].b[5],a[1].b[4],a[0].b[5],a[0].b[4]", "a[3].b[1:0] -> a[3].b[1],a[3].b[0]",
                "a.b[1:0],c -> a.b[1],a.b[0],c", "{a[1:0],b[1:0].c} -> {a[1],a[0],b[1].c,b[0].c}",
                "a[1:0].b[1:0].c[1:0] -> a[1].b[1].c[1],a[1].b[1].c[0],a[1].b[0].c[1],a[1].b[0].c[0],"
                "a[0].b[1].c[1],a[0].b[1].c[0],a[0].b[0].c[1],a[0].b[0].c[0]");
  expectPrinted("ORKA", {"Verilog"}, 0, "a<0:6:2> -> a[0],a[2],a[4],a[6]", "a<6:0:2> -> a[6],a[4],a[2],a[0]",
                "a<0:5:2> -> a[0],a[2],a[4]", "a<5:0:2> -> a[5],a[3],a[1]", "a<3:3:2> -> a[3]", "a<0:1:5> -> a[0]",
                "a<1:0>/b<0:2:2> -> a[1:0].b[0],a[1:0].b[2]", "a<0:300:150> -> a[0],a[150],a[300]");
  // Before the first identifier a name begins where the path does; the range there keeps it so.
  expectPrinted("Gcf", {"Verilog"}, explode, "<3:0> -> [3],[2],[1],[0]",
                "<1:0>.a<1:0> -> [1]a[1],[1]a[0],[0]a[1],[0]a[0]");
}

TEST(PathExplode, IndexListsAndRepeats) {
  expectPrinted("ORKA", {"Verilog"}, 0, "a<(0,2,4)> -> a[0],a[2],a[4]", "a<(1)> -> a[1]", "a<1,2:3> -> a[1],a[2:3]",
                "a<1,0:4:2> -> a[1],a[0],a[2],a[4]", "a<(1)(2)> -> a[1],a[2]", "a<((1,2)3)> -> a[1],a[2],a[3]",
                "a<(0,1)>/b<(2,3)> -> a[0].b[2],a[0].b[3],a[1].b[2],a[1].b[3]", "a<0*2> -> a[0],a[0],a[0]",
                "a<3*0> -> a[3]", "a<0:1*1> -> a[0],a[1],a[0],a[1]", "a<0:2:2*1> -> a[0],a[2],a[0],a[2]",
                "a<(0,1)*1> -> a[0],a[1],a[0],a[1]", "a<(0:1*1)> -> a[0],a[1],a[0],a[1]",
                "a<3,1*1,4> -> a[3],a[1],a[1],a[4]", "a<1*1,3> -> a[1][3],a[1][3]", // the repeat is all that varies
                "a<((0,1)*1(2))*1> -> a[0],a[1],a[0],a[1],a[2],a[0],a[1],a[0],a[1],a[2]",
                "a<1,2>,b<3,4> -> a[1],a[2],b[3],b[4]");
  expectPrinted("ORKA", {"Verilog"}, explode, "a<1,2:3> -> a[1],a[2],a[3]",
                "a<(1:0,5)*1> -> a[1],a[0],a[5],a[1],a[0],a[5]", "a<(0:1*1,5)> -> a[0],a[1],a[0],a[1],a[5]",
                "a<1:0>/b<2,3> -> a[1].b[2],a[1].b[3],a[0].b[2],a[0].b[3]");
  expectPrinted("Gcf", {"Verilog"}, 0, "a<1><2> -> a[1],a[2]", "a<1:0><5:4> -> a[1:0],a[5:4]");
  expectPrinted("Gcf", {"Verilog"}, explode, "a<1:0><5:4> -> a[1],a[0],a[5],a[4]",
                "a<1><2>.b<3:4><5> -> a[1].b[3],a[1].b[4],a[1].b[5],a[2].b[3],a[2].b[4],a[2].b[5]");
  EXPECT_EQ(mapped("ORKA", "a<0*124>", "Verilog"), "a[0]" + repeated(",a[0]", 124)); // the repeat in its long form
}

// Groups stay as they are, and so does what is in them when they are to be expanded.
TEST(PathExplode, GroupRepeats) {
  expectPrinted("ORKA", {"Verilog"}, 0, "<*2>(a<0:2:2>) -> 2{a[0],a[2]}", "<*2>a<0:2:2> -> 2{a[0],a[2]}}");
  for (const int flags : {explode, explode | noRepeat})
    expectPrinted("ORKA", {"Verilog"}, flags, "<*2>a<1:0>,b<1:0> -> 2{a[1:0]}},b[1],b[0]",
                  "<*2>(a<1:0>,b<1:0>) -> 2{a[1:0],b[1],b[0]}", "<*2>a<0:2:2> -> 2{a!ERROR!}}");
  expectPrinted("ORKA", {"Verilog"}, noRepeat, "<*2>a<0:2:2> -> 2{a!ERROR!}}", "<*2>a<1,2*3> -> 2{a[1][2]!ERROR!}}");
  expectPrinted("ORKA", {"VHDL"}, 0, "<*2>a<0:2:2> -> !ERROR!a!ERROR!");
}

// In a path built by hand a list separator may be followed by an index at once: a range there leaves the beginning of
// the name where it was, an index list does not keep the next identifier from becoming one.
TEST(PathExplode, NamesThatBeginWithAnIndex) {
  EXPECT_EQ(printed(built("Sa , [1:0] Sb"), "Verilog", explode), "a,a,[1:0]b");
  EXPECT_EQ(printed(built("Sa , [1:0] Sb [1:0]"), "Verilog", explode), "a,a,a,a,[1:0]b[1:0]");
  EXPECT_EQ(printed(built("Sa , [3] [1:0] Sb [1:0]"), "Verilog", explode), "a,a,a,[3][1:0]b[1],b[0]");
  EXPECT_EQ(printed(built("Sa <*2> Sb [0:2:2]"), "Verilog"), "a2{.b[0],b[2]}}");
  EXPECT_EQ(printed(built("<*2> , Sa [1:0] } Sb [1:0]"), "Verilog", explode), "2{}},a[1:0]}.b[1],b[0]");
}

TEST(PathExplode, EndlessEnumerationsAreGivenUp) {
  for (const char *const text : {"a<0:5:0>", "a<5:5:0>", "a<0:5:0*1>", "a<1,0:5:0>", "(b,a<0:5:0>)", "a<0*1897151>",
                                 "a<0:1897151:1>/b<0:1897151:1>"})
    for (const char *const target : targets)
      EXPECT_EQ(mapped("ORKA", text, target, explode), "EINVAL") << text << " in " << target;
  expectPrinted("ORKA", {"ORKA"}, 0, "a<0:5:0> -> a<0:5:0>");
  const std::string text = repeated("a[1:0].", 3000) + "a[0:1897151]";
  EXPECT_EQ(mapped("Verilog", text, "Verilog", explode), "EINVAL");
}

} // namespace
