// What the headers of files declare.
#include "support/results.h"

#include <cstdio>
#include <fstream>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr std::size_t headBytes = 65536;

// "Spef :/[]": format, pin delimiter, divider, bus brackets, with - for what is not declared; the error's name else.
template <typename Find> std::string found(Find find) {
  const char *space = "untouched";
  zelSeparators separators = {sizeof separators, '?', '?', '?', '?'};
  errno = 0;
  if (find(&space, &separators) == 0) {
    EXPECT_STREQ(space, "untouched");
    EXPECT_EQ(separators.divider, '?');
    return errno == EINVAL   ? "EINVAL"
           : errno == ENOENT ? "ENOENT"
           : errno == EACCES ? "EACCES"
           : errno == EISDIR ? "EISDIR"
                             : std::to_string(errno);
  }
  EXPECT_EQ(find(nullptr, nullptr), 1);
  EXPECT_EQ(separators.size, sizeof separators);
  std::string line = std::string(space) + ' ';
  for (const char c : {separators.pinDelimiter, separators.divider, separators.busOpen, separators.busClose})
    line += c == '\0' ? '-' : c;
  return line;
}

// Of a block of exactly this size, so that a read past it is noticed.
std::string inText(const std::string &text) {
  const std::unique_ptr<char[]> exact(new char[text.size()]);
  text.copy(exact.get(), text.size());
  return found([&](auto... out) { return zelFindSeparators(exact.get(), text.size(), out...); });
}
std::string inFileNamed(const std::string &name) {
  return found([&](auto... out) { return zelReadSeparators(name.c_str(), out...); });
}

struct TemporaryFile {
  std::string name = testing::TempDir() + "readSeparators." + std::to_string(getpid());
  explicit TemporaryFile(const std::string &text) { std::ofstream(name, std::ios::binary) << text; }
  ~TemporaryFile() { std::remove(name.c_str()); }
};

struct File {
  const char *text;
  const char *expected;
};

std::string withCarriageReturns(const std::string &text) {
  std::string result;
  for (const char c : text)
    result += c == '\n' ? "\r\n" : std::string(1, c);
  return result;
}

// Empty lines in front change nothing, whatever the format.
std::string endingAt(std::size_t end, const std::string &text) { return std::string(end - text.size(), '\n') + text; }

void expectAll(std::initializer_list<File> files) {
  for (const auto &[text, expected] : files) {
    SCOPED_TRACE(text);
    EXPECT_EQ(inText(text), expected);
    EXPECT_EQ(inText(withCarriageReturns(text)), expected);
    EXPECT_EQ(inText(endingAt(headBytes, text)), expected);
    EXPECT_EQ(inFileNamed(TemporaryFile(text).name), expected);
  }
}
} // namespace

