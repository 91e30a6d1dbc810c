// NVerilog: graphic characters.
#include "spaces/classEscape.h"
#include "spaces/exports.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr ClassEscapeRules rules = classEscapeRules(graphic);

} // namespace

const Operations zeli::nVerilogNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalNVerilog, rules)
ZEL_EXPORT_WRITER(zelIdentToNVerilog, rules)
ZEL_EXPORT_READER(zelNVerilogToIdent, rules)
