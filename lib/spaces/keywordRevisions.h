// The reserved words of a named revision of Verilog or VHDL, which a writer may avoid besides those of its space.
#ifndef ZEL_SPACES_KEYWORDREVISIONS_H
#define ZEL_SPACES_KEYWORDREVISIONS_H

#include "core/text.h"

namespace zeli {

struct KeywordRevision {
  const char *name; // without the publisher's
  bool isVHDL;
  bool (*isKeyword)(const Name &word);
};

// Verilog's words as they stand, VHDL's in any case.
bool isKeyword1364_2001(const Name &word);
bool isKeyword1364_2005(const Name &word);
bool isKeyword1800_2017(const Name &word);
bool isKeyword1076_2008(const Name &word);

inline constexpr KeywordRevision keywordRevisions[] = {{"1364-2001", false, isKeyword1364_2001},
                                                       {"1364-2005", false, isKeyword1364_2005},
                                                       {"1800-2017", false, isKeyword1800_2017},
                                                       {"1076-2008", true, isKeyword1076_2008}};

// The revision of that name, which may begin with "IEEE " in any case. Null if there is none.
const KeywordRevision *findKeywordRevision(Bytes name);

} // namespace zeli

#endif
