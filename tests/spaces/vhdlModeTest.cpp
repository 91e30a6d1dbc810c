// Whether VHDL has the reserved words that VHDL-93 added: by the mode, without one by the environment.
#include "support/spaces.h"

namespace {
std::string words(int reserved) { return reserved == 1 ? " reserved" : reserved == 0 ? " free" : " neither"; }

// Shows which mode is set; whether the added words are reserved, again by a keyword and by a legal name when the
// environment has changed; whether the environment asks for VHDL-87; and what holds when the mode is unset.
[[noreturn]] void showReserved(const std::string &environment, int mode) {
  const auto set = [](const std::string &value) {
    return value == "-" ? unsetenv("ZEL_USE_VHDL87_KEYWORDS") : setenv("ZEL_USE_VHDL87_KEYWORDS", value.c_str(), 1);
  };
  set(environment);
  zelSetVHDLMode(mode);
  std::string shown = zelIsVHDLModeSet() == 1 ? "set" : "unset";
  shown += zelIsVHDL87ModeSet() == 1 ? " to VHDL-87" : "";
  shown += words(zelIsVHDLKeyword("Xnor"));
  set(environment == "-" ? "yes" : "-");
  shown += words(zelIsVHDLKeyword("xnor")) + words(1 - zelIsLegalVHDL("pure"));
  shown += zelIsVHDLEnvvarSet() == 1 ? " asked" : " unasked";
  zelSetVHDLMode(0);
  std::fputs((shown + words(zelIsVHDLKeyword("xnor"))).c_str(), stderr);
  std::exit(0);
}
} // namespace

// In a process of its own each, for the environment is read once: when a question first needs it.
TEST(VHDLMode, decidesBeforeTheEnvironment) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  for (Row &row : rowsOf(HERE, R"(
    0  -     unset reserved reserved reserved unasked reserved
    0  yes   unset free free free asked free
    0  YES   unset free free free asked free
    0  Yes   unset reserved reserved reserved unasked reserved
    0  yess  unset reserved reserved reserved unasked reserved
    1  -     set to VHDL-87 free free free asked free                    // read first when it has changed
    2  yes   set reserved reserved reserved unasked reserved
    3  yes   set reserved reserved reserved unasked reserved
  )")) {
    const testing::ScopedTrace trace = row.trace();
    EXPECT_EXIT(showReserved(row[1], std::stoi(row[0])), testing::ExitedWithCode(0), '^' + row[2] + '$');
  }
}
