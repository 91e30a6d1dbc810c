// Paths in VHDL: levels introduced by ':', ranges with their direction, library references.
#include "path/zelPathPrint.h"

using namespace zeli;

namespace {

void printLib(PrintRun &run, Cursor cursor) {
  const Slot *names = cursor.chunk->slots + slotOf(cursor.kind());
  const bool hasView = cursor.kind() >= kindLibView;
  run.put('@');
  if (names[0].string != nullptr) {
    run.putIdent(names[0].string);
    run.put('.');
  }
  if (names[1].string != nullptr)
    run.putIdent(names[1].string);
  if (hasView && names[2].string != nullptr) {
    run.put('(');
    run.putIdent(names[2].string);
    run.put(')');
  }
  run.set(stateAfterIdent);
}

void printIndex(PrintRun &run, std::int32_t index) {
  run.put('(');
  run.putNumber(index);
  run.put(')');
}

void printRange(PrintRun &run, std::int32_t from, std::int32_t to) {
  run.put('(');
  run.putNumber(from);
  run.put(from > to ? " downto " : " to ");
  run.putNumber(to);
  run.put(')');
}

void printItem(PrintRun &run, Cursor cursor) {
  const std::uint8_t kind = cursor.kind();
  if (isIdent(kind)) {
    if ((run.path->flags & flagHierarchy) != 0)
      run.put(':');
    run.putIdentAt(cursor);
    run.set(stateAfterIdent);
  } else if (isForm(kind, kindIndex)) {
    printIndex(run, cursor.number(0));
  } else if (isForm(kind, kindRange)) {
    printRange(run, cursor.number(0), cursor.number(1));
  } else if (kind == kindList) {
    run.put("&&");
    run.clear(stateAfterIdent);
  } else if (kind == kindListStart) {
    run.clear(stateAfterIdent);
  } else if (isLib(kind)) {
    printLib(run, cursor);
  } else if (kind != kindListEnd && kind != kindSharedMark && kind != kindTopMark) {
    run.putUnprintable(cursor);
  }
}

void printAlternative(PrintRun &run) {
  run.put(run.has(stateGroup) ? Bytes("&&") : Bytes(","));
  run.clear(stateAfterIdent);
}

} // namespace

constexpr ItemPrinter zeli::vhdlPrinter = {.item = printItem,
                                           .value = printIndex,
                                           .alternative = printAlternative,
                                           .finish = [](PrintRun &) {},
                                           .mask = explodeAll & ~explodeRange,
                                           .explodeMask = explodeRange,
                                           .noRepeatMask = 0};
