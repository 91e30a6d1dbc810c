// Expanding the item forms that a target cannot write: index lists, index repeats, step ranges, and ranges when single
// bits are wanted. Each becomes a node that enumerates its values from the path's own bytes, and a name is written
// once for every combination of the values of its nodes.
#ifndef ZEL_PATH_ZELPATHEXPLODE_H
#define ZEL_PATH_ZELPATHEXPLODE_H

#include "path/zelPath.h"

namespace zeli {

// Which forms to expand.
enum ExplodeMask : std::uint32_t {
  explodeGroupRepeat = 1, // marked only: a group is never multiplied out
  explodeRange = 2,
  explodeStep = 4,
  explodeMulti = 8,        // an index directly followed by another
  explodeIndexRepeat = 16, // an index directly followed by a repeat
  explodeAll = 31
};

enum class NodeKind { groupRepeat, range, step, list, repeat };

struct ExplosionNode {
  NodeKind kind;
  ExplosionNode *next;    // in path order: of the path's nodes, or inside the parent
  ExplosionNode *prev;    // likewise
  ExplosionNode *child;   // of a list, the first element that has a node; of a repeat, what it repeats
  ExplosionNode *parent;  // the list or repeat that moves on when this one has run through its values
  ExplosionNode *only;    // of a list of one element, or a repeat that repeats nothing: where all its values come from
  ExplosionNode *current; // where the current value comes from, of a node of the path; null before the first value
  ExplosionNode *made;    // the node made before, for the release

  Cursor start; // where the name begins that is written for every value
  Cursor item;  // the item whose value varies (none in a group repeat)
  Cursor end;   // behind what the node covers

  // The place in the enumeration.
  std::int32_t counter; // range, step, repeat
  Cursor element;       // list: the current element ...
  ExplosionNode *ahead; // ... and the first child at it or behind it

  Cursor firstElement; // list
  Cursor lastElement;  // list: behind the last one
  std::int32_t count;  // repeat
};

// The nodes of one printing run.
struct Explosion {
  ExplosionNode *first = nullptr;
  ExplosionNode *last = nullptr;
  ExplosionNode *made = nullptr;
  bool isWhole = true; // false when memory ran out
};

// Whether a path has anything that the mask may expand. A path without needs no setup.
bool isExpanded(const zelPathRecord *path, std::uint32_t mask);

// Finds what the mask expands. Ends the process when a bracketed index list stands where it cannot be expanded.
void setupExplode(Explosion &explosion, zelPath path, std::uint32_t mask);
void freeExpl(Explosion &explosion);

// The current value of a node: a number, or an item to be printed as it stands.
struct IndexValue {
  Cursor item; // at the end of the path when number holds
  std::int32_t number;
};
IndexValue getIndexValue(ExplosionNode *node);

// Moves a node to its next value; true when it has run through all of them and stands at the first again.
bool incrementIndex(ExplosionNode *node);

// Whether the values of a node are those of a range or step range alone: numbers at equal distances.
bool hasNumbers(const ExplosionNode *node);

// The numbers of such a node that are still to come, from the one that it stands at.
struct NodeValues {
  std::int64_t next;
  std::int64_t step; // to the next value
  std::int64_t last;
  bool isRising; // whether values end above last, or below it

  bool areOver() const { return isRising ? next > last : next < last; }
};
NodeValues valuesFrom(const ExplosionNode *node);

} // namespace zeli

#endif
