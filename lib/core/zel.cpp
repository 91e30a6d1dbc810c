// The space descriptors and the mapping of names and paths between spaces.
#include "core/handle.h"
#include "core/registry.h"
#include "core/zelpvt.h"

#include <cstdlib>
#include <iterator>

using namespace zeli;

namespace {

// In the order of SpaceId.
constexpr zelSpaceRecord spaces[] = {
    {"Ident", zelIdentToIdent, zelIdentToIdent, zelIsLegalIdent},
    {"Verilog", zelVerilogToIdent, zelIdentToVerilog, zelIsLegalVerilog},
    {"VerilogAMS", zelVerilogAMSToIdent, zelIdentToVerilogAMS, zelIsLegalVerilogAMS},
    {"VerilogA", zelVerilogAToIdent, zelIdentToVerilogA, zelIsLegalVerilogA},
    {"VHDL", zelVHDLToIdent, zelIdentToVHDL, zelIsLegalVHDL},
    {"VHDL87", zelVHDL87ToIdent, zelIdentToVHDL87, zelIsLegalVHDL87},
    {"VHDLAMS", zelVHDLAMSToIdent, zelIdentToVHDLAMS, zelIsLegalVHDLAMS},
    // ORKA names are 44ORKA names.
    {"ORKA", zel44ORKAToIdent, zelIdentTo44ORKA, zelIsLegal44ORKA},
    {"44ORKA", zel44ORKAToIdent, zelIdentTo44ORKA, zelIsLegal44ORKA},
    {"EscORKA", zelEscORKAToIdent, zelIdentToEscORKA, zelIsLegalEscORKA},
    {"Kirra", zelKirraToIdent, zelIdentToKirra, zelIsLegalKirra},
    {"KirraHDL", zelKirraHDLToIdent, zelIdentToKirraHDL, zelIsLegalKirraHDL},
    {"Spice", zelSpiceToIdent, zelIdentToSpice, zelIsLegalSpice},
    {"SDF", zelSdfToIdent, zelIdentToSdf, zelIsLegalSdf},
    {"SPF", zelSpfToIdent, zelIdentToSpf, zelIsLegalSpf},
    {"SPEF", zelSpefToIdent, zelIdentToSpef, zelIsLegalSpef},
    {"GCF", zelGcfToIdent, zelIdentToGcf, zelIsLegalGcf},
    {"LEF", zelLefToIdent, zelIdentToLef, zelIsLegalLef},
    {"DEF", zelDefToIdent, zelIdentToDef, zelIsLegalDef},
    {"Tessel", zelTesselToIdent, zelIdentToTessel, zelIsLegalTessel},
    {"FlatTessel", zelFlatTesselToIdent, zelIdentToFlatTessel, zelIsLegalFlatTessel},
    {"LibraryNT", zelLibraryNTToIdent, zelIdentToLibraryNT, zelIsLegalLibraryNT},
    {"LibraryUnix", zelLibraryUnixToIdent, zelIdentToLibraryUnix, zelIsLegalLibraryUnix},
    {"NVerilog", zelNVerilogToIdent, zelIdentToNVerilog, zelIsLegalNVerilog},
    {"Print", zelPrintToIdent, zelIdentToPrint, zelIsLegalPrint},
    {"Ascii", zelAsciiToIdent, zelIdentToAscii, zelIsLegalAscii},
    {"Vellum", zelVellumToIdent, zelIdentToVellum, zelIsLegalVellum},
    {"Edif200", zelEdif200ToIdent, zelIdentToEdif200, zelIsLegalEdif200},
    {"Edif300", zelEdif300ToIdent, zelIdentToEdif300, zelIsLegalEdif300},
};
static_assert(std::size(spaces) == static_cast<std::size_t>(SpaceId::count));

constexpr zelSpace descriptor(SpaceId id) { return &spaces[static_cast<std::size_t>(id)]; }

// An intermediate Ident: marker, body and NUL.
using IdentBuffer = char[maxName + 2];

// Memory of a path that lives for one call: small paths fit on the stack.
struct Arena {
  std::size_t used = 0;
  alignas(std::max_align_t) char bytes[4096];

