// The mark of an escape in every space: it is escaped itself exactly where it would be read as one.
#include "support/rules.h"

TEST(HexEscape, protectsTheMarkInFrontOfWhatWouldBeDecoded) {
  const struct {
    const char *spaces;
    const char *start; // what "a" and the mark become
    const char *close; // what ends the name
    const char *mark;
    const char *literal; // a pair that is never decoded
    const char *escaped; // one that is
  } rows[] = {{"Verilog VerilogAMS VerilogA KirraHDL", "\\a#", " ", "#23", "41", "20"},
              {"VHDL VHDL87 VHDLAMS", "\\a#", "\\", "#23", "20", "09"},
              {"ORKA 44ORKA", "a#", "", "#23", "41", "2f"},
              {"Kirra", "a\\#", "", "#23", "20", "01"},
              {"Spice", "a\\#", "", "#23", "41", "20"},
              {"Sdf Spef Gcf", "a\\#", "", "#23", "2e", "41"},
              {"Spf", "a#", "", "#23", "2f", "41"},
              {"Def Lef", "a%", "", "%25", "2f", "41"},
              {"Tessel", "a#", "", "#23", "5b", "41"},
              {"FlatTessel NVerilog Print Edif200 Edif300", "a#", "", "#23", "41", "20"},
              {"Ascii", "a#", "", "#23", "20", "e9"},
              {"Vellum", "a#", "", "#23", "41", "09"},
              {"LibraryNT LibraryUnix", "a#", "", "#23", "41", "2e"}};
  for (const auto &row : rows)
    for (const std::string &name : split(row.spaces)) {
      SCOPED_TRACE(name);
      const Space space = spaceOf(name);
      const std::string self = row.mark + 1;
      const std::vector<std::string> plainOnes = {
          "", "2", "2g", "00", self, self + "2", self + "00", row.literal, self + row.literal};
      const std::vector<std::string> protectedOnes = {row.escaped, self + row.escaped, self + self,
                                                      self + self + (row.mark + 1)};
      for (const bool isProtected : {false, true})
        for (const std::string &behind : isProtected ? protectedOnes : plainOnes) {
          const std::string body = row.mark[0] + behind;
          SCOPED_TRACE(body);
          const std::string written = (row.start + (isProtected ? self : "")).append(behind).append(row.close);
          EXPECT_EQ(convert(space.write, ("Sa" + body).c_str()), written);
          EXPECT_EQ(convert(space.read, written.c_str()), "Ia" + body);
        }
    }
}