TEST(ReadSeparators, ofEveryFormat) {
  expectAll({
      // As extractors write it.
      {"*SPEF \"ieee 1481-1999\"\n*DESIGN \"digital_pll\"\n*DATE \"11:11:11 Fri 11 11, 1111\"\n*VENDOR \"a \\\"\n"
       "*PROGRAM \"*DIVIDER |\"\n*DESIGN_FLOW \"NAME_SCOPE LOCAL\" \"PIN_CAP NONE\"\n*DIVIDER /\n*DELIMITER :\n"
       "*BUS_DELIMITER []\n*T_UNIT 1 NS\n*C_UNIT 1 PF\n\n*NAME_MAP\n*1 a\n",
       "Spef :/[]"},
      {"// *DIVIDER |\n/* *DELIMITER #\n*/*SPEF \"\" /**/ *DIVIDER// |\n.// :\n*DELIMITER:*BUS_DELIMITER < >\n",
       "Spef :.<>"},
      {"*SPEF \"\" *BUS_DELIMITER [", "Spef --[-"}, // a prefix alone
      {"*SPEF \"\" *DIVIDER / *DIVIDER . *DIVIDER ab", "Spef -.--"},
      {"*SPEF \"\" *DIVIDER *DELIMITER / : *BUS_DELIMITER [ ] ]", "Spef ----"},
      {"*SPEF \"\" *DIVIDER \"/\" *DELIMITER \\: *BUS_DELIMITER [ 0", "Spef ----"},
      {"*SPEF \"\" *divider / *DELIMITER : *DATE \"open *DIVIDER .", "Spef :---"},
      {"*SPEF \"\" *DIVIDER / *DELIMITER : /* open", "Spef -/--"}, // more may follow in what is left open
      {"*SPEF \"\" *DIVIDER / *D_NET n 1 *DELIMITER :", "Spef -/--"},
      {"*SPEF IEEE *DIVIDER /", "EINVAL"},
      {"*DIVIDER / *SPEF \"\"", "EINVAL"},
      {"*|DSPF 1.5\n*|DESIGN \"top\"\n*|DIVIDER /\n*|DELIMITER :\n*|BUSBIT []\n\n.SUBCKT top\n*|DIVIDER .\n",
       "Spf :/[]"},
      {"* extracted\n*|RSPF \"1.0\"\n*DIVIDER #\n*|divider\t|\n*|Delimiter \"#\"\n*|BUSBIT \"< >\"\n+ x", "Spf #|<>"},
      {"*|DSPF\n *|DIVIDER .", "Spf ----"}, // not at the beginning of its line
      {"*|DSPF\n*|DIVIDER\n*|DELIMITER ::\n*|BUSBIT [", "Spf ----"},
      {"*|DSPF\n*|DIVIDER .\n*|BUSBIT [x]\n*|NET n 1\n*|DELIMITER :", "Spf -.--"},
      {"*|DIVIDER /\nR1 a b 1\n*|DSPF", "EINVAL"},
      {"(DELAYFILE\n (SDFVERSION \"3.0\")\n (DESIGN \"\\\" (DIVIDER |)\")\n (DIVIDER .)\n (VOLTAGE 1.8::1.8)\n (CELL\n",
       "Sdf -.--"},
      {"// (DIVIDER |)\n( /* ( */ delayfile(divider/))", "Sdf -/--"},
      {"(DELAYFILE (CONDITION (DIVIDER |)) (VENDOR \"a\" \\\" b) (DIVIDER /) (DIVIDER ..) (DIVIDER \".\") (DIVIDER)",
       "Sdf -/--"},
      {"(DELAYFILE (DIVIDER .", "Sdf ----"},
      {"(DELAYFILES (DIVIDER .))", "EINVAL"},
      {"VERSION 5.8 ;\nDIVIDERCHAR \"/\" ;\nBUSBITCHARS \"[]\" ;\nDESIGN t ;\nUNITS DISTANCE MICRONS 1000 ;\n",
       "Def -/[]"},
      {"VERSION 5.7;\n NOWIREEXTENSIONATPIN ON ;\n DIVIDERCHAR \"/\";\n BUSBITCHARS \"()\" ;\nMACRO a\n CLASS BLOCK "
       ";\n",
       "Lef -/()"},
      // Declarations behind DESIGN and in lower case; a name like a keyword, text and comments that are none.
      {"# BUSBITCHARS \"{}\" ;\ndesign a#b ;\nHISTORY it's \"1\n busbitchars \"{}\" ;\ntechnology busbitchars ;\n"
       "busbitchars \"<>\" ; # ;\nDIVIDERCHAR # \"|\" ;\n\".\" ;\nDIEAREA ( 0 0 ) ( 9 9 ) ;\nDIVIDERCHAR \"|\" ;",
       "Def -.<>"},
      // Blocks and extensions, whose words are their own.
      {"UNITS\n DATABASE MICRONS 1000 ;\nEND UNITS\nPROPERTYDEFINITIONS\n DESIGN p STRING \"\\\" ; END\" ;\n"
       " DIVIDERCHAR \"#\" ;\nEND PROPERTYDEFINITIONS\nBEGINEXT \"x\" DESIGN y ; END ENDEXT\nDIVIDERCHAR \"|\" ;",
       "Lef -|--"},
      {"PROPERTYDEFINITIONS END PROPERTYDEFINITIONS BUSBITCHARS \"{}\" ; END DESIGN DIVIDERCHAR \"/\" ;", "Def --{}"},
      {"LAYER m1 TYPE ROUTING ; BUSBITCHARS \"[]\" ;", "Lef ----"},
      {"DESIGN a ; DIVIDERCHAR / ; BUSBITCHARS \"[\" \"]\" ; BUSBITCHARS \"[]]\" ; DIVIDERCHAR \"\" ;", "Def ----"},
      {"DESIGN a ; NEWSTATEMENT \"/\" ; DIVIDERCHAR \"x\" ; BUSBITCHARS \"\xe9]\" ; BUSBITCHARS \"[]\"", "Def ----"},
      {"DESIGN a ; HISTORY open", "Def ----"},
      {"VERSION 5.8 ; BUSBITCHARS \"[]\" ; DIVIDERCHAR \"/\" ;", "EINVAL"}, // either of them
      {"DESIGN a", "EINVAL"},
  });
}

