// zel map: a line for a line.
#include "output.h"
#include "pool.h"
#include "settings.h"
#include "texts.h"

#include <algorithm>
#include <memory>
#include <new>

namespace tool {

namespace {

// Whole lines, by the library alone.
class WholeLines {
public:
  WholeLines(zelMapping lineMapping, const LineFormat &lineFormat, OnError onError)
      : mapping(lineMapping), format(lineFormat) {
    lines.size = sizeof lines;
    lines.isKept = onError == OnError::keep ? 1 : 0;
    lines.refusals = refused;
    lines.refusalCapacity = Refusals::shown;
    lines.grow = [](void *, std::uint64_t size, void *output) -> void * {
      Buffer &buffer = static_cast<Output *>(output)->buffer;
      try {
        buffer.reserve(size);
      } catch (const std::bad_alloc &) {
        return nullptr;
      }
      return buffer.data();
    };
  }

  void operator()(Block &block) {
    block.output.buffer.reserve(block.size + block.size / 4);
    lines.bytes = block.output.buffer.data();
    lines.capacity = block.output.buffer.capacity();
    lines.context = &block.output;
    if (zelMapLines(mapping, block.input.data(), block.size, format.end, &lines) != 0)
      throw std::bad_alloc();
    block.output.size = lines.length;
    block.names = lines.lines;
    for (std::uint64_t i = 0; i < lines.refused && i < Refusals::shown; ++i) {
      const zelLineRefusal &line = refused[i];
      block.refusals.add(block.firstLine + line.line, block.text().substr(line.start, line.length),
                         line.refusal.position, line.refusal.reason);
    }
    block.refusals.count = lines.refused;
  }

private:
  zelMapping mapping;
  LineFormat format;
  zelLinesResult lines = {};
  zelLineRefusal refused[Refusals::shown] = {};
};

// Fields, and lines of which some are left out.
class ChosenTexts {
public:
  ChosenTexts(zelMapping textMapping, const LineFormat &lineFormat, const LineSettings &lineSettings)
      : mapping(textMapping), format(lineFormat), onError(lineSettings.onError), isChecked(lineSettings.isChecked),
        texts(textMapping) {}

  void operator()(Block &block) {
    const std::string_view bytes = block.text();
    block.output.append(bytes.substr(0, block.headerSize));
    std::uint64_t number = block.firstLine;
    if (block.headerSize != 0)
      number += linesWithin(bytes.substr(0, block.headerSize));
    for (std::size_t at = block.headerSize; at < bytes.size() && !block.isStopped;) {
      chosen.clear();
      for (; at < bytes.size() && chosen.size() < Texts::most; at = chosen.back().next)
        chosen.push_back(lineAt(bytes, at, format, block.field));
      texts.map(bytes, chosen);
      for (std::size_t i = 0; i < chosen.size() && !block.isStopped; ++i) {
        write(block, i, number);
        number += format.isCsv ? linesWithin(bytes.substr(chosen[i].begin, chosen[i].next - chosen[i].begin)) : 1;
      }
    }
  }

private:
  static std::uint64_t linesWithin(std::string_view text) {
    return static_cast<std::uint64_t>(std::count(text.begin(), text.end(), '\n'));
  }

  void write(Block &block, std::size_t i, std::uint64_t number) {
    const std::string_view bytes = block.text();
    const Line &line = chosen[i];
    Mapped mapped = texts[i];
    ++block.names;
    if (isChecked && mapped.reason == ZEL_REASON_NONE && !mapped.result.empty())
      check(i, mapped);
    if (mapped.reason != ZEL_REASON_NONE) {
      block.refusals.add(number, bytes.substr(line.begin, line.end - line.begin), mapped.position, mapped.reason);
      block.isStopped = onError == OnError::stop;
      if (block.isStopped || onError == OnError::skip)
        return;
      if (onError == OnError::keep) {
        block.output.append(bytes.substr(line.begin, line.next - line.begin));
        return;
      }
      mapped.result = {};
    }
    block.output.append(bytes.substr(line.begin, line.textBegin - line.begin));
    if (format.isCsv)
      writeQuoted(block.output, line, mapped.result);
    else
      block.output.append(mapped.result);
    block.output.append(bytes.substr(line.textEnd, line.next - line.textEnd));
  }

  void writeQuoted(Output &output, const Line &line, std::string_view result) const {
    if (line.isQuoted)
      output.append(result.find('"') == std::string_view::npos ? std::string(result) : quoted(result));
    else if (needsQuotes(result, format.delimiter))
      output.append('"' + quoted(result) + '"');
    else
      output.append(result);
  }

  // Whether the result is read back as what it was.
  void check(std::size_t i, Mapped &mapped) {
    checked = mapped.result;
    switch (zelMappingCheck(mapping, texts.source(i), checked.c_str())) {
    case ZEL_CHECK_SAME:
      mapped.result = checked;
      return;
    case ZEL_CHECK_CASE_LOST:
      mapped.reason = reasonCaseLost;
      break;
    case ZEL_CHECK_OTHER:
      mapped.reason = reasonOtherObject;
      break;
    default:
      mapped.reason = reasonUnreadable;
    }
    mapped.position = chosen[i].textBegin - chosen[i].begin;
  }

  zelMapping mapping;
  LineFormat format;
  OnError onError;
  bool isChecked;
  Texts texts;
  std::vector<Line> chosen;
  std::string checked;
};

} // namespace

int runMap(const MappingSettings &mappingSettings, const LineSettings &lineSettings) {
  const LineFormat format = lineFormat(lineSettings);
  const Mapping mapping = makeMapping(mappingSettings);
  const bool isWhole = lineSettings.field.empty() && !lineSettings.isChecked &&
                       (lineSettings.onError == OnError::empty || lineSettings.onError == OnError::keep);
  std::vector<Work> works;
  for (std::size_t i = 0; i < jobCount(lineSettings); ++i) {
    if (isWhole)
      works.emplace_back([own = std::make_shared<WholeLines>(mapping.get(), format, lineSettings.onError)](
                             Block &block) { (*own)(block); });
    else
      works.emplace_back(
          [own = std::make_shared<ChosenTexts>(mapping.get(), format, lineSettings)](Block &block) { (*own)(block); });
  }
  Progress progress(lineSettings.isQuiet, true, format.end);
  Header header(lineSettings, format);
  std::uint64_t bytes = 0;
  bool hasFailed = false;
  runBlocks(
      lineSettings.files, format, std::move(works), [&](const LineReader &, Block &block) { return header(block); },
      [&](const LineReader &reader, const Block &block) {
        bytes += block.size;
        return progress.finish(reader, block);
      },
      hasFailed);
  progress.end(lineSettings.hasStats, bytes);
  if (hasFailed || progress.hasFailed() || closeOutput() != Written::all)
    return statusFailed;
  return progress.isRefused() ? statusRefused : statusDone;
}

} // namespace tool
