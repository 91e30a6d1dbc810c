// The reserved words of the named revisions: where neighbouring ones differ, and how a revision is named.
#include "spaces/keywordRevisions.h"
#include "support/table.h"

using namespace zeli;

// A word, and the digits of the revisions that reserve it: 1364-2001, 1364-2005, 1800-2017, 1076-2008. Those of Verilog
// reserve it as it stands, that of VHDL in any case.
TEST(KeywordRevisions, differ) {
  constexpr const char *names[] = {"1364-2001", "1364-2005", "1800-2017", "1076-2008"};
  for (Row &row : rowsOf(HERE, R"(
      always               123
      xor                  1234
      design               123
      pulsestyle_ondetect  123
      pulsestyle_onevents  ""
      uwire                23
      logic                3
      bit                  3
      s_until_with         3
      s_until_             ""
      context              34
      protected            34
      assume_guarantee     4
      assume_guarante      ""
      assume_guaranteed    ""
      abs                  4
      default              1234
      randomize            ""  // a method, no word
      tolerance            ""  // of VHDL-AMS
      _                    ""
      ""                   ""
  )")) {
    std::string initial = row[0];
    initial[0] = static_cast<char>(std::toupper(initial[0]));
    std::string reserving;
    std::string reservingInitial;
    for (std::size_t i = 0; i < std::size(names); ++i) {
      reserving += findKeywordRevision(names[i])->isKeyword(Name(row[0])) ? std::string(1, "1234"[i]) : "";
      reservingInitial += findKeywordRevision(names[i])->isKeyword(Name(Bytes(initial))) ? "1234"[i] : '-';
    }
    row.expect(row[1], reserving);
    row.expect(reserving.ends_with('4') ? "---4" : "----", reservingInitial, initial);
  }
}

TEST(KeywordRevisions, areFoundByTheirWholeName) {
  for (const KeywordRevision &revision : keywordRevisions) {
    const std::string name = revision.name;
    for (const char *publisher : {"", "IEEE ", "Ieee "})
      EXPECT_EQ(findKeywordRevision(publisher + name), &revision) << publisher << name;
    for (const std::string &unknown :
         {name + " ", " " + name, "IEEE" + name, "IEEE  " + name, "IEEE IEEE " + name, name.substr(0, 4)})
      EXPECT_EQ(findKeywordRevision(unknown), nullptr) << unknown;
  }
  for (const Bytes unknown : {Bytes(), Bytes(""), Bytes("IEEE "), Bytes("1364-1995"), Bytes("1076-1993")})
    EXPECT_EQ(findKeywordRevision(unknown), nullptr) << unknown;
}
