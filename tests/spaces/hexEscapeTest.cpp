// The mark of an escape in every space: it is escaped itself exactly where it would be read as one.
#include "support/rules.h"

TEST(HexEscape, protectsTheMarkInFrontOfWhatWouldBeDecoded) {
  // What "a" and the mark become, the end of the name, the mark's own pair, one that is never decoded, one that is.
  const struct {
    const char *spaces, *start, *close, *own, *literal, *escaped;
  } rows[] = {{"Verilog VerilogAMS VerilogA KirraHDL", "\\a#", " ", "23", "41", "20"},
              {"VHDL VHDL87 VHDLAMS", "\\a#", "\\", "23", "20", "09"},
              {"ORKA 44ORKA", "a#", "", "23", "41", "2f"},
              {"Kirra", "a\\#", "", "23", "20", "01"},
              {"Spice", "a\\#", "", "23", "41", "20"},
              {"Sdf Spef Gcf", "a\\#", "", "23", "2e", "41"},
              {"Spf", "a#", "", "23", "2f", "41"},
              {"Def Lef", "a%", "", "25", "2f", "41"},
              {"Tessel", "a#", "", "23", "5b", "41"},
              {"FlatTessel NVerilog Print Edif200 Edif300", "a#", "", "23", "41", "20"},
              {"Ascii", "a#", "", "23", "20", "e9"},
              {"Vellum", "a#", "", "23", "41", "09"},
              {"LibraryNT LibraryUnix", "a#", "", "23", "41", "2e"}};
  // Behind a mark: m for its own pair, l and e for the other two; +: the mark is escaped.
  for (const auto &[spaces, start, close, own, literal, escaped] : rows)
    for (const std::string &space : split(spaces))
      for (const std::string &behind : split("- 2 2g 00 m m2 m00 l ml +e +me +mm +mmm")) {
        std::string pairs;
        for (const char c : behind)
          pairs += c == 'm'   ? own
                   : c == 'l' ? literal
                   : c == 'e' ? escaped
                              : std::string(c != '-' && c != '+' ? 1 : 0, c);
        const std::string body = start[std::strlen(start) - 1] + pairs;
        const std::string written = std::string(start) + (behind[0] == '+' ? own : "") + pairs + close;
        EXPECT_EQ(convert(spaceOf(space)->identToName, ("Sa" + body).c_str()), written) << space;
        EXPECT_EQ(convert(spaceOf(space)->nameToIdent, written.c_str()), "Ia" + body) << space;
      }
}
