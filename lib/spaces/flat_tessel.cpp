// FlatTessel: a whole hierarchy in one Tessel name, so that '|' is a character like others.
#include "spaces/backslash.h"
#include "spaces/exports.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr ByteSet syntax = chars("[]\\");
constexpr BackslashRules rules = {graphic - syntax, syntax, syntax, {'#', graphic}};

} // namespace

const Operations zeli::flatTesselNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalFlatTessel, rules)
ZEL_EXPORT_WRITER(zelIdentToFlatTessel, rules)
ZEL_EXPORT_READER(zelFlatTesselToIdent, rules)
ZEL_EXPORT_CHARACTER(zelIsFlatTesselChar, rules.plain)
ZEL_EXPORT_CHARACTER(zelIsFlatTesselEscapableChar, rules.escapable)
