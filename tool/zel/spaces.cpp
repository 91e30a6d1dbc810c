// zel spaces: what there is.
#include "facts.h"
#include "output.h"
#include "refusals.h"

#include <array>
#include <cstdio>
#include <unistd.h>

namespace tool {

namespace {

const char *shownCase(CaseRule rule) {
  switch (rule) {
  case CaseRule::folded:
    return "folded";
  case CaseRule::byCapitals:
    return "with capitals";
  default:
    return "kept";
  }
}

// What becomes of a name that is a reserved word.
std::string shownKeywords(const std::string &space) {
  if (!hasKeywords(space))
    return "-";
  MappingSettings settings;
  settings.from = "Ident";
  settings.to = space;
  const Mapping writing = plainMapping(settings, true);
  for (const char *word : {"module", "signal", "model", "macro", "via", "component", "con", "r"}) {
    if (!isKeywordOf(space, word))
      continue;
    const auto spelled = mapped(writing.get(), std::string("S") + word);
    if (!spelled)
      return "refused";
    return *spelled == word ? "allowed" : std::string(word) + " is " + *spelled;
  }
  return "allowed";
}

std::string shownMark(char mark) { return mark == '\0' ? "-" : std::string(1, mark); }

} // namespace

int runSpaces() {
  const bool hasColour = takesColour(STDOUT_FILENO);
  std::printf("%s%-12s %-6s %-8s %-4s %-5s %-7s %-14s %s%s\n", hasColour ? "\x1b[1m" : "", "NAME", "PATHS", "DIVIDER",
              "PIN", "BUS", "CHOSEN", "CASE", "KEYWORDS", hasColour ? "\x1b[0m" : "");
  for (const std::string &space : allSpaces()) {
    const SpaceFacts facts = factsOf(space);
    const zelMappingSeparators &marks = facts.separators;
    const std::string bus = facts.hasPaths ? std::string{marks.busOpen, marks.busClose} : "-";
    std::printf("%-12s %-6s %-8s %-4s %-5s %-7s %-14s %s\n", space.c_str(), facts.hasPaths ? "yes" : "no",
                shownMark(marks.divider).c_str(), shownMark(marks.pinDelimiter).c_str(), bus.c_str(),
                facts.isChosen ? "by file" : "-", shownCase(facts.caseRule), shownKeywords(space).c_str());
  }
  std::puts(
      "\nNames are taken in any case, and DSPF for Spf, Library and Filesys for LibraryUnix. Case: kept, folded (no\n"
      "difference between capitals and others), or with capitals: a name without capitals is the same in any case.");
  return closeOutput() == Written::all ? statusDone : statusFailed;
}

} // namespace tool
