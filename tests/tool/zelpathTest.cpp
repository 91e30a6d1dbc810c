// zelpath from the outside: commands for a shell, and what they print.
#include <gtest/gtest.h>

#include <cstdio>
#include <initializer_list>
#include <string>
#include <utility>

namespace {

// Both outputs of a command that runs the built zelpath, without those variables of our environment that zelpath reads.
std::string outputOf(const std::string &command) {
  const std::string setup =
      "exec 2>&1; ulimit -t 60; unset VRN_ALT_ZEL ZEL_USE_VHDL87_KEYWORDS; PATH='" ZELPATH_FOLDER "':$PATH; ";
  std::FILE *const pipe = popen((setup + command).c_str(), "r");
  std::string output;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
    output.push_back(static_cast<char>(c));
  EXPECT_EQ(pclose(pipe), 0) << command;
  return output;
}

// What is to be seen of the output of commands, which all succeed; it is given without its last end of line.
struct Filter {
  std::string pipe;

  void check(std::initializer_list<std::pair<std::string, std::string>> rows) const {
    for (const auto &[command, output] : rows)
      EXPECT_EQ(outputOf("{ " + command + " || echo Error: status $?; }" + pipe), output + "\n") << command;
  }
};
const Filter everything = {""};
const Filter complaintsAndEnd = {" | sed -n '/^Error/p;$p'"};
const Filter ownLine = {" | tail -n 1"};

const std::string usage = R"( ZELPATH command lines include a language option with a hierarchical name
  and options which may be abbreviated

  Option         Argument        Usage

-explode                         Break output into separate bits
-gcf         Hierarchical path   Following name is a Gcf name
-group                           Write output as a grouping expression
-help                            Describe how to run ZELPATH
-kirra       Hierarchical path   Following name is a Kirra name
-kirraHDL    Hierarchical path   Following name is a KirraHDL name
-map                             followed by `from` `to` namespaces and from `pathname`
-mutate      Hierarchical path   Change starting name into following name
-nocomplex                       Don't allow complex indexes in translated names
-norepeat                        Don't allow repeats in translated names
-orka        Hierarchical path   Following name is a ORKA name
-parse                           Break out each component in the name
-spice       Hierarchical path   Following name is a Spice name
-tessel      Hierarchical path   Following name is a Tessel name
-top                             Write output names as top of hierarchy
-verilog     Hierarchical path   Following name is Verilog
-vhdl        Hierarchical path   Following name is a VHDL name

 Example:
)";
const std::string example = "  % zelpath -veri \"top.test.addr[3:0]\"";

TEST(Options, Usage) {
  everything.check({{"zelpath -help -h -HEL", usage + example}});
  EXPECT_EQ(outputOf("zelpath -help a"), usage + example + "\n" + outputOf("zelpath a"));
  EXPECT_EQ(outputOf("zelpath -t a"), "Error: -t is an ambiguous option\n" + outputOf("zelpath -help a"));
  const std::string shortUsage = outputOf("zelpath -help | grep -Ev '^-(group|mutate|nocomplex|norepeat|parse|top) '");
  EXPECT_EQ(outputOf("zelpath"), shortUsage);
}

// The fuzz target of the options finds every abbreviation by counting.
TEST(Options, Abbreviations) {
  Filter{" | sed -n /Error/p"}.check({
      {"zelpath -e -gr -noc -nor -p -to -z", "Error: -z doesn't match any known options"},
      {"zelpath -vHdL", "Error: -vHdL requires an argument"},
      {"zelpath -kirr", "Error: -kirr is an ambiguous option"},
      {"zelpath -kirraHDL", "Error: -kirraHDL doesn't match any known options"}, // a capital of a name is out of reach
  });
}

TEST(Options, Scanning) {
  const std::string given = "Error: path already given\n";
  const std::string wrongMap = "Error: See the correct usage.\n";
  complaintsAndEnd.check({
      {"zelpath a b", given + "Verilog: a"},
      {"zelpath '' a", given + "Verilog: "},
      // The argument of a refused option is scanned on its own, and no complaint ends the scan.
      {"zelpath -verilog a -vhdl b", given + given + "Verilog: a"},
      {"zelpath -vhdl -verilog a", "Error: -vhdl requires an argument\nVerilog: a"},
      {"zelpath -vhdl a -mu b", "VHDL:    a"},
      {"zelpath -mutate -vhdl a", "Error: -mutate requires an argument\nVHDL:    a"},
      {"zelpath -mutate b -mutate a", "Error: mutate already given\nVerilog: a"},
      {"zelpath -map -ma", wrongMap + wrongMap + example},
      {"zelpath -map Verilog VHDL 2>/dev/null", wrongMap + given + "Quitting the mapping."},
  });
}

