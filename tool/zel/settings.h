// What the commands are asked to do.
#ifndef ZEL_TOOL_SETTINGS_H
#define ZEL_TOOL_SETTINGS_H

#include "lines.h"

#include "zel.h"

#include <memory>
#include <string>
#include <vector>

namespace tool {

enum Status : int { statusDone = 0, statusRefused = 1, statusUsage = 2, statusFailed = 3 };

// The options of a mapping as they were written.
struct MappingSettings {
  std::string from;
  std::string to;
  bool isNames = false;
  std::int32_t kind = ZEL_KIND_NET;
  std::string fromSeparators;
  std::string toSeparators;
  std::string fromLike;
  std::string toLike;
  std::string element;
  std::int32_t levels = ZEL_LEVELS_ALL;
  std::int32_t mapState = ZEL_MAP_DEFAULT;
  bool isExploded = false;
  bool isGrouped = false;
  bool isUnrepeated = false;
  bool isTop = false;
  bool isLenient = false;
  std::string keywords;
};

enum class OnError : std::uint8_t { empty, keep, skip, stop };

// Which text of which lines, and what becomes of them.
struct LineSettings {
  std::vector<std::string> files;
  std::string field; // a number from 1, of comma-separated values also a name; empty for the whole line
  std::string delimiter;
  bool isCsv = false;
  bool isNull = false;
  OnError onError = OnError::empty;
  bool isChecked = false;
  std::uint32_t jobs = 0;
  bool hasStats = false;
  bool isQuiet = false;
};

// Something is wrong with the command line, or with what it names.
struct Complaint {
  int status;
  std::string message;
};

struct FreeMapping {
  void operator()(zelMapping mapping) const { zelFreeMapping(mapping); }
};
using Mapping = std::unique_ptr<const zelMappingRecord, FreeMapping>;

// The mapping of the settings; throws a Complaint.
Mapping makeMapping(const MappingSettings &settings);

// A mapping of names without more ado; null when it cannot be made.
Mapping plainMapping(const MappingSettings &settings, bool isNames);

// The spaces whose names resemble one that is none: ", like VHDL or VHDL87", or nothing.
std::string nearSpaces(const std::string &name);
bool isSpace(const std::string &name);

LineFormat lineFormat(const LineSettings &settings);

// The number that field is, or 0.
std::uint32_t fieldNumber(const std::string &field);

std::size_t jobCount(const LineSettings &settings);

// --- The commands; each returns a Status and throws Complaints.
int runMap(const MappingSettings &mappingSettings, const LineSettings &lineSettings);
int runCheck(const MappingSettings &mappingSettings, const LineSettings &lineSettings);
int runExplain(const MappingSettings &mappingSettings, const std::string &name);
int runSpaces();

} // namespace tool

#endif
