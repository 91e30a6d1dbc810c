// The handles: the separators in force, and which a file may redefine.
#include "path/pathSupport.h"

namespace {
const std::string none(4, '\0');

// A new handle of a template, which is then freed.
void expectMade(zelHandle made, zelHandle builtIn, const std::string &separators) {
  ASSERT_NE(made, nullptr);
  EXPECT_NE(made, builtIn);
  EXPECT_EQ(made->language, builtIn->language);
  const auto &[pinDelimiter, divider, busOpen, busClose] = made->separators;
  EXPECT_EQ(std::string({pinDelimiter, divider, busOpen, busClose}), separators);
  zelFreeHandle(made);
}
} // namespace

// Pin delimiter, divider, bus brackets; flat Tessel has only these.
TEST(Handle, takesWhatAFileRedefines) {
  for (Row &row : rowsOf(HERE, R"(
    ORKA VerilogAMS       //<>  fixed
    Tessel                ||[]  fixed
    Kirra KirraHDL Spice  //[]  fixed
    Verilog               ..[]  fixed
    VHDL VHDL87 VHDLAMS   ::()  fixed
    Gcf                   ..<>  redefinable
    Sdf Spef Def Lef      //[]  redefinable
    Spf                   :/[]  redefinable
    FlatTessel            []    redefinable
  )"))
    for (const std::string &name : wordsOf(row[0])) {
      const zelHandle handle = pathSpaces.at(name).builtIn;
      const bool isFixed = row[2] == "fixed";
      const std::string separators = std::string(4 - row[1].size(), '\0') + row[1];
      std::string defaults = "????";
      EXPECT_EQ(zelGetHandleDefaults(name.c_str(), defaults.data(), &defaults[1], &defaults[2], &defaults[3]), 1);
      row.expect(separators, defaults, "the defaults");
      EXPECT_EQ(zelGetHandleDefaults(name.c_str(), nullptr, nullptr, nullptr, nullptr), 1);
      zelFreeHandle(handle); // to no effect
      for (const std::string &given : {none, separators}) {
        EXPECT_EQ(makeHandle(zelGetHandle, name, given), handle);
        for (std::size_t i = 0; i < 4; ++i) {
          const zelHandle made = makeHandle(zelGetHandle, name, std::string(given).replace(i, 1, "\xe9"));
          if (isFixed || separators[i] == '\0')
            EXPECT_EQ(made, handle) << "for separator " << i;
          else
            expectMade(made, handle, std::string(separators).replace(i, 1, "\xe9"));
        }
      }
      errno = 0;
      failingMalloc::left = isFixed ? -1 : 0;
      EXPECT_EQ(makeHandle(zelAllocHandle, name, none), nullptr);
      EXPECT_EQ(errno, isFixed ? 0 : ENOMEM);
      if (!isFixed) {
        expectMade(makeHandle(zelAllocHandle, name, none), handle, separators);
        expectMade(makeHandle(zelGetHandle, name, "x.()"), handle,
                   separators[0] != '\0' ? "x.()" : none.substr(2) + "()");
        // Not all, not none.
        expectMade(makeHandle(zelGetHandle, name, separators.substr(0, 3) + '\0'), handle, separators);
      }
    }
}

TEST(Handle, needsTheNameOfALanguage) {
  // Every longer name with an L makes a LEF handle.
  for (const auto maker : {zelGetHandle, zelAllocHandle}) {
    for (const char *name : {"Library", "LibraryNT", "LibraryX", "Left"})
      expectMade(makeHandle(maker, name, std::string("..\0\0", 4)), zelLefHandle, "..[]");
    EXPECT_EQ(maker(nullptr, 0, 0, 0, 0), nullptr);
  }
  for (const std::string &name : wordsOf("Ident VerilogA VerilogXM VerilogAX 44ORKA EscORKA Vellum Edif200 Edif300 "
                                         "NVerilog Print Ascii Filesys VHDLX x")) {
    EXPECT_TRUE(!makeHandle(zelGetHandle, name, none) && !makeHandle(zelAllocHandle, name, none)) << name;
    EXPECT_EQ(zelGetHandleDefaults(name.c_str(), nullptr, nullptr, nullptr, nullptr), 0) << name;
  }
  zelFreeHandle(nullptr);
}
