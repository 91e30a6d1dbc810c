// Rules of spaces, in tables under headings of the spaces that they hold in:
//
//     write    Sa b  \a#20b␣    in MATCH     an Ident and its name
//     read     \a    refused                 a name and its Ident; refused: null with EINVAL
//     legal    a
//     illegal  1a
//
// They hold in every mapping state, or in those that end the row: "in MATCH", "not in VHDL TANDEM".
#ifndef SUPPORT_SPACERULES_H
#define SUPPORT_SPACERULES_H

#include "spaces.h"

inline bool holdsIn(const std::string &state, const Row &row) {
  const std::vector<std::string> words = wordsOf(row.cells.back());
  const bool isListed = std::find(words.begin(), words.end(), state) != words.end();
  if (row.cells.size() < 3 || words.empty())
    return true;
  return words[0] == "in" ? isListed : words[0] == "not" ? !isListed : true;
}

inline std::string appliedTo(const std::string &space, const Row &row) {
  const auto &[shown, read, write, isLegal] = *spaceOf(space);
  if (row[0] == "write")
    return convert(write, row[1].c_str());
  if (row[0] == "read")
    return convert(read, row[1].c_str());
  return isLegal(row[1].c_str()) == 1 ? "legal" : "illegal";
}

inline void expectRules(const char *file, int line, const char *table) {
  const VHDLMode mode(2);
  for (Row &row : rowsOf(file, line, table)) {
    const bool isConversion = row[0] == "write" || row[0] == "read";
    for (const std::string &space : wordsOf(row.heading))
      for (const auto &[name, value] : mapStates)
        if (const MapState state(value); holdsIn(name, row))
          row.expect(row[isConversion ? 2 : 0], appliedTo(space, row),
                     std::string(space).append(", state ").append(name));
  }
}

#endif
