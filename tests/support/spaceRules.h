// Rules of spaces, in tables under headings of the spaces that they hold in:
//
//     write    Sa b  \a#20b␣    in MATCH     an Ident and its name
//     read     \a    Ia                      a name and its Ident
//     both     SA+b  \A+b␣                   an Ident and its name, which is legal and read as that Ident
//     refused  1a $                          names that are neither legal nor read
//     legal    a \a␣
//     illegal  1a
//
// A result holds in every mapping state, or in those that stand behind it: "in MATCH", "not in VHDL TANDEM"; more such
// pairs may follow.
#ifndef SUPPORT_SPACERULES_H
#define SUPPORT_SPACERULES_H

#include "spaces.h"

inline bool holdsIn(const std::string &state, const std::string &condition) {
  const std::vector<std::string> words = wordsOf(condition);
  const bool isListed = std::find(words.begin(), words.end(), state) != words.end();
  return words.empty() || isListed == (words[0] == "in");
}

inline void expectRules(const char *file, int line, const char *table) {
  const VHDLMode mode(2);
  for (Row &row : rowsOf(file, line, table))
    for (const std::string &space : wordsOf(row.heading))
      for (const auto &[name, value] : mapStates) {
        const MapState state(value);
        const auto &[shownName, read, write, isLegal] = *spaceOf(space);
        const std::string where = std::string(space).append(", state ").append(name);
        const bool isBoth = row[0] == "both";
        for (std::size_t i = 2; i < row.cells.size(); i += 2)
          if (holdsIn(name, row[i + 1])) {
            if (row[0] == "write" || isBoth)
              row.expect(row[i], convert(write, row[1].c_str()), where);
            if (row[0] == "read" || isBoth)
              row.expect(isBoth ? row[1] : row[i], convert(read, row[isBoth ? i : 1].c_str()), where);
          }
        if (isBoth)
          row.expect("1", std::to_string(isLegal(row[2].c_str())), where + ", whether it is legal");
        if (row[0] == "legal" || row[0] == "illegal" || row[0] == "refused")
          for (const std::string &text : wordsOf(row.cells[1])) {
            const std::string given = std::string(text).append(", ").append(where);
            row.expect(row[0] == "legal" ? "1" : "0", std::to_string(isLegal(text.c_str())), given);
            row.expect("refused", row[0] == "refused" ? convert(read, text.c_str()) : "refused", given);
          }
      }
}

#endif