  static void *allocate(std::uint64_t size, void *context) {
    auto *arena = static_cast<Arena *>(context);
    const std::uint64_t start = (arena->used + alignof(std::max_align_t) - 1) & ~(alignof(std::max_align_t) - 1);
    if (size > sizeof arena->bytes || start > sizeof arena->bytes - size)
      return std::malloc(size);
    arena->used = start + size;
    return arena->bytes + start;
  }

  static void release(void *memory, void *context) {
    const auto *arena = static_cast<Arena *>(context);
    const auto address = reinterpret_cast<std::uintptr_t>(memory);
    const auto begin = reinterpret_cast<std::uintptr_t>(arena->bytes);
    if (address < begin || address >= begin + sizeof arena->bytes)
      std::free(memory);
  }
};

// The handle of a space in place of a null one; errno tells why there is none.
zelHandle handleOf(const char *spaceName) {
  const int error = errno;
  errno = 0;
  const zelHandle handle = zelGetHandle(spaceName, 0, 0, 0, 0);
  if (handle != nullptr)
    errno = error;
  else if (errno == 0)
    errno = EINVAL;
  return handle;
}

char *mapPath(const char *text, zelHandle from, zelHandle to, std::uint32_t flags, zelAllocFunc alloc, void *context) {
  if (from == nullptr || to == nullptr)
    return nullptr;
  Arena arena;
  const zelPath path = from->varBits->parse(text, from, Arena::allocate, &arena);
  if (path == nullptr)
    return nullptr;
  char *result = nullptr;
  if ((zelPathGetFlag(path) & ZEL_PATH_ERROR) == 0)
    result = to->varBits->print(path, to, static_cast<std::int32_t>(flags), alloc, context);
  zelFreePath(path, Arena::release, &arena);
  // cppcheck-suppress returnDanglingLifetime ; the result is the caller's memory, not the path's
  return result;
}

} // namespace

const zelSpace zelIdentSpace = descriptor(SpaceId::Ident);
const zelSpace zelVerilogSpace = descriptor(SpaceId::Verilog);
const zelSpace zelVerilogAMSSpace = descriptor(SpaceId::VerilogAMS);
const zelSpace zelVerilogASpace = descriptor(SpaceId::VerilogA);
const zelSpace zelVHDLSpace = descriptor(SpaceId::VHDL);
const zelSpace zelVHDL87Space = descriptor(SpaceId::VHDL87);
const zelSpace zelVHDLAMSSpace = descriptor(SpaceId::VHDLAMS);
const zelSpace zelORKASpace = descriptor(SpaceId::ORKA);
const zelSpace zel44ORKASpace = descriptor(SpaceId::ORKA44);
const zelSpace zelEscORKASpace = descriptor(SpaceId::EscORKA);
const zelSpace zelKirraSpace = descriptor(SpaceId::Kirra);
const zelSpace zelKirraHDLSpace = descriptor(SpaceId::KirraHDL);
const zelSpace zelSpiceSpace = descriptor(SpaceId::Spice);
const zelSpace zelSdfSpace = descriptor(SpaceId::Sdf);
const zelSpace zelSpfSpace = descriptor(SpaceId::Spf);
const zelSpace zelSpefSpace = descriptor(SpaceId::Spef);
const zelSpace zelGcfSpace = descriptor(SpaceId::Gcf);
const zelSpace zelLefSpace = descriptor(SpaceId::Lef);
const zelSpace zelDefSpace = descriptor(SpaceId::Def);
const zelSpace zelTesselSpace = descriptor(SpaceId::Tessel);
const zelSpace zelFlatTesselSpace = descriptor(SpaceId::FlatTessel);
const zelSpace zelLibraryNTSpace = descriptor(SpaceId::LibraryNT);
const zelSpace zelLibraryUnixSpace = descriptor(SpaceId::LibraryUnix);
const zelSpace zelLibrarySpace = descriptor(SpaceId::LibraryUnix);
const zelSpace zelFilesysSpace = descriptor(SpaceId::LibraryUnix);
const zelSpace zelNVerilogSpace = descriptor(SpaceId::NVerilog);
const zelSpace zelPrintSpace = descriptor(SpaceId::Print);
const zelSpace zelAsciiSpace = descriptor(SpaceId::Ascii);
const zelSpace zelVellumSpace = descriptor(SpaceId::Vellum);
const zelSpace zelEdif200Space = descriptor(SpaceId::Edif200);
const zelSpace zelEdif300Space = descriptor(SpaceId::Edif300);

