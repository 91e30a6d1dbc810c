// What all spaces share: new strings and Idents, the helpers, the mapping state.
#include "support/rules.h"

#include <cstdio>

TEST(NewString, copiesUpTo2047Characters) {
  const std::string longest(ZEL_MAX_NAME, 'x');
  const std::string over = longest + 'x';
  for (const auto &[kind, marker] : {std::pair(-9, ""), {0, "S"}, {1, "I"}, {2, "F"}, {3, "I"}, {-1, "I"}}) {
    const auto make = [kind = kind](const char *text, zelAllocFunc alloc, void *context) {
      return kind == -9 ? zelNewString(text, alloc, context) : zelNewIdent(kind, text, alloc, context);
    };
    for (const std::string &text : {std::string(), std::string("a\xe9"), longest})
      EXPECT_EQ(convert(make, text.c_str()), marker + text);
    for (const char *refused : {static_cast<const char *>(nullptr), over.c_str()}) {
      EXPECT_EQ(convert(make, refused), Result());
      EXPECT_EQ(errno, EINVAL);
    }
  }
}

TEST(Helpers, lowerAsciiOnly) {
  for (const auto &[text, lowered] : rowsOf("AZ[@`{az→az[@`{az éQ#2A→éq#2a az→az →")) {
    std::string buffer = text;
    zelToLowerCopy(buffer.data(), buffer.c_str());
    zelToLowerCopy(buffer.data(), nullptr);
    EXPECT_EQ(buffer, lowered);
    EXPECT_EQ(zelAllLower(text.c_str()), lowered == text ? 1 : 0) << text;
  }
}

TEST(Helpers, writeAndReadPoundHex) {
  char buffer[4];
  for (const auto &[c, text] : rowsOf("32→#20 0→#00 233→#e9 -1→#ff 321→#41"))
    EXPECT_EQ(zelToPoundHex(buffer, std::stoi(c)) == 3 ? buffer : "", text);
  for (const auto &[text, pair] : rowsOf("41→41 e9x→e9 fF→ff 00→00 4g→✗ g4→✗ 4→✗ →✗ +4→✗ éé→✗ @A→✗")) {
    std::uint32_t used = 7;
    EXPECT_EQ(zelFromPoundHex(text.c_str(), &used), pair ? std::stoi(*pair, nullptr, 16) : 0) << text;
    EXPECT_EQ(used, pair ? 2U : 0U) << text;
  }
}

TEST(Helpers, knowTheForcePrefix) {
  for (const auto &[text, rest] : rowsOf("ESC_a→a ESC_→ ESC_ESC_a→ESC_a ESC→✗ esc_a→✗ aESC_→✗ ESC-a→✗ →✗")) {
    EXPECT_EQ(zelIsForce(text.c_str()), rest ? 1 : 0) << text;
    EXPECT_EQ(zelSkipForce(text.c_str()), rest.value_or(text)) << text;
  }
}

TEST(Helpers, searchTablesInStoredOrder) {
  const char *const sorted[] = {"a", "ab", "b", "ba", "c", "d", "e"};
  for (int count = -1; count <= 7; ++count)
    for (int i = 0; i < 7; ++i)
      EXPECT_EQ(zelTableSearch(sorted, count, sorted[i]), i < count) << count << " " << i;
  for (const char *key : {"", "A", "aa", "bb", "f", static_cast<const char *>(nullptr)})
    EXPECT_EQ(zelTableSearch(sorted, 7, key) + zelTableSearch(nullptr, 1, key), 0) << key;
  // Four entries are scanned, more are bisected, whatever their order; from the lower of two middles.
  const char *const unsorted[] = {"z", "y", "m", "b", "a", "c"};
  for (const int count : {4, 5, 6})
    for (int i = 0; i < count; ++i)
      EXPECT_EQ(zelTableSearch(unsorted, count, unsorted[i]), count == 4 || i == 2 ? 1 : 0) << count << " " << i;
}

TEST(Helpers, takeNull) {
  zelToLowerCopy(nullptr, "a");
  EXPECT_EQ(zelFromPoundHex("41", nullptr) + zelFromPoundHex(nullptr, nullptr), 0x41);
  EXPECT_EQ(zelSkipForce(nullptr), nullptr);
  EXPECT_EQ(zelToPoundHex(nullptr, 'a') + zelAllLower(nullptr) + zelIsForce(nullptr), 0);
}

namespace {
// Shows the first state of a process, then the one that is determined in place of each that is not set; both stay.
[[noreturn]] void showStates(const std::string &environment) {
  for (const int unset : {99, 1, 0, 6, -1}) {
    environment == "-" ? unsetenv("VRN_ALT_ZEL") : setenv("VRN_ALT_ZEL", environment.c_str(), 1);
    if (unset != 99)
      zelSetMapState(unset);
    for (const char *later : {"match", ""}) {
      std::fprintf(stderr, "%d", zelGetMapState());
      setenv("VRN_ALT_ZEL", later, 1);
    }
  }
  std::exit(0);
}
} // namespace

// In a process of its own each, for the initial state does not come back.
TEST(MapState, comesFromTheEnvironmentOnce) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  for (const auto &[environment, states] : rowsOf("-→33 →33 vhdl→32 xTandem→34 match_x→55 VHDL␣TANDEM→32 "
                                                  "TANDEM-VHDL→32 VHDL,Match→55 MATC→33"))
    EXPECT_EXIT(showStates(environment), testing::ExitedWithCode(0),
                '^' + std::string(2, states->front()) + std::string(8, states->back()) + '$')
        << environment;
}
