// Mappings that are made once: names between real files, refusals with their places, keys, checks, lenient answers.
#include "support/spaces.h"

#include <thread>

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
  bool isGood = true; // as far as the words are known

private:
  std::vector<std::string> words;
  zelMappingOptions options = {};

  static zelMappingSeparators separators(const std::string &marks) {
    const auto at = [&](std::size_t i) { return marks.at(i) == '0' ? '\0' : marks[i]; };
    return {at(0), at(1), at(2), at(3)};
  }
  void set(const std::string &option, const char *value, bool isTurned) {
    static const std::map<std::string, std::int32_t> numbers = {
        {"net", ZEL_KIND_NET},          {"port", ZEL_KIND_PORT},    {"instance", ZEL_KIND_INSTANCE},
        {"pin", ZEL_KIND_PIN},          {"last", ZEL_LEVELS_LAST},  {"vhdl", ZEL_MAP_VHDL},
        {"match", ZEL_MAP_MATCH},       {"tandem", ZEL_MAP_TANDEM}, {"process", ZEL_MAP_PROCESS},
        {"explode", ZEL_PRINT_EXPLODE}, {"group", ZEL_PRINT_GROUP}, {"top", ZEL_PRINT_TOP}};
    const auto number = [&] { return numbers.contains(value) ? numbers.at(value) : std::stoi(value); };
    if (option == "from" || option == "to")
      ((option == "from") != isTurned ? options.fromSeparators : options.toSeparators) = separators(value);
    else if (option == "kind")
      options.kind = number();
    else if (option == "levels")
      options.levels = number();
    else if (option == "state")
      options.mapState = number();
    else if (option == "print")
      options.printFlags = static_cast<std::uint32_t>(number());
    else if (option == "element")
      options.element = *value;
    else if (option == "keywords")
      options.keywords = value;
    else if (option == "names" || option == "lenient")
      (option == "names" ? options.isNames : options.isLenient) = 1;
    else
      isGood = false;
  }
};

class Mapping {
public:
  explicit Mapping(const std::string &text, bool isTurned = false) {
    const Options options(text, isTurned);
    char message[128] = "no such option";
    made = options.isGood ? zelCreateMapping(&options, message, sizeof message) : nullptr;
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
    Verilog Def kind=instance:
      clock_pad                           clock_pad
      \mgmt_corner[0]␣                    mgmt_corner\[0\]
      \clkbuf_0_divider.out␣              clkbuf_0_divider.out
    Verilog Def:
      mprj_io[13]                         mprj_io[13]
      \divider.even_0.N[0]␣               divider.even_0.N\[0\]
    Def Lef kind=port:
      la_data_out[29]                     la_data_out[29]
    Verilog Sdf kind=pin to=0.00:
      _262__1.Y                           _262__1.Y
      \mprj_pads.area1_io_pad[0]␣.IN_H    mprj_pads\.area1_io_pad\[0\].IN_H
    Verilog Spef:
      \divider.even_0.N[0]␣               divider\.even_0\.N\[0\]
      sel2[0]                             sel2[0]
      \REG[2]$_DFF_P_␣                    REG\[2\]\$_DFF_P_
    Verilog Spef kind=pin:
      _204_.A0                            _204_:A0
      \clkbuf_0_divider.out␣.A            clkbuf_0_divider\.out:A
      clock                               clock                           // of one level: a port
    Verilog Spf kind=pin:
      u1.u2.A                             u1/u2:A
    Spef Sdf kind=pin to=0.00:
      ANTENNA_clkbuf_0_ext_clk_A:DIODE    ANTENNA_clkbuf_0_ext_clk_A.DIODE
    Def Sdf kind=instance to=0.00:
      ringosc.dstage\[0\].id.delaybuf0    ringosc\.dstage\[0\]\.id\.delaybuf0
    Verilog Spice to=0/[] element=X levels=last kind=instance:
      _408__8                             X_408__8
      \mprj_pads.area1_io_pad[0]␣         Xmprj_pads.area1_io_pad\[0\]
    Verilog Spice to=0/[] element=X levels=last kind=pin:
      clock_pad.TIE_HI_ESD                clock_pad/TIE_HI_ESD
      \mprj_pads.area1_io_pad[0]␣.IN_H    mprj_pads.area1_io_pad\[0\]/IN_H
    Verilog Spice to=0/[] element=X levels=last:
      \divider.even_0.out_counter␣        divider.even_0.out_counter
      io_oeb[3]                           io_oeb[3]
    Spef Spice to=0/[] kind=pin:
      _427_:Y                             _427_/Y
    Def Spice to=0/[]:
      mprj_pads.area1_io_pad\[13\]/TIE_LO_ESD  mprj_pads.area1_io_pad\[13\]/TIE_LO_ESD
      in\[4\]_A                           in[4]_A                         one way  // written with backslashes
    Verilog Spice to=0.[] element=X kind=pin:
      u1.u2.A                             Xu1.Xu2.A
    Verilog Spice to=0.[] element=x kind=instance:
      u1.u2                               xu1.xu2
    Verilog VHDL:
      s_axis_data_tdata[31]               s_axis_data_tdata(31)
      u0.valid                            :u0:valid
      NLW_U0_UNCONNECTED[0]               \NLW_U0_UNCONNECTED\(0)
    Verilog VHDL state=match:
      NLW_U0_UNCONNECTED[0]               NLW_U0_UNCONNECTED(0)           case lost
    Def Sdf from=0|[]:
      a\|b|c/d                            a\|b/c\/d                       // the header's divider, not the default
    Def Lef from=0/() to=0/<>:
      a(3)                                a<3>
      a\(3\)                              a(3)
  )")) {
    const Mapping there(row.heading);
    const Mapping back(row.heading, true);
    const std::string check = row[2] == "case lost" ? "case lost" : "same";
    const bool isOneWay = row[2] == "one way";
    if (!isOneWay)
      row.expect(row[1], there.answer(row[0]));
    row.expect(row[0], back.answer(row[1]), "the other direction");
    if (!isOneWay) {
      row.expect(check, there.check(row[0], row[1]));
      row.expect(check, back.check(row[1], row[0]), "the other direction");
    }
  }
}

