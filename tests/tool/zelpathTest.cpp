// zelpath from the outside: command lines with their whole output, grouped by the rule that they exercise.
#include "runTool.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>

namespace {

struct Row {
  Words arguments;
  std::string out;
  std::string err = {};
};

void check(std::initializer_list<Row> rows) {
  for (const Row &row : rows) {
    std::string line = "zelpath";
    for (const std::string &argument : row.arguments)
      line += " '" + argument + "'";
    SCOPED_TRACE(line);
    EXPECT_EQ(runTool(row.arguments), (Outcome{row.out, row.err, 0}));
  }
}

const std::string fullUsage = R"( ZELPATH command lines include a language option with a hierarchical name
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
  % zelpath -veri "top.test.addr[3:0]"
)";

// Without the options that only the full help lists.
std::string shortened(std::string usage) {
  for (const char *const option : {"-group", "-mutate", "-nocomplex", "-norepeat", "-parse", "-top"}) {
    const size_t start = usage.find(std::string("\n") + option);
    usage.erase(start, usage.find('\n', start + 1) - start);
  }
  return usage;
}
const std::string shortUsage = shortened(fullUsage);

// The path "a", read as Verilog and read as VHDL.
const std::string verilogA = linesOf("-veri", "a");
const std::string vhdlA = linesOf("-vhdl", "a");

const std::string given = "Error: path already given\n";
const std::string wrongMap = "Error: See the correct usage.\n";
const std::string quitting = "Quitting the mapping.\n";
const std::string unmapped = "Could not map the path. Please check the path and try.\n";

std::string wants(const std::string &option) { return "Error: " + option + " requires an argument\n"; }
std::string unknown(const std::string &option) { return "Error: " + option + " doesn't match any known options\n"; }
std::string ambiguous(const std::string &option) { return "Error: " + option + " is an ambiguous option\n"; }

std::string noHandle(const std::string &space) { return "Could not get handle for the namespace:" + space + "\n"; }

std::string mapping(const std::string &path, const std::string &from, const std::string &to, const std::string &mapped,
                    const std::string &back) {
  return "The pathname: " + path + "   mapped from:" + from + " to:" + to + " as follows:\n" + mapped +
         "\nThe original pathname mapped back as:\n" + back + "\n\n";
}

TEST(Options, Help) {
  check({
      {{}, shortUsage},
      {{"-help"}, fullUsage},
      {{"-help", "-h", "-HELP"}, fullUsage},
      {{"-help", "a"}, fullUsage + verilogA},
      {{"-explode", "-mutate", "a"}, shortUsage},
  });
}

TEST(Options, EveryAbbreviation) {
  const Words switches = wordsOf("-e -ex -exp -expl -explo -explod -explode -gr -gro -grou -group -h -he -hel -help "
                                 "-noc -noco -nocom -nocomp -nocompl -nocomple -nocomplex -nor -nore -norep -norepe "
                                 "-norepea -norepeat -p -pa -par -pars -parse -to -top -ma -map");
  const Words withPath = wordsOf("-gc -gcf -kirra -mu -mut -muta -mutat -mutate -o -or -ork -orka -s -sp -spi -spic "
                                 "-spice -te -tes -tess -tesse -tessel -ve -ver -veri -veril -verilo -verilog -vh "
                                 "-vhd -vhdl");
  const Words several = wordsOf("- -g -k -ki -kir -kirr -m -n -no -t -v");
  std::string wanting;
  for (const std::string &option : withPath)
    wanting += wants(option);
  std::string doubtful;
  for (const std::string &option : several)
    doubtful += ambiguous(option);
  check({
      {switches, wrongMap + wrongMap + fullUsage}, // no word behind "-ma" and "-map" suffices for a mapping
      {withPath, wanting + shortUsage},            // under the name that the user gave
      {several, doubtful + fullUsage},
  });
}

TEST(Options, Lookup) {
  check({
      // The case of the word does not matter, but a capital in an option's name is out of reach.
      {{"-VERI", "a"}, verilogA},
      {{"-vHdL", "a"}, vhdlA},
      {{"-KIRRA"}, wants("-KIRRA") + shortUsage},
      {{"-kirraHDL"}, unknown("-kirraHDL") + shortUsage},
      {{"-kirrah", "a"}, unknown("-kirrah") + verilogA},
      // Before, between and behind the options, and longer than one.
      {{"-a"}, unknown("-a") + shortUsage},
      {{"-f", "-kirrax", "-maps", "-verilogs", "-vhdlx", "-z"},
       unknown("-f") + unknown("-kirrax") + unknown("-maps") + unknown("-verilogs") + unknown("-vhdlx") +
           unknown("-z") + shortUsage},
      {{"--help"}, unknown("--help") + shortUsage},
      {{"-\xC3\xA9", "-h\xFF", "-[", "-@", "-{"},
       unknown("-\xC3\xA9") + unknown("-h\xFF") + unknown("-[") + unknown("-@") + unknown("-{") + shortUsage},
      // An ambiguity asks for help and goes on.
      {{"-ex", "-t", "a"}, ambiguous("-t") + fullUsage + verilogA},
      {{"-kirr", "-ve", "a"}, ambiguous("-kirr") + fullUsage + verilogA},
  });
}

