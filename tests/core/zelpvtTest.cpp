// What all spaces share: new strings and Idents, the helpers, the mapping state.
#include "support/spaces.h"

#include <cstdio>

TEST(NewString, copiesUpTo2047Characters) {
  const std::string longest(ZEL_MAX_NAME, 'x');
  const std::string over = longest + 'x';
  constexpr int noKind = -9; // of an Ident; a plain copy
  for (const auto &[kind, marker] : {std::pair(noKind, ""), {0, "S"}, {1, "I"}, {2, "F"}, {3, "I"}, {-1, "I"}}) {
    const auto make = [kind = kind](const char *text, zelAllocFunc alloc, void *context) {
      return kind == noKind ? zelNewString(text, alloc, context) : zelNewIdent(kind, text, alloc, context);
    };
    for (const std::string &text : {std::string(), std::string("a\xe9"), longest})
      EXPECT_EQ(convert(make, text.c_str()), marker + text);
    EXPECT_EQ(convert(make, nullptr), "refused") << kind;
    EXPECT_EQ(convert(make, over.c_str()), "refused") << kind;
  }
}

TEST(Helpers, lowerAsciiOnly) {
  std::string buffer = "AZ[@`{az\xc9Q#2A";
  zelToLowerCopy(buffer.data(), buffer.c_str());
  zelToLowerCopy(buffer.data(), nullptr);
  EXPECT_EQ(buffer, "az[@`{az\xc9q#2a");
  EXPECT_TRUE(zelAllLower("az[@`{\xc9") == 1 && zelAllLower("aQ") == 0 && zelAllLower("") == 1);
}

TEST(Helpers, writeAndReadPoundHex) {
  char buffer[4];
  for (const auto &[c, written] : {std::pair(0, "#00"), {233, "#e9"}, {-1, "#ff"}, {0x141, "#41"}}) { // of the low byte
    EXPECT_EQ(zelToPoundHex(buffer, c), 3);
    EXPECT_STREQ(buffer, written);
  }
  for (Row &row : rowsOf(HERE, R"(
    41   65, 2 used
    e9x  233, 2 used
    00   0, 2 used
    4g   0, 0 used
    g4   0, 0 used
    ""   0, 0 used
    @A   0, 0 used
  )")) {
    std::uint32_t used = 7;
    const int value = zelFromPoundHex(row[0].c_str(), &used);
    row.expect(row[1], std::to_string(value) + ", " + std::to_string(used) + " used");
  }
}

TEST(Helpers, knowTheForcePrefix) {
  for (const char *plain : {"ESC", "esc_a", "ESC-a"})
    EXPECT_TRUE(zelIsForce(plain) == 0 && zelSkipForce(plain) == plain) << plain;
  EXPECT_EQ(zelIsForce("ESC_ESC_a") + zelIsForce("ESC_"), 2);
  EXPECT_STREQ(zelSkipForce("ESC_ESC_a"), "ESC_a");
  EXPECT_STREQ(zelSkipForce("ESC_"), "");
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

// The state that is found first, and the one that takes the place of each that is not set; both then stay. In a process
// of its own each, for the initial state does not come back.
TEST(MapState, comesFromTheEnvironmentOnce) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  for (Row &row : rowsOf(HERE, R"(
    -            DEFAULT  DEFAULT  // no such variable
    vhdl         DEFAULT  VHDL     // first, only MATCH counts
    xTandem      DEFAULT  TANDEM
    match_x      MATCH    MATCH
    VHDL TANDEM  DEFAULT  VHDL
    VHDL,Match   MATCH    MATCH
    MATC         DEFAULT  DEFAULT
  )")) {
    const auto digit = [&](std::size_t i) { return static_cast<char>('0' + mapStates.at(row[i])); };
    const std::string states = std::string(2, digit(1)) + std::string(8, digit(2));
    const testing::ScopedTrace trace = row.trace();
    EXPECT_EXIT(showStates(row[0]), testing::ExitedWithCode(0), '^' + states + '$');
  }
}
