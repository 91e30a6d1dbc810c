// zelpath's translation of one path into every language, from the outside, grouped by the rule that the paths exercise.
#include "runTool.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace {

struct Row {
  std::string options; // the last with the path as its argument
  std::string path;
  std::string texts;     // as for linesOf
  std::string dump = {}; // what -parse shows behind "Flags: ", when the row is to have it
};

const std::string single = "SingleVerilog SingleORKA SingleVHDL ";
const std::string error = "ERROR! " + single;

void check(std::initializer_list<Row> rows, const Environment &environment = {}) {
  for (const Row &row : rows) {
    SCOPED_TRACE("zelpath " + row.options + " '" + row.path + "'" + (row.dump.empty() ? "" : " -parse"));
    Words arguments = wordsOf(row.options);
    const std::string dump = row.dump.empty() ? "" : "Flags: " + row.dump + "\n\n";
    const std::string out = dump + linesOf(arguments.back(), row.texts);
    arguments.push_back(row.path);
    if (!dump.empty())
      arguments.emplace_back("-parse");
    EXPECT_EQ(runTool(arguments, environment), (Outcome{out, "", 0}));
  }
}

// The GCF line uses the divider and the bus brackets of the input's language. The input's own line is printed from a
// copy without flags: it knows neither of a leading divider nor, in VHDL, of its hierarchy.
TEST(Translation, OnePathInEveryLanguage) {
  const std::string flags = "Hierarchy Index MidIndex " + single;
  const std::string named = flags + "\n Ident top\n Ident u1\n Index:  1\n Ident n";
  const std::string unnamed = flags + "\n Ident \n Ident \n Index:  1\n Ident ";
  check({
      {"-veri", "top.u1[1].n", "top.u1[1].n; T top|u1[1]|n; O top/u1<1>/n; D :top:u1(1):n", named},
      {"-tessel", "|top|u1[1]|n", "top.u1[1].n; T top|u1[1]|n; G |top|u1[1]|n; O top/u1<1>/n; D :top:u1(1):n", named},
      {"-kirra", "top.u1[1].n", "top.u1[1].n; T top|u1[1]|n; G top/u1[1]/n; O top/u1<1>/n; D :top:u1(1):n", unnamed},
      {"-gcf", "..top.u1<1>.n", "top.u1[1].n; T |top|u1[1]|n; G top.u1<1>.n; O top/u1<1>/n; D :top:u1(1):n", named},
      {"-spice", "top.u1[1].n", "top.u1[1].n; T top|u1[1]|n; G top/u1[1]/n; O top/u1<1>/n; D :top:u1(1):n", unnamed},
      {"-orka", "/top/u1<1>/n", "top.u1[1].n; T top|u1[1]|n; G top/u1<1>/n; O /top/u1<1>/n; D :top:u1(1):n",
       flags + "\n Top Ident top\n Ident u1\n Index:  1\n Ident n"},
      {"-vhdl", ":top:u1(1):n", "top.u1[1].n; T top|u1[1]|n; G top:u1(1):n; O top/u1<1>/n; D topu1(1)n", named},
      {"-veri", "top.test.addr[3:0]",
       "top.test.addr[3:0]; T top|test|addr[3:0]; O top/test/addr<3:0>; D :top:test:addr(3 downto 0)"},
      {"-tessel", "|top|a[3]", "top.a[3]; T top|a[3]; G |top|a[3]; O top/a<3>; D :top:a(3)"},
      {"-kirra", "a.b[0:3]", "a.b[0:3]; T a|b[0:3]; G a/b[0:3]; O a/b<0:3>; D :a:b(0 to 3)"},
      {"-spice", "x", "x"},
      {"-orka", "/a", "a; O /a", single + "\n Top Ident a"},
      {"-veri", "", "", single},
      {"-ex -group -top -gcf", "", "", single},
  });
}