// One object, read in each language: the lines in their order, the input's own last. The Gcf line is printed with the
// divider and the bus brackets of the input. The own line is printed from a copy without flags: it knows neither of a
// leading divider nor, in VHDL, of its hierarchy.
TEST(Translation, OnePathInEveryLanguage) {
  const std::string lines[] = {R"(Verilog: model.\a!b [1].n)",
                               "Tessel:    model|a!b[1]|n",
                               "Kirra:    KEYWORD_model.a!b[1].n",
                               "Gcf:    ",
                               R"(KirraHDL:    \model .\a!b [1].n)",
                               "Spice:    model.a!b[1].n",
                               "ORKA:    model/a!b<1>/n",
                               R"(VHDL:    :model:\a!b\(1):n)"};
  const struct {
    std::string command, gcf, own;
  } rows[] = {
      {R"(zelpath -veri 'model.\a!b [1].n')", R"(model.a\!b[1].n)", R"(Verilog: model.\a!b [1].n)"},
      {"zelpath -tessel '|model|a!b[1]|n'", R"(|model|a\!b[1]|n)", "Tessel:    model|a!b[1]|n"},
      {"zelpath -kirra 'KEYWORD_model.a!b[1].n'", R"(model/a\!b[1]/n)", "Kirra:    KEYWORD_model.a!b[1].n"},
      {R"(zelpath -gcf 'model.a\!b<1>.n')", "", R"(Gcf:    model.a\!b<1>.n)"},
      {R"(zelpath -spice '\model .\a!b [1].n')", R"(model/a\!b[1]/n)", R"(KirraHDL:    \model .\a!b [1].n)"},
      {"zelpath -orka '/model/a!b<1>/n'", R"(model/a\!b<1>/n)", "ORKA:    /model/a!b<1>/n"},
      {R"(zelpath -vhdl ':model:\a!b\(1):n')", R"(model:a\!b(1):n)", R"(VHDL:    model\a!b\(1)n)"},
  };
  for (const auto &[command, gcf, own] : rows) {
    std::string output;
    for (const std::string &line : lines)
      if (!own.starts_with(line.substr(0, line.find(' '))))
        output += line + (line == "Gcf:    " ? gcf : "") + "\n";
    everything.check({{command, output + own}});
  }
}

TEST(Translation, Dump) {
  const std::string single = "SingleVerilog SingleORKA SingleVHDL ";
  Filter{" | sed '/^$/,$d'"}.check({
      {"zelpath -p -veri ''", "Flags: " + single},
      {"zelpath -p -veri 'a[-200000:1897151].b[124]'",
       "Flags: Hierarchy Index Range MidRange " + single +
           "\n Ident a\n Range:  -200000:1897151\n Ident b\n Index:  124"},
      {"zelpath -p -gcf 'a<1>.b'", "Flags: Hierarchy Index MidIndex " + single + "\n Ident a\n Index:  1\n Ident b"},
      {"zelpath -p -veri '{2{a,b}}'", "Flags: List Repeat \n Start list\n Repeat: 2\n Start list\n Ident a\n List\n "
                                      "Ident b\n Finish list\n Finish list"},
      // The walk stumbles over a step range of small numbers.
      {"zelpath -p -orka '/a<0:6:2>'", "Flags: Index Range SingleORKA \n Top Ident a\n Step:   0:6:2\n ERROR!"},
      {"zelpath -p -orka 'a<(0,2)*1>'",
       "Flags: Index SingleORKA \n Ident a\n Index list\n Index:  0\n Index:  2\n Index list end\n Index repeat: 1"},
      // A library reference in the input's language, with both marks whatever is missing.
      {R"(zelpath -p -vhdl '@Lib.\a b\(view):u1')",
       "Flags: Hierarchy " + single + "\n Lib: Lib.\\a b\\:view\n Ident u1"},
      {"zelpath -p -vhdl @cell", "Flags: " + single + "\n Lib: .cell:"},
      // What was read of a refused path; KirraHDL shows no text.
      {"zelpath -p -spice 'a$b'", "Flags: ERROR! " + single + "\n Ident "},
  });
}

