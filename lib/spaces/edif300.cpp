// EDIF 3 0 0: graphic characters.
#include "spaces/classEscape.h"
#include "spaces/exports.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr ClassEscapeRules rules = classEscapeRules(graphic);

} // namespace

const Operations zeli::edif300Names = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalEdif300, rules)
ZEL_EXPORT_WRITER(zelIdentToEdif300, rules)
ZEL_EXPORT_READER(zelEdif300ToIdent, rules)
ZEL_EXPORT_CHARACTER(zelIsEdif300Char, rules.escape.literal)
