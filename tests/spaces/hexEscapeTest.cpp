// The mark of an escape in every space: it is escaped itself exactly where it would be read as one.
#include "support/spaces.h"

namespace {
// What "a" and the mark become; the end of a name; and the digits that stand for the mark itself, for a character that
// is never escaped, and for one that is.
struct Marking {
  const char *spaces, *start, *end, *mark, *plain, *escaped;
};
constexpr Marking markings[] = {{"Verilog VerilogAMS VerilogA KirraHDL", "\\a#", " ", "23", "41", "20"},
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

// The digits that words like MARK stand for, and the other words as they are.
std::string spelt(const std::string &words, const Marking &marking) {
  std::string text;
  for (const std::string &word : wordsOf(words))
    text += word == "MARK"      ? marking.mark
            : word == "PLAIN"   ? marking.plain
            : word == "ESCAPED" ? marking.escaped
                                : word;
  return text;
}
} // namespace

// What follows a mark, and whether the mark is then escaped.
TEST(HexEscape, protectsTheMarkInFrontOfWhatWouldBeDecoded) {
  for (Row &row : rowsOf(HERE, R"(
    ""              as it is
    2               as it is
    2g              as it is
    00              as it is  // never decoded
    MARK            as it is  // protects nothing
    MARK 2          as it is
    MARK 00         as it is
    PLAIN           as it is
    MARK PLAIN      as it is
    ESCAPED         escaped
    MARK ESCAPED    escaped
    MARK MARK       escaped
    MARK MARK MARK  escaped
  )")) {
    for (const Marking &marking : markings)
      for (const std::string &space : wordsOf(marking.spaces)) {
        const std::string behind = spelt(row[0], marking);
        const std::string start = marking.start;
        const std::string body = start.back() + behind;
        std::string written = row[1] == "escaped" ? start + marking.mark : start;
        written.append(behind).append(marking.end);
        row.expect(written, convert(spaceOf(space)->identToName, ("Sa" + body).c_str()), space);
        row.expect("Ia" + body, convert(spaceOf(space)->nameToIdent, written.c_str()), space);
      }
  }
}
