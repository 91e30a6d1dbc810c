// The reserved words of a named revision of Verilog or VHDL, which a writer may avoid besides those of its space.
#ifndef ZEL_SPACES_KEYWORDREVISIONS_H
#define ZEL_SPACES_KEYWORDREVISIONS_H

#include "spaces/space.h"

namespace zeli {

struct KeywordRevision {
  const char *name; // without the publisher's
  bool isVHDL;
  KeywordTest isKeyword; // Verilog's words as they stand, VHDL's in any case
};
extern const KeywordRevision keywordRevisions[4];

// The revision of that name, which may begin with "IEEE " in any case. Null if there is none.
const KeywordRevision *findKeywordRevision(Bytes name);

} // namespace zeli

#endif
