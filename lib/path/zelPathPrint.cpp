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

// What is kept of a combination for the next: the text in front of the last node's item, which is the same as long as
// no other node moves on and combinations begin in the same state, so that identifiers are not written anew for every
// bit; and where the last node's number stands.
struct Combination {
  bool isKnown = false;
  std::uint32_t startState = 0;
  std::uint32_t endState = 0;
  Bytes prefix;
  std::size_t numberStart = 0;
  std::size_t numberEnd = 0;
};

// Writes one combination: the name from its start, each node's item replaced by the node's value. Returns where the
// name ended.
Cursor printCombination(PrintRun &run, ExplosionNode *first, ExplosionNode *last, Combination &known) {
  run.guard();
  const std::uint32_t startState = run.state;
  const std::size_t startSize = run.size;
  ExplosionNode *node = first;
  Cursor cursor = first->start;
  if (known.isKnown && known.startState == startState) {
    run.put(known.prefix);
    run.state = known.endState;
    cursor = last->item;
    node = last;
  }
  while (!cursor.atEnd()) {
    if (node != nullptr && node->item == cursor) {
      if (node == last)
        known = {true, startState, run.state, {run.text + startSize, run.size - startSize}};
      const IndexValue value = getIndexValue(node);
      if (value.item.atEnd())
        run.value(value.number);
      else
        run.item(value.item);
      if (node == last) {
        known.numberStart = run.numberStart;
        known.numberEnd = run.numberEnd;
      }
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

// Writes the combinations behind two that began in the same state: what stands between their numbers stands in front of
// each further one, too.
void repeatCombination(PrintRun &run, std::size_t numberEnd, const Combination &known, NodeValues values) {
  constexpr std::size_t block = 16;
  char between[maxName + block];
  const std::size_t size = known.numberStart - numberEnd;
  std::memcpy(between, run.text + numberEnd, size);
  // It begins with the end of a name, which is taken back here.
  const Bytes nameEnd = {between, run.size - known.numberEnd};
  char *end = run.text + known.numberEnd;
  const char *const longest = run.text + maxName;
  for (; !values.areOver() && end <= longest; values.next += values.step) {
    for (std::size_t at = 0; at < size; at += block)
      std::memcpy(end + at, between + at, block);
    end = writeNumber(end + size, static_cast<std::int32_t>(values.next));
  }
  run.size = static_cast<std::size_t>(end - run.text);
  run.guard();
  run.put(nameEnd);
}

// Writes a name once for every combination of the values of its nodes, the last node varying fastest. Gives up once the
// text is over-long, so that an enumeration without end does end.
Cursor walkIndex(PrintRun &run, ExplosionNode *first) {
  ExplosionNode *last = first;
  while (last->next != nullptr && last->next->start == first->start)
    last = last->next;
  Combination known;
  for (;;) {
    const bool isLikeLast = known.isKnown && known.startState == run.state;
    const std::size_t lastNumberEnd = known.numberEnd;
    const Cursor end = printCombination(run, first, last, known);
    ExplosionNode *node = last;
    bool carries = incrementIndex(node);
    if (!carries && isLikeLast && hasNumbers(last) && !run.isOverlong()) {
      repeatCombination(run, lastNumberEnd, known, valuesFrom(last));
      last->counter = 0;
      carries = true;
    }
    while (carries) {
      if (node == first)
        return end;
      known.isKnown = false;
      node = node->prev;
      carries = incrementIndex(node);
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
                   TransientNames *transientNames)
    : language(target), path(printedPath), handle(separatingHandle(target, givenHandle)),
      marks(marksOf(handle, target.writer.marks)), state(mask), transient(transientNames) {}

void PrintRun::putNumber(std::int32_t number) {
  numberStart = size;
  numberEnd = size = static_cast<std::size_t>(writeNumber(text + size, number) - text);
}

// Nothing is written of an Ident that the target cannot hold.
bool PrintRun::putIdent(const Ident &ident, const Operations &names, const Setting &setting) {
  guard();
  if (!isNameLength(ident.body)) {
    refuse();
    return false;
  }
  Text work;
  const Spelled name = names.write(ident, setting, work);
  leaveHandle(names);
  if (name.size() > maxName)
    refuse();
  else if (!name.isRefused())
    putName(name);
  return !name.isRefused() && name.size() <= maxName;
}

void PrintRun::putIdent(const char *ident) { putIdent(identOf(ident), *language.writer.names, {.handle = handle}); }

void PrintRun::putIdentAt(Cursor cursor) {
  const char *const name = cursor.chunk->slots[slotOf(cursor.kind())].string;
  if (isText(cursor.kind()) && transient != nullptr) {
    if (transient->isBehindIndex(name))
      transient->refuse(name, ZEL_REASON_UNEXPECTED_CHARACTER);
    Text work;
    const Ident ident =
        readText(*languageOf(path), path, name, *transient->read, transient->from, work, transient->tested);
    leaveHandle(*transient->read);
    if (!putIdent(ident, *transient->written, transient->to))
      transient->refuse(name, ident.body.data() == nullptr ? ZEL_REASON_NOT_CONVERTED : ZEL_REASON_NOT_WRITABLE);
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

void PrintRun::putUnprintable(Cursor cursor) {
  put(unprintable);
  if (transient != nullptr)
    transient->refuse(transient->text, isLib(cursor.kind()) ? ZEL_REASON_NOT_CONVERTED : ZEL_REASON_NOT_WRITABLE);
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
                      zelAllocFunc alloc, void *context, TransientNames *transient) {
  if (firstItem(path).atEnd())
    return makeString(Bytes(""), alloc, context);
  const auto isAsked = [flags](int flag) { return (flags & flag) != 0; };

  const ItemPrinter &printer = *language.writer.printer;
  std::uint32_t mask = printer.mask;
  if (isAsked(ZEL_PRINT_EXPLODE))
    mask |= printer.explodeMask;
  if (isAsked(ZEL_PRINT_NOREPEAT))
    mask |= printer.noRepeatMask;
  Explosion explosion;
  if (mask != 0 && isExpanded(path, mask))
    setupExplode(explosion, path, mask);

  char *result = nullptr;
  if (explosion.isWhole) {
    PrintRun run(language, path, handle, mask, transient);
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
