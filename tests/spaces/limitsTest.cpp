// The edges of every space: the longest name, null, and no memory.
#include "support/rules.h"

TEST(Limits, of2047CharactersInBothDirections) {
  const VHDLMode mode(2);
  const std::string longest(ZEL_MAX_NAME, 'a');
  const std::string over = longest + 'a';
  const std::string huge(1 << 20, 'a');
  for (const Space &space : allSpaces()) {
    SCOPED_TRACE(space.name);
    if (space.name == "Ident") { // where the marker counts
      const std::string ident = over.substr(1).replace(0, 1, "S");
      EXPECT_EQ(convert(space.write, ident.c_str()), ident);
      EXPECT_EQ(convert(space.read, ("S" + longest).c_str()), Result());
      EXPECT_EQ(errno, EINVAL);
      continue;
    }
    EXPECT_EQ(convert(space.write, ("S" + longest).c_str()), longest);
    EXPECT_EQ(convert(space.read, longest.c_str()).value_or(" ").substr(1), longest);
    EXPECT_EQ(space.isLegal(longest.c_str()), 1);
    // Also where a result would be short enough.
    for (const std::string &ident : {"S" + over, "SESC_" + over.substr(4), "I" + huge}) {
      EXPECT_EQ(convert(space.write, ident.c_str()), Result());
      EXPECT_EQ(errno, EINVAL);
    }
    for (const std::string &name : {over, huge, "\\" + over + "\\", "\\" + huge + " "}) {
      EXPECT_EQ(convert(space.read, name.c_str()), Result());
      EXPECT_EQ(errno, EINVAL);
      EXPECT_EQ(space.isLegal(name.c_str()), 0);
    }
  }
}

// A byte of 128 or more is an escape everywhere.
TEST(Limits, holdForWhatIsWritten) {
  const struct {
    const char *spaces;
    std::size_t width; // of the byte, written
    std::size_t frame; // around the name
  } rows[] = {{"Verilog VerilogAMS VerilogA KirraHDL VHDL VHDL87 VHDLAMS EscORKA", 3, 2},
              {"ORKA 44ORKA Spice Lef Def Tessel FlatTessel LibraryNT LibraryUnix NVerilog Print Ascii Vellum", 3, 0},
              {"Edif200 Edif300", 3, 0},
              {"Kirra Sdf Spf Spef Gcf", 4, 0}};
  for (const auto &row : rows)
    for (const std::string &name : split(row.spaces))
      for (const std::size_t escapes : {1U, 400U}) {
        SCOPED_TRACE(name);
        const std::size_t plain = ZEL_MAX_NAME - row.frame - row.width * escapes;
        const std::string ident = "I" + std::string(plain, 'a') + std::string(escapes, '\xff');
        const zelIdentToNameFunc write = spaceOf(name).write;
        EXPECT_EQ(convert(write, ident.c_str()).value_or("").size(), std::size_t{ZEL_MAX_NAME});
        EXPECT_EQ(convert(write, (ident + "a").c_str()), Result());
        EXPECT_EQ(errno, EINVAL);
      }
}

// The force prefix counts, the frame of an extended identifier does not.
TEST(Limits, holdForWhatIsRead) {
  for (const char *name : {"VHDL", "EscORKA", "Vellum"}) {
    const zelNameToIdentFunc read = spaceOf(name).read;
    const std::string body(ZEL_MAX_NAME - 4, 'a');
    EXPECT_EQ(convert(read, ("\\" + body + "\\").c_str()), "SESC_" + body) << name;
    EXPECT_EQ(convert(read, ("\\a" + body + "\\").c_str()), Result()) << name;
    EXPECT_EQ(errno, EINVAL);
    EXPECT_EQ(convert(read, ("\\A " + body + "\\").c_str()), "SA " + body) << name;
  }
}

TEST(Limits, nullAndIllegalIdentsAreRefused) {
  for (const Space &space : allSpaces()) {
    SCOPED_TRACE(space.name);
    EXPECT_EQ(convert(space.read, nullptr), Result());
    EXPECT_EQ(errno, EINVAL);
    errno = 0;
    EXPECT_EQ(space.isLegal(nullptr), 0);
    EXPECT_EQ(space.isLegal(""), 0);
    EXPECT_EQ(errno, 0);
    for (const char *ident : {static_cast<const char *>(nullptr), "", "S", "F", "I", "Xa", "sa", "a"}) {
      if (space.name == "Ident" && ident != nullptr)
        continue;
      EXPECT_EQ(convert(space.write, ident), Result());
      EXPECT_EQ(errno, EINVAL);
    }
  }
  for (const auto test : {zelIsLegalVellumNormal, zelIsLegalKirraDigitStartName, zelIsNTKeyword, zelIsLegalORKA})
    EXPECT_EQ(test(nullptr) + test(""), 0);
}

TEST(Limits, withoutMemoryThereIsNoResult) {
  for (const Space &space : allSpaces())
    for (const char *text : {"Sa", "Sab"}) {
      Allocator none = {.gives = false};
      for (const auto conversion : {space.write, space.read}) {
        errno = 0;
        EXPECT_EQ(conversion(text, Allocator::allocate, &none), nullptr) << space.name;
        EXPECT_EQ(errno, ENOMEM) << space.name;
      }
      EXPECT_EQ(none.requests, 2) << space.name;
    }
}
