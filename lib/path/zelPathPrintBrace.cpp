// Paths in the languages that write lists and repeated groups in braces: all but ORKA and VHDL.
#include "path/print.h"

using namespace zeli;

namespace {

void printSeparator(PrintRun &run) {
  const bool isLeading = run.target.marksLeading && (run.path->flags & flagLeadingDivider) != 0;
  if (run.has(stateAfterIdent) || isLeading)
    run.put(run.separators.divider);
}

void printIndex(PrintRun &run, std::int32_t index) {
  run.put(run.separators.busOpen);
  run.putNumber(index);
  run.put(run.separators.busClose);
}

void printRange(PrintRun &run, std::int32_t from, std::int32_t to) {
  run.put(run.separators.busOpen);
  run.putNumber(from);
  run.put(':');
  run.putNumber(to);
  run.put(run.separators.busClose);
}

void printRepeat(PrintRun &run, std::int32_t count) {
  if (run.target.braces == Braces::balanced)
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
  if (run.target.braces == Braces::balanced && run.has(stateRepeatOpen))
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
    run.put(unprintable);
  }
}

void printAlternative(PrintRun &run) {
  run.put(',');
  run.clear(stateAfterIdent);
}

void finish(PrintRun &run) {
  if (run.target.braces == Braces::balanced)
    return;
  if (run.has(stateGroup))
    run.put('}');
  if (run.has(stateRepeatOpen | stateRepeatList))
    run.put("}}");
}

constexpr ItemPrinter bracePrint = {printItem, printIndex, printAlternative, finish};

constexpr std::uint32_t braceMask = EXPLODE_STEP | EXPLODE_MULTI | EXPLODE_INDEX_REPEAT;
constexpr std::uint32_t braceExplodeMask = EXPLODE_GROUP_REPEAT | EXPLODE_RANGE;

constexpr Target fixedTarget(zelIdentToNameFunc identToName, char divider, bool marksLeading, Braces braces) {
  return {.printer = bracePrint,
          .identToName = identToName,
          .mask = braceMask,
          .explodeMask = braceExplodeMask,
          .noRepeatMask = EXPLODE_GROUP_REPEAT,
          .separators = {divider, divider, '[', ']'},
          .marksLeading = marksLeading,
          .braces = braces};
}

constexpr Target redefinableTarget(IdentToNameWithHandle identToName, const zelHandle &defaultHandle) {
  return {.printer = bracePrint,
          .identToNameWithHandle = identToName,
          .defaultHandle = &defaultHandle,
          .mask = braceMask,
          .explodeMask = braceExplodeMask,
          .noRepeatMask = EXPLODE_GROUP_REPEAT,
          .marksLeading = true};
}

constexpr Target verilog = fixedTarget(zelIdentToVerilog, '.', false, Braces::verilog);
constexpr Target kirra = fixedTarget(zelIdentToKirra, '.', false, Braces::kirra);
constexpr Target kirraHDL = fixedTarget(zelIdentToKirraHDL, '.', false, Braces::kirra);
constexpr Target spice = fixedTarget(zelIdentToSpice, '.', false, Braces::balanced);
constexpr Target tessel = fixedTarget(zelIdentToTessel, '|', true, Braces::balanced);
constexpr Target flatTessel = fixedTarget(zelIdentToFlatTessel, '|', true, Braces::balanced);
constexpr Target lef = redefinableTarget(zelIdentToLefWithHandle, zelLefHandle);
constexpr Target def = redefinableTarget(zelIdentToDefWithHandle, zelDefHandle);
constexpr Target sdf = redefinableTarget(zelIdentToSdfWithHandle, zelSdfHandle);
constexpr Target spf = redefinableTarget(zelIdentToSpfWithHandle, zelSpfHandle);
constexpr Target spef = redefinableTarget(zelIdentToSpefWithHandle, zelSpefHandle);
constexpr Target gcf = redefinableTarget(zelIdentToGcfWithHandle, zelGcfHandle);

} // namespace

char *zelPathToVerilogEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc,
                         void *context) noexcept {
  return printPath(verilog, path, handle, flags, alloc, context);
}

char *zelPathToVerilog(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToVerilogEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToKirraEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context) noexcept {
  return printPath(kirra, path, handle, flags, alloc, context);
}

char *zelPathToKirra(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToKirraEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToKirraHDLEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc,
                          void *context) noexcept {
  return printPath(kirraHDL, path, handle, flags, alloc, context);
}

char *zelPathToKirraHDL(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToKirraHDLEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToSpiceEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context) noexcept {
  return printPath(spice, path, handle, flags, alloc, context);
}

char *zelPathToSpice(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToSpiceEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToTesselEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc,
                        void *context) noexcept {
  return printPath(tessel, path, handle, flags, alloc, context);
}

char *zelPathToTessel(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToTesselEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToFlatTesselEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc,
                            void *context) noexcept {
  return printPath(flatTessel, path, handle, flags, alloc, context);
}

char *zelPathToFlatTessel(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToFlatTesselEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToLefEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context) noexcept {
  return printPath(lef, path, handle, flags, alloc, context);
}

char *zelPathToLef(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToLefEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToDefEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context) noexcept {
  return printPath(def, path, handle, flags, alloc, context);
}

char *zelPathToDef(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToDefEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToSdfEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context) noexcept {
  return printPath(sdf, path, handle, flags, alloc, context);
}

char *zelPathToSdf(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToSdfEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToSpfEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context) noexcept {
  return printPath(spf, path, handle, flags, alloc, context);
}

char *zelPathToSpf(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToSpfEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToSpefEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context) noexcept {
  return printPath(spef, path, handle, flags, alloc, context);
}

char *zelPathToSpef(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToSpefEx(path, handle, flags, nullptr, nullptr);
}

char *zelPathToGcfEx(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context) noexcept {
  return printPath(gcf, path, handle, flags, alloc, context);
}

char *zelPathToGcf(zelPath path, zelHandle handle, std::int32_t flags) noexcept {
  return zelPathToGcfEx(path, handle, flags, nullptr, nullptr);
}
