// EDIF 2 0 0: graphic characters.
#include "spaces/classEscape.h"
#include "spaces/exports.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr ClassEscapeRules rules = classEscapeRules(graphic);

} // namespace

const Operations zeli::edif200Names = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalEdif200, rules)
ZEL_EXPORT_WRITER(zelIdentToEdif200, rules)
ZEL_EXPORT_READER(zelEdif200ToIdent, rules)
ZEL_EXPORT_CHARACTER(zelIsEdif200Char, rules.escape.literal)
