// SDF, Standard Delay Format (IEEE 1497).
#include "core/zelpvt.h"
#include "spaces/currentHandle.h"
#include "spaces/wordFamily.h"

using namespace zeli;

namespace {

constinit thread_local zelHandle namespaceHandle = nullptr;

BackslashSpace space() { return wordFamily(separatorsInForce(namespaceHandle, zelSdfHandle)); }

} // namespace

int zelIsLegalSdf(const char *name) noexcept { return space().isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToSdfWithHandle(const char *ident, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {
  const HandleScope scope(namespaceHandle, handle);
  return writeName(space(), ident, alloc, context);
}

char *zelIdentToSdf(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space(), ident, alloc, context);
}

char *zelSdfToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {
  const HandleScope scope(namespaceHandle, handle);
  return readName(space(), name, alloc, context);
}

char *zelSdfToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space(), name, alloc, context);
}

int zelIsSdfChar(int c) noexcept { return isIn(wordChar, c); }

int zelIsSdfEscapableChar(int c) noexcept { return isIn(space().escapable, c); }
