// Extended identifiers: VHDL, VHDL-87 and VHDL-AMS.
#include "support/rules.h"

namespace {
const char *const family = "VHDL VHDL87 VHDLAMS";
}

TEST(VHDLFamily, extendsWhatIsNotBasic) {
  check({.spaces = family,
         .write = R"(Iabc→abc Sabc→abc ISignal→\signal\ SSignal→\Signal\ Sa__b→\a__b\ Sab_→\ab_\ S1a→\1a\ Sa␣b→\a␣b\
             Sa\b→\a\\b\ IA+B→\a+b\ SA+B→\A+B\ FA+B→\A+B\ Sa␉→\a#09\ Sé→\#e9\ Sa#5c→\a#5c\ S#\→\#\\\)",
         .read = R"(\a␣b\→Ia␣b \A␣b\→SA␣b \a\\b\→Ia\b \a\b\→Ia\b \signal\→Isignal \Signal\→SSignal \a_\→Ia_
             \a#E9\→Iaé \#5c\→I#5c \\→I \→I \\\→I\ \a\\→Ia\ signal→✗ a_→✗ \abc→✗ abc\→✗ a␣b→✗)",
         .legal = R"(abc a_b a1 ESC_a \a\ \\ \\\\ \a\\b\ \a␣b\ \#\ \signal\)",
         .illegal = R"(a__b ab_ _a 1a a$ a␣b aé signal Signal SIGNAL \ \a \a\b\ \a\\ \\\ \a␉\ \aé\ a\)"});
}

TEST(VHDLFamily, remembersExtensionByTheForcePrefix) {
  check({.spaces = family,
         .write = R"(SESC_abc→\abc\ FESC_abc→\abc\ SESC_→\\ IESC_a␣b→\a␣b\ SESC_a␣b→\a␣b\ SESC_ESC_a→\ESC_a\)",
         .read = R"(\abc\→SESC_abc \a1\→SESC_a1)"});
  check({.spaces = family, .states = {ZEL_MAP_DEFAULT, ZEL_MAP_MATCH}, .write = "IESC_abc→ESC_abc"});
  check({.spaces = family, .states = {ZEL_MAP_VHDL, ZEL_MAP_TANDEM}, .write = "IESC_Abc→esc_abc"});
}

TEST(VHDLFamily, treatsCapitalsByTheMappingState) {
  check({.spaces = family,
         .states = {ZEL_MAP_DEFAULT},
         .write = R"(SAbc→\Abc\ FAbc→\Abc\ IAbc→Abc)",
         .read = R"(abc→Iabc Abc→IAbc ESC_a→IESC_a \Abc\→SAbc)"});
  check({.spaces = family,
         .states = {ZEL_MAP_VHDL, ZEL_MAP_TANDEM},
         .write = R"(SAbc→Abc FAbc→Abc IAbc→abc SESC_Abc→\Abc\)",
         .read = R"(\Abc\→SESC_Abc \abc\→SESC_abc \Signal\→SSignal)"});
  check({.spaces = family, .states = {ZEL_MAP_VHDL}, .read = "abc→Sabc Abc→SAbc"});
  check({.spaces = family, .states = {ZEL_MAP_TANDEM}, .read = "abc→Iabc Abc→IAbc"});
  check({.spaces = family,
         .states = {ZEL_MAP_MATCH},
         .write = R"(SAbc→Abc FAbc→\Abc\ IAbc→Abc IA+B→\a+b\ SA+B→\A+B\ SESC_Abc→\Abc\ FESC_abc→\abc\)",
         .read = R"(Abc→IAbc \Abc\→SAbc \abc\→SESC_abc)"});
}

namespace {
struct ModeRow {
  const char *environment; // null: not set
  int mode;
  bool isReserved; // a word that VHDL-93 added
};

void setEnvironment(const char *value) {
  if (value != nullptr)
    setenv("ZEL_USE_VHDL87_KEYWORDS", value, 1);
  else
    unsetenv("ZEL_USE_VHDL87_KEYWORDS");
}

[[noreturn]] void readWith(const ModeRow &row) {
  setEnvironment(row.environment);
  zelSetVHDLMode(row.mode);
  const bool isReserved = zelIsVHDLKeyword("Xnor") == 1;
  setEnvironment(row.environment == nullptr ? "yes" : nullptr); // what was read stays
  const bool stays = zelIsVHDLKeyword("xnor") == isReserved && zelIsLegalVHDL("pure") == !isReserved;
  std::_Exit(stays && zelIsVHDLKeyword("signal") == 1 && zelIsVHDLAMSKeyword("xnor") == 1 ? isReserved : 2);
}

// A set mode leaves the environment unread; the first question that needs it reads it.
[[noreturn]] void readLate() {
  zelSetVHDLMode(2);
  const bool isReserved = zelIsVHDLKeyword("pure") == 1;
  setEnvironment("yes");
  const bool isSet = zelIsVHDLEnvvarSet() == 1;
  setEnvironment(nullptr);
  zelSetVHDLMode(0);
  std::_Exit(isReserved && isSet && zelIsVHDLKeyword("pure") == 0 ? 0 : 1);
}
} // namespace

// In a process of its own each, for the environment is read once.
TEST(VHDLFamily, takesReservedWordsFromModeAndEnvironment) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  const ModeRow rows[] = {{nullptr, 0, true}, {"yes", 0, false},   {"YES", 0, false}, {"Yes", 0, true},
                          {"yess", 0, true},  {nullptr, 1, false}, {"yes", 2, true},  {"yes", -1, true}};
  for (const ModeRow &row : rows) {
    SCOPED_TRACE(std::to_string(row.mode) + " " + resultOf(row.environment).value_or("not set"));
    EXPECT_EXIT(readWith(row), testing::ExitedWithCode(row.isReserved), "");
  }
  EXPECT_EXIT(readLate(), testing::ExitedWithCode(0), "");
  for (const int mode : {0, 1, 2, -1}) {
    const VHDLMode scope(mode);
    EXPECT_EQ(zelIsVHDLModeSet(), mode != 0 ? 1 : 0) << mode;
    EXPECT_EQ(zelIsVHDL87ModeSet(), mode == 1 ? 1 : 0) << mode;
  }
}