TEST(Translation, Numbers) {
  check({
      {"-vhdl", "a(3 to 3)", "a[3:3]; G a(3:3); O a<3:3>; D a(3 to 3)"},
      // The direction follows the numbers, not the word.
      {"-vhdl", "A(0 DOWNTO 3)", "a[0:3]; G a(0:3); O a<0:3>; D A(0 to 3)"},
      {"-vhdl", "a(7downto 0)", "a[7:0]; G a(7:0); O a<7:0>; D a(7 downto 0)"},
      {"-veri", "a[-1:-5]", "a[-1:-5]; O a<-1:-5>; D a(-1 downto -5)"},
      {"-veri", "a[+3:-]", "a[3:0]; O a<3:0>; D a(3 downto 0)"},
      {"-gcf", "a<+3:->", "a[3:0]; GO a<3:0>; D a(3 downto 0)"},
      {"-veri", "a[-200000:1897151].b[124]",
       "a[-200000:1897151].b[124]; T a[-200000:1897151]|b[124]; O a<-200000:1897151>/b<124>; D :a(-200000 to "
       "1897151):b(124)",
       "Hierarchy Index Range MidRange " + single + "\n Ident a\n Range:  -200000:1897151\n Ident b\n Index:  124"},
      {"-veri", "a[1897152]", "a", error + "\n Ident a"},
      {"-gcf", "a<-200001>", "a", error + "\n Ident a"},
      // Blanks between the parts.
      {"-veri", " a . b [ 3 : 0 ] ", "a.b[3:0]; T a|b[3:0]; O a/b<3:0>; D :a:b(3 downto 0)"},
      {"-vhdl", ": a : b ( 3 downto 0 )", "a.b[3:0]; T a|b[3:0]; G a:b(3:0); O a/b<3:0>; D ab(3 downto 0)"},
      {"-gcf", "\ta . b < 3 : 0 > ", "a.b[3:0]; T a|b[3:0]; G a.b<3:0>; O a/b<3:0>; D :a:b(3 downto 0)"},
      {"-orka", " a / b<3 :0 > ", "a.b[3:0]; T a|b[3:0]; GO a/b<3:0>; D :a:b(3 downto 0)"},
  });
}

TEST(Translation, ListsAndRepeats) {
  check({
      {"-veri", "a,b.c[1:0]", "a,b.c[1:0]; T a,b|c[1:0]; O a,b/c<1:0>; D :a&&:b:c(1 downto 0)",
       "Hierarchy Range List \n Ident a\n List\n Ident b\n Ident c\n Range:  1:0"},
      {"-vhdl", "a&&b(3)", "a,b[3]; G a,b(3); O a,b<3>; D a&&b(3)"},
      {"-vhdl", "a& b", "a,b; D a&&b"},
      {"-vhdl", ",a", ",a; D &&a", "List \n List\n Ident a"},
      {"-orka", "(a,b<1:0>)", "{a,b[1:0]}; G {a,b<1:0>}; O (a,b<1:0>); D a&&b(1 downto 0)"},
      // A count that no group follows is dropped.
      {"-veri", "{3a}", "{a}; O (a); D a", single + "\n Start list\n Ident a\n Finish list"},
      // VHDL has no repeats.
      {"-veri", "{2{a,b}}", "{2{a,b}}; TGS {{2{a,b}}}; O (<*2>(a,b)); D !ERROR!a&&b",
       "List Repeat \n Start list\n Repeat: 2\n Start list\n Ident a\n List\n Ident b\n Finish list\n Finish list"},
      {"-veri", "{2{a},b}", "{2{a},b}; TGS {{2{a}},b}; O (<*2>(a),b); D !ERROR!a&&b"},
      {"-veri", "{a,{2{b}}}", "{a,{2{b}}}; TGS {a,{{2{b}}}}; O (a,(<*2>(b))); D a&&!ERROR!b"},
      {"-orka", "<*2>(a,b)", "2{a,b}; TGS {2{a,b}}; O <*2>(a,b); D !ERROR!a&&b",
       "List Repeat \n Repeat: 2\n Start list\n Ident a\n List\n Ident b\n Finish list"},
      // Verilog and its like close at the end what a repeat without a list has opened.
      {"-orka", "<*2>a", "2{a}}; TGS {2{a; O <*2>a; D !ERROR!a"},
      {"-orka", "<*2>a,b", "2{a}},b; TGS {2{a}},b; O <*2>a,b; D !ERROR!a&&b"},
      {"-orka", "a,<*124>b/c",
       "a,124{b.c}}; T a,{124{b|c; G a,{124{b/c; S a,{124{b.c; O a,<*124>b/c; D :a&&!ERROR!:b:c"},
      // A group behind a name is neither separated from it nor closes its bus.
      {"-veri", "a[3]{b}", "a[3]{.b}; T a[3]{|b}; O a<3,(>b); D a(3)b"},
  });
}

