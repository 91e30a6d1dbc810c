// Ascii: every 7-bit character.
#include "core/zelpvt.h"
#include "spaces/classEscape.h"

using namespace zeli;

namespace {

constexpr ClassEscapeSpace space = {{'#', range(0x01, 0x7f)}};

} // namespace

int zelIsLegalAscii(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToAscii(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelAsciiToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}
