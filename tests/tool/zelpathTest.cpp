// zelpath from the outside: command lines with their whole output, grouped by the rule that they exercise.
#include "runTool.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace {

struct Row {
  Words arguments;
  std::string out;
  std::string err = {};
  Environment environment = {};
  int status = 0;
};

void check(std::initializer_list<Row> rows) {
  for (const Row &row : rows) {
    std::string line = "zelpath";
    for (const std::string &argument : row.arguments)
      line += " '" + argument + "'";
    SCOPED_TRACE(line);
    EXPECT_EQ(runTool(row.arguments, row.environment), (Outcome{row.out, row.err, row.status}));
  }
}

const std::string shortUsage = R"( ZELPATH command lines include a language option with a hierarchical name
  and options which may be abbreviated

  Option         Argument        Usage

-explode                         Break output into separate bits
-gcf         Hierarchical path   Following name is a Gcf name
-help                            Describe how to run ZELPATH
-kirra       Hierarchical path   Following name is a Kirra name
-kirraHDL    Hierarchical path   Following name is a KirraHDL name
-map                             followed by `from` `to` namespaces and from `pathname`
-orka        Hierarchical path   Following name is a ORKA name
-spice       Hierarchical path   Following name is a Spice name
-tessel      Hierarchical path   Following name is a Tessel name
-verilog     Hierarchical path   Following name is Verilog
-vhdl        Hierarchical path   Following name is a VHDL name

 Example:
  % zelpath -veri "top.test.addr[3:0]"
)";

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

// The path "a", read as Verilog and read as VHDL.
const std::string verilogA = linesOf("-veri", "a");
const std::string vhdlA = linesOf("-vhdl", "a");

const std::string given = "Error: path already given\n";
const std::string wrongMap = "Error: See the correct usage.\n";
const std::string quitting = "Quitting the mapping.\n";

std::string wants(const std::string &option) { return "Error: " + option + " requires an argument\n"; }
std::string unknown(const std::string &option) { return "Error: " + option + " doesn't match any known options\n"; }
std::string ambiguous(const std::string &option) { return "Error: " + option + " is an ambiguous option\n"; }

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
  check({
      // Those without an argument; no word behind "-ma" and "-map" suffices for a mapping.
      {{"-e",     "-ex",     "-exp",     "-expl",     "-explo",    "-explod",    "-explode", "-gr",
        "-gro",   "-grou",   "-group",   "-h",        "-he",       "-hel",       "-help",    "-noc",
        "-noco",  "-nocom",  "-nocomp",  "-nocompl",  "-nocomple", "-nocomplex", "-nor",     "-nore",
        "-norep", "-norepe", "-norepea", "-norepeat", "-p",        "-pa",        "-par",     "-pars",
        "-parse", "-to",     "-top",     "-ma",       "-map"},
       wrongMap + wrongMap + fullUsage},
      // Those with an argument complain of its absence, under the name that the user gave.
      {{"-gc",   "-gcf", "-kirra", "-mu",    "-mut",    "-muta",    "-mutat", "-mutate", "-o",    "-or",    "-ork",
        "-orka", "-s",   "-sp",    "-spi",   "-spic",   "-spice",   "-te",    "-tes",    "-tess", "-tesse", "-tessel",
        "-ve",   "-ver", "-veri",  "-veril", "-verilo", "-verilog", "-vh",    "-vhd",    "-vhdl"},
       wants("-gc") + wants("-gcf") + wants("-kirra") + wants("-mu") + wants("-mut") + wants("-muta") +
           wants("-mutat") + wants("-mutate") + wants("-o") + wants("-or") + wants("-ork") + wants("-orka") +
           wants("-s") + wants("-sp") + wants("-spi") + wants("-spic") + wants("-spice") + wants("-te") +
           wants("-tes") + wants("-tess") + wants("-tesse") + wants("-tessel") + wants("-ve") + wants("-ver") +
           wants("-veri") + wants("-veril") + wants("-verilo") + wants("-verilog") + wants("-vh") + wants("-vhd") +
           wants("-vhdl") + shortUsage},
      {{"-", "-g", "-k", "-ki", "-kir", "-kirr", "-m", "-n", "-no", "-t", "-v"},
       ambiguous("-") + ambiguous("-g") + ambiguous("-k") + ambiguous("-ki") + ambiguous("-kir") + ambiguous("-kirr") +
           ambiguous("-m") + ambiguous("-n") + ambiguous("-no") + ambiguous("-t") + ambiguous("-v") + fullUsage},
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

TEST(Map, ThereAndBack) {
  check({
      {{"-map", "Verilog", "VHDL", "top.a"}, mapping("top.a", "Verilog", "VHDL", ":top:a", "top.a")},
      {{"-ma", "VHDL", "Verilog", ":Top:u1(3)"}, mapping(":Top:u1(3)", "VHDL", "Verilog", "top.u1[3]", ":top:u1(3)")},
      {{"-map", "Verilog", "VHDL", "\\a+b .c[3]"},
       mapping("\\a+b .c[3]", "Verilog", "VHDL", ":\\a+b\\:c(3)", "\\a+b .c[3]")},
      {{"-map", "VHDL", "Verilog", ":top:\\a b\\(3)"},
       mapping(":top:\\a b\\(3)", "VHDL", "Verilog", "top.\\a#20b [3]", ":top:\\a b\\(3)")},
      {{"-map", "Verilog", "VHDL87", "\\entity "}, mapping("\\entity ", "Verilog", "VHDL87", "\\entity\\", "entity")},
      // The way back may fail: VHDL has no empty path.
      {{"-map", "Verilog", "VHDL", ""}, mapping("", "Verilog", "VHDL", "", "(null)")},
  });
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
      {{"-map", "Verilog", "VHDL"}, wrongMap + given + quitting, "Could not get handle for the namespace:(null)\n"},
      {{"-map", "-ve", "a"}, wrongMap + quitting, "Could not get handle for the namespace:(null)\n"},
      // A later one replaces the spaces if it is complete.
      {{"-map", "Nosuch", "Verilog", "-map", "VHDL", "Verilog", "a"}, mapping("a", "VHDL", "Verilog", "a", "a")},
      {{"-map", "VHDL", "Verilog", "a", "-map", "Nosuch"},
       wrongMap + given + mapping("a", "VHDL", "Verilog", "a", "a")},
  });
}

TEST(Map, Failures) {
  check({
      {{"-map", "Nosuch", "VHDL", "top.a"}, quitting, "Could not get handle for the namespace:Nosuch\n"},
      {{"-map", "Verilog", "Nosuch", "top.a"}, quitting, "Could not get handle for the namespace:Nosuch\n"},
      {{"-map", "Nosuch", "None", "top.a"}, quitting, "Could not get handle for the namespace:Nosuch\n"},
      {{"-map", "-ve", "VHDL", "top.a"}, quitting, "Could not get handle for the namespace:-ve\n"},
      {{"-map", "VerilogA", "VHDL", "top.a"}, quitting, "Could not get handle for the namespace:VerilogA\n"},
      {{"-map", "Verilog", "VHDL", "a["}, "Could not map the path. Please check the path and try.\n"},
  });
}

} // namespace
