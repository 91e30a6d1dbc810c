// SPF, Standard Parasitic Format: any 7-bit character; the separators and the backslash stand behind a backslash.
#include "core/zelpvt.h"
#include "spaces/backslash.h"
#include "spaces/currentHandle.h"

using namespace zeli;

namespace {

constinit thread_local zelHandle namespaceHandle = nullptr;

BackslashSpace space() {
  const auto [pinDelimiter, divider, busOpen, busClose] = separatorsInForce(namespaceHandle, zelSpfHandle);
  const ByteSet escapable = (separatorSet({pinDelimiter, divider, busOpen, busClose}) | chars("\\")) - beyondAscii;
  // The mark stands alone, also where it is a separator.
  const ByteSet quoted = (beyondAscii | escapable) - chars("#");
  return {.plain = ascii, .escapable = escapable, .quoted = quoted, .escape = {'#', escapable}};
}

} // namespace

int zelIsLegalSpf(const char *name) noexcept { return space().isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToSpfWithHandle(const char *ident, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {
  const HandleScope scope(namespaceHandle, handle);
  return writeName(space(), ident, alloc, context);
}

char *zelIdentToSpf(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space(), ident, alloc, context);
}

char *zelSpfToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context, zelHandle handle) noexcept {
  const HandleScope scope(namespaceHandle, handle);
  return readName(space(), name, alloc, context);
}

char *zelSpfToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space(), name, alloc, context);
}

int zelIsSpfChar(int c) noexcept { return isIn(ascii, c); }

int zelIsSpfEscapableChar(int c) noexcept { return isIn(space().escapable, c); }
