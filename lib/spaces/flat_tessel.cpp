// FlatTessel: a whole hierarchy in one Tessel name, so that '|' is a character like others.
#include "core/zelpvt.h"
#include "spaces/backslash.h"

using namespace zeli;

namespace {

constexpr ByteSet syntax = chars("[]\\");
constexpr BackslashSpace space = {
    .plain = graphic - syntax, .escapable = syntax, .quoted = syntax, .escape = {'#', graphic}};

} // namespace

int zelIsLegalFlatTessel(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToFlatTessel(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelFlatTesselToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsFlatTesselChar(int c) noexcept { return isIn(space.plain, c); }

int zelIsFlatTesselEscapableChar(int c) noexcept { return isIn(space.escapable, c); }