TEST(Translation, Groups) {
  check({
      {"-group -veri", "a", "a; KH a}"},
      {"-group -veri", "a,b", "a,b; KH a,b}; D a&&b"},
      {"-group -vhdl", "a,b", "{a,b}; TGSO a,b; KH a,b}; D a&&b"},
      {"-group -top -gcf", "a", "a; KH a}; O /a"},
      {"-group -orka", "(a,b)", "{{a,b}}; KH {a,b}}; TGS {a,b}; O (a,b); D a&&b"},
      {"-group -orka", "<*2>(a,b)", "{2{a,b}}; KH 2{a,b}}; O <*2>(a,b); D !ERROR!a&&b"},
      {"-group -orka", "<*2>a", "{2{a}}}; KH 2{a}}}; TGS {2{a; O <*2>a; D !ERROR!a"},
      {"-group -kirra", "{2{a.b,c}}",
       "{{2{a.b,c}}}; KH {2{a.b,c}}}; T {{2{a|b,c}}}; G {{2{a/b,c}}}; O (<*2>(a/b,c)); D !ERROR!:a:b&&:c"},
      {"-norepeat -nocomplex -top -veri", "{2{a,b}}", "{2{a,b}}; TGS {{2{a,b}}}; O (<*2>(/a,/b)); D !ERROR!a&&b"},
      {"-top -orka", "a/b<3:0>", "a.b[3:0]; T a|b[3:0]; G a/b<3:0>; O /a/b<3:0>; D :a:b(3 downto 0)"},
      {"-top -orka", "/top/u1<1>/n", "top.u1[1].n; T top|u1[1]|n; G top/u1<1>/n; O /top/u1<1>/n; D :top:u1(1):n"},
  });
}

