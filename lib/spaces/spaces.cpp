// The table of all spaces, and the lookup in it.
#include "spaces/spaces.h"

#include <iterator>
#include <utility>

using namespace zeli;

namespace {

// Who is offered the name of a space: the lists of zelGetSpaceNames and zelGetAllSpaceNames.
enum Audience { nobody, engineers, everybody };

struct Listed {
  const char *name;
  Audience audience;
};

#define ZEL_LISTED_SPACE(number, pointer, functions, lookup, display, names, audience) {lookup, audience},
#define ZEL_LISTED_ALIAS(lookup, audience) {lookup, audience},
constexpr Listed listed[] = {ZEL_SPACES(ZEL_LISTED_SPACE, ZEL_LISTED_ALIAS)};

// The names of those listed from an audience on, ended by null.
template <Audience least> struct Names {
  const char *list[std::size(listed) + 1] = {};

  constexpr Names() {
    const char **next = list;
    for (const Listed &space : listed)
      if (space.audience >= least)
        *next++ = space.name;
  }
};
constexpr Names<everybody> spaceNames;
constexpr Names<engineers> allSpaceNames;

// The character at a position, which behind the end of the name is NUL. Written out at every position: the names are so
// short that a loop or a length costs more than it saves.
template <std::size_t... before> char characterAt(const char *name, std::index_sequence<before...>) {
  return (... && (name[before] != '\0')) ? name[sizeof...(before)] : '\0';
}
template <std::size_t position> char at(const char *name) {
  return characterAt(name, std::make_index_sequence<position>());
}

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

} // namespace

SpaceId zeli::recognise(const char *name) {
  if (name == nullptr)
    return SpaceId::none;
  switch (*name) {
  case '4':
    return SpaceId::ORKA44;
  case 'A':
    return SpaceId::Ascii;
  case 'D':
    return SpaceId::Def;
  case 'E': {
    const char fifth = at<4>(name);
    if (at<1>(name) == 's')
      return SpaceId::EscORKA;
    return fifth == '\0' ? SpaceId::none : fifth == '2' ? SpaceId::Edif200 : SpaceId::Edif300;
  }
  case 'F':
    if (at<1>(name) == 'i')
      return SpaceId::LibraryUnix;
    return at<4>(name) == 'T' ? SpaceId::FlatTessel : SpaceId::none;
  case 'G':
    return at<1>(name) == 'c' ? SpaceId::Gcf : SpaceId::none;
  case 'I':
    return SpaceId::Ident;
  case 'K': {
    const char sixth = at<5>(name);
    return sixth == '\0' ? SpaceId::Kirra : sixth == 'H' ? SpaceId::KirraHDL : SpaceId::none;
  }
  case 'L': {
    if (at<3>(name) == '\0')
      return SpaceId::Lef;
    const char eighth = at<7>(name);
    if (eighth == '\0' || eighth == 'U')
      return SpaceId::LibraryUnix;
    return eighth == 'N' ? SpaceId::LibraryNT : SpaceId::none;
  }
  case 'N':
    return SpaceId::NVerilog;
  case 'O':
    return SpaceId::ORKA;
  case 'P':
    return SpaceId::Print;
  case 'S': {
    const char second = at<1>(name);
    if (at<2>(name) != '\0' && at<3>(name) == '\0' && (second == 'd' || second == 'p'))
      return second == 'd' ? SpaceId::Sdf : SpaceId::Spf;
    if (at<2>(name) == 'i')
      return SpaceId::Spice;
    return at<3>(name) != '\0' && at<4>(name) == '\0' ? SpaceId::Spef : SpaceId::none;
  }
  case 'T':
    return SpaceId::Tessel;
  case 'V': {
    if (at<1>(name) == 'H')
      return vhdlFamily(at<4>(name));
    if (at<2>(name) == 'l')
      return SpaceId::Vellum;
    const char eighth = at<7>(name);
    if (eighth != 'A')
      return eighth == '\0' ? SpaceId::Verilog : SpaceId::VerilogAMS;
    return name[8] == '\0' ? SpaceId::VerilogA : SpaceId::VerilogAMS;
  }
  default:
    return SpaceId::none;
  }
}

// --- What the table becomes -----------------------------------------------------------------------------------------

#define ZEL_SPACE_ROW(number, pointer, functions, lookup, display, names, audience)                                    \
  {SpaceId::number, lookup, {display, zel##functions##ToIdent, zelIdentTo##functions, zelIsLegal##functions}, &(names)},
constexpr Space zeli::spaces[] = {ZEL_SPACES(ZEL_SPACE_ROW, ZEL_NO_ALIAS)};

#define ZEL_SPACE_POINTER(number, pointer, functions, lookup, display, names, audience)                                \
  const zelSpace zel##pointer##Space = &spaceOf(SpaceId::number).descriptor;
ZEL_SPACES(ZEL_SPACE_POINTER, ZEL_NO_ALIAS)
const zelSpace zelLibrarySpace = zelLibraryUnixSpace;
const zelSpace zelFilesysSpace = zelLibraryUnixSpace;

const char *const *zelGetSpaceNames() noexcept { return spaceNames.list; }

const char *const *zelGetAllSpaceNames() noexcept { return allSpaceNames.list; }

zelSpace zelGetSpaceByName(const char *name) noexcept {
  const SpaceId id = recognise(name);
  return id == SpaceId::none ? nullptr : &spaceOf(id).descriptor;
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
