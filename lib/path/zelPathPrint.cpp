// The printing driver.
#include "path/zelPathPrint.h"

#include "core/zelpvt.h"

#include "path/zelPathIdent.h"

#include <iterator>

using namespace zeli;

namespace {

bool endsName(std::uint8_t kind) {
  // Long repeats end a name and short ones do not; what is printed depends on it.
  switch (kind) {
  case kindGroupRepeat + 1:
  case kindList:
  case kindListStart:
  case kindListEnd:
  case kindIndexRepeat + 1:
    return true;
  default:
    return false;
  }
}

// The text of a name in front of its first node's item, which is the same for every combination that begins in the same
// state. Kept so that its identifiers are not written anew for every bit.
struct Prefix {
  bool isKnown = false;
  std::uint32_t startState = 0;
  std::uint32_t endState = 0;
  Bytes text;
};

// Writes one combination: the name from its start, each node's item replaced by the node's value. Returns where the
// name ended.
Cursor printCombination(PrintRun &run, ExplosionNode *first, const ExplosionNode *last, Prefix &prefix) {
  run.guard();
  const std::uint32_t startState = run.state;
  const std::size_t startSize = run.size;
  ExplosionNode *node = first;
  Cursor cursor = first->start;
  if (prefix.isKnown && prefix.startState == startState) {
    run.put(prefix.text);
    run.state = prefix.endState;
    cursor = first->item;
  }
  while (!cursor.atEnd()) {
    if (node != nullptr && node->item == cursor) {
      if (node == first)
        prefix = {true, startState, run.state, {run.text + startSize, run.size - startSize}};
      const IndexValue value = getIndexValue(node);
      if (value.item.atEnd())
        run.value(value.number);
      else
        run.item(value.item);
      cursor = node->end;
      node = node == last ? nullptr : node->next;
      continue;
    }
    if (endsName(cursor.kind()))
      break;
    run.item(cursor);
    cursor = cursor.next();
  }
  return cursor;
}

// Writes a name once for every combination of the values of its nodes, the last node varying fastest. Gives up once the
// text is over-long, so that an enumeration without end does end.
Cursor walkIndex(PrintRun &run, ExplosionNode *first) {
  ExplosionNode *last = first;
  while (last->next != nullptr && last->next->start == first->start)
    last = last->next;
  Prefix prefix;
  for (;;) {
    const Cursor end = printCombination(run, first, last, prefix);
    ExplosionNode *node = last;
    while (incrementIndex(node)) {
      if (node == first)
        return end;
      node = node->prev;
    }
    if (run.isOverlong())
      return end;
    run.alternative();
  }
}

void printItems(PrintRun &run, ExplosionNode *node) {
  Cursor cursor = firstItem(run.path);
  while (!cursor.atEnd()) {
    if (node == nullptr || node->start != cursor) {
      run.item(cursor);
      cursor = cursor.next();
      continue;
    }
    const Cursor start = cursor;
    cursor = walkIndex(run, node);
    while (node != nullptr && node->start == start)
      node = node->next;
  }
}

void openGroup(PrintRun &run) {
  if (run.language.writer.braces == Braces::verilog) {
    if ((zelPathGetFlag(run.path) & ZEL_PATH_SINGLE_VERILOG) != 0)
      return;
    run.put('{');
  }
  run.set(stateGroup);
}

} // namespace

// cppcheck-suppress uninitMemberVar ; the text is deliberately not cleared for every name
PrintRun::PrintRun(const PathLanguage &target, zelPath printedPath, zelHandle givenHandle, std::uint32_t mask,
                   bool isTransientPath)
    : language(target), path(printedPath), handle(separatingHandle(target, givenHandle)),
      marks(marksOf(handle, target.writer.marks)), state(mask), isTransient(isTransientPath) {}

void PrintRun::putNumber(std::int32_t number) {
  if (number < 0)
    put('-');
  auto magnitude = static_cast<std::uint32_t>(number);
  if (number < 0)
    magnitude = 0 - magnitude;
  char digits[10];
  char *const end = std::end(digits);
  char *first = end;
  do {
    *--first = static_cast<char>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude != 0);
  put(Bytes{first, static_cast<std::size_t>(end - first)});
}

void PrintRun::putIdent(const Ident &ident) {
  guard();
  if (!isNameLength(ident.body)) {
    refuse();
    return;
  }
  const Operations &names = *language.writer.names;
  Text work;
  const Bytes name = names.write(ident, {.handle = handle}, work);
  leaveHandle(names);
  if (name.size() > maxName)
    refuse();
  else if (name.data() != nullptr)
    put(name);
}

void PrintRun::putIdent(const char *ident) { putIdent(identOf(ident)); }

void PrintRun::putIdentAt(Cursor cursor) {
  if (isText(cursor.kind()) && isTransient) {
    const PathLanguage &source = *languageOf(path);
    Text work;
    const Ident ident = readText(source, path, cursor.chunk->slots[slotOf(cursor.kind())].string, work);
    leaveHandle(*source.names.read);
    putIdent(ident);
    return;
  }
  if (isText(cursor.kind()))
    zelStrToIdent(cursor.chunk, cursor.position);
  // Only memory keeps a text from becoming an Ident, be it a null one.
  if (isText(cursor.kind()))
    isOutOfMemory = true;
  else
    putIdent(cursor.chunk->slots[slotOf(cursor.kind())].string);
}

void PrintRun::item(Cursor cursor) {
  guard();
  language.writer.printer->item(*this, cursor);
}

void PrintRun::value(std::int32_t index) {
  guard();
  language.writer.printer->value(*this, index);
}

void PrintRun::alternative() {
  guard();
  language.writer.printer->alternative(*this);
}

char *zeli::printPath(const PathLanguage &language, zelPath path, zelHandle handle, std::int32_t flags,
                      zelAllocFunc alloc, void *context, bool isTransient) {
  if (firstItem(path).atEnd())
    return makeString("", alloc, context);
  const auto isAsked = [flags](int flag) { return (flags & flag) != 0; };

  const ItemPrinter &printer = *language.writer.printer;
  std::uint32_t mask = printer.mask;
  if (isAsked(ZEL_PRINT_EXPLODE))
    mask |= printer.explodeMask;
  if (isAsked(ZEL_PRINT_NOREPEAT))
    mask |= printer.noRepeatMask;
  Explosion explosion;
  if (mask != 0)
    setupExplode(explosion, path, mask);

  char *result = nullptr;
  if (explosion.isWhole) {
    PrintRun run(language, path, handle, mask, isTransient);
    if (isAsked(ZEL_PRINT_TOP))
      run.set(stateTopOfHierarchy);
    if (isAsked(ZEL_PRINT_GROUP))
      openGroup(run);
    printItems(run, explosion.first);
    printer.finish(run);
    // A handle of FlatTessel, which has no divider, ends a text of levels at the first.
    run.text[run.size] = '\0';
    if (run.isOutOfMemory)
      errno = ENOMEM;
    else
      result = makeString(nameBytes(run.text), alloc, context);
  }
  freeExpl(explosion);
  return result;
}
