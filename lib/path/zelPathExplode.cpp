#include "path/zelPathExplode.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>

using namespace zeli;

namespace {

bool isIndexLike(std::uint8_t kind) {
  return isAnyIndex(kind) || kind == kindIndexListStart || kind == kindIndexListEnd;
}

bool isRepeat(Cursor cursor) { return !cursor.atEnd() && isForm(cursor.kind(), kindIndexRepeat); }

// Setup ----------------------------------------------------------------------------------------------------------

ExplosionNode *makeNode(Explosion &explosion, NodeKind kind, Cursor item) {
  auto *node = static_cast<ExplosionNode *>(std::calloc(1, sizeof(ExplosionNode)));
  if (node == nullptr) {
    explosion.isWhole = false;
    errno = ENOMEM;
    return nullptr;
  }
  node->kind = kind;
  node->item = item;
  node->made = explosion.made;
  explosion.made = node;
  return node;
}

void link(Explosion &explosion, ExplosionNode *node, Cursor anchor) {
  node->start = anchor;
  node->prev = explosion.last;
  (explosion.last == nullptr ? explosion.first : explosion.last->next) = node;
  explosion.last = node;
}

// The node below any that only pass its values on: however deep the brackets are, a value costs no walk through them.
ExplosionNode *source(ExplosionNode *node) { return node->only != nullptr ? node->only : node; }

void setParent(ExplosionNode *inner, ExplosionNode *outer) {
  inner->parent = outer;
  source(inner)->parent = outer;
}

// While a list is being set up, its ahead is its last child.
void adopt(ExplosionNode *list, ExplosionNode *node) {
  setParent(node, list);
  node->prev = list->ahead;
  (list->ahead == nullptr ? list->child : list->ahead->next) = node;
  list->ahead = node;
}

void disown(ExplosionNode *list, const ExplosionNode *lastChild) {
  list->ahead = lastChild->prev;
  (list->ahead == nullptr ? list->child : list->ahead->next) = nullptr;
}

void beginList(ExplosionNode *list, Cursor firstElement) { list->firstElement = list->element = firstElement; }

void endList(ExplosionNode *list, Cursor lastElement, Cursor end) {
  list->lastElement = lastElement;
  list->end = end;
  list->ahead = list->child;
  ExplosionNode *const child = list->child;
  if (child != nullptr && child->item == list->firstElement && child->end == lastElement) {
    list->only = source(child);
    setParent(list, list->parent);
  }
}

// The node of a range or step range that the mask expands.
ExplosionNode *makeValueNode(Explosion &explosion, Cursor item, std::uint32_t mask) {
  const std::uint8_t kind = item.kind();
  ExplosionNode *node = nullptr;
  if (isForm(kind, kindRange) && (mask & explodeRange) != 0)
    node = makeNode(explosion, NodeKind::range, item);
  else if (isForm(kind, kindStepRange) && (mask & explodeStep) != 0)
    node = makeNode(explosion, NodeKind::step, item);
  if (node != nullptr)
    node->end = item.next();
  return node;
}

// A node for an index and the repeat behind it. child is the node of the index, if it has one.
ExplosionNode *makeRepeatNode(Explosion &explosion, Cursor index, Cursor repeat, ExplosionNode *child) {
  ExplosionNode *node = makeNode(explosion, NodeKind::repeat, index);
  if (node == nullptr)
    return nullptr;
  node->count = repeat.number(0);
  node->end = repeat.next();
  node->child = child;
  if (child != nullptr)
    setParent(child, node);
  if (child != nullptr && node->count <= 0)
    node->only = source(child);
  return node;
}

ExplosionNode *setupExplodeIRepeat(Explosion &explosion, Cursor index) {
  // What is repeated is written value by value, whatever the mask says of ranges elsewhere.
  ExplosionNode *child = makeValueNode(explosion, index, explodeAll);
  return explosion.isWhole ? makeRepeatNode(explosion, index, index.next(), child) : nullptr;
}

// A node for the run of indexes at cursor; bracketed lists inside it are elements of their own. Null without memory.
ExplosionNode *setupExplodeMulti(Explosion &explosion, Cursor cursor, std::uint32_t mask) {
  ExplosionNode *const run = makeNode(explosion, NodeKind::list, cursor);
  if (run == nullptr)
    return nullptr;
  beginList(run, cursor);

  ExplosionNode *list = run;
  while (!cursor.atEnd() && isIndexLike(cursor.kind())) {
    const Cursor item = cursor;
    cursor = cursor.next();
    ExplosionNode *element = nullptr;
    if (item.kind() == kindIndexListStart) {
      element = makeNode(explosion, NodeKind::list, item);
      if (element == nullptr)
        return nullptr;
      beginList(element, cursor);
      adopt(list, element);
      list = element;
      continue;
    }
    if (item.kind() == kindIndexListEnd) {
      if (list == run)
        continue;
      endList(list, item, cursor);
      if (!isRepeat(cursor)) {
        list = list->parent;
        continue;
      }
      ExplosionNode *const repeated = list;
      list = list->parent;
      disown(list, repeated);
      element = makeRepeatNode(explosion, repeated->item, cursor, repeated);
    } else if (isRepeat(cursor)) {
      element = setupExplodeIRepeat(explosion, item);
    } else {
      element = makeValueNode(explosion, item, mask);
    }
    if (!explosion.isWhole)
      return nullptr;
    if (element != nullptr) {
      adopt(list, element);
      cursor = element->end;
    }
  }
  for (; list != nullptr; list = list->parent)
    endList(list, cursor, cursor);
  return run;
}

// The node for an index that stands in front of another index or a repeat; null when the mask leaves it alone.
ExplosionNode *setupCombined(Explosion &explosion, Cursor cursor, Cursor behind, std::uint32_t mask) {
  if (!isIndexLike(cursor.kind()) || behind.atEnd())
    return nullptr;
  if (isIndexLike(behind.kind()) && (mask & explodeMulti) != 0)
    return setupExplodeMulti(explosion, cursor, mask);
  if (isRepeat(behind) && (mask & explodeIndexRepeat) != 0)
    return setupExplodeIRepeat(explosion, cursor);
  return nullptr;
}

[[noreturn]] void stopAtIllegalPosition() {
  std::fflush(stdout);
  std::fputs("setupExplode: Illegal position in zelPath\n", stderr);
  std::abort();
}

// Where the group that begins behind a repeat ends. What is inside is not expanded.
Cursor groupEnd(Explosion &explosion, Cursor cursor, std::uint32_t mask) {
  // A repeat in front of a separator takes the rest of the list with it.
  const bool takesList = !cursor.atEnd() && cursor.kind() == kindList;
  while (!cursor.atEnd() && explosion.isWhole) {
    const std::uint8_t kind = cursor.kind();
    const Cursor behind = cursor.next();
    if (kind == kindListEnd)
      return takesList ? behind : cursor;
    if (kind == kindList && !takesList)
      return cursor;
    const ExplosionNode *node = setupCombined(explosion, cursor, behind, mask);
    if (node == nullptr && (kind == kindIndexListStart || kind == kindIndexListEnd) && explosion.isWhole)
      stopAtIllegalPosition();
    cursor = node != nullptr ? node->end : behind;
  }
  return {};
}

// Values ---------------------------------------------------------------------------------------------------------

// The node of the current element of a list, if it has one.
ExplosionNode *currentChild(const ExplosionNode *list) {
  return list->ahead != nullptr && list->ahead->item == list->element ? list->ahead : nullptr;
}

// The innermost node that the current value of a node comes from.
ExplosionNode *active(ExplosionNode *node) {
  for (;;) {
    ExplosionNode *inner = node->only;
    if (inner == nullptr && node->kind == NodeKind::list)
      inner = currentChild(node);
    else if (inner == nullptr && node->kind == NodeKind::repeat)
      inner = node->child;
    if (inner == nullptr)
      return node;
    node = inner;
  }
}

// The values of a range or step range from the one that its counter gives.
NodeValues valuesAt(const ExplosionNode *node, std::int64_t counter) {
  const std::int64_t first = node->item.number(0);
  const std::int64_t last = node->item.number(1);
  const std::int64_t step = node->kind == NodeKind::step ? node->item.number(2) : 1;
  const bool isRising = first < last;
  const std::int64_t signedStep = isRising ? step : -step;
  return {first + counter * signedStep, signedStep, last, isRising};
}

// A bracket that a cut path ends in.
bool isEmpty(const ExplosionNode *list) { return list->firstElement == list->lastElement; }

// Carries --------------------------------------------------------------------------------------------------------

// Moves one node on, those inside it having run through their values.
bool advance(ExplosionNode *node) {
  switch (node->kind) {
  case NodeKind::range:
  case NodeKind::step:
    if (!valuesAt(node, ++node->counter).areOver())
      return false;
    node->counter = 0;
    return true;
  case NodeKind::list:
    if (isEmpty(node))
      return true;
    if (const ExplosionNode *child = currentChild(node); child != nullptr) {
      node->element = child->end;
      node->ahead = child->next;
    } else {
      node->element = node->element.next();
    }
    if (node->element != node->lastElement)
      return false;
    node->element = node->firstElement;
    node->ahead = node->child;
    return true;
  case NodeKind::repeat:
    if (node->counter < node->count) {
      ++node->counter;
      return false;
    }
    node->counter = 0;
    return true;
  case NodeKind::groupRepeat:
    break;
  }
  return true;
}

} // namespace

