// LibraryUnix: libraries on file systems that tell case apart.
#include "core/zelpvt.h"
#include "spaces/fileName.h"

using namespace zeli;

namespace {

struct LibraryUnixSpace : ClassEscapeSpace {
  // Folds also in the mapping state MATCH.
  Bytes write(const Ident &ident, Text &work) const {
    const std::int32_t state = zelGetMapState();
    const bool dropsForce = ident.isCaseSensitive() && (state == ZEL_MAP_MATCH || state == ZEL_MAP_TANDEM);
    encode(work, dropsForce ? skipForce(ident.body) : ident.body, escape, !ident.isCaseSensitive());
    return work.view();
  }

  Ident read(Bytes name, Text &work) const {
    Ident ident = ClassEscapeSpace::read(name, work);
    if (ident.marker == 'S' && zelGetMapState() == ZEL_MAP_MATCH)
      ident.marker = 'F';
    return ident;
  }
};

constexpr LibraryUnixSpace space = {{fileNameEscape}};

} // namespace

int zelIsLegalLibraryUnix(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToLibraryUnix(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelLibraryUnixToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsUnixChar(int c) noexcept { return isIn(fileNameChar, c); }
