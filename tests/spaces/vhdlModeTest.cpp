// Whether VHDL has the reserved words that VHDL-93 added: by the mode, without one by the environment.
#include "support/rules.h"

#include <cstdio>

namespace {
// Shows whether a mode is set, whether VHDL-87; whether they are reserved, again and by the legal names when the
// environment has changed, then whether the environment asks for VHDL-87, and what holds without a mode.
[[noreturn]] void showReserved(const std::string &environment, int mode) {
  const auto set = [](const std::string &value) {
    return value == "-" ? unsetenv("ZEL_USE_VHDL87_KEYWORDS") : setenv("ZEL_USE_VHDL87_KEYWORDS", value.c_str(), 1);
  };
  set(environment);
  zelSetVHDLMode(mode);
  std::fprintf(stderr, "%d%d%d", zelIsVHDLModeSet(), zelIsVHDL87ModeSet(), zelIsVHDLKeyword("Xnor"));
  set(environment == "-" ? "yes" : "-");
  std::fprintf(stderr, "%d%d%d", zelIsVHDLKeyword("xnor"), 1 - zelIsLegalVHDL("pure"), zelIsVHDLEnvvarSet());
  zelSetVHDLMode(0);
  std::fprintf(stderr, "%d", zelIsVHDLKeyword("xnor"));
  std::exit(0);
}
} // namespace

// In a process of its own each, for the environment is read once: when a question first needs it.
TEST(VHDLMode, decidesBeforeTheEnvironment) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  for (const auto &[given, answers] : rowsOf("0-→0011101 0yes→0000010 0YES→0000010 0Yes→0011101 0yess→0011101 "
                                             "1-→1100010 2-→1011110 2yes→1011101 3yes→1011101"))
    EXPECT_EXIT(showReserved(given.substr(1), given[0] - '0'), testing::ExitedWithCode(0), '^' + *answers + '$')
        << given;
}
