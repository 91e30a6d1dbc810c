// A mapping: both directions of reading between two spaces, prepared once.
#ifndef ZEL_MAP_MAPPING_H
#define ZEL_MAP_MAPPING_H

#include "map/levelPath.h"

namespace zeli {

// The separators that a mapping chose for one side, and what names are under them.
struct ChosenSeparators {
  zelHandleRecord handle;
  ByteSet pathNameBytes;
  BackslashRules rules;
};

} // namespace zeli

struct zelMappingRecord {
  bool isNames;
  bool isLenient;
  zeli::Route route;

  // The keys of texts of either side, which tell equal objects.
  zeli::Route sourceKey;
  zeli::Route resultKey;

  // By handles, for what only the path object can do, and for lenient mappings.
  const zeli::PathLanguage *printing;
  zelHandle fromHandle;
  zelHandle toHandle;

  zeli::ChosenSeparators *chosen[2]; // null where the side keeps its own
};

namespace zeli {

// What texts are mapped in, one after the other. A result lies in it, or in the text.
struct MappingWork {
  LevelPath levels;
  Text readWork;
  Text writeWork;
  char items[maxName + 1];
  char source[LevelPath::longest + 2]; // a text with a NUL behind it
  char line[LevelPath::longest + 1];   // one whose end stands for white space
};

// Maps a text by one of the routes of a mapping; without data where it is refused.
Bytes mapText(const zelMappingRecord &mapping, const Route &route, Bytes text, MappingWork &work, zelRefusal &refusal);

} // namespace zeli

#endif
