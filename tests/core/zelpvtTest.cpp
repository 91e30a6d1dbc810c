// What all spaces share: new strings and Idents, the helpers, the mapping state.
#include "support/rules.h"

TEST(NewString, copiesUpTo2047Characters) {
  const std::string longest(ZEL_MAX_NAME, 'x');
  const std::string over = longest + "x";
  for (const std::string &text : {std::string(), std::string("a\xe9"), longest}) {
    EXPECT_EQ(convert(zelNewString, text.c_str()), text);
    for (const auto &[kind, marker] : {std::pair(0, "S"), {1, "I"}, {2, "F"}, {3, "I"}, {-1, "I"}}) {
      const auto newIdent = [kind = kind](const char *body, zelAllocFunc alloc, void *context) {
        return zelNewIdent(kind, body, alloc, context);
      };
      EXPECT_EQ(convert(newIdent, text.c_str()), marker + text);
      EXPECT_EQ(convert(newIdent, over.c_str()), Result());
      EXPECT_EQ(errno, EINVAL);
      EXPECT_EQ(convert(newIdent, nullptr), Result());
      EXPECT_EQ(errno, EINVAL);
    }
  }
  for (const char *refused : {static_cast<const char *>(nullptr), over.c_str()}) {
    EXPECT_EQ(convert(zelNewString, refused), Result());
    EXPECT_EQ(errno, EINVAL);
  }
  Allocator none = {.gives = false};
  errno = 0;
  EXPECT_EQ(zelNewString("a", Allocator::allocate, &none), nullptr);
  EXPECT_EQ(errno, ENOMEM);
  errno = 0;
  EXPECT_EQ(zelNewIdent(0, "a", Allocator::allocate, &none), nullptr);
  EXPECT_EQ(errno, ENOMEM);
}

TEST(Helpers, lowerAsciiOnly) {
  for (const auto &[text, lowered] : {std::pair("", ""), {"AZ[@`{az", "az[@`{az"}, {"\xc9\xe9Q#2A", "\xc9\xe9q#2a"}}) {
    char buffer[16] = "???????????????";
    zelToLowerCopy(buffer, text);
    EXPECT_STREQ(buffer, lowered);
    std::memcpy(buffer, text, std::strlen(text) + 1);
    zelToLowerCopy(buffer, buffer);
    EXPECT_STREQ(buffer, lowered);
    EXPECT_EQ(zelAllLower(text), std::strcmp(text, lowered) == 0 ? 1 : 0) << text;
  }
}

TEST(Helpers, writeAndReadPoundHex) {
  for (const auto &[c, text] : {std::pair(' ', "#20"), {0, "#00"}, {0xe9, "#e9"}, {-1, "#ff"}, {0x141, "#41"}}) {
    char buffer[4];
    EXPECT_EQ(zelToPoundHex(buffer, c), 3);
    EXPECT_STREQ(buffer, text);
  }
  const struct {
    const char *text;
    int value;
    std::uint32_t used;
  } rows[] = {{"41", 0x41, 2}, {"e9x", 0xe9, 2}, {"E9", 0xe9, 2}, {"fF", 0xff, 2}, {"00", 0, 2}, {"4g", 0, 0},
              {"g4", 0, 0},    {"4", 0, 0},      {"", 0, 0},      {" 4", 0, 0},    {"+4", 0, 0}, {"\xe9\xe9", 0, 0}};
  for (const auto &row : rows) {
    std::uint32_t used = 7;
    EXPECT_EQ(zelFromPoundHex(row.text, &used), row.value) << row.text;
    EXPECT_EQ(used, row.used) << row.text;
  }
}

TEST(Helpers, knowTheForcePrefix) {
  for (const auto &[text, rest] : {std::pair("ESC_a", "a"), {"ESC_", ""}, {"ESC_ESC_a", "ESC_a"}}) {
    EXPECT_EQ(zelIsForce(text), 1);
    EXPECT_STREQ(zelSkipForce(text), rest);
  }
  for (const char *text : {"", "ESC", "esc_a", "aESC_", "ESC-a"}) {
    EXPECT_EQ(zelIsForce(text), 0);
    EXPECT_EQ(zelSkipForce(text), text);
  }
}

TEST(Helpers, searchTablesInStoredOrder) {
  const char *const sorted[] = {"a", "ab", "b", "ba", "c", "d", "e"};
  for (int count = -1; count <= 7; ++count)
    for (int i = 0; i < 7; ++i)
      EXPECT_EQ(zelTableSearch(sorted, count, sorted[i]), i < count ? 1 : 0) << count << " " << i;
  for (const char *key : {"", "A", "aa", "bb", "f"})
    EXPECT_EQ(zelTableSearch(sorted, 7, key), 0) << key;
  // Four entries are scanned, more are bisected, whatever their order; from the lower of two middles.
  const char *const unsorted[] = {"z", "y", "m", "b", "a", "c"};
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(zelTableSearch(unsorted, 4, unsorted[i]), 1) << i;
  for (const int count : {5, 6})
    for (int i = 0; i < count; ++i)
      EXPECT_EQ(zelTableSearch(unsorted, count, unsorted[i]), i == 2 ? 1 : 0) << count << " " << i;
}

namespace {
struct StateRow {
  const char *environment; // null: not set
  int initial;             // what the first question of the process answers
  int resolved;            // the same in state 1
};

[[noreturn]] void determine(const StateRow &row) {
  const auto set = [](const char *value) {
    return value != nullptr ? setenv("VRN_ALT_ZEL", value, 1) : unsetenv("VRN_ALT_ZEL");
  };
  set(row.environment);
  bool isRight = zelGetMapState() == row.initial;
  for (const int unset : {1, 0, 6, -1}) {
    set(row.environment);
    zelSetMapState(unset);
    isRight = isRight && zelGetMapState() == row.resolved;
    set("match"); // what was determined stays
    isRight = isRight && zelGetMapState() == row.resolved;
  }
  std::_Exit(isRight ? 0 : 1);
}
} // namespace

// In a process of its own each, for the initial state does not come back.
TEST(MapState, comesFromTheEnvironmentOnce) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  const std::string longText(300, 'x');
  const StateRow rows[] = {{nullptr, 3, 3},         {"", 3, 3},           {"vhdl", 3, 2},
                           {"xTandem", 3, 4},       {"match_x", 5, 5},    {"VHDL TANDEM", 3, 2},
                           {"TANDEM-VHDL", 3, 2},   {"VHDL,Match", 5, 5}, {"MATC", 3, 3},
                           {longText.c_str(), 3, 3}};
  for (const StateRow &row : rows)
    EXPECT_EXIT(determine(row), testing::ExitedWithCode(0), "") << resultOf(row.environment).value_or("not set");
}

TEST(MapState, isWhatWasSet) {
  for (const int state : allStates) {
    const MapState scope(state);
    EXPECT_EQ(zelGetMapState(), state);
  }
}
