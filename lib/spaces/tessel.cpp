// Tessel: graphic characters; the syntax of its paths stands behind a backslash.
#include "core/zelpvt.h"
#include "spaces/backslash.h"

using namespace zeli;

namespace {

constexpr ByteSet syntax = chars("[]|");
constexpr ByteSet escapable = syntax | chars("\\");
constexpr BackslashSpace space = {
    .plain = graphic - syntax, .escapable = escapable, .quoted = escapable, .escape = {'#', escapable}};

} // namespace

int zelIsLegalTessel(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToTessel(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelTesselToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsTesselChar(int c) noexcept { return isIn(space.plain, c); }

int zelIsTesselEscapableChar(int c) noexcept { return isIn(space.escapable, c); }
