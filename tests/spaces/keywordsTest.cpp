// The reserved words of the languages: some that one has and its neighbours have not, and what the self-checks say.
#include "support/rules.h"

#include <algorithm>
#include <cctype>

namespace {
// A word, and the letters of the languages that reserve it.
const char *const reservedWords = R"(
    Y→ y→ abs→mah7skd ac_stim→md acosh→mkd acos→makd ac→p all→h7sp ascii→d const→vmd
    cpersqdistcurrentcurrentdencurrentsourcecutcutarea→l default→vmadl do→del else→vmah7skdl end→vmah7skel e→e
    generate→mah7sdel global→kd group→hse ifnone→vma impure→hs library→h7sl limexp→m ln→ma local→ log→ma max→makdpe
    model→kdp nature→mas n→e outputresistance→l pathdelay_max0→m postponed→hs pure→hs quantity→sd reject→hs
    return→h7skd rol→hs ror→hs r→p shared→hs sll→hs sra→hs s→e tabledimension→l to→mh7skpl transitiontri→a
    transition→md tri→vm unaffected→hs until→h7s when→vmh7sdp wire→vmad xnor→vmahs xor→vmah7s x→l zout→p)";

const struct Language {
  char letter;
  int vhdlMode;
  int (*isKeyword)(const char *);
  int (*verify)();
  zelIsLegalFunc isNormal = nullptr; // where a keyword is no normal name
  long complaints = 0;               // of the self-check
} languages[] = {{'v', 2, zelIsVerilogKeyword, zelVerifyVerilogKeywords, zelIsLegalVerilogNormal},
                 {'m', 2, zelIsVerilogAMSKeyword, zelVerifyVerilogAMSKeywords, zelIsLegalVerilogAMSNormal},
                 {'a', 2, zelIsVerilogAKeyword, zelVerifyVerilogAKeywords, zelIsLegalVerilogANormal, 1},
                 {'h', 2, zelIsVHDLKeyword, zelVerifyVHDLKeywords, zelIsLegalVHDLNormal},
                 {'7', 1, zelIsVHDLKeyword, zelVerifyVHDLKeywords, zelIsLegalVHDLNormal},
                 {'7', 2, zelIsVHDL87Keyword, zelVerifyVHDL87Keywords, zelIsLegalVHDL87Normal},
                 {'s', 1, zelIsVHDLAMSKeyword, zelVerifyVHDLAMSKeywords, zelIsLegalVHDLAMSNormal},
                 {'k', 2, zelIsKirraKeyword, zelVerifyKirraKeywords, zelIsLegalKirra, 4},
                 {'d', 2, zelIsKirraHDLKeyword, zelVerifyKirraHDLKeywords, zelIsLegalKirraHDLNormal, 8},
                 {'p', 2, zelIsSpiceKeyword, zelVerifySpiceKeywords},
                 {'e', 2, zelIsDefKeyword, zelVerifyDefKeywords},
                 {'l', 2, zelIsLefKeyword, zelVerifyLefKeywords, nullptr, 3}};
} // namespace

TEST(Keywords, areFoundWhereTheSearchPasses) {
  for (const auto &[letter, vhdlMode, isKeyword, verify, isNormal, complaints] : languages) {
    SCOPED_TRACE(letter);
    const VHDLMode mode(vhdlMode);
    const bool folds = std::strchr("h7sel", letter) != nullptr;
    for (const auto &[word, letters] : rowsOf(reservedWords)) {
      const int isReserved = letters->find(letter) != std::string::npos ? 1 : 0;
      std::string capitals = word;
      std::transform(word.begin(), word.end(), capitals.begin(), [](char c) { return std::toupper(c); });
      EXPECT_EQ(isKeyword(word.c_str()), isReserved) << word;
      EXPECT_EQ(isKeyword(capitals.c_str()), folds ? isReserved : 0) << word;
      EXPECT_EQ(isKeyword((word + "_").c_str()), 0) << word;
      EXPECT_EQ(isNormal != nullptr ? isNormal(word.c_str()) : 1 - isReserved, 1 - isReserved) << word;
    }
    for (const char *none : {static_cast<const char *>(nullptr), "", "\xe9"})
      EXPECT_EQ(isKeyword(none) + (isNormal != nullptr ? isNormal(none) : 0), 0);
    testing::internal::CaptureStderr();
    EXPECT_EQ(verify(), complaints == 0 ? 1 : 0);
    const std::string text = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), complaints);
    EXPECT_TRUE(letter != 'a' || text == "Error: keyword 'ac_stim' should precede keyword 'acosh'\n") << text;
    EXPECT_TRUE(letter != 'k' || text.starts_with("Error: Expected keyword 'library' to start with character 'i'\n"));
  }
}