TEST(Translation, Ranges) {
  check({
      {"-ex -veri", "a.b[2:0]",
       "a.b[2],a.b[1],a.b[0]; T a|b[2],a|b[1],a|b[0]; O a/b<2>,a/b<1>,a/b<0>; D :a:b(2),:a:b(1),:a:b(0)"},
      {"-ex -veri", "a[1:0].b", "a[1].b,a[0].b; T a[1]|b,a[0]|b; O a<1>/b,a<0>/b; D :a(1):b,:a(0):b"},
      {"-ex -group -veri", "a[0:1]", "a[0],a[1]; KH a[0],a[1]}; O a<0>,a<1>; D a(0)&&a(1)"},
      {"-ex -group -vhdl", "a(1 downto 0)", "a[1],a[0]; KH a[1],a[0]}; G a(1),a(0); O a<1>,a<0>; D a(1)&&a(0)"},
      {"-ex -group -kirra", "a.b[1:0]",
       "a.b[1],a.b[0]; KH a.b[1],a.b[0]}; T a|b[1],a|b[0]; G a/b[1],a/b[0]; O a/b<1>,a/b<0>; D :a:b(1)&&:a:b(0)"},
      {"-ex -top -spice", "a[1:0]", "a[1],a[0]; O /a<1>,/a<0>; D a(1),a(0)"},
      {"-ex -gcf", "a<3:3>", "a[3]; GO a<3>; D a(3)"},
      // A divider in front comes with every name, the top mark only with the first.
      {"-ex -tessel", "|a[1:0]", "a[1],a[0]; G |a[1],|a[0]; O a<1>,a<0>; D a(1),a(0)"},
      {"-ex -orka", "/a<1:0>", "a[1],a[0]; G a<1>,a<0>; O /a<1>,a<0>; D a(1),a(0)"},
      // Of two in one name the last varies fastest; two side by side are a list of indexes.
      {"-ex -gcf", "a<1:0>.b<5:4>",
       "a[1].b[5],a[1].b[4],a[0].b[5],a[0].b[4]; T a[1]|b[5],a[1]|b[4],a[0]|b[5],a[0]|b[4]; G "
       "a<1>.b<5>,a<1>.b<4>,a<0>.b<5>,a<0>.b<4>; O a<1>/b<5>,a<1>/b<4>,a<0>/b<5>,a<0>/b<4>; D "
       ":a(1):b(5),:a(1):b(4),:a(0):b(5),:a(0):b(4)"},
      {"-ex -gcf", "a<1:0><5:4>", "a[1],a[0],a[5],a[4]; GO a<1>,a<0>,a<5>,a<4>; D a(1),a(0),a(5),a(4)"},
      {"-gcf", "a<1:0><5:4>", "a[1:0],a[5:4]; G a<1:0>,a<5:4>; O a<1:0,5:4>; D a(1 downto 0),a(5 downto 4)"},
      {"-ex -gcf", "<3:0>", "[3],[2],[1],[0]; GO <3>,<2>,<1>,<0>; D (3),(2),(1),(0)"},
      {"-gcf", "<3:0>", "[3:0]; GO <3:0>; D (3 downto 0)"},
      // Only the name of a list that has the range is written again, and none inside a repeated group.
      {"-ex -vhdl", "a,b(1 downto 0),c", "a,b[1],b[0],c; G a,b(1),b(0),c; O a,b<1>,b<0>,c; D a&&b(1),b(0)&&c"},
      {"-ex -group -vhdl", "a,b(1 downto 0),c",
       "{a,b[1],b[0],c}; TS a,b[1],b[0],c; KH a,b[1],b[0],c}; G a,b(1),b(0),c; O a,b<1>,b<0>,c; D a&&b(1)&&b(0)&&c"},
      {"-ex -veri", "{2{a[0:1],b[0:1]}}",
       "{2{a[0:1],b[0],b[1]}}; TGS {{2{a[0:1],b[0],b[1]}}}; O (<*2>(a<0:1>,b<0>,b<1>)); D !ERROR!a(0 to 1)&&b(0),b(1)"},
      // More levels than one chunk of a path holds.
      {"-ex -veri", "a.b.c.d.e.f.g.h.i[1:0]",
       "a.b.c.d.e.f.g.h.i[1],a.b.c.d.e.f.g.h.i[0]; T a|b|c|d|e|f|g|h|i[1],a|b|c|d|e|f|g|h|i[0]; O "
       "a/b/c/d/e/f/g/h/i<1>,a/b/c/d/e/f/g/h/i<0>; D :a:b:c:d:e:f:g:h:i(1),:a:b:c:d:e:f:g:h:i(0)"},
      {"-ex -veri", "a[0:1897151]", "(null)"},
  });
}

