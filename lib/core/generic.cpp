// The registry: from the name of a space to the space.
#include "core/registry.h"

#include "core/zelpvt.h"

using namespace zeli;

namespace {

// Offered to end users.
constexpr const char *spaceNames[] = {
    "Ascii", "ORKA",     "Vellum", "Def",   "Gcf",  "Tessel", "Lef",     "Library",  "Print",      "Sdf",     "Spf",
    "Kirra", "KirraHDL", "Spef",   "Spice", "VHDL", "VHDL87", "Verilog", "VerilogA", "VerilogAMS", "VHDLAMS", nullptr};

// Every name but the aliases "Filesys" and "Ident".
constexpr const char *allSpaceNames[] = {"44ORKA",  "Ascii",     "ORKA",        "Vellum",     "Def",     "Edif200",
                                         "Edif300", "EscORKA",   "FlatTessel",  "Gcf",        "Tessel",  "Lef",
                                         "Library", "LibraryNT", "LibraryUnix", "NVerilog",   "Print",   "Sdf",
                                         "Spf",     "Kirra",     "KirraHDL",    "Spef",       "Spice",   "VHDL",
                                         "VHDL87",  "Verilog",   "VerilogA",    "VerilogAMS", "VHDLAMS", nullptr};

SpaceId vhdlFamily(char fifth) {
  switch (fifth) {
  case '\0':
    return SpaceId::VHDL;
  case '8':
    return SpaceId::VHDL87;
  case 'A':
    return SpaceId::VHDLAMS;
  default:
    return SpaceId::none;
  }
}

SpaceId verilogFamily(char eighth, char ninth) {
  if (eighth == '\0')
    return SpaceId::Verilog;
  return eighth == 'A' && ninth == '\0' ? SpaceId::VerilogA : SpaceId::VerilogAMS;
}

} // namespace

SpaceId zeli::recognise(const char *spaceName) {
  // A position behind the end of the name reads as NUL.
  const Bytes name = nameBytes(spaceName);
  const auto at = [name](std::size_t i) { return i < name.size() ? name[i] : '\0'; };

  switch (at(0)) {
  case '4':
    return SpaceId::ORKA44;
  case 'A':
    return SpaceId::Ascii;
  case 'D':
    return SpaceId::Def;
  case 'E':
    if (at(1) == 's')
      return SpaceId::EscORKA;
    if (name.size() < 5)
      return SpaceId::none;
    return at(4) == '2' ? SpaceId::Edif200 : SpaceId::Edif300;
  case 'F':
    if (at(1) == 'i')
      return SpaceId::LibraryUnix;
    return at(4) == 'T' ? SpaceId::FlatTessel : SpaceId::none;
  case 'G':
    return at(1) == 'c' ? SpaceId::Gcf : SpaceId::none;
  case 'I':
    return SpaceId::Ident;
  case 'K':
    return at(5) == '\0' ? SpaceId::Kirra : at(5) == 'H' ? SpaceId::KirraHDL : SpaceId::none;
  case 'L':
    if (at(3) == '\0')
      return SpaceId::Lef;
    if (at(7) == '\0' || at(7) == 'U')
      return SpaceId::LibraryUnix;
    return at(7) == 'N' ? SpaceId::LibraryNT : SpaceId::none;
  case 'N':
    return SpaceId::NVerilog;
  case 'O':
    return SpaceId::ORKA;
  case 'P':
    return SpaceId::Print;
  case 'S':
    if (name.size() == 3 && at(1) == 'd')
      return SpaceId::Sdf;
    if (name.size() == 3 && at(1) == 'p')
      return SpaceId::Spf;
    if (at(2) == 'i')
      return SpaceId::Spice;
    return name.size() == 4 ? SpaceId::Spef : SpaceId::none;
  case 'T':
    return SpaceId::Tessel;
  case 'V':
    return at(1) == 'H' ? vhdlFamily(at(4)) : at(2) == 'l' ? SpaceId::Vellum : verilogFamily(at(7), at(8));
  default:
    return SpaceId::none;
  }
}

const char *const *zelGetSpaceNames() noexcept { return spaceNames; }

const char *const *zelGetAllSpaceNames() noexcept { return allSpaceNames; }
