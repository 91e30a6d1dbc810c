// SPEF, Standard Parasitic Exchange Format (IEEE 1481).
#include "core/zelpvt.h"
#include "spaces/currentHandle.h"
#include "spaces/wordFamily.h"

using namespace zeli;

namespace {

constinit thread_local zelHandle namespaceHandle = nullptr;

BackslashSpace space() { return wordFamily(separatorsInForce(namespaceHandle, zelSpefHandle)); }

} // namespace

int zelIsLegalSpef(const char *name) noexcept { return space().isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToSpefWithHandle(const char *ident, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {
  const HandleScope scope(namespaceHandle, handle);
  return writeName(space(), ident, alloc, context);
}

char *zelIdentToSpef(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space(), ident, alloc, context);
}

char *zelSpefToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {
  const HandleScope scope(namespaceHandle, handle);
  return readName(space(), name, alloc, context);
}

char *zelSpefToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space(), name, alloc, context);
}

int zelIsSpefChar(int c) noexcept { return isIn(wordChar, c); }

int zelIsSpefEscapableChar(int c) noexcept { return isIn(space().escapable, c); }
