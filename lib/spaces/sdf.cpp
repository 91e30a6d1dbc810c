// SDF, Standard Delay Format (IEEE 1497): words, and all punctuation behind a backslash, as in u1\/Pad. The
// levels of a path are joined by the divider of the file, '/' by default (path/languages.cpp).
#include "spaces/redefinable.h"
#include "spaces/wordFamily.h"

using namespace zeli;

namespace {

constexpr RedefinableRules<sdfNames, wordFamily, sdfSeparators> rules;

} // namespace

const Operations zeli::sdfNames = redefinableOperationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalSdf, rules)
ZEL_EXPORT_WRITER(zelIdentToSdf, rules)
ZEL_EXPORT_READER(zelSdfToIdent, rules)
ZEL_EXPORT_WRITER_WITH_HANDLE(zelIdentToSdfWithHandle, rules)
ZEL_EXPORT_READER_WITH_HANDLE(zelSdfToIdentWithHandle, rules)
ZEL_EXPORT_CHARACTER(zelIsSdfChar, wordChar)
ZEL_EXPORT_CHARACTER_UNDER_HANDLE(zelIsSdfEscapableChar, rules.isEscapable)
