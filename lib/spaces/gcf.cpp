// GCF, General Constraint Format.
#include "core/zelpvt.h"
#include "spaces/currentHandle.h"
#include "spaces/wordFamily.h"

using namespace zeli;

namespace {

constinit thread_local zelHandle namespaceHandle = nullptr;

BackslashSpace space() { return wordFamily(separatorsInForce(namespaceHandle, zelGcfHandle)); }

} // namespace

int zelIsLegalGcf(const char *name) noexcept { return space().isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToGcfWithHandle(const char *ident, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {
  const HandleScope scope(namespaceHandle, handle);
  return writeName(space(), ident, alloc, context);
}

char *zelIdentToGcf(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space(), ident, alloc, context);
}

char *zelGcfToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {
  const HandleScope scope(namespaceHandle, handle);
  return readName(space(), name, alloc, context);
}

char *zelGcfToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space(), name, alloc, context);
}

int zelIsGcfChar(int c) noexcept { return isIn(wordChar, c); }

int zelIsGcfEscapableChar(int c) noexcept { return isIn(space().escapable, c); }