TEST(Translation, StepsIndexListsAndIndexRepeats) {
  const std::string steps = "a[0],a[2],a[4],a[6]; G a<0>,a<2>,a<4>,a<6>; D a(0),a(2),a(4),a(6); O ";
  check({
      // The walk stumbles over a step range of small numbers.
      {"-orka", "a<0:6:2>", steps + "a<0:6:2>", "Index Range SingleORKA \n Ident a\n Step:   0:6:2\n ERROR!"},
      {"-ex -norepeat -orka", "a<0:6:2>", steps + "a<0>,a<2>,a<4>,a<6>"},
      {"-group -orka", "a<0:6:2>",
       steps + "a<0:6:2>; V {a[0],a[2],a[4],a[6]}; KH a[0],a[2],a[4],a[6]}; D a(0)&&a(2)&&a(4)&&a(6)"},
      {"-orka", "a<6:0:2>", "a[6],a[4],a[2],a[0]; G a<6>,a<4>,a<2>,a<0>; O a<6:0:2>; D a(6),a(4),a(2),a(0)"},
      {"-orka", "a<0:5:2>", "a[0],a[2],a[4]; G a<0>,a<2>,a<4>; O a<0:5:2>; D a(0),a(2),a(4)"},
      {"-orka", "a<3:3:1>", "a[3]; G a<3>; O a<3:3:1>; D a(3)"},
      {"-orka", "a<0:200:100>", "a[0],a[100],a[200]; G a<0>,a<100>,a<200>; O a<0:200:100>; D a(0),a(100),a(200)",
       "Index Range SingleORKA \n Ident a\n Step:   0:200:100"},
      {"-orka", "a<0:2:2>/b<1>",
       "a[0].b[1],a[2].b[1]; T a[0]|b[1],a[2]|b[1]; G a<0>/b<1>,a<2>/b<1>; O a<0:2:2>/b<1>; D :a(0):b(1),:a(2):b(1)",
       "Hierarchy Index Range SingleORKA \n Ident a\n Step:   0:2:2\n ERROR!\n Ident b\n Index:  1"},
      {"-orka", "a<0:4:0>", "(null); O a<0:4:0>"},
      // Lists of indexes lose their brackets in the copy, and repeats of indexes are not in it.
      {"-orka", "a<(0,2,4)>", "a[0],a[2],a[4]; G a<0>,a<2>,a<4>; O a<0,2,4>; D a(0),a(2),a(4)",
       "Index " + single + "\n Ident a\n Index list\n Index:  0\n Index:  2\n Index:  4\n Index list end"},
      {"-orka", "a<3,1:0>/b",
       "a[3].b,a[1:0].b; T a[3]|b,a[1:0]|b; G a<3>/b,a<1:0>/b; O a<3,1:0>/b; D :a(3):b,:a(1 downto 0):b",
       "Hierarchy Index Range MidRange " + single + "\n Ident a\n Index:  3\n Range:  1:0\n Ident b"},
      {"-ex -orka", "a<3,1:0>", "a[3],a[1],a[0]; GO a<3>,a<1>,a<0>; D a(3),a(1),a(0)"},
      {"-orka", "a<0:4:2,7>", "a[0],a[2],a[4],a[7]; G a<0>,a<2>,a<4>,a<7>; O a<0:4:2,7>; D a(0),a(2),a(4),a(7)"},
      {"-orka", "a<((0,1)2)>", "a[0],a[1],a[2]; G a<0>,a<1>,a<2>; O a<0,1,2>; D a(0),a(1),a(2)"},
      // A repeat of n writes n + 1 times.
      {"-orka", "a<0*2>", "a[0],a[0],a[0]; G a<0>,a<0>,a<0>; O a<0>; D a(0),a(0),a(0)"},
      {"-orka", "a<0:1*1>", "a[0],a[1],a[0],a[1]; G a<0>,a<1>,a<0>,a<1>; O a<0:1>; D a(0),a(1),a(0),a(1)",
       "Index Range SingleORKA \n Ident a\n Range:  0:1\n Index repeat: 1"},
      {"-orka", "a<(0,2)*1>", "a[0],a[2],a[0],a[2]; G a<0>,a<2>,a<0>,a<2>; O a<0,2>; D a(0),a(2),a(0),a(2)"},
      {"-orka", "a<5,0*1>", "a[5],a[0],a[0]; G a<5>,a<0>,a<0>; O a<5,0>; D a(5),a(0),a(0)"},
      {"-orka", "a<0*1,5>", "a[0][5],a[0][5]; G a<0><5>,a<0><5>; O a<0,5>; D a(0)(5),a(0)(5)"},
      // Inside a repeated group they are expanded where the repeat itself is not asked about.
      {"-orka", "<*2>(a<0:2:2>)",
       "2{a[0],a[2]}; TS {2{a[0],a[2]}}; G {2{a<0>,a<2>}}; O <*2>(a<0:2:2>); D !ERROR!a!ERROR!"},
      {"-norepeat -orka", "<*2>(a<0:2:2>)", "2{a!ERROR!}; TGS {2{a!ERROR!}}; O <*2>(a<0:2:2>); D !ERROR!a!ERROR!"},
      {"-orka", "<*2>(a<(0,2)>)",
       "2{a[0],a[2]}; TS {2{a[0],a[2]}}; G {2{a<0>,a<2>}}; O <*2>(a<0,2>); D !ERROR!a!ERROR!(0)(2)!ERROR!"},
  });
}

