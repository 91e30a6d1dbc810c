// What a space is like, as its own operations show it.
#ifndef ZEL_TOOL_FACTS_H
#define ZEL_TOOL_FACTS_H

#include "settings.h"

#include <optional>

namespace tool {

enum class CaseRule : std::uint8_t { kept, folded, byCapitals };

struct SpaceFacts {
  std::string name;
  bool hasPaths;
  bool isChosen;                   // a file may choose the separators
  zelMappingSeparators separators; // as paths are written; NUL without
  CaseRule caseRule;
};

SpaceFacts factsOf(const std::string &space);

// The name in the table of a space that is called so, in any case or as people do.
std::string tableName(const std::string &space);

// Every space but those that are others by another name.
std::vector<std::string> allSpaces();

bool hasKeywords(const std::string &space);
bool isKeywordOf(const std::string &space, const char *word);

// What a mapping makes of a text, whose end may stand for white space; nothing where it is refused.
std::optional<std::string> mapped(zelMapping mapping, const std::string &text);

} // namespace tool

#endif
