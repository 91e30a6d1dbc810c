// The table of all spaces, and what is made of it: their numbers here, their descriptors, the pointers to these and the
// lists of names in spaces.cpp. A new space is a row here beside its own file.
#ifndef ZEL_SPACES_SPACES_H
#define ZEL_SPACES_SPACES_H

#include "spaces/space.h"

// SPACE(number, zel<...>Space, X of the functions zel<X>ToIdent, zelIdentTo<X> and zelIsLegal<X>, name by which it is
//       looked up, display name, operations, who is offered the name)
// ALIAS(another name by which a space is looked up, who is offered it)
// The order is that of the published lists. ORKA names are 44ORKA names, by the same functions.
// clang-format off
#define ZEL_SPACES(SPACE, ALIAS) \
  SPACE(Ident,       Ident,       Ident,       "Ident",       "Ident",       identNames,       nobody)    \
  SPACE(ORKA44,      44ORKA,      44ORKA,      "44ORKA",      "44ORKA",      orkaNames,        engineers) \
  SPACE(Ascii,       Ascii,       Ascii,       "Ascii",       "Ascii",       asciiNames,       everybody) \
  SPACE(ORKA,        ORKA,        44ORKA,      "ORKA",        "ORKA",        orkaNames,        everybody) \
  SPACE(Vellum,      Vellum,      Vellum,      "Vellum",      "Vellum",      vellumNames,      everybody) \
  SPACE(Def,         Def,         Def,         "Def",         "DEF",         defNames,         everybody) \
  SPACE(Edif200,     Edif200,     Edif200,     "Edif200",     "Edif200",     edif200Names,     engineers) \
  SPACE(Edif300,     Edif300,     Edif300,     "Edif300",     "Edif300",     edif300Names,     engineers) \
  SPACE(EscORKA,     EscORKA,     EscORKA,     "EscORKA",     "EscORKA",     escORKANames,     engineers) \
  SPACE(FlatTessel,  FlatTessel,  FlatTessel,  "FlatTessel",  "FlatTessel",  flatTesselNames,  engineers) \
  SPACE(Gcf,         Gcf,         Gcf,         "Gcf",         "GCF",         gcfNames,         everybody) \
  SPACE(Tessel,      Tessel,      Tessel,      "Tessel",      "Tessel",      tesselNames,      everybody) \
  SPACE(Lef,         Lef,         Lef,         "Lef",         "LEF",         lefNames,         everybody) \
  ALIAS(                                       "Library",                                      everybody) \
  SPACE(LibraryNT,   LibraryNT,   LibraryNT,   "LibraryNT",   "LibraryNT",   libraryNTNames,   engineers) \
  SPACE(LibraryUnix, LibraryUnix, LibraryUnix, "LibraryUnix", "LibraryUnix", libraryUnixNames, engineers) \
  SPACE(NVerilog,    NVerilog,    NVerilog,    "NVerilog",    "NVerilog",    nVerilogNames,    engineers) \
  SPACE(Print,       Print,       Print,       "Print",       "Print",       printNames,       everybody) \
  SPACE(Sdf,         Sdf,         Sdf,         "Sdf",         "SDF",         sdfNames,         everybody) \
  SPACE(Spf,         Spf,         Spf,         "Spf",         "SPF",         spfNames,         everybody) \
  SPACE(Kirra,       Kirra,       Kirra,       "Kirra",       "Kirra",       kirraNames,       everybody) \
  SPACE(KirraHDL,    KirraHDL,    KirraHDL,    "KirraHDL",    "KirraHDL",    kirraHDLNames,    everybody) \
  SPACE(Spef,        Spef,        Spef,        "Spef",        "SPEF",        spefNames,        everybody) \
  SPACE(Spice,       Spice,       Spice,       "Spice",       "Spice",       spiceNames,       everybody) \
  SPACE(VHDL,        VHDL,        VHDL,        "VHDL",        "VHDL",        vhdlNames,        everybody) \
  SPACE(VHDL87,      VHDL87,      VHDL87,      "VHDL87",      "VHDL87",      vhdl87Names,      everybody) \
  SPACE(Verilog,     Verilog,     Verilog,     "Verilog",     "Verilog",     verilogNames,     everybody) \
  SPACE(VerilogA,    VerilogA,    VerilogA,    "VerilogA",    "VerilogA",    verilogANames,    everybody) \
  SPACE(VerilogAMS,  VerilogAMS,  VerilogAMS,  "VerilogAMS",  "VerilogAMS",  verilogAMSNames,  everybody) \
  SPACE(VHDLAMS,     VHDLAMS,     VHDLAMS,     "VHDLAMS",     "VHDLAMS",     vhdlAMSNames,     everybody)
// clang-format on

namespace zeli {

#define ZEL_NO_ALIAS(...)
#define ZEL_SPACE_NUMBER(number, ...) number,
enum class SpaceId { ZEL_SPACES(ZEL_SPACE_NUMBER, ZEL_NO_ALIAS) count, none = count };
#undef ZEL_SPACE_NUMBER

#define ZEL_SPACE_NAMES(number, pointer, functions, lookup, display, names, audience) extern const Operations names;
ZEL_SPACES(ZEL_SPACE_NAMES, ZEL_NO_ALIAS)
#undef ZEL_SPACE_NAMES

extern const Operations vhdl93Names; // VHDL's, whatever the VHDL mode of the process

struct Space {
  SpaceId id;
  const char *lookupName;
  zelSpaceRecord descriptor;
  const Operations *names;
};

// In the order of SpaceId.
extern const Space spaces[];
inline const Space &spaceOf(SpaceId id) { return spaces[static_cast<std::size_t>(id)]; }

// The space that a name selects, by a few characters at fixed positions.
SpaceId recognise(const char *spaceName);

} // namespace zeli

#endif