TEST(Translation, Libraries) {
  check({
      // The parts in the input's language, with both marks whatever is missing.
      {"-vhdl", R"(@Lib.\a b\(view):u1)", R"(u1; D @Lib.\a b\(view):u1)",
       "Hierarchy " + single + "\n Lib: Lib.\\a b\\:view\n Ident u1"},
      {"-vhdl", "@cell", "; D @cell", single + "\n Lib: .cell:"},
      {"-vhdl", "@lib.cell()", "; D @lib.cell", single + "\n Lib: lib.cell:"},
      // The copy has hierarchy by its library reference.
      {"-vhdl", "u1@lib.cell(v):n", "u1.n; T u1|n; G u1:n; O u1/n; D :u1@lib.cell(v):n",
       "Hierarchy " + single + "\n Ident u1\n Lib: lib.cell:v\n Ident n"},
  });
}

TEST(Translation, Names) {
  check({
      {"-veri", R"(\a+b .c[3])", R"(\a+b .c[3]; T a+b|c[3]; KG a\+b.c[3]; S a+b.c[3]; O a+b/c<3>; D :\a+b\:c(3))",
       "Hierarchy Index " + single + "\n Ident \\a+b \n Ident c\n Index:  3"},
      {"-veri", R"(\a.b[0] )", R"(\a.b[0] ; T a.b\[0\]; KG a\.b\[0\]; S a\.b[0]; O a.b[0]; D \a.b[0]\)"},
      {"-veri", R"(\a/b<1>,(| )",
       R"(\a/b<1>,(| ; T a/b<1>,(\|; KG a\/b\<1\>\,\(\|; S a/b<1>\,\(\|; O a#2fb#3c1#3e#2c#28|; D \a/b<1>,(|\)"},
      {"-veri", R"(\a(3) )", R"(\a(3) ; TO a(3); KGS a\(3\); D \a(3)\)"},
      {"-veri", R"(\a#b )", R"(\a#b ; TO a#b; KGS a\#b; D \a#b\)"},
      {"-veri", R"(\a#20b )", R"(\a#20b ; TSO a#20b; K a\ b; G a\#20b; D \a b\)"},
      {"-veri", R"(\a#41b )", R"(\a#41b ; T a#2341b; KS a\#41b; G a\#2341b; O a#41b; D \a#41b\)"},
      {"-veri", "a$b", R"(a$b; KG a\$b; H \a$b ; D \a$b\)"},
      {"-veri", "Top.a__b", R"(Top.a__b; T Top|a__b; O Top/a__b; D :\Top\:\a__b\)"},
      {"-veri", R"(\2n3904 .x_)", R"(\2n3904 .x_; T 2n3904|x_; KGS 2n3904.x_; O 2n3904/x_; D :\2n3904\:\x_\)"},
      {"-veri", R"(\1abc )", R"(\1abc ; TGSO 1abc; K \1abc; D \1abc\)"},
      {"-veri", "ESC_a", R"(ESC_a; D \a\)"},
      {"-vhdl", R"(\abc\)", R"(ESC_abc; D \abc\)"},
      {"-vhdl", R"(\a\\b\)", R"(a\\b; VH \a\b ; O a#5cb; D \a\\b\)"},
      {"-vhdl", R"(\A b\(1))", R"(\A#20b [1]; TS A#20b[1]; K A\ b[1]; G A\#20b(1); O A#20b<1>; D \A b\(1))"},
      {"-orka", "a#2fb/c(3)",
       R"(\a/b .\c(3) ; T a/b|c(3); K a\/b.c\(3\); G a\/b/c\(3\); S a/b.c\(3\); O a#2fb/c(3); D :\a/b\:\c(3)\)"},
      {"-gcf", R"(a\.b.c)", R"(\a.b .c; T a.b|c; KGS a\.b.c; O a.b/c; D :\a.b\:c)"},
      {"-gcf", "2n3904", R"(2n3904; VH \2n3904 ; D \2n3904\)"},
      {"-tessel", "a.b:c|d", R"(\a.b:c .d; T a.b:c|d; KS a\.b\:c.d; G a\.b\:c|d; O a.b:c/d; D :\a.b:c\:d)"},
      {"-tessel", R"(a\|b|c)", R"(\a|b .c; TG a\|b|c; KS a\|b.c; O a|b/c; D :\a|b\:c)",
       "Hierarchy " + single + "\n Ident a\\|b\n Ident c"},
      {"-tessel", R"(a\)", R"(a\\; VH \a\ ; O a#5c; D \a\\\)"},
      {"-kirra", R"(a\.b\[3\].c)",
       R"(\a.b[3] .c; T a.b\[3\]|c; K a\.b\[3\].c; G a\.b\[3\]/c; S a\.b[3].c; O a.b[3]/c; D :\a.b[3]\:c)"},
      {"-kirra", "a!b", R"(a!b; VH \a!b ; G a\!b; D \a!b\)"},
      {"-spice", R"(\a$b .c)", R"(a$b.c; T a$b|c; K a\$b.c; G a\$b/c; H \a$b .c; O a$b/c; D :\a$b\:c)"},
      // Reserved words.
      {"-veri", "model.log",
       R"(model.log; T model|log; K KEYWORD_model.log; H \model .log; O model/log; D :model:log)"},
      {"-veri", "entity", R"(entity; D \entity\)"},
      {"-vhdl", R"(\entity\)", R"(entity; D \entity\)"},
      {"-vhdl", "Module", R"(module; VH \module ; D Module)"},
      {"-kirra", "KEYWORD_model", R"(model; K KEYWORD_model; H \model )"},
      // A name without an Ident is left out, with its separators in place.
      {"-gcf", "a$b.c", ".c; T |c; O /c; D ::c", "Hierarchy " + single + "\n Ident a$b\n Ident c"},
      {"-orka", R"(\abc\/b)", ".b; T |b; GO /b; D ::b"},
  });
}

