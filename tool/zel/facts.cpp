#include "facts.h"

#include "texts.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace tool {

namespace {

struct Keywords {
  const char *space;
  int (*isKeyword)(const char *word);
};

constexpr Keywords keywords[] = {
    {"Def", zelIsDefKeyword},         {"Kirra", zelIsKirraKeyword},       {"KirraHDL", zelIsKirraHDLKeyword},
    {"Lef", zelIsLefKeyword},         {"LibraryNT", zelIsNTKeyword},      {"Spice", zelIsSpiceKeyword},
    {"VHDL", zelIsVHDLKeyword},       {"VHDL87", zelIsVHDL87Keyword},     {"VHDLAMS", zelIsVHDLAMSKeyword},
    {"Verilog", zelIsVerilogKeyword}, {"VerilogA", zelIsVerilogAKeyword}, {"VerilogAMS", zelIsVerilogAMSKeyword},
};

struct OtherName {
  const char *name;
  const char *space;
};

constexpr OtherName otherNames[] = {{"DSPF", "Spf"},       {"Library", "LibraryUnix"},    {"Filesys", "LibraryUnix"},
                                    {"Ident", "Ident"},    {"Verilog-AMS", "VerilogAMS"}, {"Verilog-A", "VerilogA"},
                                    {"VHDL-87", "VHDL87"}, {"VHDL-AMS", "VHDLAMS"}};

bool isSame(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

Mapping mappingBetween(const std::string &from, const std::string &to, bool isNames, std::int32_t kind) {
  MappingSettings settings;
  settings.from = from;
  settings.to = to;
  settings.kind = kind;
  return plainMapping(settings, isNames);
}

} // namespace

std::string tableName(const std::string &space) {
  for (const OtherName &other : otherNames)
    if (isSame(other.name, space))
      return other.space;
  for (const char *const *name = zelGetAllSpaceNames(); *name != nullptr; ++name)
    if (isSame(*name, space))
      return *name;
  return space;
}

std::vector<std::string> allSpaces() {
  std::vector<std::string> names;
  for (const char *const *name = zelGetAllSpaceNames(); *name != nullptr; ++name)
    if (tableName(*name) == *name)
      names.emplace_back(*name);
  return names;
}

bool hasKeywords(const std::string &space) {
  return std::any_of(std::begin(keywords), std::end(keywords), [&](const Keywords &row) { return row.space == space; });
}

bool isKeywordOf(const std::string &space, const char *word) {
  return std::any_of(std::begin(keywords), std::end(keywords),
                     [&](const Keywords &row) { return row.space == space && row.isKeyword(word) != 0; });
}

std::optional<std::string> mapped(zelMapping mapping, const std::string &text) {
  std::array<char, ZEL_MAX_NAME + 2> result{};
  if (mapping == nullptr || zelMappingApply(mapping, withEnd(mapping, text).c_str(), nullptr, result.data()) == nullptr)
    return std::nullopt;
  return result.data();
}

SpaceFacts factsOf(const std::string &space) {
  SpaceFacts facts = {space, false, false, {}, CaseRule::kept};
  // "<divider>a<divider>b<open>3<close>", where the first divider may be missing.
  const Mapping nets = mappingBetween("Verilog", space, false, ZEL_KIND_NET);
  const Mapping pins = mappingBetween("Verilog", space, false, ZEL_KIND_PIN);
  const auto net = mapped(nets.get(), "a.b[3]");
  const auto pin = mapped(pins.get(), "a.b[3]");
  if (net && pin && net->find('a') != std::string::npos) {
    const std::size_t place = net->find('a') + 1;
    facts.hasPaths = true;
    facts.separators = {(*pin)[place], (*net)[place], net->at(place + 2), net->at(place + 4)};
  }
  MappingSettings chosen;
  chosen.from = space;
  chosen.to = "Ident";
  chosen.fromSeparators = "divider=^";
  facts.isChosen = plainMapping(chosen, true) != nullptr;
  const Mapping reading = mappingBetween(space, "Ident", true, ZEL_KIND_NET);
  const auto low = mapped(reading.get(), "ab");
  const auto capital = mapped(reading.get(), "aB");
  if (low && capital && low->front() == 'I')
    facts.caseRule = capital->front() == 'I' ? CaseRule::folded : CaseRule::byCapitals;
  return facts;
}

} // namespace tool
