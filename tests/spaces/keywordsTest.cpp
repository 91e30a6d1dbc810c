// The reserved words of the languages: some that one has and its neighbours have not, and what the self-checks say.
#include "support/spaces.h"

#include <cctype>

namespace {
const struct Language {
  const char *name;
  int vhdlMode; // 1 for VHDL-87, which takes words from the VHDL space alone
  bool ignoresCase;
  int (*isKeyword)(const char *);
  int (*verify)();
  zelIsLegalFunc isNormal = nullptr; // where a keyword is no normal name
  long complaints = 0;               // of the self-check
  const char *complaint = "";        // the first
} languages[] = {
    {"Verilog", 2, false, zelIsVerilogKeyword, zelVerifyVerilogKeywords, zelIsLegalVerilogNormal},
    {"VerilogAMS", 2, false, zelIsVerilogAMSKeyword, zelVerifyVerilogAMSKeywords, zelIsLegalVerilogAMSNormal},
    {"VerilogA", 2, false, zelIsVerilogAKeyword, zelVerifyVerilogAKeywords, zelIsLegalVerilogANormal, 1,
     "Error: keyword 'ac_stim' should precede keyword 'acosh'\n"},
    {"VHDL", 2, true, zelIsVHDLKeyword, zelVerifyVHDLKeywords, zelIsLegalVHDLNormal},
    {"VHDL in mode 87", 1, true, zelIsVHDLKeyword, zelVerifyVHDLKeywords, zelIsLegalVHDLNormal},
    {"VHDL87", 2, true, zelIsVHDL87Keyword, zelVerifyVHDL87Keywords, zelIsLegalVHDL87Normal},
    {"VHDLAMS", 1, true, zelIsVHDLAMSKeyword, zelVerifyVHDLAMSKeywords, zelIsLegalVHDLAMSNormal},
    {"Kirra", 2, false, zelIsKirraKeyword, zelVerifyKirraKeywords, zelIsLegalKirra, 4,
     "Error: Expected keyword 'library' to start with character 'i'\n"},
    {"KirraHDL", 2, false, zelIsKirraHDLKeyword, zelVerifyKirraHDLKeywords, zelIsLegalKirraHDLNormal, 8},
    {"Spice", 2, false, zelIsSpiceKeyword, zelVerifySpiceKeywords},
    {"Def", 2, true, zelIsDefKeyword, zelVerifyDefKeywords},
    {"Lef", 2, true, zelIsLefKeyword, zelVerifyLefKeywords, nullptr, 3}};

} // namespace

