// Print: graphic characters.
#include "spaces/classEscape.h"
#include "spaces/exports.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr ClassEscapeRules rules = classEscapeRules(graphic);

} // namespace

const Operations zeli::printNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalPrint, rules)
ZEL_EXPORT_WRITER(zelIdentToPrint, rules)
ZEL_EXPORT_READER(zelPrintToIdent, rules)