TEST(Mapping, refusesWithReasonAndPlace) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Sdf:
      ""                @0 there is no name
      ␣                 @0 there is no name
      \u1/Pad           @7 escaped identifier has no white space at its end
      a.\u1/Pad         @9 escaped identifier has no white space at its end
      {a,\b}            @6 escaped identifier has no white space at its end
      1a                @0 illegal first character
      module            @0 reserved word
      a.module          @2 reserved word
      a..b              @2 unexpected character
      a.                @2 unexpected end
      a␣b               @2 unexpected character       // by the grammar with blanks
      a[3]b             @4 unexpected character       // else a level of its own
      a[                @2 unbalanced bracket
      a[x]              @2 unexpected character
      a[99999999999]    @2 number out of range
      {a[-99999999999]  @3 number out of range
      {a                @2 unbalanced brace
      a.é               @2 unexpected character
    VHDL Verilog:
      a_                @1 illegal character
      a__b              @2 illegal character
      _a                @0 illegal first character
      :u1:Signal        @4 reserved word
      \a                @2 nothing ends the escape or quote
      a(3               @3 unbalanced bracket
      @lib.cell         @0 cannot be written in the target
    Spef Verilog:
      u1:A:B            @4 a second pin delimiter, or a divider behind one
      u1:A/B            @4 a second pin delimiter, or a divider behind one
      u1:               @3 unexpected end
      a\                @1 nothing ends the escape or quote
      #23               @0 illegal character
    Spice Verilog from=0/[] element=X:
      Xu1/u2/n          @4 the instance does not begin with its element letter
      ru1/n             @0 the instance does not begin with its element letter
      X/n               @1 unexpected character
      Xu1/              @4 unexpected end
      a\                @1 nothing ends the escape or quote
    Def Verilog:
      in[4]_A           @5 unexpected character
      a;                @1 unexpected character
      a#b               @1 illegal character
      u1/␁              @3 unexpected character
    Lef Verilog:
      a]b               @1 unexpected character
    Gcf Verilog:
      a;b               @1 illegal character
    FlatTessel Verilog:
      a\                @1 nothing ends the escape or quote
    Kirra Verilog:
      1a                @0 cannot be converted
      a<1               @1 illegal character
    ORKA Verilog:
      a<3               @3 unbalanced bracket
    Verilog Ascii:
      a.b               @1 illegal character          // a name, for a space without paths
    LibraryUnix Verilog:
      a-b               @1 illegal character
    Ident Verilog:
      abc               @0 illegal first character
    Verilog Spef kind=pin print=explode:
      a[1:0].B          @1 cannot be written in the target
    Verilog LibraryNT names:
      \a                @2 escaped identifier has no white space at its end
  )"))
    row.expect(row[1], Mapping(row.heading).answer(row[0]));
}

TEST(Mapping, letsSpiceHaveSeparators) {
  for (Row &row : rowsOf(HERE, R"(
    Spice Verilog from=0/[]:
      in[4]_A       \in[4]_A␣      // a bit at the end of a level only
      in[4][3]      \in[4]␣[3]
      a[-3]         \a[-3]␣
      a[]           \a[]␣
      a]            \a]␣
      [a            \[a␣
      \[a           \[a␣          // an escaped first character
      a.b/c         \a.b␣.c
      #2341         \#2341␣       // reads as "#41"
      a#20b         \a#20b␣
    Verilog Spice to=0/[]:
      \a/b␣.c       a\/b/c
      \a\b␣         a\\b
      \[a␣          \[a
      \#23␣         \#23
      \a.b+c~d␣     a.b+c\~d
    Verilog Spice to=0/00:
      \a[3]␣        a[3]          // brackets that are not in force stand as they are
    Verilog Spice:
      \a.b␣.c       a\.b.c
      a[3]          a[3]
    Spice Def element=X kind=instance:
      xa.Xb         a/b
    Spice Spice element=r kind=port:
      Ru1.n         ru1.n
      n             n
    Spice Spice element=X levels=last kind=instance:
      u1.xu2        u1.Xu2
    Spice Verilog names element=X kind=instance:
      Xu1           u1
      u1            @0 the instance does not begin with its element letter
      X             @1 there is no name
  )"))
    row.expect(row[1], Mapping(row.heading).answer(row[0]));
}

TEST(Mapping, goesByThePathObjectBeyondLevels) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Verilog:
      {a,b[3:0]}     {a,b[3:0]}
      {2{a}}         {2{a}}
      a␣.␣b␣[␣3␣]    a.b[3]
    Verilog Verilog print=explode:
      a[1:0]         a[1],a[0]
    Verilog Verilog print=group:
      {a,b}          {{a,b}}
    Verilog ORKA print=top:
      a              /a
    VHDL Verilog:
      :a(3␣downto␣0)  a[3:0]
    Verilog VHDL:
      a[0:3]         a(0 to 3)
      a[03]          a(3)
    Def Verilog:
      /u1/n          u1.n
    Spef Verilog:
      /u1/n          u1.n
    Spef Spef:
      /u1/n          /u1/n
    Verilog Verilog keywords=1800-2017:
      {logic,\a␣}    {\logic␣,a}
  )"))
    row.expect(row[1], Mapping(row.heading).answer(row[0]));
}

TEST(Mapping, addsTheWordsOfARevision) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Verilog:
      logic      logic
    Verilog Verilog keywords=1800-2017:
      logic      \logic␣
      a.bit[3]   a.\bit␣[3]
      cell       \cell␣
      Logic      Logic
    Def VerilogA names keywords=1364-2005:
      analog     \analog␣         // the space's own
      uwire      \uwire␣
    Verilog VHDL keywords=1076-2008:
      context    \context\
      signal     \signal\
      data       data
  )")) {
    const Mapping mapping(row.heading);
    row.expect(row[1], mapping.answer(row[0]));
    row.expect("same", mapping.check(row[0], row[1]));
  }
}

TEST(Mapping, knowsLimits) {
  const Mapping toDef("Verilog Def");
  const Mapping toSpice("Verilog Spice element=X kind=instance");
  const Mapping names("Verilog Sdf names");
  const std::string longest(ZEL_MAX_NAME, 'n');
  for (const Mapping *mapping : {&toDef, &names}) {
    EXPECT_EQ(mapping->answer(longest), longest);
    EXPECT_EQ(mapping->key(longest), longest);
    EXPECT_EQ(mapping->answer(longest + 'n'), "@2047 the name is longer than 2047 characters");
  }
  EXPECT_EQ(toSpice.answer(longest), "@0 the result is longer than 2047 characters");
  EXPECT_EQ(toDef.answer(longest + ".a"), "@0 the result is longer than 2047 characters");
  EXPECT_EQ(toDef.answer(std::string(5000, ' ') + "a"), "@4094 the name is longer than 2047 characters");
  const std::string marks = '\\' + std::string(1500, '[') + ' ';
  EXPECT_EQ(names.answer(marks), "@0 the result is longer than 2047 characters");
  EXPECT_EQ(names.key(marks), "refused");
}

// Two texts are the same object where their keys are equal.
TEST(Mapping, hasKeysOfObjects) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Sdf:
      \clk␣          clk           same
      clk            Clk           other
      \a/b␣          a.b           other
      \a[3]␣         a[3]          other
      a[3]           a[03]         same
      {a,b}          \{a,b}␣       other       // a list, and a name that looks like one
      a.b            a␣.␣b         same
    VHDL Sdf:
      clk            CLK           same
      :u1:clk        U1:Clk        same
      \Clk\          clk           other
      \CLK\          \clk\         other
    Sdf Verilog:
      /u1/n          u1/n          same
    Spef Verilog:
      u1:A           u1/A          same
    Spice Verilog element=X:
      Xu1.n          xu1.n         same
      XU1.n          xu1.n         other
  )")) {
    const Mapping mapping(row.heading);
    const std::string keys[] = {mapping.key(row[0]), mapping.key(row[1])};
    row.expect(row[2], keys[0] == keys[1] ? "same" : "other", keys[0] + " and " + keys[1]);
    const MapState other(ZEL_MAP_MATCH);
    row.expect(keys[0], mapping.key(row[0]), "another state of the process");
  }
}

