// Mappings that are made once: names between real files, refusals with their places, keys, checks, lenient answers.
#include "support/spaces.h"

namespace {

// Options in words, "Verilog Spef kind=pin to=:/[] element=X": the two spaces, then what is not as by default; in
// separators, 0 stands for one that is not given.
class Options {
public:
  explicit Options(const std::string &text, bool isTurned = false) : words(wordsOf(text)) {
    options.size = sizeof options;
    options.from = words.at(isTurned ? 1 : 0).c_str();
    options.to = words.at(isTurned ? 0 : 1).c_str();
    for (std::size_t i = 2; i < words.size(); ++i) {
      const std::size_t equals = std::min(words[i].find('='), words[i].size());
      set(words[i].substr(0, equals), words[i].c_str() + std::min(equals + 1, words[i].size()), isTurned);
    }
  }
  const zelMappingOptions *operator&() const { return &options; }

private:
  std::vector<std::string> words;
  zelMappingOptions options = {};

  static zelMappingSeparators separators(const std::string &marks) {
    const auto at = [&](std::size_t i) { return marks.at(i) == '0' ? '\0' : marks[i]; };
    return {at(0), at(1), at(2), at(3)};
  }
  void set(const std::string &option, const char *value, bool isTurned) {
    static const std::map<std::string, std::int32_t zelMappingOptions::*> members = {
        {"kind", &zelMappingOptions::kind},
        {"levels", &zelMappingOptions::levels},
        {"state", &zelMappingOptions::mapState},
        {"names", &zelMappingOptions::isNames},
        {"lenient", &zelMappingOptions::isLenient}};
    static const std::map<std::string, std::int32_t> numbers = {{"", 1},
                                                                {"port", ZEL_KIND_PORT},
                                                                {"instance", ZEL_KIND_INSTANCE},
                                                                {"pin", ZEL_KIND_PIN},
                                                                {"last", ZEL_LEVELS_LAST},
                                                                {"match", ZEL_MAP_MATCH},
                                                                {"process", ZEL_MAP_PROCESS},
                                                                {"explode", ZEL_PRINT_EXPLODE},
                                                                {"group", ZEL_PRINT_GROUP},
                                                                {"top", ZEL_PRINT_TOP}};
    const auto number = [&] { return numbers.contains(value) ? numbers.at(value) : std::stoi(value); };
    if (option == "from" || option == "to")
      ((option == "from") != isTurned ? options.fromSeparators : options.toSeparators) = separators(value);
    else if (option == "print")
      options.printFlags = static_cast<std::uint32_t>(number());
    else if (option == "element")
      options.element = *value;
    else if (option == "keywords")
      options.keywords = value;
    else
      options.*members.at(option) = number();
  }
};

class Mapping {
public:
  explicit Mapping(const std::string &text, bool isTurned = false) {
    const Options options(text, isTurned);
    char message[128] = "";
    made = zelCreateMapping(&options, message, sizeof message);
    EXPECT_NE(made, nullptr) << message;
  }
  Mapping(const Mapping &) = delete;
  Mapping &operator=(const Mapping &) = delete;
  ~Mapping() { zelFreeMapping(made); }
  zelMapping get() const { return made; }

  // The result, or the place and the reason of a refusal: "@7 illegal character".
  std::string answer(const std::string &text) const {
    zelRefusal refusal = {-1, 0};
    EXPECT_EQ(zelDiagnose(made, text.c_str(), &refusal), refusal.reason);
    EXPECT_EQ(zelDiagnose(made, text.c_str(), nullptr), refusal.reason);
    std::string result =
        convert([this](auto... arguments) { return zelMappingApply(made, arguments...); }, text.c_str());
    if (refusal.reason == ZEL_REASON_NONE)
      return result;
    EXPECT_EQ(result, "refused");
    EXPECT_LE(refusal.position, text.size());
    return "@" + std::to_string(refusal.position) + " " + zelReasonText(refusal.reason);
  }
  std::string key(const std::string &text) const {
    return convert([this](auto... arguments) { return zelMappingKey(made, arguments...); }, text.c_str());
  }
  std::string check(const std::string &text, const std::string &result) const {
    static const char *const names[] = {"same", "case lost", "other", "unreadable"};
    return names[zelMappingCheck(made, text.c_str(), result.c_str())];
  }

private:
  zelMapping made = nullptr;
};

} // namespace

