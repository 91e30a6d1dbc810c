// Ascii: every 7-bit character.
#include "spaces/classEscape.h"
#include "spaces/exports.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr ClassEscapeRules rules = classEscapeRules(range(0x01, 0x7f));

} // namespace

const Operations zeli::asciiNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalAscii, rules)
ZEL_EXPORT_WRITER(zelIdentToAscii, rules)
ZEL_EXPORT_READER(zelAsciiToIdent, rules)
