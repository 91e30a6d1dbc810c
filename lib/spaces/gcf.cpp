// GCF, General Constraint Format: words, and all punctuation behind a backslash, as in u1\/Pad. The
// levels of a path are joined by the divider of the file, '.' by default (path/languages.cpp).
#include "spaces/redefinable.h"
#include "spaces/wordFamily.h"

using namespace zeli;

namespace {

constexpr RedefinableRules<gcfNames, wordFamily, gcfSeparators> rules;

} // namespace

const Operations zeli::gcfNames = redefinableOperationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalGcf, rules)
ZEL_EXPORT_WRITER(zelIdentToGcf, rules)
ZEL_EXPORT_READER(zelGcfToIdent, rules)
ZEL_EXPORT_WRITER_WITH_HANDLE(zelIdentToGcfWithHandle, rules)
ZEL_EXPORT_READER_WITH_HANDLE(zelGcfToIdentWithHandle, rules)
ZEL_EXPORT_CHARACTER(zelIsGcfChar, wordChar)
ZEL_EXPORT_CHARACTER_UNDER_HANDLE(zelIsGcfEscapableChar, rules.isEscapable)
