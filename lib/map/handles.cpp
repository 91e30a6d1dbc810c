// The handles: each path-capable space's separators, parser and printer.
#include "core/handle.h"
#include "spaces/spaces.h"

#include <cerrno>
#include <cstdlib>
#include <new>

using namespace zeli;

namespace {

// Which separators a file of the format may redefine.
enum class Redefines { nothing, everything, busBrackets };

struct BuiltIn {
  SpaceId space;
  Redefines redefines;
  VarBits varBits;
  zelHandleRecord handle;

  constexpr BuiltIn(SpaceId id, Redefines what, const Operations *names, const char *name, PathParser parse,
                    PathPrinter print, Separators separators)
      : space(id), redefines(what), varBits{name, parse, print, separators}, handle{builtInHandle, &varBits, separators,
                                                                                    names, nullptr} {}
};

// Verilog-AMS keeps the separators of its netlists although it prints as Verilog; VHDL-87 goes by the name of VHDL.
// clang-format off
constexpr BuiltIn verilog(SpaceId::Verilog, Redefines::nothing, &verilogNames, "Verilog", zelParseVerilog, zelPathToVerilogEx, {'.', '.', '[', ']'});
constexpr BuiltIn verilogAMS(SpaceId::VerilogAMS, Redefines::nothing, &verilogAMSNames, "VerilogAMS", zelParseVerilogAMS, zelPathToVerilogEx, {'/', '/', '<', '>'});
constexpr BuiltIn vhdl(SpaceId::VHDL, Redefines::nothing, &vhdlNames, "VHDL", zelParseVHDL, zelPathToVHDLEx, {':', ':', '(', ')'});
constexpr BuiltIn vhdl87(SpaceId::VHDL87, Redefines::nothing, &vhdl87Names, "VHDL", zelParseVHDL87, zelPathToVHDLEx, {':', ':', '(', ')'});
constexpr BuiltIn vhdlAMS(SpaceId::VHDLAMS, Redefines::nothing, &vhdlAMSNames, "VHDLAMS", zelParseVHDLAMS, zelPathToVHDLEx, {':', ':', '(', ')'});
constexpr BuiltIn orka(SpaceId::ORKA, Redefines::nothing, &orkaNames, "ORKA", zelParseORKA, zelPathToORKAEx, {'/', '/', '<', '>'});
constexpr BuiltIn kirra(SpaceId::Kirra, Redefines::nothing, &kirraNames, "Kirra", zelParseKirra, zelPathToKirraEx, {'/', '/', '[', ']'});
constexpr BuiltIn kirraHDL(SpaceId::KirraHDL, Redefines::nothing, &kirraHDLNames, "KirraHDL", zelParseKirraHDL, zelPathToKirraHDLEx, {'/', '/', '[', ']'});
constexpr BuiltIn spice(SpaceId::Spice, Redefines::nothing, &spiceNames, "Spice", zelParseSpice, zelPathToSpiceEx, {'/', '/', '[', ']'});
constexpr BuiltIn tessel(SpaceId::Tessel, Redefines::nothing, &tesselNames, "Tessel", zelParseTessel, zelPathToTesselEx, {'|', '|', '[', ']'});
constexpr BuiltIn flatTessel(SpaceId::FlatTessel, Redefines::busBrackets, &flatTesselNames, "FlatTessel", zelParseFlatTessel, zelPathToFlatTesselEx, {'\0', '\0', '[', ']'});
constexpr BuiltIn sdf(SpaceId::Sdf, Redefines::everything, &sdfNames, "Sdf", zelParseSdf, zelPathToSdfEx, {'/', '/', '[', ']'});
constexpr BuiltIn spf(SpaceId::Spf, Redefines::everything, &spfNames, "Spf", zelParseSpf, zelPathToSpfEx, {':', '/', '[', ']'});
constexpr BuiltIn spef(SpaceId::Spef, Redefines::everything, &spefNames, "Spef", zelParseSpef, zelPathToSpefEx, {'/', '/', '[', ']'});
constexpr BuiltIn gcf(SpaceId::Gcf, Redefines::everything, &gcfNames, "GCF", zelParseGcf, zelPathToGcfEx, {'.', '.', '<', '>'});
constexpr BuiltIn lef(SpaceId::Lef, Redefines::everything, &lefNames, "Lef", zelParseLef, zelPathToLefEx, {'/', '/', '[', ']'});
constexpr BuiltIn def(SpaceId::Def, Redefines::everything, &defNames, "DEF", zelParseDef, zelPathToDefEx, {'/', '/', '[', ']'});
// clang-format on

constexpr const BuiltIn *builtIns[] = {&verilog, &verilogAMS, &vhdl,  &vhdl87, &vhdlAMS,    &orka,
                                       &kirra,   &kirraHDL,   &spice, &tessel, &flatTessel, &sdf,
                                       &spf,     &spef,       &gcf,   &lef,    &def};

const BuiltIn *builtInOf(SpaceId space) {
  for (const BuiltIn *builtIn : builtIns)
    if (builtIn->space == space)
      return builtIn;
  return nullptr;
}

const BuiltIn *builtInOf(const char *spaceName) {
  const SpaceId space = recognise(spaceName);
  // The registry takes every other name of the family for Verilog-AMS, a handle needs its own.
  if (space == SpaceId::VerilogAMS && spaceName != nullptr && !(spaceName[7] == 'A' && spaceName[8] == 'M'))
    return nullptr;
  return builtInOf(space);
}

// For a handle to be made, every name with an L means LEF, also those of the library spaces.
const BuiltIn *templateOf(const char *spaceName) {
  return spaceName != nullptr && *spaceName == 'L' ? builtInOf(SpaceId::Lef) : builtInOf(spaceName);
}

Separators given(std::uint32_t pinDelimiter, std::uint32_t divider, std::uint32_t busOpen, std::uint32_t busClose) {
  return {static_cast<char>(pinDelimiter), static_cast<char>(divider), static_cast<char>(busOpen),
          static_cast<char>(busClose)};
}

bool isDefault(const BuiltIn &builtIn, Separators chosen) {
  Separators defaults = builtIn.varBits.separators;
  if (builtIn.redefines == Redefines::busBrackets) {
    chosen.pinDelimiter = defaults.pinDelimiter = '\0';
    chosen.divider = defaults.divider = '\0';
  }
  return chosen == defaults || chosen == Separators{};
}

} // namespace

