// The mapping of paths between languages.
#include "map/itemPath.h"
#include "map/levelPath.h"
#include "map/plainPath.h"

using namespace zeli;

namespace {

// The handle of a space in place of a null one; errno tells why there is none.
zelHandle handleOf(const char *spaceName) {
  const int error = errno;
  errno = 0;
  const zelHandle handle = zelGetHandle(spaceName, 0, 0, 0, 0);
  if (handle != nullptr)
    errno = error;
  else if (errno == 0)
    errno = EINVAL;
  return handle;
}

char *mapPath(const char *text, zelHandle from, zelHandle to, std::uint32_t flags, zelAllocFunc alloc, void *context) {
  if (from == nullptr || to == nullptr)
    return nullptr;
  if (text != nullptr) {
    RouteRoom room;
    LevelPath levels;
    if (const Route *route = routeOf(from, to, flags, room); route != nullptr) {
      const Bytes path(text, strnlen(text, LevelPath::longest + 1));
      // An allocator of the caller's may write where the path lies.
      if (PlainPath plain; alloc == nullptr && plain.read(path, *route))
        return makeCopy(plain, nullptr, context);
      if (const Bytes result = levels.map(path, *route); result.data() != nullptr)
        return makeString(result, alloc, context);
    }
  }
  const PathLanguage &source = *from->language;
  const PathLanguage &target = printingLanguage(*to->language);
  TransientNames names = {.text = text,
                          .read = source.names.read,
                          .from = {.handle = separatingHandle(source, from)},
                          .written = target.writer.names,
                          .to = {.handle = separatingHandle(target, to)}};
  return mapByItems(source, from, target, to, flags, names, alloc, context);
}

} // namespace

char *zelPathMapper(const char *text, zelHandle fromHandle, zelHandle toHandle, std::uint32_t flags,
                    const char *fromName, const char *toName) noexcept {
  return zelPathMapperEx(text, fromHandle, toHandle, flags, fromName, toName, nullptr, nullptr);
}

char *zelPathMapperEx(const char *text, zelHandle fromHandle, zelHandle toHandle, std::uint32_t flags,
                      const char *fromName, const char *toName, zelAllocFunc alloc, void *context) noexcept {
  const zelHandle from = fromHandle != nullptr ? fromHandle : handleOf(fromName);
  const zelHandle to = toHandle != nullptr ? toHandle : handleOf(toName);
  char *result = mapPath(text, from, to, flags, alloc, context);
  if (fromHandle == nullptr)
    zelFreeHandle(from);
  if (toHandle == nullptr)
    zelFreeHandle(to);
  return result;
}