TEST(ReadSeparators, ofOtherBytes) {
  expectAll({{"", "EINVAL"}, {" \n", "EINVAL"}, {"module top;", "EINVAL"}, {"/*", "EINVAL"}, {"\"", "EINVAL"}});
  EXPECT_EQ(inText({"\x1f\x8b\0\0\xff", 5}), "EINVAL");
  EXPECT_EQ(inText(std::string(100000, '\0')), "EINVAL");
  EXPECT_EQ(inText(std::string("DESIGN a\0b ; \xff\0 ; DIVIDERCHAR \"|\" ;", 35)), "Def -|--");
}

// What the end of the head leaves open is not read: each text is complete, and is not when it ends one byte later.
TEST(ReadSeparators, withinTheFirst64KiB) {
  const File files[] = {{"*SPEF \"\" *DELIMITER : *DIVIDER / *DATE\n", "Spef :---"},
                        {"*|DSPF\n*|DIVIDER /\n*|DELIMITER :\n", "Spf -/--"},
                        {"(DELAYFILE(DIVIDER .)", "Sdf ----"},
                        {"DESIGN a ; BUSBITCHARS \"[]\" ; DIVIDERCHAR \"/\" ;\n", "Def --[]"},
                        {"VERSION 5.8 ; DIVIDERCHAR \"/\" ; END LIBRARY\n", "EINVAL"}};
  for (const auto &[text, expected] : files) {
    SCOPED_TRACE(text);
    const std::string whole = inText(text);
    EXPECT_NE(whole, expected);
    const std::string more = " *\" ;\n";
    EXPECT_EQ(inText(endingAt(headBytes, text) + more), whole);
    EXPECT_EQ(inText(endingAt(headBytes + 1, text) + more), expected);
    EXPECT_EQ(inFileNamed(TemporaryFile(endingAt(headBytes, text) + more).name), whole);
    EXPECT_EQ(inFileNamed(TemporaryFile(endingAt(headBytes + 1, text)).name), expected);
  }
}

TEST(ReadSeparators, refusesWhatItCannotRead) {
  const TemporaryFile file("(DELAYFILE)");
  EXPECT_EQ(inFileNamed(file.name), "Sdf ----");
  EXPECT_EQ(inFileNamed(file.name + ".none"), "ENOENT");
  EXPECT_EQ(inFileNamed(""), "ENOENT");
  EXPECT_EQ(inFileNamed(testing::TempDir()), "EISDIR");
  chmod(file.name.c_str(), 0);
  EXPECT_EQ(inFileNamed(file.name), geteuid() == 0 ? "Sdf ----" : "EACCES"); // root reads everything
  failingMalloc::left = 0;
  EXPECT_EQ(inFileNamed(file.name), std::to_string(ENOMEM));
  failingMalloc::left = -1;

  errno = 0;
  EXPECT_EQ(zelReadSeparators(nullptr, nullptr, nullptr), 0);
  EXPECT_EQ(errno, EINVAL);
  EXPECT_EQ(zelFindSeparators(nullptr, 5, nullptr, nullptr), 0);
  zelSeparators small = {sizeof small - 1, '?', '?', '?', '?'};
  EXPECT_EQ(zelReadSeparators(file.name.c_str(), nullptr, &small), 0);
  EXPECT_EQ(zelFindSeparators("(DELAYFILE)", 11, nullptr, &small), 0);
  EXPECT_EQ(small.divider, '?');
}

TEST(ReadSeparators, fillsTheRecordOfALaterVersion) {
  struct {
    zelSeparators known;
    char added;
  } record = {{sizeof record, '?', '?', '?', '?'}, '?'};
  EXPECT_EQ(zelFindSeparators("(DELAYFILE(DIVIDER .))", 22, nullptr, &record.known), 1);
  EXPECT_EQ(record.known.divider, '.');
  EXPECT_EQ(record.known.busOpen, '\0');
  EXPECT_EQ(record.added, '?');
}
