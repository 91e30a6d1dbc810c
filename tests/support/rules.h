// The spaces by name, the process-wide settings, and tables of names in readable text.
#ifndef SUPPORT_RULES_H
#define SUPPORT_RULES_H

#include "results.h"

#include <cstring>
#include <iterator>
#include <sstream>
#include <vector>

// A process-wide setting for the length of a scope.
template <auto get, auto set> struct Setting {
  const int before = get();
  explicit Setting(int value) { set(value); }
  ~Setting() { set(before); }
};
inline int vhdlMode() { return ZEL_VHDL_TYPE; }
using MapState = Setting<zelGetMapState, zelSetMapState>;
using VHDLMode = Setting<vhdlMode, zelSetVHDLMode>; // any but 0 also keeps the environment out
inline const std::vector<int> allStates = {ZEL_MAP_VHDL, ZEL_MAP_DEFAULT, ZEL_MAP_TANDEM, ZEL_MAP_MATCH};

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
  std::vector<Row> rows;
  for (const std::string &word : split(text)) {
    const std::size_t arrow = word.find("→");
    const std::string result = word.substr(arrow + std::strlen("→"));
    rows.push_back({word.substr(0, arrow), result == "✗" ? Result() : result});
  }
  return rows;
}

inline zelSpace spaceOf(const std::string &name) { return zelGetSpaceByName(name.c_str()); }
// By name, the Ident space as well.
inline std::vector<std::string> allSpaces() {
  std::vector<std::string> names = {"Ident"};
  for (const char *const *name = zelGetAllSpaceNames(); *name != nullptr; ++name)
    names.emplace_back(*name);
  return names;
}

// By one of the two functions that make handles, which count the low bytes: pin delimiter, divider, bus brackets.
inline zelHandle makeHandle(decltype(&zelGetHandle) maker, const std::string &space, const std::string &separators) {
  const auto at = [&](std::size_t i) { return 0xffffff00U | static_cast<unsigned char>(separators[i]); };
  return maker(space.c_str(), at(0), at(1), at(2), at(3));
}

#endif
