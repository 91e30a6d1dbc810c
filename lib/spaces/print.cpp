// Print: graphic characters.
#include "core/zelpvt.h"
#include "spaces/classEscape.h"

using namespace zeli;

namespace {

constexpr ClassEscapeSpace space = {{'#', graphic}};

} // namespace

int zelIsLegalPrint(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToPrint(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelPrintToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}
