// Tessel: graphic characters; the syntax of its paths stands behind a backslash.
#include "spaces/backslash.h"
#include "spaces/exports.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr ByteSet syntax = chars("[]|");
constexpr ByteSet escapable = syntax | chars("\\");
constexpr BackslashRules rules = {graphic - syntax, escapable, escapable, {'#', escapable}};

} // namespace

const Operations zeli::tesselNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalTessel, rules)
ZEL_EXPORT_WRITER(zelIdentToTessel, rules)
ZEL_EXPORT_READER(zelTesselToIdent, rules)
ZEL_EXPORT_CHARACTER(zelIsTesselChar, rules.plain)
ZEL_EXPORT_CHARACTER(zelIsTesselEscapableChar, rules.escapable)
