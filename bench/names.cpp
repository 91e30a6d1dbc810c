// Single names: between Verilog and VHDL, and between the Ident and every space.
#include "core/zel.h"
#include "measure.h"

using namespace bench;

namespace {

const Names plainNames = {"clk", "reset_n", "data_valid", "u_core", "addr", "fifo_wr_ptr", "state", "cfg_reg_0"};
const Names verilogToEscape = {"signal", "a__b", "bus_", "Entity", "x$y", "process", "data$", "Ready"};
const Names verilogEscaped = {"\\a+b ", "\\bus[3] ", "\\u1/u2 ", "\\n.1 ", "\\1st ", "\\a-b ", "\\top.clk ", "\\q* "};
const Names vhdlEscaped = {"\\a b\\", "\\bus[3]\\", "\\signal\\", "\\n.1\\", "\\1st\\", "\\a-b\\", "\\Top\\", "\\q*\\"};
const Names keywordCandidates = {"signal", "clk", "process", "data", "begin", "addr", "architecture", "u_core"};
const Names idents = {"Sclk", "Ireset_n", "SData_Valid", "Iu_core/u1", "Saddr[3]", "Ififo.wr", "Sa b", "S#23x"};

void map(const char *label, const char *from, const char *to, const Names &names) {
  benchmark::RegisterBenchmark(label, [from, to, &names](benchmark::State &state) {
    measure(state, names, [=](const char *name) { return consume(zelMapName(from, to, name, nullptr, nullptr)); });
  });
}

// The names that a space gives the Idents.
Names written(const char *space) {
  Names names;
  for (const std::string &ident : idents) {
    char *name = zelMapName("Ident", space, ident.c_str(), nullptr, nullptr);
    names.emplace_back(name);
    std::free(name);
  }
  return names;
}

const bool registered = [] {
  map("Verilog->VHDL plain", "Verilog", "VHDL", plainNames);
  map("Verilog->VHDL to be escaped", "Verilog", "VHDL", verilogToEscape);
  map("Verilog->VHDL escaped source", "Verilog", "VHDL", verilogEscaped);
  map("VHDL->Verilog plain", "VHDL", "Verilog", plainNames);
  map("VHDL->Verilog escaped source", "VHDL", "Verilog", vhdlEscaped);
  benchmark::RegisterBenchmark("VHDL keyword test", [](benchmark::State &state) {
    measure(state, keywordCandidates, [](const char *name) {
      benchmark::DoNotOptimize(zelIsVHDLKeyword(name));
      return 1;
    });
  });

  for (const char *const *space = zelGetAllSpaceNames(); *space != nullptr; ++space) {
    static std::vector<Names> kept; // the runs refer to them
    kept.reserve(64);
    map((std::string("Ident->") + *space).c_str(), "Ident", *space, idents);
    map((std::string(*space) + "->Ident").c_str(), *space, "Ident", kept.emplace_back(written(*space)));
  }
  return true;
}();

} // namespace
