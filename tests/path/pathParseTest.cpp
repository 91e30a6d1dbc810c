// What each grammar accepts, and what it keeps of what it refuses. A case reads "text -> items | flags", in the
// spelling of pathSupport.h.
#include "path/pathSupport.h"
#include "support/rules.h"

namespace {

template <typename... Case>
void expectParsed(std::initializer_list<const char *> languages, zelHandle handle, const Case *...cases) {
  for (const char *const source : languages)
    for (const std::string &row : {std::string(cases)...}) {
      const std::string text = row.substr(0, row.find(" -> "));
      const Path path = parse(source, text.c_str(), handle);
      const std::string items = itemsOf(path.get());
      const std::string flags = flagsOf(path.get());
      std::ostringstream found;
      found << text << " -> " << items << (flags.empty() ? "" : items.empty() ? "| " : " | ") << flags;
      EXPECT_EQ(found.str(), row) << source;
    }
}

constexpr std::initializer_list<const char *> verilogGrammar = {"Verilog", "VerilogAMS", "Kirra", "KirraHDL"};

TEST(PathParseVerilog, Levels) {
  expectParsed(verilogGrammar, nullptr, " -> ", " \t -> ", "a -> a", " a . b  -> a b | H", "a.b.c_1 -> a b c_1 | H",
               "a. -> a | EH", ".a -> | E", "a..b -> a | EH", "a b -> a b | E", "3 -> | E", "2n3904 -> | E", "- -> | E",
               "a\x80 -> a | E");
}

TEST(PathParseVerilog, Indexes) {
  expectParsed(verilogGrammar, nullptr, "a[3] -> a [3] | I", "a[7:0] -> a [7:0] | R", "a.b[3] -> a b [3] | HI",
               "a[3].b -> a [3] b | HIm", "a[7:0].b -> a [7:0] b | HRM", "a.b[1].c[2:0].d -> a b [1] c [2:0] d | HIRmM",
               "a[ 3 : 0 ] -> a [3:0] | R", "a[-5] -> a [-5] | I", "a[+5] -> a [5] | I", "a[-4:+2] -> a [-4:2] | R",
               "a[-] -> a [0] | I", "a[3]b -> a [3] b | I", // only a blank between names is refused
               "a[3]{b} -> a [3] { b } | I", "a[1][2] -> a [1] | EI", "a[1:2:3] -> a | E", "[3] -> | E", "a[ -> a | E",
               "a[3 -> a | E", "a[3: -> a | E", "a[] -> a | E", "a[:0] -> a | E", "a[3:] -> a | E", "a[b] -> a b | E",
               "a[.b] -> a | E", "a[{ -> a | E", "a[3{ -> a | E", "a[- 3] -> a | E", "a[1 2] -> a | E", "a] -> a | E",
               "a[,b] -> a , b | EL", // the comma is taken right behind the bracket
               "a[} -> a } | E", "a[1897151] -> a [1897151] | I", "a[-200000] -> a [-200000] | I",
               "a[1897152] -> a | E", "a[-200001] -> a | E", "a[0:1897152] -> a | E",
               "a[18446744073709551617] -> a | E", "a[00000000000000000000003] -> a [3] | I");
}

TEST(PathParseVerilog, ListsAndRepeats) {
  expectParsed(verilogGrammar, nullptr, "a,b -> a , b | L", "a[2:0],b -> a [2:0] , b | RL", "{a,b} -> { a , b } | L",
               "{2{a,b}} -> { <*2> { a , b } } | *L", "{ 2 { a } } -> { <*2> { a } } | *",
               "{-2{a}} -> { <*-2> { a } } | *", "{2{3{a}}} -> { <*2> { <*3> { a } } } | *",
               "{3a} -> { a }", // a number counts only in front of a brace
               "{} -> { }", "{,a} -> { , a } | L", "{a}b -> { a } b", "{a}3 -> { a }", "{a},b -> { a } , b | L",
               "a,{b} -> a , { b } | L", "a, -> a , | EL", "a,,b -> a , | EL", ",a -> | E", "{a -> { a | E",
               "{2{a} -> { <*2> { a } | E*", "{2} -> { | E", "{2 -> { | E", "{{a}} -> { | E", "} -> | E",
               "{a}} -> { a } } | E", "{a}.b -> { a } | E", "{a}[3] -> { a } | E", "a{ -> a | E", "a.{b} -> a | EH",
               "a.,b -> a | EH", "{1897152{a}} -> { | E");
}

TEST(PathParseVerilog, Names) {
  expectParsed({"Verilog", "VerilogAMS"}, nullptr, R"(\a.b .c -> \a.b  c | H)", "\\a+b\t -> \\a+b\t",
               "a$1._ -> a$1 _ | H", R"(\a.b c -> \a.b  c | E)", R"(\ab -> | E)", R"(\ -> | E)", "\\a\x80  -> | E",
               "analog -> analog", "a.module -> a | EH", "$a -> | E", "a(3) -> a | E", "a:b -> a | E",
               "a[1].3b -> a [1] | EHIm");

  expectParsed({"KirraHDL"}, nullptr, R"(\a$b .c -> \a$b  c | H)", "a$b -> a | E", "a.module -> a | EH");

  expectParsed({"Kirra"}, nullptr, R"(a\.b.c -> a\.b c | H)", R"(a\[3\] -> a\[3\])", R"(\+a[3] -> \+a [3] | I)",
               R"(a\+[3] -> | E)", // what follows an escaped character belongs to the name
               "a!.b[0:3] -> a! b [0:3] | HR", "a.model -> a | EH", "a+b -> | E", "a(3) -> | E", R"(a\ -> | E)");
}

constexpr std::initializer_list<const char *> vhdlGrammar = {"VHDL", "VHDLAMS", "VHDL87"};

TEST(PathParseVHDL, LevelsAndIndexes) {
  expectParsed(
      vhdlGrammar, nullptr, "a -> a", ":a -> a", ":top:u1(3) -> top u1 [3] | HI", " : a : b  -> a b | H",
      "a(7 downto 0) -> a [7:0] | IR", "a(0 to 3) -> a [0:3] | IR",
      "a(5 to 3) -> a [5:3] | IR", // the direction word does not count
      "a(7downto 0) -> a [7:0] | IR", "a(7 DownTo\t0) -> a [7:0] | IR", "a(3tO 4) -> a [3:4] | IR",
      "a( 1 to  2 ) -> a [1:2] | IR", "a(3):b -> a [3] b | HIm", "a(1 to 2):b -> a [1:2] b | HIRM",
      "a(3)b -> a [3] | EI", "a(3)(4) -> a [3] | EI", "a(3 ) -> a | EI", // the blank takes the bracket with it ...
      "a(3 )) -> a [3] | I",                                             // ... so a second one counts
      "a(3  -> a | EI", "a(7 downto0) -> a | EI", "a(7 to -> a | EI", "a(7 to  -> a | EI", "a(7 downto -> a | EI",
      "a(0 to 3 -> a | EI", "a(0 to 3 to 4) -> a | EI", "a( -> a | EI", "a() -> a | EI", "a(-1) -> a | EI",
      "a(b) -> a | EI", "a(3:4) -> a | EI", // behind digits ':' is no level
      "a(3,4) -> a , | EIL", "a:(3) -> a | EH", "(3) -> | E", " -> | E", "  -> | E", ": -> | E", "a: -> a | EH",
      "::a -> | EH", "a b -> a | E", "a.b -> a | E", "1a -> | E", "a\x80 -> a | E", "a(1897151) -> a [1897151] | I",
      "a(1897152) -> a | EI", "a(1 to 1897152) -> a | EI", "a(99999999999999999999) -> a | EI");
}

TEST(PathParseVHDL, Lists) {
  expectParsed(vhdlGrammar, nullptr, "a,b,c -> a , b , c | L", "a&&b&&c -> a , b , c | L", "a& b -> a , b | L",
               "a(3)&&b:c -> a [3] , b c | HIL", "a&b -> a , | EL", // the character behind '&' goes unread
               "a&bc -> a , c | L", "a& -> a , | EL", "a&& -> a , | EL", "a,b&c -> a , b | EL", "a&&b,c -> a , b | EL",
               ",a -> , a | L", "a,,b -> a , , b | L", ":,a -> , a | L", ", -> , | EL", "a,:b -> a , | EHL");
}

TEST(PathParseVHDL, LibraryReferences) {
  expectParsed(vhdlGrammar, nullptr, "@l.c(v) -> @Il.Ic(Iv)", "@l.c -> @Il.Ic", "@l.c() -> @Il.Ic", "@c -> @-.Ic",
               " @ l . c ( v )  -> @Il.Ic(Iv)", R"(@\L\.c -> @SL.Ic)", "a@l.c(v) -> a @Il.Ic(Iv)",
               "a(3)@c -> a [3] @-.Ic | I", "a,@c -> a , @-.Ic | L", "@l.c(v):a -> @Il.Ic(Iv) a | H",
               "@l.c:a -> @Il.Ic a | H", "@c:a -> @-.Ic a | H", "a(3)@l.c:b -> a [3] @Il.Ic b | HIm",
               "a(3)@c:b -> a [3] @-.Ic b | HI", // behind a lone cell nothing is noted
               "a(1 to 2)@l.c(v):b -> a [1:2] @Il.Ic(Iv) b | HIRM",
               "@l.c,a -> , a | L", // only ':' and the end keep the reference
               "@ -> | E", "@@c -> | E", "@l. -> | E", "@.c -> | E", "@l.c( -> | E", "@l.c(v -> | E",
               "@l.c(v w) -> | E", "@l.c(v)w -> | E", "@l.c(v)( -> | E", "@l.c.d -> | E", "@l c -> | E", "@c@d -> | E",
               "@l.c) -> | E", "@c(v) -> | E", "@a__b -> | E", "a:@c -> a | EH");
}

TEST(PathParseVHDL, Names) { // tested with the reserved words of VHDL, whatever the variant
  const VHDLMode allWords(2);
  expectParsed(vhdlGrammar, nullptr, "quantity -> quantity", "pure -> | E");
  expectParsed(vhdlGrammar, nullptr, R"(\a b\:c -> \a b\ c | H)", R"(\a\\b\(3) -> \a\\b\ [3] | I)",
               R"(\a:(b\ -> \a:(b\)", R"(\a -> | E)", R"(\a\b -> \a\ | E)", "\\a\tb\\ -> | E", R"(\ -> | E)",
               "\\a\x80\\ -> | E", "a__b -> | E", "a_ -> | E", "_a -> | E", "a:Entity -> a | EH");
}

TEST(PathParseORKA, LevelsListsAndRepeats) {
  expectParsed({"ORKA"}, nullptr, "a -> a", "/a -> ^a", "/top/u1<1>/n -> ^top u1 [1] n | HIm", " / a / b  -> ^a b | H",
               "a,b -> a , b | L", "/a,/b -> ^a , ^b | L", "(a,b) -> { a , b } | L", "(/a) -> { ^a }",
               "(a<1>) -> { a [1] } | I", "(3) -> { 3 }", "<*2>(a,b) -> <*2> { a , b } | *L", "< *2 >a -> <*2> a | *",
               "<*2>/a -> <*2> ^a | *", "a,<*2>b -> a , <*2> b | *L", "(<*2>a) -> { <*2> a } | *", "*a -> *a",
               " -> | E", "  -> | E", "/ -> | E", "//a -> | E", "a/ -> a | EH", "a//b -> a | EH", "a b -> a b | E",
               "a, -> a , | EL", ",a -> | E", "(a -> { a | E", "a) -> a } | E", "() -> { | E", "((a)) -> { | E",
               "(a,(b,c)) -> { a , { b , c } | EL", "(a),b -> { a } | E", "(a)/b -> { a } | E", "(a)b -> { a } b | E",
               "(a)<1> -> { a } [1] | EI", "/(a) -> | E", "a> -> a | E", "< -> | E", "<2> -> 2 | E", "<* -> | E",
               "<*> -> | E", "<*a> -> a | E", "<*2 -> <*2> | E*", "<*2> -> <*2> | E*", "<*2>,a -> <*2> | E*",
               "<*2><*3>a -> <*2> | E*", "<*1897152>a -> | E", "<*99999999999999999999>a -> | E");
}

TEST(PathParseORKA, Names) { // not tested for legality
  expectParsed({"ORKA"}, nullptr, "a(3) -> a(3)", "a(12)(3)b/c -> a(12)(3)b c | H", "a(x) -> a | E", "a(3 -> a | E",
               "a() -> a | E", "2*3+[:].{} -> 2*3+[:].{}", R"(\ -> \)", "a\x80 -> a | E", R"(\a/ b\/c -> \a/ b\ c | H)",
               R"(a\b\ -> a \b\ | E)");
}

TEST(PathParseORKA, Indexes) {
  expectParsed({"ORKA"}, nullptr, "a<3> -> a [3] | I", "a<3 > -> a [3] | I", "a<0:7> -> a [0:7] | IR",
               "a<0 :7\t> -> a [0:7] | IR",
               "a<0:7:2> -> a [0:7:2] ? | IRX", // the walk trips over the step of a short step range
               "a<0:200:2> -> a [0:200:2] | IRX", "a<3*2> -> a [3] [*2] | IX", "a<0:3*2> -> a [0:3] [*2] | IRX",
               "a<0:6:2*200> -> a [0:6:2] ? [*200] | IRX", "a<1,2:3,4> -> a [1] [2:3] [4] | IR",
               "a<1*2,3> -> a [1] [*2] [3] | IX", "a<(0,2,4)> -> a ( [0] [2] [4] ) | I",
               "a<(1,2)*3> -> a ( [1] [2] ) [*3] | IX", "a<(0:1*2)> -> a ( [0:1] [*2] ) | IRX",
               "a<(1)(2)> -> a ( [1] ) ( [2] ) | I", "a<((1,2)3)> -> a ( ( [1] [2] ) [3] ) | I",
               "a<1*2(3)> -> a [1] [*2] ( [3] ) | IX", "a<0:7>/b -> a [0:7] b | HIRM",
               "a<0:200:2>/b -> a [0:200:2] b | HIRX", // only plain indexes and ranges are noted
               "a<(0,1)>/b -> a ( [0] [1] ) b | HI", "a<1*200>/b -> a [1] [*200] b | HIX",
               "a<1>,b<2> -> a [1] , b [2] | IL", "a<1897151> -> a [1897151] | I");
}

// What was read of a refused index stays, brackets that hold or close nothing do not, and the rest is read as if the
// index had ended there.
TEST(PathParseORKA, IndexesRefusedHalfWay) {
  expectParsed({"ORKA"}, nullptr, "a< -> a | E", "a<> -> a | E", "a<3 -> a [3] | EI", "a<3: -> a | EI",
               "a<3:> -> a | EI", "a<3:4 -> a [3:4] | EIR", "a<3:4:> -> a | EIR", "a<3:4:2:1> -> a [3:4:2] ? :1 | EIRX",
               "a<::> -> a :: | E", "a< 3> -> a 3 | E", "a<3: 4> -> a 4 | EI", "a<1><2> -> a [1] [2] | EI",
               "a<1,> -> a [1] | EI", "a<1,,2> -> a [1] , 2 | EIL", "a<,1> -> a , 1 | EL", "a<1 2> -> a [1] 2 | EI",
               "a<1:2 3/b -> a [1:2] 3 b | EHIR", "a<-1> -> a -1 | E", "a<b> -> a b | E", "a<*2> -> a *2 | E",
               "a<1*> -> a [1] | EIX", "a<1*2*3> -> a [1] [*2] *3 | EIX", "a<1/b -> a [1] b | EHIm", "a<()> -> a } | E",
               "a<( -> a | E", "a<((( -> a | E", "a<(b -> a b | E", "a<(1((b -> a ( [1] | EI", "a<(1> -> a ( [1] | EI",
               "a<(1) -> a ( [1] ) | EI", "a<1)> -> a [1] } | EI", "a<1)) -> a [1] } | EI", "a<(1(2))> -> a ( [1] | EI",
               "a<(1,(2))> -> a ( [1] | EI", "a<(1,2),3> -> a ( [1] [2] ) , 3 | EIL",
               "a<((1,2),3)> -> a ( ( [1] [2] ) , 3 } | EIL", "a<1897152> -> a 1897152 | E",
               "a<1:1897152> -> a 1897152 | EI", "a<1*1897152> -> a [1] 1897152 | EIX");
}

constexpr std::initializer_list<const char *> slashFormats = {"Sdf", "Spf", "Spef", "Lef", "Def"};

TEST(PathParseBus, LevelsAndIndexes) {
  expectParsed(
      slashFormats, nullptr, " -> ", "a/b[3] -> a b [3] | HI", " a / b [ 3 ]  -> a b [3] | HI", "/a/b -> a b | H/",
      "/ //a -> a | /", "/ -> | /", "a[1:2] -> a [1:2] | R", "a[3]/b -> a [3] b | HIm", "a[1:2]/b -> a [1:2] b | HRM",
      "[3] -> [3] | I", "[3:0]/b -> [3:0] b | HRM", "/[3] -> [3] | I/", "a/[3] -> a [3] | HI",
      "a[1][2:0] -> a [1] [2:0] | IR", "a[[3] -> a [3] | I", // a bus opens anew anywhere
      "a[3[4] -> a [4] | I", "a[3:[4] -> a [4] | I", "a[3]b -> a [3] b | I", "a[-3:+4] -> a [-3:4] | R",
      "a[+] -> a [0] | I", "a[-:-] -> a [0:0] | R", "1a/-2 -> 1a -2 | H", "a/ -> a | EH", "a//b -> a | EH",
      "a b -> a b | E", "a[3]/ -> a [3] | EHIm", "a[] -> a | E", "a] -> a | E", "a[3 -> a | E", "a[3]] -> a [3] | EI",
      "a[:3] -> a | E", "a[3:] -> a | E", "a[1:2:3] -> a | E", "a[3 4] -> a | E", "a[- 4] -> a | E", "a[b] -> a b | E",
      "a[1b] -> a b | E", "a[/b] -> a | E", "[/b] -> | E", "a[3]4 -> a [3] | EI", "a[3]- -> a [3] | EI",
      "a\x80 -> a | E", "a[1897152] -> a | E", "a[-200001] -> a | E", "a[-200000:1897151] -> a [-200000:1897151] | R");
}

TEST(PathParseBus, Names) {
  expectParsed({"Sdf", "Spf", "Spef"}, nullptr, R"(a\/b\[3\]/c -> a\/b\[3\] c | H)", "a;b#/c -> a;b# c | H",
               R"(a\ -> a\)");

  // ':' ends a name and starts none, so names without characters come of it.
  expectParsed({"Sdf", "Spf", "Spef"}, nullptr, "a:b -> a '' | E", ":a -> '' '' | E", "a[3]:b -> a [3] '' '' | EI");

  expectParsed({"Lef", "Def"}, nullptr, "a:b/c -> a:b c | H", R"(a\/b\[3\]/c\# -> a\/b\[3\] c\# | H)", "a#b -> | E",
               "a;b -> a | E", "a%20b$/PINS -> a%20b$ PINS | H", "a[3]:b -> a [3] :b | I");
}

TEST(PathParseBus, OtherCharacters) {
  expectParsed({"Gcf"}, nullptr, "a.b<3> -> a b [3] | HI", ".a -> a | /", "a/b[3] -> a/b[3]", "<3:0> -> [3:0] | R",
               "a<1:0><5:4> -> a [1:0] [5:4] | R", "a:b -> a '' | E", R"(a\.b -> a\.b)");

  for (const char *const source : slashFormats)
    expectParsed({source}, handleOf(source, '.', '<', '>').get(), "a.b<3> -> a b [3] | HI", "..a -> a | /",
                 R"(a\.b<1:0>.c -> a\.b [1:0] c | HRM)");

  for (const char *const source : {"Sdf", "Spf", "Spef"})
    expectParsed({source}, handleOf(source, '.', '<', '>').get(), "a/b[3] -> a/b[3]");
  // Names are tested for the characters of the format itself, whatever the handle.
  expectParsed({"Lef"}, handleOf("Lef", '.', '<', '>').get(), "a/b -> | E", "a[ -> | E");
  expectParsed({"Def"}, handleOf("Def", '.', '<', '>').get(), "a/b -> a/b", "a[ -> a[");

  // Separators that have another meaning of their own, or none that the eye expects.
  expectParsed({"Spef", "Lef"}, handleOf("Spef", ':', 0, 0).get(), "a:b -> a b | H", "a[1:0] -> a | E");
  expectParsed({"Sdf"}, handleOf("Sdf", 'x', 'o', 'c').get(), "axbo3c -> a b [3] | HI", R"(xa\xb -> a\xb | /)",
               "o1:0c -> [1:0] | R");
  expectParsed({"Sdf"}, handleOf("Sdf", '1', 0, 0).get(), "a1b -> a b | H", "a[1] -> a | E");
}

TEST(PathParseBus, Tessel) {
  expectParsed({"Tessel"}, nullptr, "|top|a[3] -> top a [3] | HI/", "a/b:c -> a/b:c", R"(a\|b\[|c -> a\|b\[ c | H)",
               "a[3]|b -> a [3] b | HIm", "a| -> a | EH", "a [1:0] -> a [1:0] | R", "[3] -> [3] | EI",
               "a[3][4] -> a [3] [4] | EI", "a|[3]|b -> a [3] b | EHIm", "a[3[4] -> a [4] | EI", "||[ -> | E/");

  expectParsed({"FlatTessel"}, nullptr, "top_u1_n[3] -> top_u1_n [3] | I", "a|b/c:d[1:0] -> a|b/c:d [1:0] | R",
               "|a -> |a", R"(a\[3 -> a\[3)", R"(a\[3] -> a\[3 | E)", "[3] -> [3] | I", "a[3]b -> a [3] b | I",
               "a b -> a b | E", "a[3][4] -> a [3] [4] | I", " -> ");
}

TEST(PathParseSpice, Rules) {
  expectParsed({"Spice"}, nullptr, " -> ", "a.b.c -> a b c | H", " a . b  -> a b | H", "1.-2 -> 1 -2 | H", "a_3 -> a_3",
               "a[3] -> a[3]", R"(a\.b.c -> a\.b c | H)", "a..b -> a | EH", ".a -> | E", "a. -> a | EH",
               "a b -> a b | E", "[a -> | E", "]a -> | E", "a.[3] -> a | EH", "a:b -> | E", "a:.b -> a: b | H",
               R"(ab\:c -> ab\:c)", "a\x80 -> a | E");
}

TEST(PathParse, NamesUpToTheLimit) {
  const std::string longest(ZEL_MAX_NAME, 'a');
  const std::string tooLong = longest + 'a';
  for (const char *const source : sources) {
    SCOPED_TRACE(source);
    const Path kept = parse(source, longest.c_str());
    EXPECT_EQ(itemsOf(kept.get()), longest);
    EXPECT_EQ(flagsOf(kept.get()), "");
    const Path refused = parse(source, tooLong.c_str());
    EXPECT_EQ(itemsOf(refused.get()), "");
    EXPECT_EQ(flagsOf(refused.get()), "E");
  }
  for (const std::string &escaped : {"\\" + tooLong + " ", "\\" + tooLong + "\\", repeated("\\+", 1024)})
    for (const char *const source : sources)
      EXPECT_NE(flagsOf(parse(source, escaped.c_str()).get()).find('E'), std::string::npos) << source;
}

TEST(PathParse, Basics) {
  for (std::size_t i = 0; i < std::size(sources); ++i) {
    EXPECT_EQ(parse(sources[i], "a")->flags >> zeli::languageShift, i + 1) << sources[i];
    errno = 0;
    EXPECT_EQ(parse(sources[i], nullptr), nullptr) << sources[i];
    EXPECT_EQ(errno, EINVAL) << sources[i];
  }
  const auto kind = [](const char *source, const char *text, int item) { return parse(source, text)->items[item]; };
  EXPECT_EQ(kind("Verilog", "a[123]", 1), 2); // numbers are stored short or long wherever they come from
  EXPECT_EQ(kind("Verilog", "a[-5]", 1), 3);
  EXPECT_EQ(kind("VHDL", "a(0 to 123)", 1), 4);
  EXPECT_EQ(kind("Sdf", "a[0:124]", 1), 5);
  EXPECT_EQ(kind("ORKA", "a<0:123:1>", 1), 6);
  EXPECT_EQ(kind("ORKA", "a<0:1:124>", 1), 7);
  EXPECT_EQ(kind("ORKA", "<*123>a", 0), 8);
  EXPECT_EQ(kind("Verilog", "{124{a}}", 1), 9);
  EXPECT_EQ(kind("ORKA", "a<0*123>", 3), 15);
  EXPECT_EQ(kind("ORKA", "a<0*124>", 3), 16);
}

template <typename... Case>
void expectScanned(std::initializer_list<zeliScanner *> scanners, zelHandle handle, const Case *...cases) {
  for (zeliScanner *const scan : scanners)
    for (const std::string &row : {std::string(cases)...}) {
      const std::size_t length = row.find('~');
      const std::string text = row.substr(0, length) + row.substr(length + 1);
      EXPECT_EQ(static_cast<std::size_t>(scan(text.c_str(), handle) - text.c_str()), length) << row;
    }
}

// A '~' in place of where the name ends.
TEST(PathScan, Ends) {
  expectScanned({zeliScanVlog, zeliScanKirraHDL}, nullptr, "1a_~.b", "a~\\b", "\\a\\+.$ ~b", "\\a\t~\t", "\\a~\nb",
                "\\ ~a");
  expectScanned({zeliScanVlog}, nullptr, "ab$1~+");
  expectScanned({zeliScanKirraHDL}, nullptr, "ab~$1");
  expectScanned({zeliScanVHDL}, nullptr, "a_1~-");
  expectScanned({zeliScanVHDL, zeliScanORKA}, nullptr, R"(\a /b\~c)", R"(\a\\b\~c)", R"(\a\\~)", "\\a~\tb\\", R"(\\~)");
  expectScanned({zeliScanORKA}, nullptr, "a+[b]\"~/", "a(3)b(12)(4)c~(", "a~(3", "a~(3b)", "a~()", "a~,", R"(a~\b)");
  expectScanned({zeliScanTessel}, nullptr, "a/b:~|c");
  expectScanned({zeliScanFlatTessel}, nullptr, "a|b~]");
  expectScanned({zeliScanTessel, zeliScanFlatTessel}, nullptr, R"(a\[\|~[)", R"(a\ b~ )", R"(a\\~])");
  expectScanned({zeliScanSpice}, nullptr, R"(a[3]\.~./)", R"(a\ b~ )");
  expectScanned({zeliScanLef, zeliScanDef}, zelLefHandle, R"(a:\;b~;)");
  expectScanned({zeliScanSdf, zeliScanSpf, zeliScanSpef, zeliScanGcf}, zelSdfHandle, R"(a;\:b~:)");
  const Handle dots = handleOf("Sdf", '.', '<', '>');
  for (zeliScanner *const scan : {zeliScanLef, zeliScanDef, zeliScanSdf, zeliScanSpf, zeliScanSpef, zeliScanGcf}) {
    expectScanned({scan}, zelSdfHandle, R"(a\/\[.~/)", "a~[", "a~]");
    expectScanned({scan}, dots.get(), R"(a/[]\<~.)", "a~<", "a~>", R"(a\ b~ c)");
  }
  // Kirra: a backslash that escapes nothing ends the name; behind an escaped character anything but '.' is taken.
  expectScanned({zeliScanKirra}, nullptr, "a(3)/b~[", R"(a\.b~.c)", R"(a\~ b)", R"(a\+ b~])", R"(a\+[~])", R"(a\+\~.)",
                R"(a\+~.b)", "a\\+~\x80", R"(a\+~)", "a~{", "a~}", "a~,", "a~]");
}

TEST(PathScan, StopsAtTheEndAndAtHighBytes) {
  zeliScanner *const scanners[] = {zeliScanVlog,       zeliScanKirraHDL, zeliScanVHDL,  zeliScanORKA, zeliScanTessel,
                                   zeliScanFlatTessel, zeliScanSpice,    zeliScanKirra, zeliScanLef,  zeliScanDef,
                                   zeliScanSdf,        zeliScanSpf,      zeliScanSpef,  zeliScanGcf};
  for (const char *const text : {"a", "\\", "\\a", "a\x80z", "\\\x80z", "\\a\xffz"})
    for (zeliScanner *const scan : scanners)
      EXPECT_EQ(static_cast<std::size_t>(scan(text, zelSdfHandle) - text), std::strcspn(text, "\x80\xff"))
          << testing::PrintToString(text) << " by scanner " << &scan - scanners;
}

} // namespace
