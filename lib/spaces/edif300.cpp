// EDIF 3 0 0: graphic characters.
#include "core/zelpvt.h"
#include "spaces/classEscape.h"

using namespace zeli;

namespace {

constexpr ClassEscapeSpace space = {{'#', graphic}};

} // namespace

int zelIsLegalEdif300(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToEdif300(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelEdif300ToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsEdif300Char(int c) noexcept { return isIn(space.escape.literal, c); }
