// The spaces by number: what the name of a space selects, and the index of their descriptors.
#ifndef ZEL_CORE_REGISTRY_H
#define ZEL_CORE_REGISTRY_H

namespace zeli {

enum class SpaceId {
  Ident,
  Verilog,
  VerilogAMS,
  VerilogA,
  VHDL,
  VHDL87,
  VHDLAMS,
  ORKA,
  ORKA44,
  EscORKA,
  Kirra,
  KirraHDL,
  Spice,
  Sdf,
  Spf,
  Spef,
  Gcf,
  Lef,
  Def,
  Tessel,
  FlatTessel,
  LibraryNT,
  LibraryUnix,
  NVerilog,
  Print,
  Ascii,
  Vellum,
  Edif200,
  Edif300,
  count,
  none = count
};

// The space that a name selects, by a few characters at fixed positions.
SpaceId recognise(const char *spaceName);

} // namespace zeli

#endif
