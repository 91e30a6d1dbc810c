// What each grammar accepts, and what it keeps of what it refuses: languages, then "text→items|flags" in the spelling
// of pathSupport.h, with ␣ for a blank of a name and · for one between items.
#include "path/pathSupport.h"

namespace {

void expectParsed(const char *table) {
  for (const Case &row : casesOf(table))
    for (const std::string &source : row.heads) {
      const Path path = parse(source, row.text.c_str());
      std::string found = itemsOf(path.get());
      if (const std::string flags = flagsOf(path.get()); !flags.empty())
        found.append("|").append(flags);
      EXPECT_EQ(found, row.result) << source << " '" << row.text << "'";
    }
}

// Only a blank between names is refused; the comma is taken right behind an open bracket; a number counts only in front
// of a brace. The Kirra character behind an escaped one is taken untested: an escaped bracket there is part of the
// name, a divider never, and a bracket behind two backslashes is not escaped.
TEST(PathParse, Verilog) {
  expectParsed(R"(
      Verilog VerilogAMS Kirra KirraHDL → ␣␉␣→ ␣a␣.␣b␣→a·b|H a.→a|EH .a→|E a..b→a|EH a␣b→a·b|E aé→a|E
      a[3].b→a·[3]·b|HIm a[7:0].b→a·[7:0]·b|HRM a[␣3␣:␣0␣]→a·[3:0]|R a[-5]→a·[-5]|I a[-4:+2]→a·[-4:2]|R a[-]→a·[0]|I
      a[3]{b}→a·[3]·{·b·}|I a[1][2]→a·[1]|EI a[1:2:3]→a|E [3]→|E a[.b]→a|E a[3{→a|E a[-␣3]→a|E a[,b]→a·,·b|EL a[}→a·}|E
      a[]→a|E a,→a·,|EL a[-200000]→a·[-200000]|I a[-200001]→a|E a[18446744073709551617]→a|E a[2:0],b→a·[2:0]·,·b|RL
      {2{a,b}}→{·<*2>·{·a·,·b·}·}|*L {-2{a}}→{·<*-2>·{·a·}·}|* {2{3{a}}}→{·<*2>·{·<*3>·{·a·}·}·}|* {3a}→{·a·}
      {,a}→{·,·a·}|L {a}3→{·a·} {a},b→{·a·}·,·b|L a,{b}→a·,·{·b·}|L a,,b→a·,|EL ,a→|E {a→{·a|E {2{a}→{·<*2>·{·a·}|E*
      {2}→{|E {a}}→{·a·}·}|E {a}.b→{·a·}|E {a}[3]→{·a·}|E a{→a|E a.{b}→a|EH {1897152{a}}→{|E
      Verilog VerilogAMS \a.b␣.c→\a.b␣·c|H \a+b␉→\a+b␉ a$1._→a$1·_|H \a.b␣c→\a.b␣·c|E \ab→|E \aé␣→|E analog→analog
      a.module→a|EH $a→|E a(3)→a|E a:b→a|E a[1].3b→a·[1]|EHIm
      KirraHDL \a$b␣.c→\a$b␣·c|H a$b→a|E a.module→a|EH
      Kirra a\.b.c→a\.b·c|H a\[3\]→a\[3\] \+a[3]→\+a·[3]|I a\+[3]→|E a!.b[0:3]→a!·b·[0:3]|HR a.model→a|EH a(3)→|E a\→|E
      Table\[0\]\[2\].x→Table\[0\]\[2\]·x|H \{\,\}\,[3]→\{\,\}\,·[3]|I a\[0\][3]→|E a\+\[3.b→a\+\[3·b|H a\+\[3]→a\+\[3|E
      a\+\+[3]→a\+\+·[3]|I a\+\\\\[3]→a\+\\\\·[3]|I a\+\.b→|E)");
}

// The direction word does not count; the blank in "(3 )" takes the bracket with it; the character behind '&' goes
// unread; only ':' and the end keep a library reference, and behind a lone cell no index is noted.
TEST(PathParse, VHDL) {
  const VHDLMode allWords(2); // the reserved words of VHDL count, whatever the variant
  expectParsed(R"(
      VHDL VHDLAMS VHDL87 a→a :top:u1(3)→top·u1·[3]|HI ␣:␣a␣:␣b␣→a·b|H a(7␣downto␣0)→a·[7:0]|IR a(5␣to␣3)→a·[5:3]|IR
      a(7downto␣0)→a·[7:0]|IR a(7␣DownTo␉0)→a·[7:0]|IR a(␣1␣to␣␣2␣)→a·[1:2]|IR a(3):b→a·[3]·b|HIm a(3)b→a·[3]|EI
      a(3␣)→a|EI a(3␣))→a·[3]|I a(3␣␣→a|EI a(7␣downto0)→a|EI a(7␣downto→a|EI a(0␣to␣3␣to␣4)→a|EI a()→a|EI a(-1)→a|EI
      a(3:4)→a|EI a:(3)→a|EH (3)→|E →|E :→|E a:→a|EH a␣b→a|E 1a→|E aé→a|E a(1897152)→a|EI a(1␣to␣1897152)→a|EI
      a,b,c→a·,·b·,·c|L a&␣b→a·,·b|L a(3)&&b:c→a·[3]·,·b·c|HIL a&b→a·,|EL a&bc→a·,·c|L a&→a·,|EL a&&→a·,|EL
      a,b&c→a·,·b|EL a&&b,c→a·,·b|EL ,a→,·a|L :,a→,·a|L a,:b→a·,|EHL @l.c(v)→@Il.Ic(Iv) @l.c()→@Il.Ic
      ␣@␣l␣.␣c␣(␣v␣)␣→@Il.Ic(Iv) @\L\.c→@SL.Ic a@l.c(v)→a·@Il.Ic(Iv) a(3)@c→a·[3]·@-.Ic|I a,@c→a·,·@-.Ic|L
      @l.c(v):a→@Il.Ic(Iv)·a|H @c:a→@-.Ic·a|H a(3)@l.c:b→a·[3]·@Il.Ic·b|HIm a(3)@c:b→a·[3]·@-.Ic·b|HI
      a(1␣to␣2)@l.c(v):b→a·[1:2]·@Il.Ic(Iv)·b|HIRM @l.c,a→,·a|L @→|E @.c→|E @l.c(v→|E @l.c(v␣w)→|E @l.c(v)(→|E
      @l.c.d→|E @l␣c→|E @c(v)→|E @a__b→|E a:@c→a|EH quantity→quantity pure→|E \a␣b\:c→\a␣b\·c|H \a\\b\(3)→\a\\b\·[3]|I
      \a:(b\→\a:(b\ \a→|E \a\b→\a\|E \a␉b\→|E \→|E \aé\→|E a__b→|E a:Entity→a|EH)");
}

// Names are not tested for legality; the walk trips over the step of a short step range. What was read of a refused
// index stays, brackets that hold or close nothing do not, and the rest is read as if the index had ended there.
TEST(PathParse, ORKA) {
  expectParsed(R"(
      ORKA a→a /a→^a /top/u1<1>/n→^top·u1·[1]·n|HIm ␣/␣a␣/␣b␣→^a·b|H /a,/b→^a·,·^b|L (a,b)→{·a·,·b·}|L
      (a<1>)→{·a·[1]·}|I <*2>(a,b)→<*2>·{·a·,·b·}|*L <␣*2␣>a→<*2>·a|* a,<*2>b→a·,·<*2>·b|*L (<*2>a)→{·<*2>·a·}|* →|E
      /→|E a␣b→a·b|E a,→a·,|EL ,a→|E (a→{·a|E a)→a·}|E ()→{|E ((a))→{|E (a,(b,c))→{·a·,·{·b·,·c·}|EL (a),b→{·a·}|E
      (a)/b→{·a·}|E (a)<1>→{·a·}·[1]|EI /(a)→|E a>→a|E <2>→2|E <*→|E <*a>→a|E <*2>→<*2>|E* <*2><*3>a→<*2>|E*
      <*1897152>a→|E a(12)(3)b/c→a(12)(3)b·c|H a(x)→a|E a(3→a|E a()→a|E 2*3+[:].{}→2*3+[:].{} \→\ aé→a|E
      \a/␣b\/c→\a/␣b\·c|H a\b\→a·\b\|E a<3>→a·[3]|I a<0␣:7␉>→a·[0:7]|IR a<0:7:2>→a·[0:7:2]·?|IRX
      a<0:3*2>→a·[0:3]·[*2]|IRX a<0:6:2*200>→a·[0:6:2]·?·[*200]|IRX a<1,2:3,4>→a·[1]·[2:3]·[4]|IR
      a<1*2,3>→a·[1]·[*2]·[3]|IX a<(1,2)*3>→a·(·[1]·[2]·)·[*3]|IX a<(0:1*2)>→a·(·[0:1]·[*2]·)|IRX
      a<((1,2)3)>→a·(·(·[1]·[2]·)·[3]·)|I a<1*2(3)>→a·[1]·[*2]·(·[3]·)|IX a<0:7>/b→a·[0:7]·b|HIRM
      a<0:200:2>/b→a·[0:200:2]·b|HIRX a<(0)>/b→a·(·[0]·)·b|HI a<1*200>/b→a·[1]·[*200]·b|HIX a<1>,b<2>→a·[1]·,·b·[2]|IL
      a<→a|E a<3→a·[3]|EI a<3:>→a|EI a<3:4:2:1>→a·[3:4:2]·?·:1|EIRX a<3:␣4>→a·4|EI a<1><2>→a·[1]·[2]|EI a<1,>→a·[1]|EI
      a<1)>→a·[1]·}|EI a<1,,2>→a·[1]·,·2|EIL a<,1>→a·,·1|EL a<1␣2>→a·[1]·2|EI a<1:2␣3/b→a·[1:2]·3·b|EHIR a<-1>→a·-1|E
      a<*2>→a·*2|E a<1*2*3>→a·[1]·[*2]·*3|EIX a<1/b→a·[1]·b|EHIm a<()>→a·}|E a<(b→a·b|E a<(1((b→a·(·[1]|EI
      a<(1)→a·(·[1]·)|EI a<(1,(2))>→a·(·[1]|EI a<((1,2),3)>→a·(·(·[1]·[2]·)·,·3·}|EIL a<1897152>→a·1897152|E
      a<1*1897152>→a·[1]·1897152|EIX)");
}

// A bus opens anew anywhere. ':' ends a name and starts none, so names without characters come of it. Separators may
// have another meaning of their own. LEF and DEF names are tested for the characters of the format itself, whatever the
// handle.
TEST(PathParse, BusFormats) {
  expectParsed(R"(
      Sdf Spf Spef Lef Def → a/b[3]→a·b·[3]|HI ␣a␣/␣b␣[␣3␣]␣→a·b·[3]|HI /a/b→a·b|H/ /␣//a→a|/ a[3]/b→a·[3]·b|HIm
      a[1:2]/b→a·[1:2]·b|HRM [3:0]/b→[3:0]·b|HRM a[1][2:0]→a·[1]·[2:0]|IR a[3[4]→a·[4]|I a[3]b→a·[3]·b|I
      a[-3:+4]→a·[-3:4]|R a[-:-]→a·[0:0]|R 1a/-2→1a·-2|H a/→a|EH a//b→a|EH a␣b→a·b|E a[3]/→a·[3]|EHIm a]→a|E
      a[3]]→a·[3]|EI a[:3]→a|E a[3:]→a|E a[1:2:3]→a|E a[3␣4]→a|E a[b]→a·b|E a[/b]→a|E aé→a|E a[1897152]→a|E
      a[-200001]→a|E a[-200000:1897151]→a·[-200000:1897151]|R
      Sdf Spf Spef a\/b\[3\]/c→a\/b\[3\]·c|H a;b#/c→a;b#·c|H a\→a\ a:b→a·''|E :a→''·''|E a[3]:b→a·[3]·''·''|EI
      Lef Def a:b/c→a:b·c|H a\/b\[3\]/c\#→a\/b\[3\]·c\#|H a#b→|E a;b→a|E a%20b$/PINS→a%20b$·PINS|H a[3]:b→a·[3]·:b|I
      Gcf a.b<3>→a·b·[3]|HI .a→a|/ a/b[3]→a/b[3] <3:0>→[3:0]|R a<1:0><5:4>→a·[1:0]·[5:4]|R a:b→a·''|E a\.b→a\.b
      Tessel |top|a[3]→top·a·[3]|HI/ a/b:c→a/b:c a\|b\[|c→a\|b\[·c|H a[3]|b→a·[3]·b|HIm a|→a|EH a␣[1:0]→a·[1:0]|R
      [3]→[3]|EI a[3][4]→a·[3]·[4]|EI a|[3]|b→a·[3]·b|EHIm a[3[4]→a·[4]|EI ||[→|E/
      FlatTessel top_u1_n[3]→top_u1_n·[3]|I a|b/c:d[1:0]→a|b/c:d·[1:0]|R a\[3→a\[3 a\[3]→a\[3|E [3]→[3]|I
      a[3]b→a·[3]·b|I a␣b→a·b|E a␁b→a|E a[3][4]→a·[3]·[4]|I →
      Spice → a.b.c→a·b·c|H ␣a␣.␣b␣→a·b|H 1.-2→1·-2|H a[3]→a[3] a\.b.c→a\.b·c|H a..b→a|EH .a→|E a.→a|EH a␣b→a·b|E [a→|E
      ]a→|E a.[3]→a|EH a:b→|E a:.b→a:·b|H ab\:c→ab\:c aé→a|E
      Sdf.<> Spf.<> Spef.<> Lef.<> Def.<> a.b<3>→a·b·[3]|HI ..a→a|/ a\.b<1:0>.c→a\.b·[1:0]·c|HRM Spf.<> a/b[3]→a/b[3]
      Lef.<> a/b→|E a[→|E Lef\ a\b→a·b|H Def.<> a/b→a/b a[→a[ Spef: a:b→a·b|H a[1:0]→a|E Sdfxoc axbo3c→a·b·[3]|HI
      xa\xb→a\xb|/ o1:0c→[1:0]|R Sdf1 a1b→a·b|H a[1]→a|E)");
}

TEST(PathParse, NamesUpToTheLimit) {
  const std::string longest(ZEL_MAX_NAME, 'a');
  for (std::size_t i = 0; i < sources.size(); ++i) {
    SCOPED_TRACE(sources[i]);
    EXPECT_EQ(parse(sources[i], "a")->flags >> zeli::languageShift, i + 1);
    EXPECT_EQ(parse(sources[i], nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);
    const Path kept = parse(sources[i], longest.c_str());
    EXPECT_EQ(itemsOf(kept.get()) + flagsOf(kept.get()), longest);
    EXPECT_EQ(flagsOf(parse(sources[i], (longest + "a").c_str()).get()), "E");
    for (const std::string &escaped : {"\\" + longest + "a ", "\\" + longest + "a\\", repeated("\\+", 1024)})
      EXPECT_NE(flagsOf(parse(sources[i], escaped.c_str()).get()).find('E'), std::string::npos);
  }
}

} // namespace
