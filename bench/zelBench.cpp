// The table of benchmarks: for each kind of work, ns a name and the ratio to the floor, beside the target.
#include "columns.h"
#include "measure.h"
#include "zel.h"

using namespace bench;

namespace {

const char *wanted = ""; // only rows whose label holds this

bool isWanted(const std::string &label) { return label.find(wanted) != std::string::npos; }

// Work that makes a string: make(name, alloc, context). Where a name stands for several, or its bytes are counted, the
// figures are those of a part.
struct Row {
  std::string label;
  Target allocated;
  Target inBuffer;
  double timeParts = 1;
  double ratioParts = 1;
};

template <typename Make> void row(const Row &row, const Names &names, Make make) {
  if (!isWanted(row.label))
    return;
  const auto aPart = [&](Measured whole) { return Measured{whole.time / row.timeParts, whole.ratio / row.ratioParts}; };
  static char buffer[ZEL_MAX_NAME + 2];
  const Measured allocated = measure(names, [&](std::size_t i) {
    char *result = make(names[i], nullptr, nullptr);
    if (result == nullptr)
      fail(names[i]);
    keep(result);
    std::free(result);
  });
  const Measured inBuffer = measure(names, [&](std::size_t i) {
    if (make(names[i], nullptr, buffer) == nullptr)
      fail(names[i]);
    keep(buffer);
  });
  printRow(row.label, shown(aPart(allocated), row.allocated), shown(aPart(inBuffer), row.inBuffer));
}

void mapRow(const Row &what, const char *from, const char *to, const Names &names) {
  row(what, names,
      [=](const char *name, zelAllocFunc alloc, void *context) { return zelMapName(from, to, name, alloc, context); });
}

// Work with a number as its result.
template <typename Ask> void askRow(const std::string &label, Target target, const Names &names, Ask ask) {
  if (isWanted(label))
    printRow(label, shown(measure(names, [&](std::size_t i) { keep(ask(i)); }), target));
}

std::string asItIs(const std::string &text) { return text; }
std::string inVerilog(const std::string &text) { return "\\" + text + " "; }
std::string inVHDL(const std::string &text) { return "\\" + text + "\\"; }
std::string insensitive(const std::string &text) { return "I" + text; }
std::string sensitive(const std::string &text) { return "S" + text; }

// Names of one space as another spells them.
Names mapped(const char *from, const char *to, const Names &names) {
  Names result;
  for (std::size_t i = 0; i < names.size(); ++i) {
    char *name = zelMapName(from, to, names[i], nullptr, nullptr);
    if (name == nullptr)
      fail(names[i]);
    result.add(name);
    std::free(name);
  }
  return result;
}

// Verilog paths in another language.
Names mappedPaths(const char *to, const Names &paths) {
  Names result;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    char *path = zelPathMapper(paths[i], zelVerilogHandle, nullptr, 0, nullptr, to);
    if (path == nullptr)
      fail(paths[i]);
    result.add(path);
    std::free(path);
  }
  return result;
}

void singleNames() {
  const Names plain = identifiers();
  for (const char *to : {"VHDL", "Spef", "Def", "Verilog"})
    mapRow({"plain, Verilog -> " + std::string(to), ratioUpTo(2.2), ratioUpTo(1.6)}, "Verilog", to, plain);

  const Names verilog = escaped(inVerilog);
  const Target target = ratioUpTo(4);
  const Target inBuffer = ratioUpTo(3.5);
  mapRow({"to be escaped, Verilog -> Spef", target, inBuffer}, "Verilog", "Spef", verilog);
  mapRow({"escaped, Spef -> Verilog", target, inBuffer}, "Spef", "Verilog", mapped("Verilog", "Spef", verilog));
  mapRow({"escaped, VHDL -> Verilog", target, inBuffer}, "VHDL", "Verilog", escaped(inVHDL));
}

constexpr const char *languages[] = {"Verilog", "VerilogAMS", "VHDL",  "VHDL87", "VHDLAMS",    "ORKA",
                                     "Kirra",   "KirraHDL",   "Spice", "Tessel", "FlatTessel", "Sdf",
                                     "Spf",     "Spef",       "Gcf",   "Lef",    "Def"};

struct MapPath {
  zelHandle from;
  zelHandle to;
  std::uint32_t flags;

  MapPath(const char *fromSpace, const char *toSpace, std::uint32_t how)
      : from(zelGetHandle(fromSpace, 0, 0, 0, 0)), to(zelGetHandle(toSpace, 0, 0, 0, 0)), flags(how) {}

  char *operator()(const char *text, zelAllocFunc alloc, void *context) const {
    return zelPathMapperEx(text, from, to, flags, nullptr, nullptr, alloc, context);
  }
};

struct Pair {
  const char *from;
  const char *to;
  Measured measured;

  std::string label() const { return std::string(from) + " -> " + to; }
};

Measured measurePair(const char *from, const char *to, const Names &paths, int passes) {
  const MapPath map(from, to, 0);
  const auto mapOne = [&](std::size_t i) {
    char *result = map(paths[i], nullptr, nullptr);
    if (result == nullptr)
      fail(paths[i]);
    keep(result);
    std::free(result);
  };
  return measure(paths, mapOne, passes);
}

