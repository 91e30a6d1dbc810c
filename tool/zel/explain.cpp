// zel explain: one name in every space, and why it is spelt so.
#include "facts.h"
#include "output.h"
#include "refusals.h"
#include "texts.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <unistd.h>

namespace tool {

namespace {

bool isCapital(char c) { return c >= 'A' && c <= 'Z'; }

Mapping namesBetween(const std::string &from, const std::string &to, const MappingSettings &settings) {
  MappingSettings own;
  own.from = from;
  own.to = to;
  own.mapState = settings.mapState;
  return plainMapping(own, true);
}

// The levels of a path as SDF has them: names between dividers, with indexes in brackets, each to be read as an Ident.
std::vector<std::string> levelsOf(const std::string &sdfPath, const MappingSettings &settings, bool isName) {
  const Mapping reading = namesBetween("Sdf", "Ident", settings);
  std::vector<std::string> idents;
  std::string level;
  bool isIndex = false;
  const auto finish = [&] {
    if (const auto ident = mapped(reading.get(), level))
      idents.push_back(*ident);
    level.clear();
    isIndex = false;
  };
  for (std::size_t i = 0; i < sdfPath.size(); ++i) {
    const char c = sdfPath[i];
    if (c == '\\' && i + 1 < sdfPath.size() && !isIndex)
      level.append({c, sdfPath[++i]});
    else if (c == '/' && !isName)
      finish();
    else if (c == '[' && !isName)
      isIndex = true;
    else if (!isIndex)
      level += c;
  }
  finish();
  return idents;
}

std::string quotedByte(char c) {
  const auto byte = static_cast<unsigned char>(c);
  if (byte > ' ' && byte < 0x7f)
    return std::string("'") + c + '\'';
  constexpr char digits[] = "0123456789abcdef";
  return c == ' ' ? "the blank" : std::string("the byte 0x") + digits[byte >> 4U] + digits[byte & 15U];
}

// A space that names are written in.
class Target {
public:
  Target(const std::string &space, const MappingSettings &settings)
      : facts(factsOf(space)), revision(settings.keywords) {
    MappingSettings own = settings;
    own.from = "Ident";
    own.to = space;
    own.fromSeparators.clear();
    own.fromLike.clear();
    own.element.clear();
    own.keywords.clear();
    writing = plainMapping(own, true);
    if (writing == nullptr) {
      // The separators are not those of this space.
      own.toSeparators.clear();
      own.toLike.clear();
      writing = plainMapping(own, true);
    }
    own.keywords = revision;
    reserving = plainMapping(own, true);
    if (facts.isChosen)
      useChosen(settings);
  }

  // Why an Ident is not written as it stands; empty when it is.
  std::string whyNot(const std::string &ident) const {
    const std::string body = ident.substr(1);
    const auto spelled = mapped(writing.get(), ident);
    if (!spelled)
      return "cannot be written";
    if (*spelled == body) {
      const auto reserved = revision.empty() ? spelled : mapped(reserving.get(), ident);
      return reserved && *reserved != body ? "reserved word of " + revision : "";
    }
    if (isKeywordOf(facts.name, body.c_str()))
      return "reserved word";
    const std::string mark = ident.substr(0, 1);
    if (const auto alone = mapped(writing.get(), mark + body.front() + "a");
        alone && *alone != body.front() + std::string("a") && isPlain(mark, body.front()))
      return quotedByte(body.front()) + " cannot begin a plain name";
    for (std::size_t i = 0; i < body.size(); ++i)
      if (!isPlain(mark, body[i]))
        return whatIs(body[i], i + 1, *spelled);
    return "as it stands it would read as another name";
  }

  SpaceFacts facts;

private:
  void useChosen(const MappingSettings &settings) {
    MappingSettings own = settings;
    own.from = "Verilog";
    own.to = facts.name;
    own.fromSeparators.clear();
    own.fromLike.clear();
    own.element.clear();
    own.keywords.clear();
    own.kind = ZEL_KIND_NET;
    const auto net = mapped(plainMapping(own, false).get(), "a.b[3]");
    own.kind = ZEL_KIND_PIN;
    const auto pin = mapped(plainMapping(own, false).get(), "a.b[3]");
    if (!net || !pin)
      return;
    const std::size_t place = net->find('a') + 1;
    facts.separators = {(*pin)[place], (*net)[place], net->at(place + 2), net->at(place + 4)};
  }