// The habits of open flows: each object as it stands in either of two files.
TEST(Mapping, mapsNamesBetweenRealFiles) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Def kind=instance     \mgmt_corner[0]␣                  mgmt_corner\[0\]
    Verilog Def                   \divider.even_0.N[0]␣             divider.even_0.N\[0\]
    Verilog Sdf kind=pin to=0.00  \mprj_pads.area1_io_pad[0]␣.IN_H  mprj_pads\.area1_io_pad\[0\].IN_H
    Verilog Spef                  \divider.even_0.N[0]␣             divider\.even_0\.N\[0\]
    Verilog Spef                  \REG[2]$_DFF_P_␣                  REG\[2\]\$_DFF_P_
    Verilog Spef kind=pin         \clkbuf_0_divider.out␣.A          clkbuf_0_divider\.out:A
    Verilog Spef kind=pin         clock                             clock  // of one level: a port
    Verilog Spf kind=pin          u1.u2.A                           u1/u2:A
    Spef Sdf kind=pin to=0.00     ANTENNA_clkbuf_0_ext_clk_A:DIODE  ANTENNA_clkbuf_0_ext_clk_A.DIODE
    Verilog Spice to=0/[] element=X levels=last kind=instance  \mprj_pads.area1_io_pad[0]␣       Xmprj_pads.area1_io_pad\[0\]
    Verilog Spice to=0/[] element=X levels=last kind=pin  \mprj_pads.area1_io_pad[0]␣.IN_H  mprj_pads.area1_io_pad\[0\]/IN_H
    Verilog Spice to=0/[] element=X levels=last  \divider.even_0.out_counter␣      divider.even_0.out_counter
    Spef Spice to=0/[] kind=pin   _427_:Y                           _427_/Y
    Def Spice to=0/[]             in\[4\]_A                         in[4]_A                            one way  // written with backslashes
    Verilog Spice to=0.[] element=X kind=pin  u1.u2.A                           Xu1.Xu2.A
    Verilog Spice to=0.[] element=x kind=instance  u1.u2                             xu1.xu2
    Verilog VHDL                  u0.valid                          :u0:valid
    Verilog VHDL                  NLW_U0_UNCONNECTED[0]             \NLW_U0_UNCONNECTED\(0)
    Verilog VHDL state=match      NLW_U0_UNCONNECTED[0]             NLW_U0_UNCONNECTED(0)              case lost
    Def Sdf from=0|[]             a\|b|c/d                          a\|b/c\/d  // the header's divider, not the default
    Def Lef from=0/() to=0/<>     a(3)                              a<3>
    Def Lef from=0/() to=0/<>     a\(3\)                            a(3)
  )")) {
    const Mapping there(row[0]);
    const Mapping back(row[0], true);
    const std::string check = row[3] == "case lost" ? "case lost" : "same";
    row.expect(row[1], back.answer(row[2]), "the other direction");
    if (row[3] == "one way")
      continue;
    row.expect(row[2], there.answer(row[1]));
    row.expect(check, there.check(row[1], row[2]));
    row.expect(check, back.check(row[2], row[1]), "the other direction");
  }
}

