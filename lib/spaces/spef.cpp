// SPEF, Standard Parasitic Exchange Format (IEEE 1481).
#include "spaces/redefinable.h"
#include "spaces/wordFamily.h"

using namespace zeli;

namespace {

constexpr RedefinableRules<spefNames, wordFamily, spefSeparators> rules;

} // namespace

const Operations zeli::spefNames = redefinableOperationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalSpef, rules)
ZEL_EXPORT_WRITER(zelIdentToSpef, rules)
ZEL_EXPORT_READER(zelSpefToIdent, rules)
ZEL_EXPORT_WRITER_WITH_HANDLE(zelIdentToSpefWithHandle, rules)
ZEL_EXPORT_READER_WITH_HANDLE(zelSpefToIdentWithHandle, rules)
ZEL_EXPORT_CHARACTER(zelIsSpefChar, wordChar)
ZEL_EXPORT_CHARACTER_UNDER_HANDLE(zelIsSpefEscapableChar, rules.isEscapable)
