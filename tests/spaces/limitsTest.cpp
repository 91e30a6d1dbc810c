// The edges of every space: the longest name, null, and what is no Ident.
#include "support/spaces.h"

namespace {
void expectRefused(zelNameToIdentFunc conversion, const char *text) {
  const std::string found = convert(conversion, text);
  EXPECT_TRUE(found == "refused") << shown(resultOf(text).value_or("null")) << " gives " << shown(found);
}
} // namespace

TEST(Limits, of2047CharactersInBothDirections) {
  const VHDLMode mode(2);
  const std::string longest(ZEL_MAX_NAME, 'a');
  const std::string over = longest + 'a';
  const std::string huge(1 << 20, 'a');
  for (const std::string &name : allSpaces()) {
    SCOPED_TRACE(name);
    const auto &[shownName, read, write, isLegal] = *spaceOf(name);
    expectRefused(read, nullptr);
    EXPECT_EQ(isLegal(nullptr) + isLegal(""), 0);
    if (name == "Ident")
      continue;
    EXPECT_EQ(convert(write, ("S" + longest).c_str()), longest);
    EXPECT_EQ(convert(read, longest.c_str()).substr(1), longest);
    EXPECT_EQ(isLegal(longest.c_str()), 1);
    expectRefused(write, nullptr);
    // Also where a result would be short enough.
    for (const std::string &ident :
         std::vector<std::string>{"", "I", "Xa", "sa", "S" + over, "SESC_" + over.substr(4), "I" + huge,
                                  "I" + std::string(683, '\xff') + "(33333333)(3)" + over.substr(900)})
      expectRefused(write, ident.c_str());
    for (const std::string &text : {over, huge, "\\" + over + "\\", "\\" + huge + " "}) {
      expectRefused(read, text.c_str());
      EXPECT_EQ(isLegal(text.c_str()), 0) << shown(text);
    }
    // What is written counts, escapes and what stands around them.
    const std::size_t width = convert(write, "Ia\xff").size() - 1;
    const std::string fits = 'I' + std::string(ZEL_MAX_NAME - width, 'a') + '\xff';
    EXPECT_EQ(convert(write, fits.c_str()).size(), std::size_t{ZEL_MAX_NAME});
    expectRefused(write, (fits + 'a').c_str());
  }
}

// The force prefix counts, the frame of an extended identifier does not.
TEST(Limits, holdForWhatIsRead) {
  for (const char *name : {"VHDL", "EscORKA", "Vellum"}) {
    SCOPED_TRACE(name);
    const zelNameToIdentFunc read = spaceOf(name)->nameToIdent;
    const std::string body(ZEL_MAX_NAME - 4, 'a');
    EXPECT_EQ(convert(read, ("\\" + body + "\\").c_str()), "SESC_" + body);
    expectRefused(read, ("\\a" + body + "\\").c_str());
  }
}