bool zeli::isExpanded(const zelPathRecord *path, std::uint32_t mask) {
  bool isBehindIndex = false;
  for (const zelPathRecord *chunk = path; chunk != nullptr && chunk->used != 0; chunk = chunk->next)
    for (std::size_t position = 0; position < chunk->used;) {
      const std::uint8_t kind = chunk->items[position];
      position += itemSize(kind);
      std::uint32_t forms = 0;
      if (isForm(kind, kindRange))
        forms = explodeRange;
      else if (isForm(kind, kindStepRange))
        forms = explodeStep;
      else if (isForm(kind, kindGroupRepeat))
        forms = explodeGroupRepeat;
      else if (isForm(kind, kindIndexRepeat))
        forms = explodeIndexRepeat;
      else if (isIndexLike(kind) && !isAnyIndex(kind))
        forms = explodeAll; // a bracket may also be illegal
      if (isAnyIndex(kind) && isBehindIndex)
        forms |= explodeMulti;
      if ((forms & mask) != 0)
        return true;
      isBehindIndex = isAnyIndex(kind);
    }
  return false;
}

void zeli::setupExplode(Explosion &explosion, zelPath path, std::uint32_t mask) {
  // The first identifier of the name being read is the anchor of its nodes.
  Cursor anchor = firstItem(path);
  bool isAnchorPending = true;
  for (Cursor cursor = anchor; !cursor.atEnd() && explosion.isWhole;) {
    const std::uint8_t kind = cursor.kind();
    const Cursor behind = cursor.next();
    if (ExplosionNode *node = setupCombined(explosion, cursor, behind, mask); node != nullptr) {
      link(explosion, node, anchor);
      cursor = node->end;
      continue;
    }
    if (!explosion.isWhole)
      return;

    switch (kind) {
    case kindRange:
    case kindRange + 1:
    case kindStepRange:
    case kindStepRange + 1:
      isAnchorPending = false;
      if (ExplosionNode *node = makeValueNode(explosion, cursor, mask); node != nullptr)
        link(explosion, node, anchor);
      break;
    case kindIndexRepeat:
    case kindIndexRepeat + 1:
      isAnchorPending = false;
      break;
    case kindGroupRepeat:
    case kindGroupRepeat + 1:
      isAnchorPending = true;
      if ((mask & explodeGroupRepeat) != 0) {
        ExplosionNode *node = makeNode(explosion, NodeKind::groupRepeat, {});
        if (node == nullptr)
          return;
        node->end = groupEnd(explosion, behind, mask);
        link(explosion, node, cursor);
        cursor = node->end;
        continue;
      }
      break;
    case kindList:
    case kindListStart:
    case kindListEnd:
      isAnchorPending = true;
      break;
    case kindIndexListStart:
    case kindIndexListEnd:
      stopAtIllegalPosition();
    default:
      if (isAnchorPending && kind >= kindOwnedIdent && kind < kindEnd) {
        anchor = cursor;
        isAnchorPending = false;
      }
    }
    cursor = behind;
  }
}

