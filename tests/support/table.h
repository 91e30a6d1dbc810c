// Tables of readable text, one row a line, with two blanks or more between the cells:
//
//     Verilog KirraHDL:                  what stands alone before a colon is the heading of the rows below it
//       write  Imodule  \module␣         // a reason is no cell
//
// A row that does not hold fails once, at its own line of the file and as it stands there, with the first of what was
// found instead, in however many spaces, states and kinds of memory it was tried.
#ifndef SUPPORT_TABLE_H
#define SUPPORT_TABLE_H

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <deque>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#define HERE __FILE__, __LINE__ // in front of the text of a table, on the line where it begins

// What stands in a table for bytes that one would not see, or that the file cannot hold.
struct VisibleByte {
  std::string_view shown;
  char meant;
};
inline constexpr VisibleByte visibleBytes[] = {{"␣", ' '}, {"␉", '\t'}, {"␊", '\n'}, {"␁", '\x01'}, {"é", '\xe9'}};

// The text that a cell stands for; "" stands for the empty one.
inline std::string decoded(std::string text) {
  if (text == "\"\"")
    return "";
  for (const auto &[shown, meant] : visibleBytes)
    for (std::size_t at = text.find(shown); at != std::string::npos; at = text.find(shown))
      text.replace(at, shown.size(), 1, meant);
  return text;
}

// A text as a cell shows it, shortened when nobody would read it to its end.
inline std::string shown(const std::string &text) {
  std::string result = text.empty() ? "\"\"" : "";
  for (const char c : text.substr(0, 200)) {
    char code[8];
    std::snprintf(code, sizeof code, "<%02x>", static_cast<unsigned>(static_cast<unsigned char>(c)));
    std::string_view form = c > ' ' && c < '\x7f' ? std::string_view(&c, 1) : code;
    for (const VisibleByte &byte : visibleBytes)
      form = byte.meant == c ? byte.shown : form;
    result += form;
  }
  return text.size() > 200 ? result + "… (" + std::to_string(text.size()) + " bytes)" : result;
}

// The words of a text, each of them decoded.
inline std::vector<std::string> wordsOf(const std::string &text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;)
    words.push_back(decoded(word));
  return words;
}

class Row {
public:
  const std::string heading;
  std::vector<std::string> cells; // as they stand

  Row(const char *inFile, int atLine, std::string under, std::string standing)
      : heading(std::move(under)), file(inFile), line(atLine), text(std::move(standing)) {
    for (std::size_t at = 0; at < text.size(); at = text.find_first_not_of(' ', at)) {
      const std::size_t end = std::min(text.find("  ", at), text.size());
      const std::string cell = text.substr(at, end - at);
      if (cell.starts_with("// "))
        break;
      cells.push_back(cell);
      at = end;
    }
  }
  Row(const Row &) = delete;
  Row &operator=(const Row &) = delete;
  ~Row() {
    if (!isTried)
      ADD_FAILURE_AT(file, line) << text << "\n  was not tried";
  }

  // What a cell stands for; empty where the row has ended.
  std::string operator[](std::size_t i) const { return i < cells.size() ? decoded(cells[i]) : ""; }

  void expect(const std::string &expected, const std::string &found, const std::string &where = "") {
    isTried = true;
    if (expected != found && !hasFailed)
      ADD_FAILURE_AT(file, line) << text << "\n  found " << shown(found) << (where.empty() ? "" : " in " + where);
    hasFailed = hasFailed || expected != found;
  }

  // For what is tried by other means than expect, while the result lives.
  testing::ScopedTrace trace() {
    isTried = true;
    return {file, line, text};
  }

private:
  const char *file;
  int line;
  std::string text; // as it stands in the file
  bool isTried = false;
  bool hasFailed = false;
};

// for (Row &row : rowsOf(HERE, R"(...)"))
//   row.expect(row[1], f(row[0]));
inline std::deque<Row> rowsOf(const char *file, int line, const char *table) {
  std::deque<Row> rows;
  std::istringstream lines(table);
  std::string heading;
  for (std::string text; std::getline(lines, text); ++line) {
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    const bool isComment = text.empty() || text.starts_with("// ");
    if (!isComment && text.back() == ':' && text.find("  ") == std::string::npos)
      heading = text.substr(0, text.size() - 1);
    else if (!isComment)
      rows.emplace_back(file, line, heading, text);
  }
  return rows;
}

#endif
