// EDIF 2 0 0: graphic characters.
#include "core/zelpvt.h"
#include "spaces/classEscape.h"

using namespace zeli;

namespace {

constexpr ClassEscapeSpace space = {{'#', graphic}};

} // namespace

int zelIsLegalEdif200(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToEdif200(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelEdif200ToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsEdif200Char(int c) noexcept { return isIn(space.escape.literal, c); }