TEST(Mapping, checksResults) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Sdf:
      a.b      a/b    same
      a.b      A/b    case lost
      a.b      a/c    other
      a.b      a[     unreadable
      module   a      unreadable
    Verilog Spice:
      a[3]     a[3]   other       // of a name, without brackets
    Verilog Spef kind=pin:
      a.b      a:b    same
    Verilog Verilog:
      {a,b}    {a,b}  same
  )"))
    row.expect(row[2], Mapping(row.heading).check(row[0], row[1]));
}

TEST(Mapping, leavesOutWhenLenient) {
  for (Row &row : rowsOf(HERE, R"(
    Verilog Sdf:
      ""          ""
      \a:b␣       a\:b
      \a          @2 escaped identifier has no white space at its end
    Gcf Verilog:
      a.b;c       a.            // as if there were no second level
    Spef Verilog:
      a/b         a.b
      a:b         @1 unexpected character
    Verilog Def names:
      \a[0]␣      a\[0\]
  )")) {
    const std::vector<std::string> words = wordsOf(row.heading);
    const char *const from = words[0].c_str();
    const char *const to = words[1].c_str();
    const char *const text = row.cells.at(0).c_str();
    const Mapping mapping(row.heading + " lenient");
    const Result result = take(zelMappingApply(mapping.get(), text, nullptr, nullptr));
    zelRefusal refusal = {};
    zelDiagnose(mapping.get(), text, &refusal);
    row.expect(row[1], result ? *result : "@" + std::to_string(refusal.position) + " " + zelReasonText(refusal.reason));
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
    Verilog Sdf␣                         no space is called 'Sdf '
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
    Verilog Sdf to=0a[]                  these separators of Sdf cannot be told from each other or from names
    Verilog Sdf to=0[[]                  these separators of Sdf cannot be told from each other or from names
    Verilog Sdf to=0+[]                  these separators of Sdf cannot be told from each other or from names
    Verilog Def to=0%[]                  these separators of DEF cannot be told from each other or from names
    Verilog Spef to=[/[]                 these separators of Spef cannot be told from each other or from names
    Verilog Spice to=0/[0                these separators of Spice cannot be told from each other or from names
    Verilog Sdf keywords=1800-2017       the revision 1800-2017 is not one of the target
    Verilog Verilog keywords=1076-2008   the revision 1076-2008 is not one of the target
    Verilog Verilog keywords=1995        no keyword revision is called '1995'
    Verilog Spef kind=pin lenient        a lenient mapping knows no element letters, keyword revisions, pins and separators of SPICE
  )")) {
    // A blank at an end shows that names are compared whole.
    const bool isBlank = row[0].ends_with(" ");
    Options options(row[0]);
    zelMappingOptions given = *&options;
    const std::string withBlank = isBlank ? std::string(given.to) + ' ' : given.to;
    given.to = withBlank.c_str();
    char message[200] = "";
    errno = 0;
    row.expect("1", std::to_string(options.isGood));
    row.expect("1", std::to_string(zelCreateMapping(&given, message, sizeof message) == nullptr));
    row.expect(row[1], message);
    row.expect(std::to_string(EINVAL), std::to_string(errno));
    char cut[9] = "";
    zelCreateMapping(&given, cut, sizeof cut);
    row.expect(row[1].substr(0, 8), cut);
    row.expect("1", std::to_string(zelCreateMapping(&given, nullptr, 0) == nullptr));
  }
  zelMappingOptions unsized = {};
  unsized.from = unsized.to = "Sdf";
  EXPECT_EQ(zelCreateMapping(&unsized, nullptr, 0), nullptr);
  EXPECT_EQ(zelCreateMapping(nullptr, nullptr, 0), nullptr);
  unsized.size = sizeof unsized;
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
  errno = 0;
  EXPECT_EQ(zelMappingApply(nullptr, "a", nullptr, nullptr), nullptr);
  EXPECT_EQ(errno, EINVAL);
  EXPECT_EQ(zelMappingApply(mapping.get(), nullptr, nullptr, nullptr), nullptr);
  EXPECT_EQ(zelMappingKey(nullptr, "a", nullptr, nullptr), nullptr);
  EXPECT_EQ(zelMappingKey(mapping.get(), nullptr, nullptr, nullptr), nullptr);
  EXPECT_EQ(zelDiagnose(mapping.get(), nullptr, nullptr), ZEL_REASON_BAD_ARGUMENT);
  EXPECT_EQ(zelDiagnose(nullptr, "a", nullptr), ZEL_REASON_BAD_ARGUMENT);
  EXPECT_EQ(zelMappingCheck(mapping.get(), "a", nullptr), ZEL_CHECK_UNREADABLE);
  EXPECT_STREQ(zelReasonText(ZEL_REASON_NONE), "");
  EXPECT_STREQ(zelReasonText(ZEL_REASON_COUNT), "");
  EXPECT_STREQ(zelReasonText(-1), "");
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

// Each of two mappings answers as alone while threads share both.
TEST(Mapping, isSharedByThreads) {
  const Mapping slashes("Verilog Sdf");
  const Mapping dots("VHDL Sdf to=0.<> state=match");
  const char *const texts[] = {"u1.Clk[3]", "\\a/b ", "{a,b}", "module"};
  const char *const names[] = {":U1:Clk(3)", "\\a/b\\", "a(3 downto 0)", "signal"};
  std::string expected[4];
  for (int i = 0; i < 4; ++i)
    expected[i] = slashes.answer(texts[i]) + dots.answer(names[i]);
  std::thread threads[4];
  int differing[4] = {};
  for (int t = 0; t < 4; ++t)
    threads[t] = std::thread([&, t] {
      for (int i = 0; i < 400; ++i) {
        const auto k = static_cast<std::size_t>((i + t) % 4);
        differing[t] += slashes.answer(texts[k]) + dots.answer(names[k]) != expected[k] ? 1 : 0;
      }
    });
  for (std::thread &thread : threads)
    thread.join();
  EXPECT_EQ(std::count(differing, differing + 4, 0), 4);
}
