// SPEF, Standard Parasitic Exchange Format (IEEE 1481): words, and all punctuation behind a backslash, as in u1\/Pad.
// The levels of a path are joined by the divider of the file, '/' by default (path/languages.cpp).
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