TEST(Options, Paths) {
  check({
      {{"a"}, verilogA},
      {{"-verilog", "a"}, verilogA},
      {{"-vhdl", "a"}, vhdlA},
      {{"a", "b"}, given + verilogA},
      {{"-vhdl", "a", "b", "c"}, given + given + vhdlA},
      // The argument of a refused option is scanned on its own.
      {{"-verilog", "a", "-vhdl", "b"}, given + given + verilogA},
      {{"a", "-vhdl", "-help"}, wants("-vhdl") + fullUsage + verilogA},
      {{"-vhdl", "-verilog", "a"}, wants("-vhdl") + verilogA},
      {{"-vhdl", "-", "a"}, wants("-vhdl") + ambiguous("-") + fullUsage + verilogA},
      // An empty path is a path.
      {{"", "a"}, given + linesOf("-veri", "")},
      {{"-veri", "", "a"}, given + linesOf("-veri", "")},
  });
}

TEST(Options, MutateHasNoEffect) {
  check({
      {{"-mutate", "b", "a"}, verilogA},
      {{"-vhdl", "a", "-mu", "b"}, vhdlA},
      {{"-mutate", "-vhdl", "a"}, wants("-mutate") + vhdlA},
      {{"-mutate", "b", "-mutate", "a"}, "Error: mutate already given\n" + verilogA},
      {{"-mutate", "b", "-mutate"}, wants("-mutate") + shortUsage},
      {{"-mutate", "b"}, shortUsage},
  });
}

// One object in the spelling of each space, so that every ordered pair maps it there and back. Its middle name holds
// what other spaces take for separators. Any longer name that begins as "Lef" does stands for LEF.
TEST(Map, EveryPair) {
  const std::pair<std::string, std::string> spellings[] = {
      {"Verilog", R"(top.\a/b.c|d [3].n)"},  {"VerilogAMS", R"(top.\a/b.c|d [3].n)"},
      {"VHDL", R"(:top:\a/b.c|d\(3):n)"},    {"VHDL87", R"(:top:\a/b.c|d\(3):n)"},
      {"ORKA", R"(top/a#2fb.c|d<3>/n)"},     {"Gcf", R"(top.a\/b\.c\|d<3>.n)"},
      {"Tessel", R"(top|a/b.c\|d[3]|n)"},    {"Kirra", R"(top.a\/b\.c\|d[3].n)"},
      {"KirraHDL", R"(top.\a/b.c|d [3].n)"}, {"Sdf", R"(top/a\/b\.c\|d[3]/n)"},
      {"Spf", R"(top/a\/b.c|d[3]/n)"},       {"Spef", R"(top/a\/b\.c\|d[3]/n)"},
      {"Def", R"(top/a\/b.c|d[3]/n)"},       {"Library", R"(top/a\/b.c|d[3]/n)"},
  };
  for (const auto &[from, path] : spellings) {
    for (const auto &[to, mapped] : spellings)
      check({{{"-map", from, to, path}, mapping(path, from, to, mapped, path)}});
  }
}

