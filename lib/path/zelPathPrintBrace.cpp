// Paths in the languages that write lists and repeated groups in braces: all but ORKA and VHDL.
#include "path/zelPathPrint.h"

using namespace zeli;

namespace {

void printSeparator(PrintRun &run) {
  const bool isLeading = run.language.writer.marksLeading && (run.path->flags & flagLeadingDivider) != 0;
  if (run.has(stateAfterIdent) || isLeading)
    run.put(run.marks.divider);
}

void printIndex(PrintRun &run, std::int32_t index) {
  run.put(run.marks.busOpen);
  run.putNumber(index);
  run.put(run.marks.busClose);
}

void printRange(PrintRun &run, std::int32_t from, std::int32_t to) {
  run.put(run.marks.busOpen);
  run.putNumber(from);
  run.put(':');
  run.putNumber(to);
  run.put(run.marks.busClose);
}

void printRepeat(PrintRun &run, std::int32_t count) {
  if (run.language.writer.braces == Braces::balanced)
    run.put('{');
  run.putNumber(count);
  run.put('{');
  run.set(stateRepeatOpen);
}

void printList(PrintRun &run) {
  if (run.has(stateRepeatOpen) && !run.has(stateRepeatList)) {
    run.put("}}");
    run.clear(stateRepeatOpen);
  }
  run.clear(stateAfterIdent);
  run.put(',');
}

void printListStart(PrintRun &run) {
  if (run.has(stateRepeatOpen))
    run.set(stateRepeatList);
  else
    run.put('{');
}

void printListEnd(PrintRun &run) {
  run.put('}');
  if (run.language.writer.braces == Braces::balanced && run.has(stateRepeatOpen))
    run.put('}');
  run.clear(stateRepeatOpen | stateRepeatList);
}

void printItem(PrintRun &run, Cursor cursor) {
  const std::uint8_t kind = cursor.kind();
  if (isIdent(kind)) {
    printSeparator(run);
    run.putIdentAt(cursor);
    run.set(stateAfterIdent);
  } else if (isForm(kind, kindIndex)) {
    printIndex(run, cursor.number(0));
  } else if (isForm(kind, kindRange)) {
    printRange(run, cursor.number(0), cursor.number(1));
  } else if (isForm(kind, kindGroupRepeat)) {
    printRepeat(run, cursor.number(0));
  } else if (kind == kindList) {
    printList(run);
  } else if (kind == kindListStart) {
    printListStart(run);
  } else if (kind == kindListEnd) {
    printListEnd(run);
  } else if (kind != kindSharedMark && kind != kindTopMark && !isLib(kind)) {
    run.putUnprintable(cursor);
  }
}

void printAlternative(PrintRun &run) {
  run.put(',');
  run.clear(stateAfterIdent);
}

void finish(PrintRun &run) {
  if (run.language.writer.braces == Braces::balanced)
    return;
  if (run.has(stateGroup))
    run.put('}');
  if (run.has(stateRepeatOpen | stateRepeatList))
    run.put("}}");
}

} // namespace

constexpr ItemPrinter zeli::bracePrinter = {.item = printItem,
                                            .value = printIndex,
                                            .alternative = printAlternative,
                                            .finish = finish,
                                            .mask = explodeStep | explodeMulti | explodeIndexRepeat,
                                            .explodeMask = explodeGroupRepeat | explodeRange,
                                            .noRepeatMask = explodeGroupRepeat};
