// Paths in ORKA, which can write every form. An index bracket stays open from item to item until something else comes.
#include "path/zelPathPrint.h"

using namespace zeli;

namespace {

void closeBracket(PrintRun &run) {
  if (run.has(stateBracketOpen))
    run.put('>');
  run.clear(stateBracketOpen);
}

// Opens the bracket, or separates from the index before.
void beginIndex(PrintRun &run) {
  run.put(run.has(stateBracketOpen) ? ',' : '<');
  run.set(stateBracketOpen);
}

void endName(PrintRun &run) {
  if (run.has(stateAfterIdent))
    run.put(',');
  run.clear(stateAfterIdent);
}

void printIdent(PrintRun &run, Cursor cursor) {
  closeBracket(run);
  if (run.has(stateAfterIdent | stateTopIdent | stateTopOfHierarchy))
    run.put('/');
  run.putIdentAt(cursor);
  run.set(stateAfterIdent);
  run.clear(stateTopIdent);
}

void printNumbers(PrintRun &run, Cursor cursor, std::size_t count) {
  beginIndex(run);
  for (std::size_t i = 0; i < count; ++i) {
    if (i != 0)
      run.put(':');
    run.putNumber(cursor.number(i));
  }
}

void printItem(PrintRun &run, Cursor cursor) {
  const std::uint8_t kind = cursor.kind();
  if (isIdent(kind)) {
    printIdent(run, cursor);
    return;
  }
  switch (kind) {
  case kindIndex:
  case kindIndex + 1:
    printNumbers(run, cursor, 1);
    break;
  case kindRange:
  case kindRange + 1:
    printNumbers(run, cursor, 2);
    break;
  case kindStepRange:
  case kindStepRange + 1:
    printNumbers(run, cursor, 3);
    break;
  case kindGroupRepeat:
  case kindGroupRepeat + 1:
    endName(run);
    run.put("<*");
    run.putNumber(cursor.number(0));
    run.put('>');
    break;
  case kindIndexRepeat:
  case kindIndexRepeat + 1:
    if (!run.has(stateBracketOpen))
      run.put('<');
    run.set(stateBracketOpen);
    run.put('*');
    run.putNumber(cursor.number(0));
    break;
  case kindList:
    run.clear(stateAfterIdent);
    closeBracket(run);
    run.put(',');
    break;
  case kindListStart:
    endName(run);
    run.put('(');
    break;
  case kindListEnd:
    closeBracket(run);
    run.put(')');
    break;
  case kindIndexListStart:
    if (!run.has(stateBracketOpen))
      run.put('<');
    run.set(stateBracketOpen);
    run.put('(');
    break;
  case kindIndexListEnd:
    run.put(')');
    break;
  case kindTopMark:
    run.set(stateTopIdent);
    break;
  default:
    if (kind != kindSharedMark && !isLib(kind))
      run.putUnprintable(cursor);
  }
}

void printValue(PrintRun &run, std::int32_t index) {
  beginIndex(run);
  run.putNumber(index);
}

void printAlternative(PrintRun &run) {
  closeBracket(run);
  run.put(',');
  run.clear(stateAfterIdent);
}

} // namespace

constexpr ItemPrinter zeli::orkaPrinter = {.item = printItem,
                                           .value = printValue,
                                           .alternative = printAlternative,
                                           .finish = closeBracket,
                                           .mask = 0,
                                           .explodeMask = explodeAll,
                                           .noRepeatMask = explodeGroupRepeat | explodeIndexRepeat};