TEST(Translation, WhatWasReadOfARefusedPathIsPrinted) {
  const Words nothing = wordsOf(R"(-veri \abc -vhdl \ab -vhdl signal -orka //a -kirra 2n3904)");
  for (size_t i = 0; i < nothing.size(); i += 2)
    check({{nothing[i], nothing[i + 1], ""}});
  const Words oneName = wordsOf("-veri a[1:2:3] -vhdl a: -orka a(x) -gcf a<1:2:3>");
  for (size_t i = 0; i < oneName.size(); i += 2)
    check({{oneName[i], oneName[i + 1], "a"}});
  check({
      {"-veri", "a[", "a", error + "\n Ident a"},
      {"-veri", "a.module", "a; D :a", "ERROR! Hierarchy " + single + "\n Ident a"},
      {"-veri", "a[1][2]", "a[1]; O a<1>; D a(1)", "ERROR! Index " + single + "\n Ident a\n Index:  1"},
      {"-veri", "a.", "a; D :a"},
      {"-veri", "a,", "a,; D a&&"},
      {"-veri", "a b", "a.b; T a|b; O a/b; D ab", error + "\n Ident a\n Ident b"},
      {"-veri", "{2{a}", "{2{a}; TGS {{2{a}}; O (<*2>(a); D !ERROR!a"},
      {"-veri", "a}", "a}; O a); D a"},
      {"-veri", "2{a}", "", error},
      {"-vhdl", "", "", error},
      {"-vhdl", "a(3 )", "a", "ERROR! Index " + single + "\n Ident a"},
      {"-vhdl", "a(0 to3)", "a"},
      {"-vhdl", "a(3)(4)", "a[3]; G a(3); O a<3>; D a(3)"},
      {"-vhdl", "a&b", "a,; D a&&", "ERROR! List \n Ident a\n List"},
      {"-vhdl", "a,b&c", "a,b; D a&&b"},
      {"-vhdl", "@lib.", "", error},
      {"-orka", "a/", "a; D :a"},
      {"-orka", "a<1><2>", "a[1],a[2]; G a<1>,a<2>; O a<1,2>; D a(1),a(2)"},
      {"-orka", "(a,(b,c))", "{a,{b,c}; O (a,(b,c); D a&&b&&c"},
      {"-orka", "a<(0,1>", "a[0],a[1]; G a<0>,a<1>; O a<0,1>; D a(0),a(1)",
       "ERROR! Index " + single + "\n Ident a\n Index list\n Index:  0\n Index:  1"},
      {"-orka", "a<(", "a", error + "\n Ident a"},
      // What an index refuses is read on as a name.
      {"-orka", "a< 3>", R"(a.3; VH a.\3 ; T a|3; GO a/3; D a\3\)"},
      {"-orka", "a<1897152>", R"(a.1897152; VH a.\1897152 ; T a|1897152; GO a/1897152; D a\1897152\)"},
      {"-orka", "", ""},
      {"-kirra", R"(a\ b)", ""},
      {"-kirra", "model", "", error},
      {"-spice", "a$b", "a", error + "\n Ident "},
      {"-gcf", "a.", "a; D :a"},
      {"-gcf", "a..b", "a; D :a"},
      {"-gcf", "a<b>", "a.b; T a|b; O a/b; D ab"},
      {"-gcf", "a:b", "a.; T a|; O a/; D a", error + "\n Ident a\n Ident "},
      // TESSEL only notes a bus that follows no name.
      {"-tessel", "[3]", "[3]; O <3>; D (3)", "ERROR! Index " + single + "\n Index:  3"},
      {"-tessel", "a[1][2]|b", "a[1].b,a[2].b; TG a[1]|b,a[2]|b; O a<1,2>/b; D :a(1):b,:a(2):b"},
  });
}