// Every pair of path languages: the worst, and on request each. The worst are measured once more, longer: of so many,
// one that the machine was busy with something else for would always come first.
void pathPairs(bool showsAll) {
  if (!isWanted("path, every pair of languages"))
    return;
  constexpr Target target = ratioUpTo(8);
  constexpr int fewPasses = 5;
  constexpr std::size_t finalists = 5;
  const Names verilogPaths = bitPaths();
  const auto isWorse = [](const Pair &a, const Pair &b) { return a.measured.ratio > b.measured.ratio; };

  std::vector<Pair> pairs;
  for (const char *from : languages) {
    const Names paths = mappedPaths(from, verilogPaths);
    for (const char *to : languages) {
      pairs.push_back({from, to, measurePair(from, to, paths, fewPasses)});
      if (showsAll)
        printRow("path, " + pairs.back().label(), shown(pairs.back().measured, target));
    }
  }
  std::sort(pairs.begin(), pairs.end(), isWorse);
  pairs.resize(finalists);
  for (Pair &pair : pairs)
    pair.measured = measurePair(pair.from, pair.to, mappedPaths(pair.from, verilogPaths), manyPasses);
  std::sort(pairs.begin(), pairs.end(), isWorse);
  printRow("path, worst pair: " + pairs[0].label(), shown(pairs[0].measured, target));
}

void paths(bool showsAll) {
  row({"path, Verilog -> Spef", ratioUpTo(5), timeUpTo(60)}, bitPaths(), MapPath("Verilog", "Spef", 0));
  pathPairs(showsAll);
  constexpr double bits = 64;
  row({"range to bits, Verilog -> Verilog, a bit", ratioUpTo(0.75), ratioUpTo(0.75), bits, bits}, busPaths(),
      MapPath("Verilog", "Verilog", ZEL_PRINT_EXPLODE));
}

void tests() {
  const Names plain = identifiers();
  const Names halfVerilog = halfKeywords({"always",  "assign",  "begin", "case",   "end",     "endmodule", "for",
                                          "if",      "initial", "input", "module", "negedge", "output",    "parameter",
                                          "posedge", "reg",     "wire",  "while",  "tri0",    "specparam"});
  const Names halfVHDL = halfKeywords({"access", "architecture", "begin",   "case",   "component", "downto",  "end",
                                       "entity", "for",          "generic", "if",     "in",        "is",      "library",
                                       "out",    "port",         "process", "signal", "to",        "variable"});
  askRow("keyword test, Verilog, identifiers", ratioUpTo(0.6), plain,
         [&](std::size_t i) { return zelIsVerilogKeyword(plain[i]); });
  askRow("keyword test, VHDL, identifiers", ratioUpTo(0.6), plain,
         [&](std::size_t i) { return zelIsVHDLKeyword(plain[i]); });
  askRow("keyword test, Verilog, half keywords", ratioUpTo(1.1), halfVerilog,
         [&](std::size_t i) { return zelIsVerilogKeyword(halfVerilog[i]); });
  askRow("keyword test, VHDL, half keywords", ratioUpTo(1.1), halfVHDL,
         [&](std::size_t i) { return zelIsVHDLKeyword(halfVHDL[i]); });

  const Names verilog = mixed(asItIs, inVerilog);
  const Names vhdl = mixed(asItIs, inVHDL);
  askRow("legality, Verilog", ratioUpTo(1.2), verilog, [&](std::size_t i) { return zelIsLegalVerilog(verilog[i]); });
  askRow("legality, VHDL", ratioUpTo(1.2), vhdl, [&](std::size_t i) { return zelIsLegalVHDL(vhdl[i]); });

  const Names idents = mixed(insensitive, sensitive);
  const Names sameIdents = idents;
  askRow("zelIdentCmp of equal Idents", ratioUpTo(0.4), idents,
         [&](std::size_t i) { return zelIdentCmp(idents[i], sameIdents[i]); });
  askRow("zelIdentHash", ratioUpTo(1.1), idents, [&](std::size_t i) { return zelIdentHash(idents[i]); });
}

// The spaces that have no row above.
void otherSpaces() {
  const Names idents = mixed(insensitive, sensitive);
  for (const char *const *name = zelGetAllSpaceNames(); *name != nullptr; ++name) {
    const std::string space = *name;
    if (space == "Verilog" || space == "VHDL" || space == "Spef")
      continue;
    mapRow({"Ident -> " + space, ratioUpTo(2.8), {}}, "Ident", *name, idents);
    mapRow({space + " -> Ident", ratioUpTo(2.8), {}}, *name, "Ident", mapped("Ident", *name, idents));
  }
}

// By length, a byte of the input; the targets are for the longest.
void growth(const std::string &label, const char *from, const char *to, bool hasEscapes, double limit) {
  for (const std::size_t length : {20U, 200U, 2000U}) {
    const Target target = length < 2000 ? Target{} : timeUpTo(limit);
    mapRow({label + ", a byte of " + std::to_string(length), target, target, static_cast<double>(length)}, from, to,
           ofLength(length, hasEscapes));
  }
}

} // namespace

int main(int argc, char **argv) {
  bool showsAllPairs = false;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--pairs") == 0)
      showsAllPairs = true;
    else
      wanted = argv[i];
  }
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  printRow("", "alloc. ns  ratio  target", "buffer ns  ratio  target");
  singleNames();
  paths(showsAllPairs);
  tests();
  otherSpaces();
  growth("plain, Verilog -> VHDL", "Verilog", "VHDL", false, 0.3);
  growth("escaped, Spef -> Verilog", "Spef", "Verilog", true, 1.3);
  columnRows(wanted);
  return 0;
}
