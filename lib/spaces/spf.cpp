// SPF, Standard Parasitic Format: any 7-bit character; the separators and the backslash stand behind a backslash.
#include "spaces/redefinable.h"

using namespace zeli;

namespace {

constexpr BackslashRules rulesUnder(const Separators &separators) {
  const auto [pinDelimiter, divider, busOpen, busClose] = separators;
  const ByteSet escapable = chars({pinDelimiter, divider, busOpen, busClose, '\\'}) - beyondAscii;
  // The mark stands alone, also where it is a separator.
  return {ascii, escapable, (beyondAscii | escapable) - chars("#"), {'#', escapable}};
}

constexpr RedefinableRules<spfNames, rulesUnder, spfSeparators> rules;

} // namespace

const Operations zeli::spfNames = redefinableOperationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalSpf, rules)
ZEL_EXPORT_WRITER(zelIdentToSpf, rules)
ZEL_EXPORT_READER(zelSpfToIdent, rules)
ZEL_EXPORT_WRITER_WITH_HANDLE(zelIdentToSpfWithHandle, rules)
ZEL_EXPORT_READER_WITH_HANDLE(zelSpfToIdentWithHandle, rules)
ZEL_EXPORT_CHARACTER(zelIsSpfChar, ascii)
ZEL_EXPORT_CHARACTER_UNDER_HANDLE(zelIsSpfEscapableChar, rules.isEscapable)
