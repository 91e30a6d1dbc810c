// The reserved words of the named revisions: all that each has, some that it lacks, and how a revision is named.
#include "spaces/keywordRevisions.h"
#include "support/table.h"

#include <algorithm>
#include <cctype>
#include <set>

using namespace zeli;

namespace {
// The words of 1364-2001, those that came with 1364-2005 and 1800-2017, and those of 1076-2008.
const char *const words2001 = R"(
    always and assign automatic begin buf bufif0 bufif1 case casex casez cell cmos config deassign default defparam
    design disable edge else end endcase endconfig endfunction endgenerate endmodule endprimitive endspecify
    endtable endtask event for force forever fork function generate genvar highz0 highz1 if ifnone incdir include
    initial inout input instance integer join large liblist library localparam macromodule medium module nand
    negedge nmos nor noshowcancelled not notif0 notif1 or output parameter pmos posedge primitive pull0 pull1
    pulldown pullup pulsestyle_ondetect pulsestyle_onevent rcmos real realtime reg release repeat rnmos rpmos rtran
    rtranif0 rtranif1 scalared showcancelled signed small specify specparam strong0 strong1 supply0 supply1 table
    task time tran tranif0 tranif1 tri tri0 tri1 triand trior trireg unsigned use vectored wait wand weak0 weak1
    while wire wor xnor xor)";
const char *const words2005 = "uwire";
const char *const words2017 = R"(
    accept_on alias always_comb always_ff always_latch assert assume before bind bins binsof bit break byte chandle
    checker class clocking const constraint context continue cover covergroup coverpoint cross dist do endchecker
    endclass endclocking endgroup endinterface endpackage endprogram endproperty endsequence enum eventually expect
    export extends extern final first_match foreach forkjoin global iff ignore_bins illegal_bins implements implies
    import inside int interconnect interface intersect join_any join_none let local logic longint matches modport
    nettype new nexttime null package packed priority program property protected pure rand randc randcase
    randsequence ref reject_on restrict return s_always s_eventually s_nexttime s_until s_until_with sequence
    shortint shortreal soft solve static string strong struct super sync_accept_on sync_reject_on tagged this
    throughout timeprecision timeunit type typedef union unique unique0 until until_with untyped var virtual void
    wait_order weak wildcard with within)";
const char *const words2008 = R"(
    abs access after alias all and architecture array assert assume assume_guarantee attribute begin block body
    buffer bus case component configuration constant context cover default disconnect downto else elsif end entity
    exit fairness file for force function generate generic group guarded if impure in inertial inout is label
    library linkage literal loop map mod nand new next nor not null of on open or others out package parameter port
    postponed procedure process property protected pure range record register reject release rem report restrict
    restrict_guarantee return rol ror select sequence severity shared signal sla sll sra srl strong subtype then to
    transport type unaffected units until use variable vmode vprop vunit wait when while with xnor xor)";

// Words of other revisions and of grammars, and neighbours of reserved words.
const char *const otherWords = R"(
    wone strength attribute endattribute when randomize srandom std private view vpkg vmod designs desig assume_ s_until_
    assume_guarante assume_guaranteed pulsestyle_onevents restrict_ _ a zout tolerance nature across)";

std::string inCapitals(std::string word) {
  std::transform(word.begin(), word.end(), word.begin(), [](unsigned char c) { return std::toupper(c); });
  return word;
}
} // namespace

TEST(KeywordRevisions, haveTheirWordsAndNoOthers) {
  const struct {
    const char *name;
    std::vector<const char *> lists;
    std::size_t total;
  } revisions[] = {{"1364-2001", {words2001}, 123},
                   {"1364-2005", {words2001, words2005}, 124},
                   {"1800-2017", {words2001, words2005, words2017}, 248},
                   {"1076-2008", {words2008}, 115}};
  ASSERT_EQ(std::size(revisions), std::size(keywordRevisions));
  for (const auto &[name, lists, total] : revisions) {
    SCOPED_TRACE(name);
    std::set<std::string> reserved;
    for (const char *list : lists)
      for (const std::string &word : wordsOf(list))
        reserved.insert(word);
    EXPECT_EQ(reserved.size(), total);

    const KeywordRevision *revision = findKeywordRevision(name);
    ASSERT_NE(revision, nullptr);
    EXPECT_STREQ(revision->name, name);
    for (const char *list : {words2001, words2005, words2017, words2008, otherWords})
      for (const std::string &word : wordsOf(list)) {
        const bool isReserved = reserved.contains(word);
        std::string initial = word;
        initial[0] = inCapitals(word)[0];
        EXPECT_EQ(revision->isKeyword(Name(word)), isReserved) << word;
        EXPECT_EQ(revision->isKeyword(Name(initial)), isReserved && revision->isVHDL) << initial;
        EXPECT_EQ(revision->isKeyword(Name(inCapitals(word))), isReserved && revision->isVHDL) << word;
      }
    EXPECT_FALSE(revision->isKeyword(Name(Bytes(""))));
  }
}

// What a simulator of the newer revision refuses, by the digits of the revisions that reserve it.
TEST(KeywordRevisions, differ) {
  constexpr const char *names[] = {"1364-2001", "1364-2005", "1800-2017", "1076-2008"};
  for (Row &row : rowsOf(HERE, R"(
      design            123
      cell              123
      logic             3
      uwire             23
      default           1234
      context           34
      bit               3
      library           1234
      assume_guarantee  4
      protected         34
      wone              ""
      strength          ""
  )")) {
    std::string reserving;
    for (std::size_t i = 0; i < std::size(names); ++i)
      if (findKeywordRevision(names[i])->isKeyword(Name(row[0])))
        reserving += static_cast<char>('1' + i);
    row.expect(row[1], reserving);
  }
}

TEST(KeywordRevisions, areFoundByTheirWholeName) {
  for (const KeywordRevision &revision : keywordRevisions) {
    const std::string name = revision.name;
    for (const char *publisher : {"", "IEEE ", "ieee ", "Ieee "})
      EXPECT_EQ(findKeywordRevision(publisher + name), &revision) << publisher << name;
    for (const std::string &unknown : {name + " ", " " + name, name + "a", "IEEE" + name, "IEEE  " + name,
                                       "IEEE IEEE " + name, "IEC " + name, name.substr(0, 4), name.substr(0, 8)})
      EXPECT_EQ(findKeywordRevision(unknown), nullptr) << unknown;
  }
  for (const Bytes unknown :
       {Bytes(), Bytes(""), Bytes("IEEE"), Bytes("IEEE "), Bytes("1364-1995"), Bytes("1076-1993")})
    EXPECT_EQ(findKeywordRevision(unknown), nullptr) << unknown;
}