// All but index lists and index repeats is copied.
TEST(Translation, OwnLine) {
  ownLine.check({
      {"zelpath -veri 'a[-1:-5]'", "Verilog: a[-1:-5]"},
      {"zelpath -veri '{2{a,b}}'", "Verilog: {2{a,b}}"},
      {"zelpath -orka '/a<0:6:2>'", "ORKA:    /a<0:6:2>"},
      {"zelpath -orka 'a<(0,2)*1>/b'", "ORKA:    a<0,2>/b"},
      {"zelpath -vhdl 'u1@lib.cell(v):n'", "VHDL:    :u1@lib.cell(v):n"},
      {"zelpath -explode -veri 'a[0:1897151]'", "Verilog: (null)"}, // too long
  });
}

TEST(Translation, PrintOptions) {
  const std::string range = "Verilog: a[1:0]\nVHDL:    a(1 downto 0)\nORKA:    a<1:0>";
  Filter{" | grep -e Verilog -e VHDL -e ORKA"}.check({
      {"zelpath -orka 'a<1:0>'", range},
      {"zelpath -explode -orka 'a<1:0>'", "Verilog: a[1],a[0]\nVHDL:    a(1),a(0)\nORKA:    a<1>,a<0>"},
      {"zelpath -explode -group -orka 'a<1:0>'", "Verilog: a[1],a[0]\nVHDL:    a(1)&&a(0)\nORKA:    a<1>,a<0>"},
      {"zelpath -top -orka 'a<1:0>'", "Verilog: a[1:0]\nVHDL:    a(1 downto 0)\nORKA:    /a<1:0>"},
      {"zelpath -nocomplex -orka 'a<1:0>'", range}, // no printer reads it
      {"zelpath -orka '<*2>(a<0:2:2>)'", "Verilog: 2{a[0],a[2]}\nVHDL:    !ERROR!a!ERROR!\nORKA:    <*2>(a<0:2:2>)"},
      {"zelpath -norepeat -orka '<*2>(a<0:2:2>)'",
       "Verilog: 2{a!ERROR!}\nVHDL:    !ERROR!a!ERROR!\nORKA:    <*2>(a<0:2:2>)"},
  });
}

std::string mapping(const std::string &path, const std::string &spaces, const std::string &there,
                    const std::string &back) {
  return "The pathname: " + path + "   mapped " + spaces + " as follows:\n" + there +
         "\nThe original pathname mapped back as:\n" + back + "\n";
}

TEST(Mapping, ThereAndBack) {
  const std::string toVHDL = "from:Verilog to:VHDL";
  const std::string toVerilog = "from:VHDL to:Verilog";
  everything.check({
      {"zelpath -map Verilog VHDL top.a", mapping("top.a", toVHDL, ":top:a", "top.a")},
      {R"(zelpath -map VHDL Verilog ':\a b\(3)')", mapping(R"(:\a b\(3))", toVerilog, R"(\a#20b [3])", R"(\a b\(3))")},
      {"zelpath -map Sdf FlatTessel /a/b", mapping("/a/b", "from:Sdf to:FlatTessel", "|a|b", R"(\|a\|b)")},
      {"zelpath -map Verilog VHDL ''", mapping("", toVHDL, "", "(null)")},
      // The path may come before, with a language option (of no effect), or as the third word.
      {"zelpath -vhdl a.b -map Verilog VHDL c", "Error: path already given\n" + mapping("a.b", toVHDL, ":a:b", "a.b")},
      // The output options do not reach a mapping.
      {"zelpath -ex -gr -p -map Verilog VHDL 'a[1:0]'", mapping("a[1:0]", toVHDL, "a(1 downto 0)", "a[1:0]")},
      // A later one replaces the spaces.
      {"zelpath -map Nosuch Verilog -map VHDL Verilog a", mapping("a", toVerilog, "a", "a")},
      {"zelpath -map Nosuch VHDL a", "Could not get handle for the namespace:Nosuch\nQuitting the mapping."},
      {"zelpath -map Nosuch Nowhere a 2>/dev/null", "Quitting the mapping."},
      {"zelpath -map -ve a 2>&1 >/dev/null", "Could not get handle for the namespace:(null)"},
      {"zelpath -map Verilog VHDL 'a['", "Could not map the path. Please check the path and try."},
  });
}

} // namespace