TEST(Map, ThereAndBack) {
  const struct {
    std::string from, to, path, mapped, back;
  } rows[] = {
      {"Verilog", "VHDL", "top.a", ":top:a", "top.a"},
      {"VHDL", "Verilog", ":Top:u1(3)", "top.u1[3]", ":top:u1(3)"},
      {"Verilog", "VHDL", R"(\a+b .c[3])", R"(:\a+b\:c(3))", R"(\a+b .c[3])"},
      {"VHDL", "Verilog", R"(:top:\a b\(3))", R"(top.\a#20b [3])", R"(:top:\a b\(3))"},
      {"Verilog", "VHDL87", R"(\entity )", R"(\entity\)", "entity"},
      // SPICE has no bus, and the flat TESSEL form no hierarchy.
      {"Spice", "Verilog", "a.b[3]", R"(a.\b[3] )", "a.b[3]"},
      {"Verilog", "Spice", "a.b[3]", "a.b[3]", R"(a.\b[3] )"},
      {"FlatTessel", "Verilog", "top_u1_n[3]", "top_u1_n[3]", "top_u1_n[3]"},
      {"Verilog", "FlatTessel", "a.b[3]", "a|b[3]", R"(\a|b [3])"},
      // A leading divider goes with the path into the spaces that have one.
      {"Sdf", "VHDL", "/a/b", ":a:b", "a/b"},
      {"Sdf", "Tessel", "/a/b", "|a|b", "/a/b"},
      {"ORKA", "Gcf", "/top/a", "top.a", "top/a"},
      {"Sdf", "Verilog", "[3]", "[3]", "(null)"},
      // LEF takes a ':' into a name and writes a blank with '%', SPF leaves it as it is.
      {"Lef", "Verilog", "a:b/c[1:2]", R"(\a:b .c[1:2])", "a:b/c[1:2]"},
      {"Lef", "Verilog", "a%20b", R"(\a#20b )", "a%20b"},
      {"Verilog", "Spf", R"(\a#20b )", "a b", "(null)"},
      {"Spf", "Verilog", R"(a\:b)", R"(\a:b )", R"(a\:b)"},
      // ORKA keeps steps and repeats; an index list has a comma too many to be read again.
      {"ORKA", "ORKA", "<*2>(a<0:6:2,7*2>,b)", "<*2>(a<0:6:2,7*2>,b)", "<*2>(a<0:6:2,7*2>,b)"},
      {"ORKA", "ORKA", "a<(0,2,4)>", "a<(,0,2,4)>", "(null)"},
      {"ORKA", "Verilog", "a<0:6:2>", "a[0],a[2],a[4],a[6]", "a<0>,a<2>,a<4>,a<6>"},
      {"VHDL", "VHDL", "@lib.cell(v):U1(3)", "@lib.cell(v):U1(3)", "@lib.cell(v):U1(3)"},
      {"VHDL", "Verilog", "@lib.cell:u1", "u1", "u1"},
      // Written as in plain VHDL and Verilog, a word that only the extension reserves does not read back.
      {"Verilog", "VHDLAMS", "nature.a", ":nature:a", ".a"},
      {"VHDL", "VerilogAMS", "analog", "analog", ""},
      // The way back may fail: VHDL has no empty path.
      {"Verilog", "VHDL", "", "", "(null)"},
      {"Spice", "Sdf", "", "", ""},
      // Spaces are told by a few characters.
      {"L", "Dx", "a/b", "a/b", "a/b"},
      {"VHDL8x", "Sxi", ":a:b", "a.b", ":a:b"},
      {"Gc", "Opaque", "a.b<3>", "a/b<3>", "a.b<3>"},
  };
  for (const auto &[from, to, path, mapped, back] : rows)
    check({{{"-map", from, to, path}, mapping(path, from, to, mapped, back)}});
}

TEST(Map, Words) {
  check({
      // The path may come before, with a language option (of no effect), or as the third word, but not two of these.
      {{"a.b", "-map", "Verilog", "VHDL", "c"}, given + mapping("a.b", "Verilog", "VHDL", ":a:b", "a.b")},
      {{"-vhdl", "a.b", "-map", "Verilog", "VHDL", "-p"}, mapping("a.b", "Verilog", "VHDL", ":a:b", "a.b")},
      {{"-map", "Verilog", "VHDL", "-vhdl", "a.b"}, mapping("a.b", "Verilog", "VHDL", ":a:b", "a.b")},
      {{"-map", "Verilog", "VHDL", "-help", "a.b"}, fullUsage + mapping("a.b", "Verilog", "VHDL", ":a:b", "a.b")},
      {{"-map", "Verilog", "VHDL", "-ex"}, shortUsage},
      // The output options do not reach a mapping.
      {{"-ex", "-gr", "-parse", "-map", "Verilog", "VHDL", "a[1:0]"},
       mapping("a[1:0]", "Verilog", "VHDL", "a(1 downto 0)", "a[1:0]")},
      // Too few words: they are scanned as any others, and there are no spaces.
      {{"-map"}, wrongMap + shortUsage},
      {{"-map", "Verilog", "VHDL"}, wrongMap + given + quitting, noHandle("(null)")},
      {{"-map", "-ve", "a"}, wrongMap + quitting, noHandle("(null)")},
      // A later one replaces the spaces if it is complete.
      {{"-map", "Nosuch", "Verilog", "-map", "VHDL", "Verilog", "a"}, mapping("a", "VHDL", "Verilog", "a", "a")},
      {{"-map", "VHDL", "Verilog", "a", "-map", "Nosuch"},
       wrongMap + given + mapping("a", "VHDL", "Verilog", "a", "a")},
  });
}

TEST(Map, Failures) {
  // Spaces that do not exist or have no paths, and names that are not quite those of one that has.
  Words noSpaces = wordsOf("Nosuch -ve VerilogA Ident None SDF VHDLx Verilogx VerilogAx KirraX");
  noSpaces.emplace_back(5000, 'V');
  for (const std::string &space : noSpaces)
    check({{{"-map", space, "VHDL", "a"}, quitting, noHandle(space)},
           {{"-map", "VHDL", space, "a"}, quitting, noHandle(space)},
           {{"-map", space, "Nowhere", "a"}, quitting, noHandle(space)}});
  // Paths that are none of their space, and one that is too long in the other.
  const Words pairs = wordsOf("Verilog a[ Sdf a:b Lef a;b Spice a..b ORKA a<1><2> ORKA a<0:4:0>");
  for (size_t i = 0; i < pairs.size(); i += 2)
    check({{{"-map", pairs[i], "Verilog", pairs[i + 1]}, unmapped}});
  check({{{"-map", "VHDL", "Verilog", ""}, unmapped}});
}

} // namespace
