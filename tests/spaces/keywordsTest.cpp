// The reserved words of every language: which are found, and what the self-checks say.
#include "reservedWords.h"
#include "support/rules.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace {

std::string cased(std::string word, std::size_t count, int (*convertCase)(int)) {
  for (std::size_t i = 0; i < word.size() && i < count; ++i)
    word[i] = static_cast<char>(convertCase(static_cast<unsigned char>(word[i])));
  return word;
}

std::string disorder(const std::string &word, const std::string &previous) {
  return "Error: keyword '" + word + "' should precede keyword '" + previous + "'\n";
}
std::string misplaced(const char *words, char letter) {
  std::string complaints;
  for (const std::string &word : split(words))
    complaints += "Error: Expected keyword '" + word + "' to start with character '" + letter + "'\n";
  return complaints;
}
const char *const misplacedKirra = "library local log log10";
const char *const misplacedKirraHDL = "laplace_nd laplace_np laplace_zd laplace_zp last_crossing limexp ln log";

std::string vhdl87Words() {
  const std::vector<std::string> added = split(vhdl93Words);
  std::string words;
  for (const std::string &word : split(vhdlWords))
    if (std::find(added.begin(), added.end(), word) == added.end())
      words += word + " ";
  return words;
}

const struct Language {
  const char *name;
  int (*isKeyword)(const char *);
  int (*verify)();
  zelIsLegalFunc isNormal; // where a keyword is no normal name
  bool folds;
  std::size_t count; // of stored words, doubles counted twice
  std::string stored;
  const char *notFound = ""; // stored where the search does not pass
  std::string complaints = {};
} languages[] = {
    {"Verilog", zelIsVerilogKeyword, zelVerifyVerilogKeywords, zelIsLegalVerilogNormal, false, 111, verilogWords},
    {"VerilogAMS", zelIsVerilogAMSKeyword, zelVerifyVerilogAMSKeywords, zelIsLegalVerilogAMSNormal, false, 223,
     std::string(verilogWords) + " " + verilogAMSOnlyWords},
    {"VerilogA", zelIsVerilogAKeyword, zelVerifyVerilogAKeywords, zelIsLegalVerilogANormal, false, 164, verilogAWords,
     "acosh ac_stim", disorder("ac_stim", "acosh")},
    {"VHDL", zelIsVHDLKeyword, zelVerifyVHDLKeywords, zelIsLegalVHDLNormal, true, 97, vhdlWords},
    {"VHDL87", zelIsVHDL87Keyword, zelVerifyVHDL87Keywords, zelIsLegalVHDL87Normal, true, 81, vhdl87Words()},
    {"VHDLAMS", zelIsVHDLAMSKeyword, zelVerifyVHDLAMSKeywords, zelIsLegalVHDLAMSNormal, true, 110,
     std::string(vhdlWords) + " " + vhdlAMSOnlyWords},
    {"Kirra", zelIsKirraKeyword, zelVerifyKirraKeywords, zelIsLegalKirra, false, 55, kirraWords, misplacedKirra,
     misplaced(misplacedKirra, 'i')},
    {"KirraHDL", zelIsKirraHDLKeyword, zelVerifyKirraHDLKeywords, zelIsLegalKirraHDLNormal, false, 161, kirraHDLWords,
     misplacedKirraHDL, misplaced(misplacedKirraHDL, 'i')},
    {"Spice", zelIsSpiceKeyword, zelVerifySpiceKeywords, nullptr, false, 102, spiceWords},
    {"DEF", zelIsDefKeyword, zelVerifyDefKeywords, nullptr, true, 151, defWords},
    {"LEF", zelIsLefKeyword, zelVerifyLefKeywords, nullptr, true, 264, lefWords, "Y",
     disorder("outputresistance", "outputresistance") + disorder("tabledimension", "tabledimension") +
         misplaced("Y", 'y')}};

} // namespace

TEST(Keywords, areFoundWhereTheSearchPasses) {
  const VHDLMode mode(2);
  for (const Language &language : languages) {
    SCOPED_TRACE(language.name);
    const std::vector<std::string> words = split(language.stored.c_str());
    EXPECT_EQ(words.size(), language.count);
    EXPECT_EQ(language.isKeyword(nullptr), 0);
    EXPECT_EQ(language.isNormal != nullptr ? language.isNormal(nullptr) + language.isNormal("") : 0, 0);
    std::set<std::string> found(words.begin(), words.end());
    for (const std::string &word : split(language.notFound))
      EXPECT_EQ(found.erase(word), 1U) << word;
    // Each word, and what is close to it.
    std::set<std::string> asked = {"", "_", "j", "y", "Y", "\xe9", std::string(100, 'a'), "transition"};
    for (const std::string &word : words) {
      asked.insert({word, word + "x", word + " ", word.substr(1), word.substr(0, word.size() - 1)});
      asked.insert({cased(word, 1, std::toupper), cased(word, word.size(), std::toupper)});
    }
    for (const std::string &word : asked) {
      const std::string key = language.folds ? cased(word, word.size(), std::tolower) : word;
      const bool isReserved = found.contains(key);
      EXPECT_EQ(language.isKeyword(word.c_str()), isReserved ? 1 : 0) << word;
      if (language.isNormal != nullptr && isReserved) {
        EXPECT_EQ(language.isNormal(word.c_str()), 0) << word;
      }
    }
    for (const std::string &word : split(language.notFound)) {
      EXPECT_EQ(language.isNormal != nullptr ? language.isNormal(word.c_str()) : 1, 1) << word;
    }
  }
}

TEST(Keywords, checkThemselves) {
  for (const Language &language : languages) {
    testing::internal::CaptureStderr();
    const int isSound = language.verify();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), language.complaints) << language.name;
    EXPECT_EQ(isSound, language.complaints.empty() ? 1 : 0) << language.name;
  }
}

TEST(Keywords, ofVHDLGrewIn1993) {
  for (const int mode : {1, 2}) {
    const VHDLMode scope(mode);
    for (const std::string &word : split(vhdl93Words)) {
      EXPECT_EQ(zelIsVHDLKeyword(word.c_str()), mode == 1 ? 0 : 1) << word;
      EXPECT_EQ(zelIsVHDLKeyword(cased(word, 9, std::toupper).c_str()), mode == 1 ? 0 : 1) << word;
      EXPECT_EQ(zelIsLegalVHDL(word.c_str()), mode == 1 ? 1 : 0) << word;
      EXPECT_EQ(zelIsVHDLAMSKeyword(word.c_str()), 1) << word;
    }
  }
}