zelSpace zelGetSpaceByName(const char *name) noexcept {
  const SpaceId id = recognise(name);
  return id == SpaceId::none ? nullptr : descriptor(id);
}

zelNameToIdentFunc zelGetNameToIdentFunc(const char *spaceName) noexcept {
  const zelSpace space = zelGetSpaceByName(spaceName);
  return space == nullptr ? nullptr : space->nameToIdent;
}

zelIdentToNameFunc zelGetIdentToNameFunc(const char *spaceName) noexcept {
  const zelSpace space = zelGetSpaceByName(spaceName);
  return space == nullptr ? nullptr : space->identToName;
}

zelIsLegalFunc zelGetIsLegalFunc(const char *spaceName) noexcept {
  const zelSpace space = zelGetSpaceByName(spaceName);
  return space == nullptr ? nullptr : space->isLegal;
}

int zelGetAllFuncs(const char *spaceName, zelIsLegalFunc *isLegal, zelNameToIdentFunc *nameToIdent,
                   zelIdentToNameFunc *identToName) noexcept {
  const zelSpace space = zelGetSpaceByName(spaceName);
  if (space == nullptr)
    return 1;
  if (isLegal != nullptr)
    *isLegal = space->isLegal;
  if (nameToIdent != nullptr)
    *nameToIdent = space->nameToIdent;
  if (identToName != nullptr)
    *identToName = space->identToName;
  return 0;
}

int zelIsLegalName(const char *spaceName, const char *name) noexcept {
  const zelSpace space = zelGetSpaceByName(spaceName);
  return space == nullptr ? 0 : space->isLegal(name);
}

char *zelMapName(const char *fromName, const char *toName, const char *name, zelAllocFunc alloc,
                 void *context) noexcept {
  const zelSpace from = zelGetSpaceByName(fromName);
  const zelSpace to = zelGetSpaceByName(toName);
  if (from == nullptr || to == nullptr)
    return nullptr;
  if (from == zelIdentSpace)
    return to->identToName(name, alloc, context);
  return zelMapper(from->nameToIdent, to->identToName, name, alloc, context);
}

char *zelMapper(zelNameToIdentFunc nameToIdent, zelIdentToNameFunc identToName, const char *name, zelAllocFunc alloc,
                void *context) noexcept {
  if (nameToIdent == nullptr || identToName == nullptr)
    return nullptr;
  IdentBuffer ident;
  return identToName(nameToIdent(name, nullptr, ident), alloc, context);
}

char *zelPathMapper(const char *text, zelHandle fromHandle, zelHandle toHandle, std::uint32_t flags,
                    const char *fromName, const char *toName) noexcept {
  return zelPathMapperEx(text, fromHandle, toHandle, flags, fromName, toName, nullptr, nullptr);
}

char *zelPathMapperEx(const char *text, zelHandle fromHandle, zelHandle toHandle, std::uint32_t flags,
                      const char *fromName, const char *toName, zelAllocFunc alloc, void *context) noexcept {
  const zelHandle from = fromHandle != nullptr ? fromHandle : handleOf(fromName);
  const zelHandle to = toHandle != nullptr ? toHandle : handleOf(toName);
  char *result = mapPath(text, from, to, flags, alloc, context);
  if (fromHandle == nullptr)
    zelFreeHandle(from);
  if (toHandle == nullptr)
    zelFreeHandle(to);
  return result;
}
