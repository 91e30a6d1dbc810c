#include "fields.h"

#include <algorithm>

namespace tool {

namespace {

struct Field {
  std::size_t begin;
  std::size_t end;
  bool isQuoted;
  bool isDoubled;
};

// The field that begins at a place of a line of comma-separated values; end is behind a closing quote.
Field csvField(std::string_view bytes, std::size_t begin, char delimiter) {
  Field field = {begin, begin, false, false};
  CsvState state = CsvState::fieldStart;
  for (; field.end < bytes.size(); ++field.end) {
    const char c = bytes[field.end];
    if ((c == delimiter || c == '\n') && state != CsvState::quoted)
      break;
    const CsvState next = nextCsvState(state, c, delimiter);
    field.isQuoted = field.isQuoted || next == CsvState::quoted;
    field.isDoubled = field.isDoubled || (state == CsvState::quoteInQuoted && next == CsvState::quoted);
    state = next;
  }
  return field;
}

Line csvLine(std::string_view bytes, std::size_t begin, char delimiter, std::uint32_t wanted) {
  Line line = {begin, begin, begin, begin, begin, false, false, false};
  std::uint32_t number = 1;
  for (std::size_t at = begin;; ++number) {
    Field field = csvField(bytes, at, delimiter);
    const bool isLast = field.end == bytes.size() || bytes[field.end] == '\n';
    line.end = field.end;
    line.next = std::min(field.end + 1, bytes.size());
    if (isLast && field.end > at && bytes[field.end - 1] == '\r')
      line.end = --field.end;
    if (number == wanted) {
      // Behind a closing quote nothing is expected; where something stands, the field is as it is.
      line.isQuoted = field.isQuoted && field.end - at >= 2 && bytes[field.end - 1] == '"';
      line.isDoubled = line.isQuoted && field.isDoubled;
      line.textBegin = at + (line.isQuoted ? 1 : 0);
      line.textEnd = field.end - (line.isQuoted ? 1 : 0);
      line.hasText = true;
    }
    if (isLast)
      return line;
    at = line.next;
  }
}

} // namespace

Line lineAt(std::string_view bytes, std::size_t begin, const LineFormat &format, std::uint32_t field) {
  if (format.isCsv)
    return csvLine(bytes, begin, format.delimiter, field);
  const char *const start = bytes.data() + begin;
  const auto *found = static_cast<const char *>(std::memchr(start, format.end, bytes.size() - begin));
  const std::size_t lineEnd = found != nullptr ? static_cast<std::size_t>(found - bytes.data()) : bytes.size();
  const std::size_t next = found != nullptr ? lineEnd + 1 : lineEnd;
  const bool hasReturn = format.end == '\n' && lineEnd > begin && bytes[lineEnd - 1] == '\r';
  const std::size_t end = hasReturn ? lineEnd - 1 : lineEnd;
  Line line = {begin, end, next, begin, end, true, false, false};
  if (field == 0)
    return line;
  for (std::uint32_t number = 1;; ++number) {
    const auto *stop =
        static_cast<const char *>(std::memchr(bytes.data() + line.textBegin, format.delimiter, end - line.textBegin));
    line.textEnd = stop != nullptr ? static_cast<std::size_t>(stop - bytes.data()) : end;
    if (number == field)
      return line;
    if (stop == nullptr) {
      line.textBegin = line.textEnd = end;
      line.hasText = false;
      return line;
    }
    line.textBegin = line.textEnd + 1;
  }
}

std::string unquoted(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    plain += text[i];
    if (text[i] == '"')
      ++i;
  }
  return plain;
}

std::size_t quotedPosition(std::string_view text, std::size_t position) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < position && at < text.size(); ++i)
    at += text[at] == '"' ? 2 : 1;
  return at;
}

std::string quoted(std::string_view text) {
  std::string marked;
  for (const char c : text)
    marked += c == '"' ? std::string("\"\"") : std::string(1, c);
  return marked;
}

bool needsQuotes(std::string_view text, char delimiter) {
  return std::any_of(text.begin(), text.end(),
                     [delimiter](char c) { return c == delimiter || c == '"' || c == '\n' || c == '\r'; });
}

std::uint32_t columnCalled(std::string_view name, std::string_view bytes, const Line &header,
                           const LineFormat &format) {
  const std::string_view first = bytes.substr(0, header.next);
  for (std::uint32_t number = 1;; ++number) {
    const Line line = lineAt(first, header.begin, format, number);
    if (!line.hasText)
      return 0;
    const std::string_view text = first.substr(line.textBegin, line.textEnd - line.textBegin);
    if ((line.isDoubled ? unquoted(text) : std::string(text)) == name)
      return number;
  }
}

Header::Header(const LineSettings &settings, const LineFormat &lineFormat)
    : format(lineFormat), name(settings.field), field(fieldNumber(settings.field)),
      isNamed(field == 0 && !name.empty()) {}

bool Header::operator()(Block &block) {
  block.headerSize = 0;
  if (isNamed && block.beginsFile) {
    const Line header = lineAt(block.text(), 0, format, 1);
    field = columnCalled(name, block.text(), header, format);
    block.headerSize = header.next;
    if (field == 0)
      throw Complaint{statusUsage, std::string(block.file) + ": no column is called '" + name + "'"};
  }
  block.field = field;
  return true;
}

} // namespace tool