TEST(Translation, LongPaths) {
  const auto repeated = [](int count, const std::string &text) {
    std::string all;
    for (int i = 0; i < count; ++i)
      all += text;
    return all;
  };
  // 1024 levels make 2047 characters, which is the limit, and 2048 in VHDL, which is beyond it.
  const std::string levels = "a" + repeated(1023, ".a");
  const std::string name(2047, 'n');
  const std::string slashes(700, '/'); // 2100 characters in ORKA
  check({
      {"-veri", levels, levels + "; T a" + repeated(1023, "|a") + "; O a" + repeated(1023, "/a") + "; D (null)"},
      {"-veri", levels + ".a", "(null)"},
      {"-veri", name, name},
      {"-veri", "a." + name + "n", "a; D :a"},
      {"-veri", "\\" + slashes + " ",
       "\\" + slashes + " ; TS " + slashes + "; KG " + repeated(700, "\\/") + "; O ; D \\" + slashes + "\\"},
      {"-veri", "a" + repeated(50'000, ".a"), "(null)", "Hierarchy " + single + repeated(50'001, "\n Ident a")},
  });
}

TEST(Translation, Environment) {
  const std::string pure = R"(pure.a; T pure|a; O pure/a; D :)";
  check({{"-vhdl", "Top", "top; D Top"}, {"-veri", "Top", R"(Top; D \Top\)"}}, {{"VRN_ALT_ZEL", "VHDL"}});
  check({{"-vhdl", "Top", "Top"}, {"-vhdl", "Module", "Module"}, {"-veri", "Top", "Top"}}, {{"VRN_ALT_ZEL", "xMatch"}});
  check({{"-veri", "pure.a", pure + R"(\pure\:a)"}});
  check({{"-veri", "pure.a", pure + "pure:a"}}, {{"ZEL_USE_VHDL87_KEYWORDS", "YES"}});
  check({{"-veri", "pure.a", pure + "pure:a"}}, {{"ZEL_USE_VHDL87_KEYWORDS", "yes"}});
  check({{"-veri", "pure.a", pure + R"(\pure\:a)"}}, {{"ZEL_USE_VHDL87_KEYWORDS", "Yes"}});
}

} // namespace
