// Where the texts to map lie in a block.
#ifndef ZEL_TOOL_FIELDS_H
#define ZEL_TOOL_FIELDS_H

#include "lines.h"
#include "settings.h"

namespace tool {

// A line, and of it the text to map: the line itself or a field.
struct Line {
  std::size_t begin;
  std::size_t end;  // without a carriage return and the line end
  std::size_t next; // the next line's beginning
  std::size_t textBegin;
  std::size_t textEnd;
  bool hasText;
  bool isQuoted;  // text lies between quotes
  bool isDoubled; // and has doubled ones in it
};

// The line that begins at a place of the bytes, with its field, from 1, or 0 for the whole line.
Line lineAt(std::string_view bytes, std::size_t begin, const LineFormat &format, std::uint32_t field);

// A quoted text with its quotes single.
std::string unquoted(std::string_view text);
// The place in a quoted text of a byte of what unquoted makes of it.
std::size_t quotedPosition(std::string_view text, std::size_t position);
// A text as it stands between quotes.
std::string quoted(std::string_view text);
// Whether a text has to stand between quotes.
bool needsQuotes(std::string_view text, char delimiter);

// The number of a column in a header line, from 1, or 0.
std::uint32_t columnCalled(std::string_view name, std::string_view bytes, const Line &header, const LineFormat &format);

// Which field of a block is meant: a number, or the column that the first line of the block's file calls so.
class Header {
public:
  Header(const LineSettings &settings, const LineFormat &lineFormat);

  // Throws a Complaint when there is no such column.
  bool operator()(Block &block);

private:
  LineFormat format;
  std::string name;
  std::uint32_t field;
  bool isNamed;
};

} // namespace tool

#endif