const zelHandle zelVerilogHandle = &verilog.handle;
const zelHandle zelVerilogAMSHandle = &verilogAMS.handle;
const zelHandle zelVHDLHandle = &vhdl.handle;
const zelHandle zelVHDL87Handle = &vhdl87.handle;
const zelHandle zelVHDLAMSHandle = &vhdlAMS.handle;
const zelHandle zelORKAHandle = &orka.handle;
const zelHandle zelKirraHandle = &kirra.handle;
const zelHandle zelKirraHDLHandle = &kirraHDL.handle;
const zelHandle zelSpiceHandle = &spice.handle;
const zelHandle zelTesselHandle = &tessel.handle;
const zelHandle zelFlatTesselHandle = &flatTessel.handle;
const zelHandle zelSdfHandle = &sdf.handle;
const zelHandle zelSpfHandle = &spf.handle;
const zelHandle zelSpefHandle = &spef.handle;
const zelHandle zelGcfHandle = &gcf.handle;
const zelHandle zelLefHandle = &lef.handle;
const zelHandle zelDefHandle = &def.handle;

zelHandle zelGetHandle(const char *spaceName, std::uint32_t pinDelimiter, std::uint32_t divider, std::uint32_t busOpen,
                       std::uint32_t busClose) noexcept {
  const BuiltIn *builtIn = builtInOf(spaceName);
  if (builtIn != nullptr && (builtIn->redefines == Redefines::nothing ||
                             isDefault(*builtIn, given(pinDelimiter, divider, busOpen, busClose))))
    return &builtIn->handle;
  return zelAllocHandle(spaceName, pinDelimiter, divider, busOpen, busClose);
}

zelHandle zelAllocHandle(const char *spaceName, std::uint32_t pinDelimiter, std::uint32_t divider,
                         std::uint32_t busOpen, std::uint32_t busClose) noexcept {
  const BuiltIn *builtIn = templateOf(spaceName);
  if (builtIn == nullptr || builtIn->redefines == Redefines::nothing)
    return nullptr;

  const Separators &defaults = builtIn->varBits.separators;
  Separators chosen = given(pinDelimiter, divider, busOpen, busClose);
  const bool isFlat = builtIn->redefines == Redefines::busBrackets;
  if (isFlat || chosen.pinDelimiter == '\0')
    chosen.pinDelimiter = defaults.pinDelimiter;
  if (isFlat || chosen.divider == '\0')
    chosen.divider = defaults.divider;
  if (chosen.busOpen == '\0')
    chosen.busOpen = defaults.busOpen;
  if (chosen.busClose == '\0')
    chosen.busClose = defaults.busClose;

  // The rules of names lie behind the record.
  const auto makeRules = builtIn->handle.names->rulesUnder;
  struct Made {
    zelHandleRecord record;
    BackslashRules rules;
  };
  const std::size_t size = makeRules != nullptr ? sizeof(Made) : sizeof(zelHandleRecord);
  void *memory = std::malloc(size);
  if (memory == nullptr) {
    errno = ENOMEM;
    return nullptr;
  }
  const zelHandleRecord record = {madeHandle, &builtIn->varBits, chosen, builtIn->handle.names, nullptr};
  if (makeRules == nullptr)
    return new (memory) zelHandleRecord(record);
  auto *made = new (memory) Made{record, makeRules(chosen)};
  made->record.rules = &made->rules;
  return &made->record;
}

void zelFreeHandle(zelHandle handle) noexcept {
  if (handle != nullptr && handle->kind == madeHandle)
    std::free(const_cast<zelHandleRecord *>(handle));
}

int zelGetHandleDefaults(const char *spaceName, char *pinDelimiter, char *divider, char *busOpen,
                         char *busClose) noexcept {
  const zelHandle handle = zelGetHandle(spaceName, 0, 0, 0, 0);
  if (handle == nullptr)
    return 0;
  const Separators &separators = handle->separators;
  if (pinDelimiter != nullptr)
    *pinDelimiter = separators.pinDelimiter;
  if (divider != nullptr)
    *divider = separators.divider;
  if (busOpen != nullptr)
    *busOpen = separators.busOpen;
  if (busClose != nullptr)
    *busClose = separators.busClose;
  zelFreeHandle(handle);
  return 1;
}
