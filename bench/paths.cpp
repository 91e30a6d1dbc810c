// Paths of four levels with a bus bit in every language: parsed, printed and mapped; and expanded bit by bit.
#include "core/zel.h"
#include "measure.h"

using namespace bench;

namespace {

struct Language {
  const char *space;
  zelPath (*parse)(const char *text, zelHandle handle, zelAllocFunc alloc, void *context);
  char *(*print)(zelPath path, zelHandle handle, int32_t flags);
};

constexpr Language languages[] = {
    {"Verilog", zelParseVerilog, zelPathToVerilog},
    {"VHDL", zelParseVHDL, zelPathToVHDL},
    {"ORKA", zelParseORKA, zelPathToORKA},
    {"Tessel", zelParseTessel, zelPathToTessel},
    {"FlatTessel", zelParseFlatTessel, zelPathToFlatTessel},
    {"Kirra", zelParseKirra, zelPathToKirra},
    {"KirraHDL", zelParseKirraHDL, zelPathToKirraHDL},
    {"Lef", zelParseLef, zelPathToLef},
    {"Def", zelParseDef, zelPathToDef},
    {"Sdf", zelParseSdf, zelPathToSdf},
    {"Spf", zelParseSpf, zelPathToSpf},
    {"Spef", zelParseSpef, zelPathToSpef},
    {"Gcf", zelParseGcf, zelPathToGcf},
    {"Spice", zelParseSpice, zelPathToSpice},
};

const Names verilogPaths = {"top.u_core.u_alu.sum[3]", "chip.pad_ring.io_cell.d[12]", "tb.dut.fifo.mem[0]"};

// The same paths in a language.
const Names &spelled(const Language &language) {
  static Names spellings[std::size(languages)];
  Names &names = spellings[&language - languages];
  if (names.empty())
    for (const std::string &path : verilogPaths) {
      char *text = zelPathMapper(path.c_str(), zelVerilogHandle, nullptr, 0, nullptr, language.space);
      names.emplace_back(text);
      std::free(text);
    }
  return names;
}

void parseAll(benchmark::State &state, const Language &language) {
  const zelHandle handle = zelGetHandle(language.space, 0, 0, 0, 0);
  measure(state, spelled(language), [&](const char *text) {
    const zelPath path = language.parse(text, handle, nullptr, nullptr);
    benchmark::DoNotOptimize(path);
    zelFreePath(path, nullptr, nullptr);
    return 1;
  });
}

void printAll(benchmark::State &state, const Language &language) {
  const zelHandle handle = zelGetHandle(language.space, 0, 0, 0, 0);
  const Names &names = spelled(language);
  const zelPath path = language.parse(names[0].c_str(), handle, nullptr, nullptr);
  measure(state, {names[0]}, [&](const char *) { return consume(language.print(path, handle, 0)); });
  zelFreePath(path, nullptr, nullptr);
}

void map(benchmark::State &state, const char *fromSpace, const char *toSpace, const Names &names, uint32_t flags,
         double bits) {
  const zelHandle from = zelGetHandle(fromSpace, 0, 0, 0, 0);
  const zelHandle to = zelGetHandle(toSpace, 0, 0, 0, 0);
  measure(state, names,
          [=](const char *text) { return bits * consume(zelPathMapper(text, from, to, flags, nullptr, nullptr)); });
}

template <typename Run> void add(const std::string &label, Run run) {
  benchmark::RegisterBenchmark(label.c_str(), run);
}

const bool registered = [] {
  for (const Language &language : languages) {
    const std::string space = language.space;
    add("parse " + space, [&](benchmark::State &state) { parseAll(state, language); });
    add("print " + space, [&](benchmark::State &state) { printAll(state, language); });
    add("map Verilog->" + space,
        [&](benchmark::State &state) { map(state, "Verilog", language.space, verilogPaths, 0, 1); });
    add("map " + space + "->Verilog",
        [&](benchmark::State &state) { map(state, language.space, "Verilog", spelled(language), 0, 1); });
  }
  add("explode 16 bits, a bit",
      [](benchmark::State &state) { map(state, "Verilog", "VHDL", {"top.u_core.data[15:0]"}, ZEL_PRINT_EXPLODE, 16); });
  add("explode 64 bits, a bit",
      [](benchmark::State &state) { map(state, "Verilog", "Verilog", {"u_core.data[63:0]"}, ZEL_PRINT_EXPLODE, 64); });
  return true;
}();

} // namespace

BENCHMARK_MAIN();