// A word, and the languages that reserve it; the VHDL space in the mode VHDL-87 reserves what VHDL87 does.
TEST(Keywords, areFoundWhereTheSearchPasses) {
  for (Row &row : rowsOf(HERE, R"(
    Y                 none
    y                 none
    abs               VerilogAMS VerilogA VHDL VHDL87 VHDLAMS Kirra KirraHDL
    ac_stim           VerilogAMS KirraHDL  // VerilogA stores it out of order
    acosh             VerilogAMS Kirra KirraHDL
    acos              VerilogAMS VerilogA Kirra KirraHDL
    ac                Spice
    all               VHDL VHDL87 VHDLAMS Spice
    ascii             KirraHDL
    const             Verilog VerilogAMS KirraHDL
    cpersqdistcurrentcurrentdencurrentsourcecutcutarea  Lef  // words that have run together
    default           Verilog VerilogAMS VerilogA KirraHDL Lef
    do                KirraHDL Def Lef
    else              Verilog VerilogAMS VerilogA VHDL VHDL87 VHDLAMS Kirra KirraHDL Lef
    end               Verilog VerilogAMS VerilogA VHDL VHDL87 VHDLAMS Kirra Def Lef
    e                 Def
    generate          VerilogAMS VerilogA VHDL VHDL87 VHDLAMS KirraHDL Def Lef
    global            Kirra KirraHDL
    group             VHDL VHDLAMS Def
    ifnone            Verilog VerilogAMS VerilogA
    impure            VHDL VHDLAMS
    laplace_n         none  // the first eight bytes do not decide
    laplace_np        VerilogAMS VerilogA
    laplace_nx        none
    library           VHDL VHDL87 VHDLAMS Lef
    limexp            VerilogAMS  // KirraHDL, too, stores it behind the words with i
    ln                VerilogAMS VerilogA
    local             none  // Kirra stores it behind the words with i
    log               VerilogAMS VerilogA
    max               VerilogAMS VerilogA Kirra KirraHDL Spice Def
    model             Kirra KirraHDL Spice
    nature            VerilogAMS VerilogA VHDLAMS
    n                 Def
    outputresistance  Lef  // stored twice
    pathdelay_max0    VerilogAMS
    postponed         VHDL VHDLAMS
    pure              VHDL VHDLAMS
    quantity          VHDLAMS KirraHDL
    reject            VHDL VHDLAMS
    return            VHDL VHDL87 VHDLAMS Kirra KirraHDL
    rol               VHDL VHDLAMS
    ror               VHDL VHDLAMS
    r                 Spice
    shared            VHDL VHDLAMS
    sll               VHDL VHDLAMS
    sra               VHDL VHDLAMS
    s                 Def
    tabledimension    Lef  // stored twice
    to                VerilogAMS VHDL VHDL87 VHDLAMS Kirra Spice Lef
    transitiontri     VerilogA  // words that have run together
    transition        VerilogAMS KirraHDL
    tri               Verilog VerilogAMS
    unaffected        VHDL VHDLAMS
    until             VHDL VHDL87 VHDLAMS
    when              Verilog VerilogAMS VHDL VHDL87 VHDLAMS KirraHDL Spice
    wire              Verilog VerilogAMS VerilogA KirraHDL
    xnor              Verilog VerilogAMS VerilogA VHDL VHDLAMS
    xor               Verilog VerilogAMS VerilogA VHDL VHDL87 VHDLAMS
    x                 Lef
    zout              Spice
  )")) {
    const std::string &word = row[0];
    std::string capitals = word;
    std::transform(word.begin(), word.end(), capitals.begin(), [](char c) { return std::toupper(c); });
    const std::vector<std::string> reserving = wordsOf(row[1]);
    const auto state = [](int isReserved) { return isReserved == 1 ? "reserved" : "not reserved"; };
    for (const Language &language : languages) {
      const VHDLMode mode(language.vhdlMode);
      const std::string name = language.name;
      const bool isReserved =
          std::count(reserving.begin(), reserving.end(), name == "VHDL in mode 87" ? "VHDL87" : name) != 0;
      row.expect(state(isReserved), state(language.isKeyword(word.c_str())), name);
      row.expect(state(isReserved && language.ignoresCase), state(language.isKeyword(capitals.c_str())),
                 name + ", in capitals");
      row.expect(state(0), state(language.isKeyword((word + "_").c_str())), name + ", with an underscore");
      if (language.isNormal != nullptr)
        row.expect(state(isReserved), state(1 - language.isNormal(word.c_str())), name + ", as a name");
    }
  }
}

TEST(Keywords, areNoWordsWithoutLetters) {
  const VHDLMode mode(2);
  for (const Language &language : languages)
    for (const char *none : {static_cast<const char *>(nullptr), "", "\xe9"}) {
      EXPECT_EQ(language.isKeyword(none), 0) << language.name;
      EXPECT_TRUE(language.isNormal == nullptr || language.isNormal(none) == 0) << language.name;
    }
}

TEST(Keywords, areCheckedByThemselves) {
  for (const Language &language : languages) {
    const VHDLMode mode(language.vhdlMode);
    testing::internal::CaptureStderr();
    EXPECT_EQ(language.verify(), language.complaints == 0 ? 1 : 0) << language.name;
    const std::string text = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), language.complaints) << language.name;
    EXPECT_TRUE(text.starts_with(language.complaint)) << language.name << ": " << text;
  }
}