  // Whether a character stands in a name as it is.
  bool isPlain(const std::string &mark, char c) const {
    const std::string probe = std::string("a") + c + 'a';
    const auto spelled = mapped(writing.get(), mark + probe);
    return spelled && *spelled == probe;
  }

  std::string whatIs(char c, std::size_t place, const std::string &spelled) const {
    if (isCapital(c))
      return spelled.front() == '\\' ? "case kept by extending" : "case kept by marking capitals";
    const std::string where = quotedByte(c) + " at " + std::to_string(place);
    const zelMappingSeparators &marks = facts.separators;
    if (facts.hasPaths && c == marks.divider)
      return where + " is the divider";
    if (facts.hasPaths && c == marks.pinDelimiter)
      return where + " is the pin delimiter";
    if (facts.hasPaths && (c == marks.busOpen || c == marks.busClose))
      return where + " is a bus bracket";
    return where + " is no plain character";
  }

  Mapping writing;
  Mapping reserving;
  std::string revision;
};

// A mapping from a space that tells what it reads; null where the options are none of the space.
Mapping readerOf(const std::string &space, const MappingSettings &settings) {
  MappingSettings own = settings;
  own.from = space;
  own.to = "Sdf";
  own.toSeparators.clear();
  own.toLike.clear();
  own.keywords.clear();
  own.kind = ZEL_KIND_NET;
  if (tableName(space) != "Spice")
    own.element.clear();
  return plainMapping(own, own.isNames);
}

bool readsNames(const std::string &space, const MappingSettings &settings) {
  return settings.isNames || !factsOf(space).hasPaths;
}

std::string joined(const std::vector<std::string> &parts, const char *between) {
  std::string text;
  for (const std::string &part : parts)
    text += (text.empty() ? "" : between) + part;
  return text;
}

// Why a name is spelt as it is in a target, by levels.
std::string reasonsFor(const Target &target, const std::vector<std::string> &levels) {
  std::vector<std::string> reasons;
  for (const std::string &ident : levels) {
    const std::string why = target.whyNot(ident);
    const std::string reason = levels.size() > 1 && !why.empty() ? ident.substr(1) + ": " + why : why;
    if (!why.empty() && std::find(reasons.begin(), reasons.end(), reason) == reasons.end())
      reasons.push_back(reason);
  }
  return joined(reasons, "; ");
}

std::string lossOf(zelMapping mapping, const std::string &text, const std::string &result) {
  switch (zelMappingCheck(mapping, text.c_str(), result.c_str())) {
  case ZEL_CHECK_SAME:
    return "";
  case ZEL_CHECK_CASE_LOST:
    return "lost: capitals";
  case ZEL_CHECK_OTHER:
    return "lost: read back, it is another object";
  default:
    return "lost: it cannot be read back";
  }
}

struct Row {
  std::string space;
  std::string spelling;
  std::string notes;
};

void print(const std::vector<Row> &rows, const char *between) {
  const bool hasColour = takesColour(STDOUT_FILENO);
  std::size_t width = 0;
  for (const Row &row : rows)
    width = std::max(width, shownWidth(row.spelling));
  for (const Row &row : rows) {
    std::string line = (hasColour ? "\x1b[1m" : "") + row.space + (hasColour ? "\x1b[0m" : "") +
                       std::string(row.space.size() < 12 ? 12 - row.space.size() : 0, ' ') + ' ' + row.spelling;
    if (!row.notes.empty())
      line += std::string(width - shownWidth(row.spelling), ' ') + between + row.notes;
    std::puts(line.c_str());
  }
}

std::string refusalOf(zelMapping mapping, const std::string &text) {
  zelRefusal refusal = {};
  zelDiagnose(mapping, text.c_str(), &refusal);
  return std::string(reasonText(refusal.reason)) + " at " + std::to_string(refusal.position + 1);
}

Row rowOf(const std::string &space, const MappingSettings &settings, const std::string &name,
          const std::vector<std::string> &levels, bool isName) {
  MappingSettings own = settings;
  own.to = space;
  Mapping mapping = plainMapping(own, own.isNames);
  // The options of some targets are none of others.
  if (mapping == nullptr) {
    own.toSeparators.clear();
    own.toLike.clear();
    mapping = plainMapping(own, own.isNames);
  }
  if (mapping == nullptr) {
    own.keywords.clear();
    mapping = plainMapping(own, own.isNames);
  }
  if (mapping == nullptr) {
    own.element.clear();
    mapping = plainMapping(own, own.isNames);
  }
  const Target target(space, own);
  const std::string text = withEnd(mapping.get(), name);
  const auto result = mapped(mapping.get(), text);
  if (!result) {
    const bool isPathless = !isName && !target.facts.hasPaths;
    return {space, "-", isPathless ? "has no paths" : refusalOf(mapping.get(), text)};
  }
  std::string notes = reasonsFor(target, levels);
  const bool isFolded = factsOf(tableName(settings.from)).caseRule == CaseRule::folded;
  if (isFolded && std::any_of(text.begin(), text.end(), isCapital) &&
      std::none_of(result->begin(), result->end(), isCapital))
    notes += std::string(notes.empty() ? "" : "; ") + "in lower case: capitals mean nothing in the source";
  const std::string loss = lossOf(mapping.get(), text, *result);
  if (!loss.empty())
    notes += (notes.empty() ? "" : "; ") + loss;
  return {space, *result, notes};
}

int explainFrom(const MappingSettings &settings, const std::string &name) {
  MappingSettings own = settings;
  own.to = own.from;
  own.keywords.clear();
  own.toSeparators = own.fromSeparators;
  own.toLike = own.fromLike;
  const Mapping same = makeMapping(own);
  const std::string text = withEnd(same.get(), name);
  zelRefusal refusal = {};
  const std::int32_t reason = zelDiagnose(same.get(), text.c_str(), &refusal);
  if (reason != ZEL_REASON_NONE && reason != ZEL_REASON_NOT_WRITABLE && reason != ZEL_REASON_RESULT_TOO_LONG) {
    Refusals refusals;
    refusals.add(1, name, refusal.position, reason);
    std::fputs(shownRefusal("NAME", refusals.first.front(), takesColour(STDERR_FILENO)).c_str(), stderr);
    return statusRefused;
  }
  const bool isName = readsNames(settings.from, settings);
  const auto sdf = mapped(readerOf(settings.from, settings).get(), text);
  const std::vector<std::string> levels = sdf ? levelsOf(*sdf, settings, isName) : std::vector<std::string>{};
  std::vector<Row> rows;
  for (const std::string &space : allSpaces())
    rows.push_back(rowOf(space, settings, name, levels, isName || levels.size() == 1));
  print(rows, "  ");
  return statusDone;
}

// Which spaces can read it, and as what.
int explainReaders(const MappingSettings &settings, const std::string &name) {
  std::vector<Row> rows;
  std::vector<Row> refusing;
  for (const std::string &space : allSpaces()) {
    const Mapping reader = readerOf(space, settings);
    if (reader == nullptr)
      continue;
    const std::string text = withEnd(reader.get(), name);
    const auto sdf = mapped(reader.get(), text);
    if (!sdf) {
      refusing.push_back({space, refusalOf(reader.get(), text), ""});
      continue;
    }
    std::vector<std::string> bodies;
    for (const std::string &ident : levelsOf(*sdf, settings, readsNames(space, settings)))
      bodies.push_back(ident.substr(1));
    rows.push_back({space, joined(bodies, "  "), bodies.size() > 1 ? std::to_string(bodies.size()) + " levels" : ""});
  }
  if (!rows.empty())
    std::puts("Read by:");
  print(rows, "  ");
  if (!refusing.empty())
    std::puts(rows.empty() ? "Refused by:" : "\nRefused by:");
  print(refusing, "  ");
  return rows.empty() ? statusRefused : statusDone;
}

} // namespace

int runExplain(const MappingSettings &mappingSettings, const std::string &name) {
  const int status =
      mappingSettings.from.empty() ? explainReaders(mappingSettings, name) : explainFrom(mappingSettings, name);
  return closeOutput() == Written::all ? status : statusFailed;
}

} // namespace tool
