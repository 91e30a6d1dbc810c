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

// Words, and the languages that reserve them; the VHDL space in the mode VHDL-87 reserves what VHDL87 does.
TEST(Keywords, areFoundWhereTheSearchPasses) {
  for (Row &row : rowsOf(HERE, R"(
    Y laplace_n laplace_nx  none       // the first eight bytes do not decide
    local             none             // Kirra stores it behind the words with i
    abs               VerilogAMS VerilogA VHDL VHDL87 VHDLAMS Kirra KirraHDL
    ac_stim           VerilogAMS KirraHDL  // VerilogA stores it out of order
    acosh             VerilogAMS Kirra KirraHDL
    all               VHDL VHDL87 VHDLAMS Spice
    and               Verilog VerilogAMS VerilogA VHDL VHDL87 VHDLAMS Lef
    cpersqdistcurrentcurrentdencurrentsourcecutcutarea  Lef  // words that have run together
    default           Verilog VerilogAMS VerilogA KirraHDL Lef
    end               Verilog VerilogAMS VerilogA VHDL VHDL87 VHDLAMS Kirra Def Lef
    group             VHDL VHDLAMS Def
    impure inertial literal postponed pure reject rol ror shared sla sll sra srl unaffected  VHDL VHDLAMS
    laplace_np log    VerilogAMS VerilogA
    library           VHDL VHDL87 VHDLAMS Lef
    model             Kirra KirraHDL Spice
    n                 Def
    outputresistance tabledimension  Lef   // stored twice
    pathdelay_max0 limexp  VerilogAMS      // KirraHDL, too, stores limexp behind the words with i
    quantity          VHDLAMS KirraHDL
    transitiontri     VerilogA             // words that have run together
    transition        VerilogAMS KirraHDL
    tri               Verilog VerilogAMS
    until             VHDL VHDL87 VHDLAMS
    when              Verilog VerilogAMS VHDL VHDL87 VHDLAMS KirraHDL Spice
    xnor              Verilog VerilogAMS VerilogA VHDL VHDLAMS
    zout              Spice
  )")) {
    const std::vector<std::string> reserving = wordsOf(row[1]);
    const auto state = [](int isReserved) { return isReserved == 1 ? "reserved" : "not reserved"; };
    for (const std::string &word : wordsOf(row[0]))
      for (const Language &language : languages) {
        const VHDLMode mode(language.vhdlMode);
        const std::string name = language.name;
        const bool isReserved =
            std::count(reserving.begin(), reserving.end(), name == "VHDL in mode 87" ? "VHDL87" : name) != 0;
        std::string capitals = word;
        std::transform(word.begin(), word.end(), capitals.begin(), [](char c) { return std::toupper(c); });
        const auto named = [&](std::string what) { return what.append(" of ").append(name); };
        const std::string longer = std::string(word).append("_");
        row.expect(state(isReserved), state(language.isKeyword(word.c_str())), named(word));
        row.expect(state(isReserved && language.ignoresCase), state(language.isKeyword(capitals.c_str())),
                   named(capitals));
        row.expect(state(0), state(language.isKeyword(longer.c_str())), named(longer));
        if (language.isNormal != nullptr)
          row.expect(state(isReserved), state(1 - language.isNormal(word.c_str())),
                     named(std::string("no name: ").append(word)));
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
