// The rules of spaces as tables of names: what a space writes, reads and takes for legal.
#ifndef SUPPORT_RULES_H
#define SUPPORT_RULES_H

#include "results.h"

#include <iterator>
#include <sstream>
#include <string>
#include <vector>

// A process-wide setting for the length of a scope.
template <auto get, auto set> class Setting {
public:
  explicit Setting(int value) : before(get()) { set(value); }
  ~Setting() { set(before); }
  Setting(const Setting &) = delete;
  Setting &operator=(const Setting &) = delete;

private:
  int before;
};
inline int vhdlMode() { return ZEL_VHDL_TYPE; }
using MapState = Setting<zelGetMapState, zelSetMapState>;
using VHDLMode = Setting<vhdlMode, zelSetVHDLMode>; // any but 0 also keeps the environment out

struct Space {
  std::string name;
  zelIsLegalFunc isLegal;
  zelNameToIdentFunc read;
  zelIdentToNameFunc write;
};

inline Space spaceOf(const std::string &name) {
  Space space = {name, nullptr, nullptr, nullptr};
  EXPECT_EQ(zelGetAllFuncs(name.c_str(), &space.isLegal, &space.read, &space.write), 0) << name;
  return space;
}

// Every space, the Ident space as well.
inline std::vector<Space> allSpaces() {
  std::vector<Space> spaces = {spaceOf("Ident")};
  for (const char *const *name = zelGetAllSpaceNames(); *name != nullptr; ++name)
    spaces.push_back(spaceOf(*name));
  return spaces;
}

// The words of a text, in which visible characters stand for others.
inline std::vector<std::string> split(const char *text) {
  constexpr const char *visible[][2] = {{"␣", " "}, {"·", " "}, {"␉", "\t"}, {"␊", "\n"}, {"␁", "\x01"}, {"é", "\xe9"}};
  std::istringstream stream(text);
  std::vector<std::string> words = {std::istream_iterator<std::string>(stream), {}};
  for (std::string &word : words)
    for (const auto &[shown, meant] : visible)
      for (std::size_t at = word.find(shown); at != std::string::npos; at = word.find(shown))
        word.replace(at, std::strlen(shown), meant);
  return words;
}

// "input→result input→result", with ✗ for a refusal with EINVAL.
struct Row {
  std::string input;
  Result result;
};

inline std::vector<Row> rowsOf(const char *text) {
  constexpr const char arrow[] = "→";
  std::vector<Row> rows;
  for (const std::string &word : split(text)) {
    const std::size_t at = word.find(arrow);
    EXPECT_NE(at, std::string::npos) << word;
    const std::string result = word.substr(at + std::strlen(arrow));
    rows.push_back({word.substr(0, at), result == "✗" ? Result() : result});
  }
  return rows;
}

// The tables of one space, or of several that do not differ in them.
struct Rules {
  const char *spaces;
  std::vector<int> states = {ZEL_MAP_VHDL, ZEL_MAP_DEFAULT, ZEL_MAP_TANDEM};
  const char *write = "";
  const char *read = "";
  const char *legal = "";
  const char *illegal = "";
};
inline const std::vector<int> allStates = {ZEL_MAP_VHDL, ZEL_MAP_DEFAULT, ZEL_MAP_TANDEM, ZEL_MAP_MATCH};

template <typename Conversion> void checkRows(const char *rows, Conversion conversion, const char *operation) {
  for (const Row &row : rowsOf(rows)) {
    EXPECT_EQ(convert(conversion, row.input.c_str()), row.result) << operation << " '" << row.input << "'";
    EXPECT_EQ(errno, row.result ? 0 : EINVAL) << operation << " '" << row.input << "'";
  }
}

inline void check(const Rules &rules) {
  for (const std::string &name : split(rules.spaces))
    for (const int state : rules.states) {
      SCOPED_TRACE(name + " in the mapping state " + std::to_string(state));
      const Space space = spaceOf(name);
      const MapState scope(state);
      checkRows(rules.write, space.write, "write");
      checkRows(rules.read, space.read, "read");
      for (const std::string &legal : split(rules.legal))
        EXPECT_EQ(space.isLegal(legal.c_str()), 1) << "legal: '" << legal << "'";
      for (const std::string &illegal : split(rules.illegal))
        EXPECT_EQ(space.isLegal(illegal.c_str()), 0) << "illegal: '" << illegal << "'";
    }
}

#endif
