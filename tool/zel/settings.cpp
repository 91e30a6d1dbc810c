// From options to mappings.
#include "settings.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <thread>

namespace tool {

namespace {

std::string lowered(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
  return text;
}

// How many characters are to be changed, put in or taken out.
std::size_t distance(const std::string &a, const std::string &b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j)
    row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t changed = diagonal + (a[i - 1] != b[j - 1] ? 1 : 0);
      diagonal = row[j];
      row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row[b.size()];
}

// "divider=/,pin=:,bus=[]": a comma may also be a separator.
zelMappingSeparators readSeparators(const std::string &option, const std::string &text,
                                    zelMappingSeparators separators) {
  const auto complain = [&] {
    return Complaint{statusUsage, option + ": not separators like divider=/,pin=:,bus=[]: " + text};
  };
  std::string_view rest = text;
  const auto take = [&](std::string_view key) {
    if (!rest.starts_with(key) || rest.size() == key.size())
      return false;
    rest.remove_prefix(key.size());
    return true;
  };
  const auto character = [&] {
    if (rest.empty())
      throw complain();
    const char c = rest.front();
    rest.remove_prefix(1);
    return c;
  };
  while (!rest.empty()) {
    if (take("divider=")) {
      separators.divider = character();
    } else if (take("pin=")) {
      separators.pinDelimiter = character();
    } else if (take("bus=")) {
      separators.busOpen = character();
      separators.busClose = character();
    } else {
      throw complain();
    }
    if (!rest.empty() && (character() != ',' || rest.empty()))
      throw complain();
  }
  return separators;
}

// Those that a file's header declares.
zelMappingSeparators separatorsOf(const std::string &file) {
  if (file.empty())
    return {};
  zelSeparators found = {};
  found.size = sizeof found;
  if (zelReadSeparators(file.c_str(), nullptr, &found) == 0) {
    if (errno == EINVAL)
      throw Complaint{statusUsage, file + ": no header of SPEF, DSPF, SDF, DEF or LEF"};
    throw Complaint{statusFailed, file + ": " + std::strerror(errno)};
  }
  return {found.pinDelimiter, found.divider, found.busOpen, found.busClose};
}

zelMappingOptions optionsOf(const MappingSettings &settings) {
  zelMappingOptions options = {};
  options.size = sizeof options;
  options.from = settings.from.c_str();
  options.to = settings.to.c_str();
  options.isNames = settings.isNames;
  options.kind = settings.kind;
  const auto flag = [](bool isGiven, std::uint32_t value) { return isGiven ? value : 0; };
  options.printFlags = flag(settings.isExploded, ZEL_PRINT_EXPLODE) | flag(settings.isGrouped, ZEL_PRINT_GROUP) |
                       flag(settings.isUnrepeated, ZEL_PRINT_NOREPEAT) | flag(settings.isTop, ZEL_PRINT_TOP);
  options.element = settings.element.empty() ? '\0' : settings.element.front();
  options.levels = settings.levels;
  options.mapState = settings.mapState;
  options.keywords = settings.keywords.empty() ? nullptr : settings.keywords.c_str();
  options.isLenient = settings.isLenient;
  options.fromSeparators =
      readSeparators("--from-separators", settings.fromSeparators, separatorsOf(settings.fromLike));
  options.toSeparators = readSeparators("--to-separators", settings.toSeparators, separatorsOf(settings.toLike));
  return options;
}

} // namespace

bool isSpace(const std::string &name) {
  MappingSettings settings;
  settings.from = name;
  settings.to = "Ident";
  return plainMapping(settings, true) != nullptr;
}

std::string nearSpaces(const std::string &name) {
  const std::string wanted = lowered(name);
  std::vector<std::string> near;
  for (const char *const *space = zelGetAllSpaceNames(); *space != nullptr; ++space) {
    const std::string candidate = lowered(*space);
    const std::size_t allowed = wanted.size() < 4 ? 1 : 2;
    if (distance(wanted, candidate) <= allowed ||
        (wanted.size() > 2 && (candidate.starts_with(wanted) || wanted.starts_with(candidate))))
      near.emplace_back(*space);
  }
  std::string text;
  for (const std::string &space : near)
    text += (text.empty() ? "; near are: " : ", ") + space;
  return text.empty() ? "; `zel spaces` lists them" : text;
}

Mapping makeMapping(const MappingSettings &settings) {
  for (const std::string &name : {settings.from, settings.to})
    if (!isSpace(name))
      throw Complaint{statusUsage, "no space is called '" + name + "'" + nearSpaces(name)};
  if (settings.element.size() > 1)
    throw Complaint{statusUsage, "--element: not one letter: " + settings.element};
  const zelMappingOptions options = optionsOf(settings);
  std::array<char, 256> message{};
  Mapping mapping(zelCreateMapping(&options, message.data(), message.size()));
  if (mapping == nullptr)
    throw Complaint{errno == ENOMEM ? statusFailed : statusUsage, message.data()};
  return mapping;
}

Mapping plainMapping(const MappingSettings &settings, bool isNames) {
  zelMappingOptions options = optionsOf(settings);
  options.isNames = isNames;
  return Mapping(zelCreateMapping(&options, nullptr, 0));
}

std::uint32_t fieldNumber(const std::string &field) {
  std::uint32_t number = 0;
  const char *const end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, number);
  return error == std::errc() && stop == end ? number : 0;
}

LineFormat lineFormat(const LineSettings &settings) {
  LineFormat format;
  format.end = settings.isNull ? '\0' : '\n';
  format.isCsv = settings.isCsv;
  format.delimiter = settings.isCsv ? ',' : '\t';
  const std::string &delimiter = settings.delimiter;
  if (delimiter == "\\t" || delimiter == "tab")
    format.delimiter = '\t';
  else if (delimiter.size() > 1)
    throw Complaint{statusUsage, "--delimiter: not one byte: " + delimiter};
  else if (!delimiter.empty())
    format.delimiter = delimiter.front();
  if (settings.isCsv && settings.isNull)
    throw Complaint{statusUsage, "--csv and --null exclude each other"};
  if (settings.isCsv && settings.field.empty())
    throw Complaint{statusUsage, "--csv wants --field with a column's name or number"};
  if (settings.isCsv && (format.delimiter == '"' || format.delimiter == '\n'))
    throw Complaint{statusUsage, "--delimiter: a quote or line end divides no fields"};
  if (!settings.isCsv && !settings.field.empty() && fieldNumber(settings.field) == 0)
    throw Complaint{statusUsage, "--field: not a number from 1: " + settings.field + " (--csv knows names of columns)"};
  if (!settings.isCsv && settings.field.empty() && !delimiter.empty())
    throw Complaint{statusUsage, "--delimiter wants --field"};
  return format;
}

std::size_t jobCount(const LineSettings &settings) {
  constexpr std::size_t most = 256;
  const std::size_t jobs = settings.jobs != 0 ? settings.jobs : std::thread::hardware_concurrency();
  return std::clamp(jobs, std::size_t{1}, most);
}

} // namespace tool