void zeli::freeExpl(Explosion &explosion) {
  while (explosion.made != nullptr) {
    ExplosionNode *node = explosion.made;
    explosion.made = node->made;
    std::free(node);
  }
}

IndexValue zeli::getIndexValue(ExplosionNode *node) {
  if (node->current == nullptr)
    node->current = active(node);
  node = node->current;
  switch (node->kind) {
  case NodeKind::list:
    return {isEmpty(node) ? node->item : node->element, 0};
  case NodeKind::repeat:
    return {node->item, 0};
  case NodeKind::range:
  case NodeKind::step:
    return {{}, static_cast<std::int32_t>(valuesAt(node, node->counter).next)};
  case NodeKind::groupRepeat:
    break;
  }
  return {{}, -1};
}

bool zeli::incrementIndex(ExplosionNode *node) {
  // What only passes values on is skipped, also when it is the outermost.
  const ExplosionNode *const outermost = source(node);
  ExplosionNode *inner = node->current != nullptr ? node->current : active(node);
  bool carries = advance(inner);
  while (carries && inner != node && inner != outermost) {
    inner = inner->parent;
    carries = advance(inner);
  }
  node->current = active(inner);
  return carries;
}

bool zeli::hasNumbers(const ExplosionNode *node) {
  return node->kind == NodeKind::range || node->kind == NodeKind::step;
}

NodeValues zeli::valuesFrom(const ExplosionNode *node) { return valuesAt(node, node->counter); }
