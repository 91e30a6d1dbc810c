// The edges of every space: the longest name, null, and what is no Ident.
#include "support/rules.h"

namespace {
void expectRefused(zelNameToIdentFunc conversion, const std::string &text) {
  EXPECT_EQ(convert(conversion, text == "null" ? nullptr : text.c_str()), Result()) << text.substr(0, 20);
  EXPECT_EQ(errno, EINVAL);
}
} // namespace

TEST(Limits, of2047CharactersInBothDirections) {
  const VHDLMode mode(2);
  const std::string longest(ZEL_MAX_NAME, 'a');
  const std::string over = longest + 'a';
  const std::string huge(1 << 20, 'a');
  for (const std::string &name : allSpaces()) {
    SCOPED_TRACE(name);
    const auto &[shown, read, write, isLegal] = *spaceOf(name);
    expectRefused(read, "null");
    EXPECT_EQ(isLegal(nullptr) + isLegal(""), 0);
    if (name == "Ident")
      continue;
    EXPECT_EQ(convert(write, ("S" + longest).c_str()), longest);
    EXPECT_EQ(convert(read, longest.c_str()).value_or(" ").substr(1), longest);
    EXPECT_EQ(isLegal(longest.c_str()), 1);
    // Also where a result would be short enough.
    for (const std::string &ident :
         std::vector<std::string>{"null", "", "I", "Xa", "sa", "S" + over, "SESC_" + over.substr(4), "I" + huge,
                                  "I" + std::string(683, '\xff') + "(33333333)(3)" + over.substr(900)})
      expectRefused(write, ident);
    for (const std::string &text : {over, huge, "\\" + over + "\\", "\\" + huge + " "}) {
      expectRefused(read, text);
      EXPECT_EQ(isLegal(text.c_str()), 0);
    }
    // What is written counts, escapes and what stands around them.
    const std::size_t width = convert(write, "Ia\xff").value_or("").size() - 1;
    const std::string fits = 'I' + std::string(ZEL_MAX_NAME - width, 'a') + '\xff';
    EXPECT_EQ(convert(write, fits.c_str()).value_or("").size(), std::size_t{ZEL_MAX_NAME});
    expectRefused(write, fits + 'a');
  }
}

// The force prefix counts, the frame of an extended identifier does not.
TEST(Limits, holdForWhatIsRead) {
  for (const char *name : {"VHDL", "EscORKA", "Vellum"}) {
    const zelNameToIdentFunc read = spaceOf(name)->nameToIdent;
    const std::string body(ZEL_MAX_NAME - 4, 'a');
    EXPECT_EQ(convert(read, ("\\" + body + "\\").c_str()), "SESC_" + body) << name;
    expectRefused(read, "\\a" + body + "\\");
  }
}
