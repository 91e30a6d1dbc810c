#include "columns.h"

#include "measure.h"
#include "zel.h"

namespace bench {

namespace {

constexpr std::size_t million = 1000000;

struct ColumnRow {
  const char *work;
  const char *from;
  const char *to;
  bool isNames;
  double limit; // ns a name
};

zelMapping mappingOf(const char *from, const char *to, bool isNames) {
  zelMappingOptions options = {};
  options.size = sizeof options;
  options.from = from;
  options.to = to;
  options.isNames = isNames ? 1 : 0;
  const zelMapping mapping = zelCreateMapping(&options, nullptr, 0);
  if (mapping == nullptr)
    fail(from);
  return mapping;
}

// The names over and over, one behind the other.
struct Column {
  std::string bytes;
  std::vector<std::int32_t> offsets = {0};

  explicit Column(const Names &names) {
    while (offsets.size() <= million) {
      const std::size_t i = (offsets.size() - 1) % names.size();
      bytes.append(names[i], names.length(i));
      offsets.push_back(static_cast<std::int32_t>(bytes.size()));
    }
  }
};

void columnRow(const ColumnRow &row, const Names &names) {
  const Column column(names);
  const zelMapping mapping = mappingOf(row.from, row.to, row.isNames);
  zelColumn input = {};
  input.size = sizeof input;
  input.offsetBits = 32;
  input.count = million;
  input.offsets = column.offsets.data();
  input.bytes = column.bytes.data();
  std::vector<std::int32_t> offsets(million + 1);
  zelColumnResult result = {};
  result.size = sizeof result;
  result.offsets = offsets.data();

  // The floor is that of the same names, each passed as often.
  constexpr int passes = 7;
  std::vector<double> times;
  std::vector<double> ratios;
  for (int i = 0; i <= passes; ++i) {
    using Clock = std::chrono::steady_clock;
    const double floor = floorTime(names);
    const auto start = Clock::now();
    if (zelMapColumn(mapping, &input, &result) != 0 || result.refused != 0)
      fail(row.work);
    const double time = std::chrono::duration<double, std::nano>(Clock::now() - start).count() / million;
    if (i == 0) // the first warms up and makes the room
      continue;
    times.push_back(time);
    ratios.push_back(time / floor);
  }
  printRow(row.work, shown({median(times), median(ratios)}, timeUpTo(row.limit)));
  std::free(result.bytes);
  zelFreeMapping(mapping);
}

std::string asItIs(const std::string &text) { return text; }
std::string inVerilog(const std::string &text) { return "\\" + text + " "; }

// What a netlist of a synthesised design holds: capitals here and there, and every fourth name escaped.
Names netlist() {
  const Names names = mixed(asItIs, inVerilog);
  Names result;
  for (std::size_t i = 0; i < names.size(); ++i) {
    std::string name = names[i];
    if (i % 8 == 1)
      name[0] = 'U';
    result.add(name);
  }
  return result;
}

// A mapping that is made once, a name a call.
void onceRow(const char *wanted) {
  const std::string work = "plain, Verilog -> Spef, by a mapping made once";
  if (work.find(wanted) == std::string::npos)
    return;
  const Names names = identifiers();
  const zelMapping mapping = mappingOf("Verilog", "Spef", true);
  static char buffer[ZEL_MAX_NAME + 2];
  const Measured allocated = measure(names, [&](std::size_t i) {
    char *result = zelMappingApply(mapping, names[i], nullptr, nullptr);
    if (result == nullptr)
      fail(names[i]);
    keep(result);
    std::free(result);
  });
  const Measured inBuffer = measure(names, [&](std::size_t i) {
    if (zelMappingApply(mapping, names[i], nullptr, buffer) == nullptr)
      fail(names[i]);
    keep(buffer);
  });
  printRow(work, shown(allocated, ratioUpTo(1.8)), shown(inBuffer, {}));
  zelFreeMapping(mapping);
}

} // namespace

void columnRows(const char *wanted) {
  onceRow(wanted);
  const auto row = [wanted](const ColumnRow &what, auto names) {
    if (std::strstr(what.work, wanted) != nullptr)
      columnRow(what, names());
  };
  const auto inBackslash = [] { return escaped(inVerilog); };
  row({"column, plain, Verilog -> Spef", "Verilog", "Spef", false, 16}, identifiers);
  row({"column, netlist, Verilog -> Spef", "Verilog", "Spef", true, 25}, netlist);
  row({"column, netlist, Verilog -> VHDL", "Verilog", "VHDL", true, 40}, netlist);
  row({"column, to be escaped, Verilog -> Spef", "Verilog", "Spef", true, 50}, inBackslash);
  row({"column, paths of four levels, Verilog -> Spef", "Verilog", "Spef", false, 60}, bitPaths);
}

} // namespace bench
