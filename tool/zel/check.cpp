// zel check: the lines that are no names.
#include "facts.h"
#include "output.h"
#include "pool.h"
#include "texts.h"

#include <algorithm>
#include <memory>

namespace tool {

namespace {

struct Rules {
  std::string space;
  Mapping mapping;  // from the space to itself
  Mapping revision; // the same with the words of a revision reserved, or null
  bool hasTest;     // single names without more ado, which the space's own test judges
};

// What keeps a text from being written says nothing of what it is.
bool isLegal(std::int32_t reason) {
  return reason == ZEL_REASON_NONE || reason == ZEL_REASON_NOT_WRITABLE || reason == ZEL_REASON_RESULT_TOO_LONG;
}

class Checker {
public:
  Checker(const Rules &spaceRules, const LineFormat &lineFormat)
      : rules(spaceRules), format(lineFormat), texts(rules.mapping.get()) {
    if (rules.revision != nullptr)
      reserved = std::make_unique<Texts>(rules.revision.get());
  }

  void operator()(Block &block) {
    const std::string_view bytes = block.text();
    std::uint64_t number = block.firstLine + linesOf(bytes.substr(0, block.headerSize), 0);
    for (std::size_t at = block.headerSize; at < bytes.size();) {
      chosen.clear();
      for (; at < bytes.size() && chosen.size() < Texts::most; at = chosen.back().next)
        chosen.push_back(lineAt(bytes, at, format, block.field));
      texts.map(bytes, chosen);
      if (reserved != nullptr)
        reserved->map(bytes, chosen);
      for (std::size_t i = 0; i < chosen.size(); ++i) {
        check(block, i, number);
        number += linesOf(bytes.substr(chosen[i].begin, chosen[i].next - chosen[i].begin), 1);
      }
    }
  }

private:
  std::uint64_t linesOf(std::string_view text, std::uint64_t otherwise) const {
    return format.isCsv ? static_cast<std::uint64_t>(std::count(text.begin(), text.end(), '\n')) : otherwise;
  }

  void check(Block &block, std::size_t i, std::uint64_t number) {
    const Line &line = chosen[i];
    Mapped read = texts[i];
    ++block.names;
    const std::size_t start = line.textBegin - line.begin;
    if (line.hasText && line.textBegin == line.textEnd)
      read = {{}, ZEL_REASON_EMPTY, start};
    else if (reserved != nullptr && read.reason == ZEL_REASON_NONE)
      findReserved(i, read);
    if (rules.hasTest && read.reason == ZEL_REASON_NONE)
      test(i, read);
    if (isLegal(read.reason))
      return;
    ++block.refusals.count;
    block.output.append(std::string(block.file) + ':' + std::to_string(number) + ':' +
                        std::to_string(read.position + 1) + ": " + reasonText(read.reason) + '\n');
  }

  // A word that only the revision reserves is spelt differently under it, unless it is so already.
  void findReserved(std::size_t i, Mapped &mapped) {
    const std::string plain(mapped.result);
    const Mapped spelled = (*reserved)[i];
    if (spelled.reason != ZEL_REASON_NONE || spelled.result == plain)
      return;
    const std::string_view source = texts.source(i);
    std::size_t at = 0;
    for (const char c : spelled.result) {
      while (at < source.size() && lowered(source[at]) != lowered(c) && c != '\\' && isMark(source[at]))
        ++at; // escaped without need
      if (at == source.size())
        return;
      if (lowered(source[at]) == lowered(c)) {
        ++at;
      } else if (c == '\\') {
        mapped.reason = reasonRevisionWord;
        mapped.position = chosen[i].textBegin - chosen[i].begin + at;
        return;
      }
    }
  }

  static char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
  static bool isMark(char c) { return c == '\\' || c == ' '; }

  // Some readers take words that are reserved.
  void test(std::size_t i, Mapped &mapped) {
    const char *text = texts.source(i);
    if (zelIsLegalName(rules.space.c_str(), text) != 0)
      return;
    mapped.reason = isKeywordOf(rules.space, text) ? std::int32_t{ZEL_REASON_RESERVED_WORD} : reasonNotLegal;
    mapped.position = chosen[i].textBegin - chosen[i].begin;
  }

  const Rules &rules;
  LineFormat format;
  Texts texts;
  std::unique_ptr<Texts> reserved;
  std::vector<Line> chosen;
};

} // namespace

int runCheck(const MappingSettings &mappingSettings, const LineSettings &lineSettings) {
  const LineFormat format = lineFormat(lineSettings);
  MappingSettings own = mappingSettings;
  own.to = own.from;
  own.toSeparators = own.fromSeparators;
  own.toLike = own.fromLike;
  Rules rules;
  if (!own.keywords.empty())
    rules.revision = makeMapping(own);
  own.keywords.clear();
  rules.mapping = makeMapping(own);
  rules.space = tableName(own.from);
  const bool isOrdinary = own.fromSeparators.empty() && own.fromLike.empty() && own.element.empty();
  rules.hasTest = isOrdinary && (own.isNames || !factsOf(rules.space).hasPaths);

  std::vector<Work> works;
  for (std::size_t i = 0; i < jobCount(lineSettings); ++i)
    works.emplace_back([checker = std::make_shared<Checker>(rules, format)](Block &block) { (*checker)(block); });
  Progress progress(lineSettings.isQuiet, false, '\n');
  Header header(lineSettings, format);
  bool hasFailed = false;
  runBlocks(
      lineSettings.files, format, std::move(works), [&](const LineReader &, Block &block) { return header(block); },
      [&](const LineReader &reader, Block &block) {
        if (lineSettings.isQuiet)
          block.output.size = 0;
        return progress.finish(reader, block);
      },
      hasFailed);
  progress.end(false, 0);
  if (hasFailed || progress.hasFailed() || closeOutput() != Written::all)
    return statusFailed;
  return progress.isRefused() ? statusRefused : statusDone;
}

} // namespace tool
