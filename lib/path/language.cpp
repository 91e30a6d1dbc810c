#include "path/language.h"

#include "core/text.h"
#include "path/chunk.h"

#include <iterator>

using namespace zeli;

namespace {

constexpr Language plain(std::uint8_t code, zeliScanner *scan, zelIsLegalFunc isLegal, zelNameToIdentFunc toIdent) {
  return {code, scan, isLegal, toIdent, nullptr, true, true};
}

constexpr Language redefinable(std::uint8_t code, zeliScanner *scan, zelIsLegalFunc isLegal,
                               NameToIdentWithHandle toIdent) {
  return {code, scan, isLegal, nullptr, toIdent, true, true};
}

} // namespace

namespace zeli {

// Names of every Verilog path are tested as Verilog, of every VHDL path as VHDL; they convert by their own space. LEF
// and DEF names are tested with the default separators.
constexpr Language verilogLanguage = plain(1, zeliScanVlog, zelIsLegalVerilog, zelVerilogToIdent);
constexpr Language orkaLanguage = plain(2, zeliScanORKA, nullptr, zelORKAToIdent);
constexpr Language vhdlLanguage = plain(3, zeliScanVHDL, zelIsLegalVHDL, zelVHDLToIdent);
constexpr Language verilogAMSLanguage = plain(4, zeliScanVlog, zelIsLegalVerilog, zelVerilogAMSToIdent);
constexpr Language vhdlAMSLanguage = plain(5, zeliScanVHDL, zelIsLegalVHDL, zelVHDLAMSToIdent);
constexpr Language tesselLanguage = plain(6, zeliScanTessel, nullptr, zelTesselToIdent);
constexpr Language kirraLanguage = {7, zeliScanKirra, zelIsLegalKirra, zelKirraToIdent, nullptr, true, false};
constexpr Language kirraHDLLanguage = {8,    zeliScanKirraHDL, zelIsLegalKirraHDL, zelKirraHDLToIdent, nullptr, true,
                                       false};
constexpr Language lefLanguage = redefinable(9, zeliScanLef, zelIsLegalLef, zelLefToIdentWithHandle);
constexpr Language defLanguage = redefinable(10, zeliScanDef, zelIsLegalDef, zelDefToIdentWithHandle);
constexpr Language sdfLanguage = redefinable(11, zeliScanSdf, nullptr, zelSdfToIdentWithHandle);
constexpr Language spfLanguage = redefinable(12, zeliScanSpf, nullptr, zelSpfToIdentWithHandle);
constexpr Language spefLanguage = redefinable(13, zeliScanSpef, nullptr, zelSpefToIdentWithHandle);
constexpr Language gcfLanguage = redefinable(14, zeliScanGcf, nullptr, zelGcfToIdentWithHandle);
constexpr Language spiceLanguage = {15, zeliScanSpice, zelIsLegalSpice, zelSpiceToIdent, nullptr, false, false};
constexpr Language vhdl87Language = plain(16, zeliScanVHDL, zelIsLegalVHDL, zelVHDL87ToIdent);
constexpr Language flatTesselLanguage = plain(17, zeliScanFlatTessel, nullptr, zelFlatTesselToIdent);

} // namespace zeli

namespace {

constexpr const Language *languages[] = {
    &verilogLanguage, &orkaLanguage,     &vhdlLanguage,  &verilogAMSLanguage, &vhdlAMSLanguage,   &tesselLanguage,
    &kirraLanguage,   &kirraHDLLanguage, &lefLanguage,   &defLanguage,        &sdfLanguage,       &spfLanguage,
    &spefLanguage,    &gcfLanguage,      &spiceLanguage, &vhdl87Language,     &flatTesselLanguage};

// Code 0 belongs to paths built by hand; the others are places in the table, counted from 1.
constexpr bool isIndexedByCode() {
  for (std::size_t i = 0; i < std::size(languages); ++i)
    if (languages[i]->code != i + 1)
      return false;
  return true;
}
static_assert(isIndexedByCode());

} // namespace

const Language *zeli::languageOf(const zelPathRecord *path) {
  const std::uint32_t code = (path->flags >> languageShift) & languageMask;
  return code >= 1 && code <= std::size(languages) ? languages[code - 1] : nullptr;
}

char *zeli::convertText(const Language &language, const zelPathRecord *head, const char *text) {
  const auto length = static_cast<std::size_t>(language.scan(text, head->handle) - text);
  if (length > maxName) {
    errno = EINVAL;
    return nullptr;
  }
  char name[maxName + 1];
  std::memcpy(name, text, length);
  name[length] = '\0';
  const Allocator memory = allocatorOf(head);
  if (language.toIdentWithHandle != nullptr)
    return language.toIdentWithHandle(name, memory.alloc, memory.context, head->handle);
  return language.toIdent(name, memory.alloc, memory.context);
}

char *zelStrToIdent(zelPath chunk, std::uint32_t position) noexcept {
  if (chunk == nullptr || !isText(byteAt(chunk, position)))
    return nullptr;
  std::uint8_t &kind = chunk->items[position];
  const char *&slot = chunk->slots[slotOf(kind)].string;
  const Language *language = languageOf(chunk->head);
  const int error = errno;
  errno = 0;
  char *ident = language == nullptr ? nullptr : convertText(*language, chunk->head, slot);
  // A name that does not convert becomes a null Ident, so that it is tried only once; one that memory lacks for stays.
  if (ident == nullptr && errno == ENOMEM)
    return nullptr;
  if (errno == 0)
    errno = error;
  slot = ident;
  kind = static_cast<std::uint8_t>(kind - kindTextIdent + kindOwnedIdent);
  return ident;
}