// Options, a text and what becomes of it.
TEST(Mapping, answers) {
  for (Row &row : rowsOf(HERE, R"(
    // Refusals, with their places and reasons.
    Verilog Sdf                          ""                @0 there is no name
    Verilog Sdf                          ␣                 @0 there is no name
    Verilog Sdf                          \u1/Pad           @7 escaped identifier has no white space at its end
    Verilog Sdf                          a.\u1/Pad         @9 escaped identifier has no white space at its end
    Verilog Sdf                          1a                @0 illegal first character
    Verilog Sdf                          module            @0 reserved word
    Verilog Sdf                          a.module          @2 reserved word
    Verilog Sdf                          a..b              @2 unexpected character
    Verilog Sdf                          a.                @2 unexpected end
    Verilog Sdf                          a␣b               @2 unexpected character  // by the grammar with blanks
    Verilog Sdf                          a[3]b             @4 unexpected character  // else a level of its own
    Verilog Sdf                          a[x]              @2 unexpected character
    Verilog Sdf                          a[                @2 unbalanced bracket
    Verilog Sdf                          a[99999999999]    @2 number out of range
    Verilog Sdf                          {a[-99999999999]  @3 number out of range
    Verilog Sdf                          {a},{b            @6 unbalanced brace
    Verilog Sdf                          {\{␣              @4 unbalanced brace     // an escaped brace opens nothing
    Verilog Sdf                          \␣.a              @0 cannot be written in the target  // nothing between backslash and blank
    Verilog Sdf names                    \␣                @0 cannot be converted
    VHDL Verilog names                   \a␉b              @2 illegal character
    VHDL Verilog names                   \a\bc             @3 unexpected character
    VHDL Verilog names                   \ab               @3 nothing ends the escape or quote
    VHDL Verilog names                   signal            @0 reserved word
    Spice Verilog from=0/[]              a\                @1 nothing ends the escape or quote
    VHDL Verilog                         a_                @1 illegal character
    VHDL Verilog                         a__b              @2 illegal character
    VHDL Verilog                         _a                @0 illegal first character
    VHDL Verilog                         \a                @2 nothing ends the escape or quote
    VHDL Verilog                         a(3               @3 unbalanced bracket
    VHDL Verilog                         @lib.cell         @0 cannot be written in the target
    Spef Verilog                         u1:A:B            @4 a second pin delimiter, or a divider behind one
    Spef Verilog                         u1:               @3 unexpected end
    Spef Verilog                         a\                @1 nothing ends the escape or quote
    Spef Verilog                         #23               @0 illegal character
    Spice Verilog from=0/[] element=X    Xu1/u2/n          @4 the instance does not begin with its element letter
    Spice Verilog from=0/[] element=X    X/n               @1 unexpected character
    Spice Verilog from=0/[] element=X    Xu1/              @4 unexpected end
    Def Verilog                          in[4]_A           @5 unexpected character
    Def Verilog                          a;                @1 unexpected character
    Def Verilog                          a#b               @1 illegal character
    Lef Verilog                          a]b               @1 unexpected character
    Gcf Verilog                          a\                @1 nothing ends the escape or quote
    Kirra Verilog                        1a                @0 illegal first character
    Kirra Verilog                        a<1               @1 illegal character
    Verilog Ascii                        a.b               @1 illegal character     // a name, for a space without paths
    LibraryUnix Verilog                  a-b               @1 illegal character
    Ident Verilog                        abc               @0 illegal first character
    VHDL87 Sdf                           :a:sra            @3 reserved word                 // whatever the VHDL mode
    Verilog Spice to=0[00                a[1]              @1 cannot be written in the target  // brackets that divide
    Verilog LibraryNT names              \a                @2 escaped identifier has no white space at its end
    // SPICE with separators, where an index is one only at the end of a level.
    Spice Verilog from=0/[]            in[4]_A    \in[4]_A␣  // a bit at the end of a level only
    Spice Verilog from=0/[]            in[4][3]   \in[4]␣[3]
    Spice Verilog from=0/[]            a[-3]      \a[-3]␣
    Spice Verilog from=0/[]            [a         \[a␣
    Spice Verilog from=0/[]            \[a        \[a␣       // an escaped first character
    Spice Verilog from=0/[]            #2341      \#2341␣    // reads as "#41"
    Verilog Spice to=0/[]              \a/b␣.c    a\/b/c
    Verilog Spice to=0/[]              \#23␣      \#23
    Verilog Spice to=0/[]              \a.b+c~d␣  a.b+c\~d
    Verilog Spice to=0/00              \a[3]␣     a[3]       // brackets that are not in force stand as they are
    Verilog Spice to=0/00              a[3]       a[3]       // an index is written all the same
    Spice Def element=X kind=instance  xa.Xb      a/b
    Spice Spice element=r kind=port    Ru1.n      ru1.n
    Spice Spice element=X levels=last kind=instance  u1.xu2     u1.Xu2
    Spice Verilog names element=X kind=instance  Xu1        u1
    Verilog Spice names element=X kind=instance  u1         Xu1
    Spice Verilog names element=X kind=instance  u1         @0 the instance does not begin with its element letter
    Spice Verilog names element=X kind=instance  X          @1 there is no name
    // More than levels.
    Verilog Verilog                {a,b[3:0]}      {a,b[3:0]}
    Verilog Verilog                a␣.␣b␣[␣3␣]     a.b[3]
    Sdf Verilog from=0/[:          a[1:3:          a[1:3]     // a bracket that ranges have, too
    Verilog Verilog print=explode  a[1:0]          a[1],a[0]
    Verilog Spef kind=pin print=explode  a[1:0].\b/c␣[0:1]  a[1]:b\/c[0],a[1]:b\/c[1],a[0]:b\/c[0],a[0]:b\/c[1]
    Verilog VHDL print=explode     u.a[1:0].b      :u:a(1):b,:u:a(0):b
    Verilog Verilog print=group    {a,b}           {{a,b}}
    Verilog ORKA print=top         a               /a
    VHDL Verilog                   :a(3␣downto␣0)  a[3:0]
    Verilog VHDL                   a[03]           a(3)
    Spef Verilog                   /u1/n           u1.n
    Spef Spef                      /u1/n           /u1/n
    // The words of a revision.
    Verilog Verilog keywords=1800-2017  logic     \logic␣
    Verilog Verilog keywords=1800-2017  a.bit[3]  a.\bit␣[3]
    Verilog Verilog keywords=1800-2017  cell      \cell␣
    Verilog Verilog keywords=1800-2017  Logic     Logic
    Def VerilogA names keywords=1364-2005  analog    \analog␣  // the space's own
    Def VerilogA names keywords=1364-2005  uwire     \uwire␣
    Verilog VHDL keywords=1076-2008     context   \context\
  )"))
    row.expect(row[2], Mapping(row[0]).answer(row[1]));
}

TEST(Mapping, knowsLimits) {
  const Mapping toDef("Verilog Def");
  const Mapping toSpice("Verilog Spice element=X kind=instance");
  const Mapping toPin("Verilog Spef kind=pin");
  const Mapping names("Verilog Sdf names");
  const std::string longest(ZEL_MAX_NAME, 'n');
  for (const Mapping *mapping : {&toDef, &names}) {
    EXPECT_EQ(mapping->answer(longest), longest);
    EXPECT_EQ(mapping->key(longest), longest);
    EXPECT_EQ(mapping->answer(longest + 'n'), "@2047 the name is longer than 2047 characters");
  }
  EXPECT_EQ(toSpice.answer(longest), "@0 the result is longer than 2047 characters");
  EXPECT_EQ(toDef.answer(longest + ".a"), "@0 the result is longer than 2047 characters");
  EXPECT_EQ(Mapping("Spef Verilog").answer("b/" + longest + 'n'), "@2049 the name is longer than 2047 characters");
  EXPECT_EQ(Mapping("Ident Gcf lenient").answer('F' + longest + 'n'), "@0 the name is longer than 2047 characters");
  EXPECT_EQ(toDef.answer(std::string(5000, ' ') + "a"), "@4094 the name is longer than 2047 characters");
  // Where the second level, the rest, or the index no longer fits.
  EXPECT_EQ(toPin.answer(std::string(1500, 'n') + ".\\" + std::string(600, '[') + " ").substr(0, 13), "@1501 the res");
  EXPECT_EQ(toPin.answer('\\' + std::string(1000, '[') + " ." + std::string(1000, 'n')).substr(0, 13), "@1003 the res");
  EXPECT_EQ(toPin.answer('\\' + std::string(1022, '[') + " [01:002]").substr(0, 13), "@1024 the res");
  std::string list = "{a"; // of more items than are held without memory
  for (int i = 0; i < 1000; ++i)
    list += ",a";
  EXPECT_EQ(Mapping("Verilog Verilog").answer(list + '}'), list + '}');
  const std::string marks = '\\' + std::string(1500, '[') + ' ';
  EXPECT_EQ(names.answer(marks), "@0 the result is longer than 2047 characters");
  EXPECT_EQ(names.key(marks), "refused");
}

// Two texts are the same object where their keys are equal.
TEST(Mapping, hasKeysOfObjects) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Sdf              \clk␣   clk      same
    Verilog Sdf              clk     Clk      other
    Verilog Sdf              \a/b␣   a.b      other
    Verilog Sdf              \a[3]␣  a[3]     other
    Verilog Sdf              a[3]    a[03]    same
    Verilog Sdf              {a,b}   \{a,b}␣  other  // a list, and a name that looks like one
    Verilog Sdf              a.b     a␣.␣b    same
    VHDL Sdf                 clk     CLK      same
    VHDL Sdf                 \Clk\   clk      other
    VHDL Sdf                 \CLK\   \clk\    other
    Sdf Verilog              /u1/n   u1/n     same
    Spef Verilog             u1:A    u1/A     same
    Spice Verilog element=X  Xu1.n   xu1.n    same
    Spice Verilog element=X  XU1.n   xu1.n    other
  )")) {
    const Mapping mapping(row[0]);
    const std::string keys[] = {mapping.key(row[1]), mapping.key(row[2])};
    row.expect(row[3], keys[0] == keys[1] ? "same" : "other", keys[0] + " and " + keys[1]);
    const MapState other(ZEL_MAP_MATCH);
    row.expect(keys[0], mapping.key(row[1]), "another state of the process");
  }
}

TEST(Mapping, checksResults) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Sdf             a.b      a/b     same
    Verilog Sdf             a.b      A/b     case lost
    Verilog Sdf             a.b      a/c     other
    Verilog Sdf             a.b      a[      unreadable
    Verilog Sdf             module   a       unreadable
    Verilog Spice           a[3]     a[3]    other  // of a name, without brackets
    Verilog Spef kind=pin   a.b      a:b     same
    Verilog Verilog         {a,b}    {a,b}   same
    Verilog VHDL keywords=1076-2008  context  \context\  same
  )"))
    row.expect(row[3], Mapping(row[0]).check(row[1], row[2]));
}

TEST(Mapping, leavesOutWhenLenient) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Sdf        ""      ""
    Verilog Sdf        \a:b␣   a\:b
    Verilog Sdf        \a      @2 escaped identifier has no white space at its end
    Gcf Verilog        a.b;c   a.  // as if there were no second level
    Spef Verilog       a/b     a.b
    Spef Verilog       a:b     @1 unexpected character
    Verilog Def names  \a[0]␣  a\[0\]
  )")) {
    const std::vector<std::string> words = wordsOf(row[0]);
    const char *const from = words[0].c_str();
    const char *const to = words[1].c_str();
    const std::string given = row[1];
    const char *const text = given.c_str();
    const Mapping mapping(row[0] + " lenient");
    const Result result = take(zelMappingApply(mapping.get(), text, nullptr, nullptr));
    zelRefusal refusal = {};
    zelDiagnose(mapping.get(), text, &refusal);
    row.expect(row[2], result ? *result : "@" + std::to_string(refusal.position) + " " + zelReasonText(refusal.reason));
    const bool isName = words.size() > 2;
    const Result expected = take(isName ? zelMapName(from, to, text, nullptr, nullptr)
                                        : zelPathMapperEx(text, nullptr, nullptr, 0, from, to, nullptr, nullptr));
    row.expect(expected.value_or("null"), result.value_or("null"), "comparison with the function");
  }
}

TEST(Mapping, namesItsSpaces) {
  for (const std::string &name : allSpaces()) {
    std::string other = name;
    std::transform(other.begin(), other.end(), other.begin(), [](unsigned char c) { return std::toupper(c); });
    const Mapping mapping(name + " Ident");
    const Mapping again(other + " IDENT");
    const std::string text = name == "Ident" ? "Sa" : "a";
    EXPECT_EQ(mapping.answer(text), again.answer(text)) << name;
  }
  EXPECT_EQ(Mapping("verilog DSPF kind=pin").answer("u1.A"), "u1:A");
  EXPECT_EQ(Mapping("VERILOG-AMS filesys").answer("A-B").substr(0, 2), "@1");
}

TEST(Mapping, saysWhichOptionIsWrong) {
  for (Row &row : rowsOf(HERE, R"(
    Verilo Sdf                           no space is called 'Verilo'
    Verilog SystemSdf                    no space is called 'SystemSdf'
    Verilog Sdf kind=4                   there is no such kind of object
    Verilog Sdf kind=-1                  there is no such kind of object
    Verilog Spice levels=2               element letters stand on all levels or on the last
    Verilog Sdf print=32                 there is no such print flag
    Verilog Spice element=3              an element letter is a letter
    Verilog Sdf element=X                only SPICE has element letters
    Verilog Sdf state=1                  there is no such mapping state
    Verilog Sdf state=6                  there is no such mapping state
    Verilog Sdf from=0/[]                the separators of Verilog are fixed
    Verilog Ascii to=0/[]                Ascii has no separators
    Verilog Def to=0%[]                  these separators of DEF cannot be told from each other or from names
    Verilog Sdf keywords=1800-2017       the revision 1800-2017 is not one of the target
    Verilog Verilog keywords=1076-2008   the revision 1076-2008 is not one of the target
    Verilog Verilog keywords=1995        no keyword revision is called '1995'
    Verilog Spef kind=pin lenient        a lenient mapping knows no element letters, keyword revisions, pins and separators of SPICE
  )")) {
    const Options options(row[0]);
    char message[200] = "";
    errno = 0;
    row.expect("1", std::to_string(zelCreateMapping(&options, message, sizeof message) == nullptr));
    row.expect(row[1], message);
    row.expect(std::to_string(EINVAL), std::to_string(errno));
    char cut[9] = "";
    zelCreateMapping(&options, cut, sizeof cut);
    row.expect(row[1].substr(0, 8), cut);
    row.expect("1", std::to_string(zelCreateMapping(&options, nullptr, 0) == nullptr));
  }
  // The separators of each would be ambiguous; no lenient mapping knows what the others ask for.
  for (const char *wrong :
       {"Sdf to=0a[]", "Sdf to=0+[]", "Sdf to=0-[]", "Sdf to=0#[]", "Sdf to=0/a]", "Sdf to=0/[a", "Sdf to=0[[]",
        "Sdf to=0][]", "Sdf to=0/[[", "Spef to=[/[]", "Spef to=]/[]", "Spef to=a/[]", "Spice to=0/[0",
        "Spice element=X lenient", "Spice to=0/[] lenient", "Verilog keywords=1364-2005 lenient"})
    EXPECT_EQ(zelCreateMapping(&Options(std::string("Verilog ") + wrong), nullptr, 0), nullptr) << wrong;
  zelMappingOptions unsized = {};
  unsized.from = unsized.to = "Sdf";
  EXPECT_EQ(zelCreateMapping(&unsized, nullptr, 0), nullptr);
  EXPECT_EQ(zelCreateMapping(nullptr, nullptr, 0), nullptr);
  unsized.size = sizeof unsized;
  unsized.to = nullptr;
  EXPECT_EQ(zelCreateMapping(&unsized, nullptr, 0), nullptr);
  unsized.from = nullptr;
  EXPECT_EQ(zelCreateMapping(&unsized, nullptr, 0), nullptr);
}

TEST(Mapping, isMadeWithEveryMemoryOrNone) {
  const Options options("Spef Spf from=|/() to=:.[]");
  for (int served = 0;; ++served) {
    failingMalloc::left = served;
    errno = 0;
    char message[20] = "";
    const zelMapping mapping = zelCreateMapping(&options, message, sizeof message);
    const int error = errno;
    failingMalloc::left = -1;
    if (mapping != nullptr) {
      EXPECT_GT(served, 2); // the record and the separators of both sides
      zelFreeMapping(mapping);
      break;
    }
    EXPECT_EQ(error, ENOMEM);
    EXPECT_STREQ(message, "no memory");
  }
  zelFreeMapping(nullptr);
}

TEST(Mapping, takesNoNull) {
  const Mapping mapping("Verilog Sdf");
  for (const auto call : {zelMappingApply, zelMappingKey}) {
    errno = 0;
    EXPECT_TRUE(call(nullptr, "a", nullptr, nullptr) == nullptr && errno == EINVAL);
    EXPECT_EQ(call(mapping.get(), nullptr, nullptr, nullptr), nullptr);
  }
  EXPECT_EQ(zelDiagnose(mapping.get(), nullptr, nullptr), ZEL_REASON_BAD_ARGUMENT);
  EXPECT_EQ(zelDiagnose(nullptr, "a", nullptr), ZEL_REASON_BAD_ARGUMENT);
  EXPECT_EQ(zelMappingCheck(mapping.get(), "a", nullptr), ZEL_CHECK_UNREADABLE);
  for (const int none : {-1, 0, static_cast<int>(ZEL_REASON_COUNT)})
    EXPECT_STREQ(zelReasonText(none), "");
  for (int reason = 1; reason < ZEL_REASON_COUNT; ++reason)
    EXPECT_STRNE(zelReasonText(reason), "");
}

// What an earlier call left in errno is no reason, and a diagnosis leaves it alone.
TEST(Mapping, diagnosesWithoutErrno) {
  const Mapping mapping("Verilog Sdf");
  errno = ENOMEM;
  EXPECT_EQ(zelDiagnose(mapping.get(), "{a[99999999999],b}", nullptr), ZEL_REASON_NUMBER_OUT_OF_RANGE);
  EXPECT_EQ(errno, ENOMEM);
}

// A ring marks old results, and may so destroy the very text before it is copied.
TEST(Mapping, readsATextOfItsOwnRing) {
  for (const char *options : {"Verilog Sdf", "Verilog Sdf names"}) {
    const Mapping mapping(options);
    zelRing ring = nullptr;
    const auto map = [&](const char *text) { return zelMappingApply(mapping.get(), text, zelAllocRing, &ring); };
    const char *const text = map("abcdefgh");
    for (int i = 0; i < 9; ++i)
      map("x");
    EXPECT_EQ(resultOf(map(text)), "abcdefgh") << options; // which is the tenth
    EXPECT_EQ(text[0], '@');
    zelFreeRing(&ring);
  }
}

TEST(Mapping, hasAStateOfItsOwn) {
  const auto folded = [](const char *options) { return Mapping(options).answer("Clk"); };
  {
    const MapState match(ZEL_MAP_MATCH);
    EXPECT_EQ(folded("VHDL Verilog"), "clk");
    EXPECT_EQ(folded("VHDL Verilog names"), "clk");
    EXPECT_EQ(folded("VHDL Verilog state=process"), "Clk");
    EXPECT_EQ(folded("VHDL Verilog lenient"), "clk");
    EXPECT_EQ(folded("VHDL Verilog state=process lenient"), "Clk");
  }
  EXPECT_EQ(folded("VHDL Verilog state=match"), "Clk");
  EXPECT_EQ(folded("VHDL Verilog state=process"), "clk");
  for (int mode : {0, 1, 2}) {
    const VHDLMode vhdl(mode);
    EXPECT_EQ(Mapping("VHDL Verilog").answer("\\a+b\\"), "\\a+b ") << mode;
    EXPECT_EQ(Mapping("VHDL Verilog").answer(":u1:\\a+b\\(3 downto 0)"), "u1.\\a+b [3:0]") << mode;
  }
}

namespace {
void *growNothing(void *, std::uint64_t, void *) { return nullptr; }

// A column with a null in it, as a slice of a longer one, in a mapping: the results, with the place of each refusal.
template <typename Offset> std::string mapColumn(const Mapping &mapping, std::uint32_t bits, bool isMarked) {
  const Offset offsets[] = {2, 6, 12, 12, 15, 19, 22};
  const std::uint8_t validity = 0b110111;
  zelColumn column = {sizeof column, bits, 6, offsets, "xxu1.Amodulea.bu2.Bx\0y", isMarked ? &validity : nullptr};
  Offset results[7] = {-1};
  std::uint8_t reasons[6] = {};
  std::uint32_t positions[6] = {};
  zelColumnResult result = {sizeof result, results, nullptr, nullptr, 0, nullptr, 0, 0, growNothing, nullptr};
  EXPECT_EQ(zelMapColumn(mapping.get(), &column, &result), ENOMEM);
  result.grow = nullptr;
  result.reasons = isMarked ? reasons : nullptr;
  result.positions = isMarked ? positions : nullptr;
  EXPECT_EQ(zelMapColumn(mapping.get(), &column, &result), 0);
  std::string found = std::to_string(result.refused) + " refused:";
  for (int i = 0; i < 6; ++i)
    found += " " + std::string(result.bytes + results[i], result.bytes + results[i + 1]) +
             (reasons[i] == ZEL_REASON_NONE ? "" : "@" + std::to_string(positions[i])) + ";";
  std::free(result.bytes);
  EXPECT_EQ(zelMapColumn(nullptr, &column, &result) + zelMapColumn(mapping.get(), nullptr, &result), 2 * EINVAL);
  column.offsetBits = 16;
  EXPECT_EQ(zelMapColumn(mapping.get(), &column, &result), EINVAL);
  column.size = 4;
  EXPECT_EQ(zelMapColumn(mapping.get(), &column, &result), EINVAL);
  return found;
}
} // namespace

TEST(MapColumn, mapsTextByText) {
  const Mapping names("Verilog Sdf names");
  const Mapping strict("Verilog Sdf");
  const Mapping lenient("Verilog Sdf lenient");
  // A NUL is no divider where there is none.
  EXPECT_EQ(mapColumn<std::int32_t>(Mapping("FlatTessel Verilog"), 32, false),
            "2 refused: \\u1.A ; \\module ; ; \\a.b ; \\u2.B ; ;");
  EXPECT_EQ(mapColumn<std::int32_t>(strict, 32, true), "3 refused: u1/A; @0; @0; ; u2/B; @1;");
  EXPECT_EQ(mapColumn<std::int64_t>(strict, 64, false), "3 refused: u1/A; ; ; a/b; u2/B; ;");
  EXPECT_EQ(mapColumn<std::int64_t>(lenient, 64, true), "2 refused: u1/A; @0; ; ; u2/B; @0;");
  EXPECT_EQ(mapColumn<std::int32_t>(names, 32, true), "5 refused: @2; @0; @0; ; @2; @1;");
}

// Lines, what becomes of them, how many of how many are refused, and the first of those: line, start, length, place.
TEST(MapLines, mapsLineByLine) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Sdf                a.b␊c          a/b␊c          0 of 2
    Verilog Sdf                a.b␊␊          a/b␊␊          0 of 2
    Verilog Sdf                ""             ""             0 of 0
    Verilog Sdf                \x/y␊a.b␊      x\/y␊a/b␊      0 of 2   // the end of a line ends an escaped identifier
    Verilog Print names        \abc␊         abc␊           0 of 1   // of which the result is a part
    Verilog Sdf                a␊x␣y␊1a␊      a␊x␣y␊1a␊      2 of 3: 1 2 3 2
    Verilog Sdf lenient        a.b␊\x/y␊a[    a/b␊x\/y␊a[    1 of 3: 2 9 2 2
    Verilog Sdf names lenient  \x/y␊a.b       x\/y␊a.b       1 of 2: 1 5 3 1
  )")) {
    const Mapping mapping(row[0]);
    zelLineRefusal first = {};
    zelLinesResult result = {sizeof result, 1, 0, 0, &first, 1, nullptr, 0, 0, nullptr, nullptr};
    const auto map = [&] { return zelMapLines(mapping.get(), row[1].data(), row[1].size(), '\n', &result); };
    row.expect("0", std::to_string(map()));
    row.expect(row[2], std::string(result.bytes, result.length));
    std::ostringstream counts;
    counts << result.refused << " of " << result.lines;
    if (result.refused != 0)
      counts << ": " << first.line << ' ' << first.start << ' ' << first.length << ' ' << first.refusal.position;
    row.expect(row[3], counts.str());
    result.isKept = 0;
    result.refusals = nullptr;
    row.expect("0", std::to_string(map()));
    row.expect(result.refused != 0 ? "shorter" : "as long", result.length < row[2].size() ? "shorter" : "as long");
    std::free(result.bytes);
    zelLinesResult none = {sizeof none, 0, 0, 0, nullptr, 0, nullptr, 0, 0, growNothing, nullptr};
    row.expect(std::to_string(row[1].empty() ? 0 : ENOMEM),
               std::to_string(zelMapLines(mapping.get(), row[1].data(), row[1].size(), '\n', &none)));
    row.expect(std::to_string(EINVAL), std::to_string(zelMapLines(mapping.get(), nullptr, 1, '\n', &none)));
  }
}
