// The rules of every space, by names that follow or break one.
#include "support/rules.h"

// Ident→the name that is written, name⇒the Ident that is read (✗: refused with EINVAL), ✓legal name, ✗illegal name.
// They hold in the mapping states whose initials stand before them, as in:VDTM; at first in all but MATCH.
static const struct {
  const char *spaces;
  const char *rules;
} sheets[] = {
    {"Ident", R"(in:VDTM Sa→Sa IA␣b→IA␣b any→any S→S → any⇒any ⇒ ✓Sa ✓Ia ✓Fa ✓S␣ ✓Ié ✗S ✗I ✗F ✗Xa ✗sa ✗a)"},
    // An unescaped name always has case, an escaped one only with capitals; its content is not checked.
    {"Verilog VerilogAMS VerilogA KirraHDL", R"(SModule→Module Imodule→\module␣ IModule→\module␣ IWire2→wire2
     IA+B→\a+b␣ SA+B→\A+B␣ FA+B→\A+B␣ Sa␣b→\a#20b␣ S1abc→\1abc␣ S\→\\␣ Sé→\#e9␣ Ia#7F→\a#237f␣ Abc⇒SAbc \A+b␣⇒SA+b
     \abc␉⇒Iabc \␣⇒I \a␣b␣⇒Ia␣b \A#E9␣⇒SAé \a#4A␣⇒Sa#4A module⇒✗ \abc⇒✗ \⇒✗ a+b⇒✗ ✓Module ✓\␣ ✓\\␣ ✓\module␣ ✗1abc
     ✗$abc ✗module ✗a-b ✗\ ✗\a␣b␣ in:M IModule→Module Imodule→\module␣ IA+B→\A+B␣ abc⇒Sabc \A+b␣⇒SA+b)"},
    {"Verilog VerilogAMS VerilogA", "Ia$B→a$b ✓a$1"},
    {"KirraHDL", R"(Ia$B→\a$b␣ Iln→ln Istrlen→\strlen␣ ✓and ✗a$1 ✗strlen)"},
    {"VerilogA", R"(Stransitiontri→\transitiontri␣ Stri→tri Iac_stim→ac_stim ✓acosh ✓transition ✗transitiontri ✗abs)"},
    // The force prefix tells that a basic identifier was extended. The mapping state decides where capitals matter.
    {"VHDL VHDL87 VHDLAMS", R"(ISignal→\signal\ Sa__b→\a__b\ S1a→\1a\ Sa␣b→\a␣b\ Sa\b→\a\\b\ IA+B→\a+b\ SA+B→\A+B\
     Sa␉→\a#09\ Sé→\#e9\ Sa#5c→\a#5c\ S#\→\#\\\ FESC_abc→\abc\ SESC_→\\ SESC_a␣b→\a␣b\ SESC_ESC_a→\ESC_a\ \a\\b\⇒Ia\b
     \a\b\⇒Ia\b \signal\⇒Isignal \Signal\⇒SSignal \a#E9\⇒Iaé \\⇒I \⇒I \a\\⇒Ia\ \a1\⇒SESC_a1 signal⇒✗ \abc⇒✗ a␣b⇒✗
     ✓a_b ✓ESC_a ✓\\ ✓\a\\b\ ✓\signal\ ✗a__b ✗ab_ ✗1a ✗SIGNAL ✗\ ✗\a\b\ ✗\a\\ ✗\a␉\ in:D SAbc→\Abc\ FAbc→\Abc\
     IAbc→Abc IESC_abc→ESC_abc abc⇒Iabc Abc⇒IAbc ESC_a⇒IESC_a \Abc\⇒SAbc in:VT SAbc→Abc FAbc→Abc IAbc→abc
     SESC_Abc→\Abc\ IESC_Abc→esc_abc \Abc\⇒SESC_Abc in:V abc⇒Sabc Abc⇒SAbc in:T abc⇒Iabc Abc⇒IAbc in:M SAbc→Abc
     FAbc→\Abc\ IAbc→Abc IA+B→\a+b\ SA+B→\A+B\ SESC_Abc→\Abc\ FESC_abc→\abc\ IESC_abc→ESC_abc Abc⇒IAbc \Abc\⇒SAbc
     \abc\⇒SESC_abc)"},
    {"ORKA 44ORKA", R"(SA/b→A#2fb IA/b→a#2fb IA(12)B(0)→a(12)b(0) S(3)a→#283#29a Sa(3→a#283 Sa(3(4)→a#283(4)
     Sa((3))→a#28(3)#29 Sa<b>→a#3cb#3e Ia#2F→a#232f Sa#28(3)→a#2328(3) a(3)⇒Ia(3) A#2fb⇒SA/b a#2Fb⇒Ia/b a#4A⇒Sa#4A
     a#28⇒Ia( ✓a(12)b ✓a(3)(4) ✗(3)a ✗a() ✗a(x) ✗a(3 ✗a(3)) ✗a(3␣) ✗a(-1) ✗é in:M IA/b→A#2fb A⇒SA)"},
    // An escaped mark is escaped again in front of anything. A plain name has case, whatever its letters.
    {"EscORKA", R"(Ia␣b→\a␣b\ SA␣b→\A␣b\ Sabc→abc IAbc→abc SESC_abc→\abc\ SESC_→\\ IESC_a␣b→\a␣b\ FESC_(3)→\(3)\
     IESC_(3)→esc_(3) S(3)→\(3)\ Sa(3)→a(3) Sa␉→\a#09\ Sa#2f→a#2f S␣#09→\␣#2309\ S␣#2341→\␣#232341\ S␣#00→\␣#00\
     abc⇒Sabc \abc\⇒SESC_abc \a(3)\⇒SESC_a(3) \Abc\⇒SAbc \a␣b\⇒Ia␣b \(3)\⇒I(3) \a\\b\⇒Ia\b \\⇒I \␣#2341\⇒I␣#2341
     \␣#2309\⇒I␣#09 \␣#2323\⇒I␣#23 a/b⇒✗ ✓\a␣b\ ✓\\ ✗(3) ✗\a\b\ ✗\a␉\ in:M IA␣b→\A␣b\ IAbc→Abc)"},
    // What is read is not otherwise checked. Part numbers stand as they are, with their backslashes.
    {"Kirra", R"(Sa.b→a\.b IA.B→a\.b S!ab→\!ab Sa\b→a\\b Sé→\#e9 S␁q→\#01q Sa␉→a\␉ Sa#41→a\#41 A\.b⇒SA.b model⇒Imodel
     a\A⇒SaA a#01⇒Ia␁ a\#E9⇒Iaé ✓\.a ✓a\␉ ✓log ✓KEYWORD_model ✓Model ✓\#01 ✗model ✗!a ✗a.b ✗a\é ✗a\␁
     Imodel→KEYWORD_model SModel→Model Ilog→log IKEYWORD_model→keyword_model
     SKEYWORD_KEYWORD_model→KEYWORD_KEYWORD_KEYWORD_model
     SKEYWORD_KEYWORD_KEYWORD_model→KEYWORD_KEYWORD_KEYWORD_model SKEYWORD_foo→KEYWORD_foo KEYWORD_model⇒Imodel
     KEYWORD_KEYWORD_model⇒SKEYWORD_model KEYWORD_foo⇒SKEYWORD_foo KEYWORD_log⇒SKEYWORD_log
     KEYWORD_KEYWORD_KEYWORD_KEYWORD_model⇒SKEYWORD_KEYWORD_KEYWORD_KEYWORD_model S2n3904→2n3904 I2N3904→2n3904
     S1abc→\1abc S1_→\1_ S1a2!→1a2! S1a2.→\1a2\. S1a\.2→1a\.2 S1a2\→1a2\ S1a\→\1a\\ ✓1_2 ✓1a2! ✓1a2\ ✓1\éz9 ✗1abc ✗1_
     S1!→\1! ✗1a2. ✗1a-2 ✗1a\ in:M IModel→Model IA.B→A\.B I2N3904→2N3904 IKEYWORD_model→KEYWORD_KEYWORD_model)"},
    // The first and the last character are not tested.
    {"Spice", R"(Sa.b→a\.b IA.B→a\.b Sa/b<3>→a/b<3> Sé→#e9 a#20b⇒Ia␣b A\,B⇒SA,B a#41⇒Ia#41 \#e9⇒Ié a\⇒Ia\ \⇒I\
     a\\⇒Ia\ é.⇒Ié. ✓.ab. ✓␣ ✓a\.b ✓(ab) ✗a.b ✗a\␣b ✗\.ab ✗aéz in:M IA.B→A\.B)"},
    // A capital that an escape stands for is no capital of the name.
    {"Sdf Spef Gcf", R"(Sa.b→a\.b IA.B→a\.b Sa\b→a\\b Sa␣b→a\#20b Sé→\#e9 S␁→\#01 Sa#2E→a\#2E a\#20b⇒Ia␣b A\.b⇒SA.b
     a\#4a⇒IaJ ✓1a ✓\#01 ✓a\\ ✗a\ ✗a\b ✗a#b ✗a\é ✗a\␣ in:M IA.B→A\.B)"},
    {"Spf", R"(Sa.b→a.b Sa:b→a\:b Sa[1]→a\[1\] Sa\b→a\\b IA␣B→a␣b Sa␁→a␁ Sé→\#e9 a\:b⇒Ia:b a:b⇒Ia:b a\b⇒Ia\b a\⇒Ia\
     a#41⇒IaA \#e9⇒I\é ✓a␣b ✓a\ ✓[ ✓␁ ✗é ✗\é)"},
    {"Def Lef", R"(Sa#b→a\#b Sa#41→a\#41 Sa\b→a\\b Sa.b→a.b Sa␣b→a%20b Sa;b→a%3bb Sé→%e9 Sa␁→a␁ Ia%4A→a%254a
     Sa%2F→a%2F Sa%23→a%23 a%20b⇒Ia␣b a\/b⇒Ia/b a\b⇒Ia\b PINS⇒SPINS a%41⇒IaA a\#41⇒Ia#41 ✓a$b-c ✓a\# ✓␁ ✓% ✗a# ✗a;
     ✗a\; ✗a\é in:M IEnd→End)"},
    {"Def", "a/b⇒Ia/b A[1]⇒SA[1] ✓[ ✓]"},
    {"Lef", "✗a/b ✗A[1] ✗[ ✗]"},
    {"Tessel", R"(Sa|b→a\|b IA|B→a\|b Sa[1]→a\[1\] Sa\b→a\\b Sé→#e9 Sa#7C→a#7C a\|b⇒Ia|b a\b⇒Ia\b a\⇒Ia\ a#41⇒IaA ✓\[
     ✓a/b ✗a|b ✗[ ✗é in:M IA[→A\[)"},
    {"FlatTessel", R"(Sa|b→a|b Sa[1]→a\[1\] Sa\b→a\\b Sa␣b→a#20b Sa#5b→a#5b a|b⇒Ia|b a\[⇒Ia[ a#20⇒Ia␣ a#41⇒Ia#41 ✓a\\
     ✓\] ✗a\ ✗a\b ✗a\| ✗[ ✗a␣b in:M IA[→A\[)"},
    {"NVerilog Print Edif200 Edif300", R"(Sa␣b→a#20b IABC→abc FABC→ABC Sé→#e9 Sa#7F→a#237F a#4A⇒Sa#4A A#e9⇒SAé
     a#E9⇒Iaé ✓!~ ✓module ✓# ✗a␣b ✗a␉ ✗é in:M IABC→ABC)"},
    {"Ascii", R"(Sa␣b→a␣b IA␉→a␉ Sé→#e9 Sa#7f→a#7f Sa#23e9→a#2323e9 a#e9⇒Iaé a#20⇒Ia#20 a␉B⇒Sa␉B ✓␣ ✓␁ ✗é ✗aé in:M
     IABC→ABC)"},
    {"LibraryNT", R"(Icon→%%con ICon→%%Con SCon→%Con SCOM1→%C%O%M1 ILPT9→%%LPT9 Iconsole→console FMyLib→%My%Lib
     IMyLib→MyLib SESC_a→%E%S%C_a Sa%b→a#25b Sa@b→a@b Sa-b→a#2db Ia#2A→a#232A Sa#2A→a#232%A ✓con1 ✓%%COM1 ✓%a ✓a%B ✓@
     ✓# ✗Con ✗lpt9 ✗AUX ✗%%foo ✗%%con1 ✗%%%a ✗% ✗a%1 ✗a%%b ✗é in:VDTM %My%Lib⇒SMyLib %mY⇒SMy %ABC⇒SAbc %%aux⇒Iaux
     %%AUX⇒IAUX a#20b⇒Ia␣b A#20%b⇒Sa␣B %a#4A⇒SA#4a %a#2A⇒SA* a#4A⇒Ia#4A a#2%a⇒Sa#2A in:M SMyLib→MyLib FMyLib→%My%Lib
     IMyLib→MyLib SCon→Con FCon→%Con Icon→%%con Scon→%%con)"},
    {"LibraryUnix Library Filesys", R"(Top⇒STop A#2eb⇒SA.b in:VDTM IMixed→mixed SMixed→Mixed IESC_top→esc_top
     Scon→con Sa.b→a#2eb Sa#2E→a#232E Sa%b→a#25b top⇒Itop a#2Eb⇒Ia.b con⇒Icon ✓Con ✓a_@#9 ✗a.b ✗%a ✗a␣b ✗é in:M
     Top⇒FTop A#2eb⇒FA.b in:VD SESC_top→ESC_top FESC_top→ESC_top in:TM SESC_top→top FESC_top→top SESC_→)"},
    {"Vellum", R"(SAbc→\Abc\ FAbc→\Abc\ IAbc→Abc SESC_Abc→\Abc\ SESC_→\\ IESC_abc→ESC_abc in:M SAbc→Abc FAbc→\Abc\
     Sabc→abc IAbc→Abc SA:b→'A:b' SESC_abc→\abc\ SESC_Abc→\Abc\ FESC_abc→\abc\ in:VDTM Sit's→'it''s' S'→''''
     Sa\b→'a\b' S␣a→#20a Sa␣→a#20 S␣␣→#20#20 I␣:␣→'#20:#20' Sa␉→a#09 Sé→#e9 FA\b→\A\\b\ FA'b→\A'b\ FA␉→\A#09\
     FA#09→\A#2309\ \abc\⇒SESC_abc \Abc\⇒SAbc \a\\b\⇒SESC_a\b \\⇒SESC_ \a#09\⇒SESC_a#09 Abc⇒IAbc 'a:b'⇒Ia:b
     'it''s'⇒Iit's "a""b"⇒Ia"b ''''⇒I' x'a:'y⇒Ixa:y a'␣'b⇒Ia␣b '\'⇒I\ #20a⇒I␣a ''#20a⇒I␣a 'a:#20'⇒Ia:␣ 'a:'#20⇒Ia:␣
     a#20b⇒Ia#20b 'a:#20'b⇒Ia:#20b 'a#20''b'⇒Ia#20'b a#20''⇒Ia#20 #20#20a⇒I␣#20a a#E9⇒Iaé ✓a␣b ✓"a<b" ✓'\' ✓\\ ✓\␣a␣\
     ✗␣a ✗a␣ ✗a" ✗'␣a' ✗'a␣' ✗a'␣' ✗'a"b:'c" ✗\ ✗\a\b\ ✗\a\\ ✗\a␉\)"}};

TEST(Rules, holdInEverySpace) {
  const VHDLMode mode(2);
  for (const auto &[spaces, rules] : sheets)
    for (const std::string &name : split(spaces)) {
      const auto &[shown, read, write, isLegal] = *spaceOf(name);
      std::string initials = "VDT";
      for (const std::string &rule : split(rules)) {
        const std::size_t arrow = std::min(rule.find("→"), rule.find("⇒"));
        const Result after = rule.substr(arrow == std::string::npos ? 3 : arrow + 3); // each sign has three bytes
        if (rule.starts_with("in:"))
          initials = *after;
        for (const char initial : rule.starts_with("in:") ? std::string() : initials) {
          SCOPED_TRACE(testing::Message() << name << " in state " << initial << ": " << rule);
          const MapState state(ZEL_MAP_VHDL + static_cast<int>(std::string_view("VDTM").find(initial)));
          if (arrow == std::string::npos) {
            EXPECT_EQ(isLegal(after->c_str()), rule.starts_with("✓") ? 1 : 0);
            continue;
          }
          const auto conversion = rule.find("→") == arrow ? write : read;
          EXPECT_EQ(convert(conversion, rule.substr(0, arrow).c_str()), after == "✗" ? Result() : after);
          EXPECT_EQ(errno, after == "✗" ? EINVAL : 0);
        }
      }
    }
}

TEST(Rules, holdOutsideTheThreeOperations) {
  const std::pair<zelIsLegalFunc, const char *> tests[] = {
      {zelIsLegalKirraDigitStartName,
       R"(12→1 1→1 2n3904→1 1_2→1 1a2!→1 1a2\-→1 1\-a2→1 1abc→0 1_→0 1a2-→0 1a\→0 real→0 →0)"},
      {zelIsNTKeyword, "aux→1 con→1 nul→1 prn→1 PRN→1 Com0→1 lpt9→1 com→0 com10→0 lptx→0 aux1→0 co→0 xcon→0 é→0 →0"},
      {zelIsLegalVellumNormal, R"(a→1 'a:b'→1 \a\→0 →0)"},
      {zelIsLegalORKA, "a(3)→1 (3)→0 →0"}};
  for (const auto &[test, rows] : tests) {
    for (const auto &[word, holds] : rowsOf(rows))
      EXPECT_EQ(std::to_string(test(word.c_str())), holds) << word;
    EXPECT_EQ(test(nullptr), 0);
  }
  for (const char *name : {"a\\", "a\\\xe9", "\\\x01z"}) { // a backslash that quotes nothing
    EXPECT_EQ(convert(zelKirraToIdent, name), Result()) << name;
    EXPECT_EQ(errno, 0) << name;
  }
}

TEST(Rules, ofFlatORKARespellThePathSyntax) {
  for (const Row &row : rowsOf("a/b<3>→a|b(3) x#(|)→x#23#28#7c#29 →"))
    EXPECT_EQ(take(zelORKAToORKAFlat(row.input.c_str())), row.result);
  for (const Row &row : rowsOf(R"(a|b(3)→a/b<3> x#23#28#7c#29→x#(|) #7C#2#41#→#7C#2#41# x(M=2)→x x(M=2)y(M=3)→xy
           x(M=0)→x<M=0> x(M=0)(M=1)z→x<M=0>z x(M=-1)→x x(M=␣3z)y→xy x(M=a)→x<M=a> x(M=2→x<M=2 (M=→<M= (M=)→<M=>
           (M=1#29)→ (M=+2)→ (m=1)→<m=1> (M=99999999999999999999)→ x(M=2|y→x<M=2/y x)(M=2→x><M=2 →)"))
    EXPECT_EQ(take(zelORKAFlatToORKA(row.input.c_str())), row.result) << row.input;
  for (const auto respell : {zelORKAToORKAFlat, zelORKAFlatToORKA}) {
    EXPECT_EQ(respell(nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);
    failingMalloc::left = 0;
    EXPECT_EQ(respell("a"), nullptr);
    EXPECT_EQ(errno, ENOMEM);
  }
}
