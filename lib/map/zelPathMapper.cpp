// The mapping of paths between languages.
#include "map/levelPath.h"
#include "path/zelPathParse.h"
#include "path/zelPathPrint.h"

#include <cstddef>

using namespace zeli;

namespace {

// Memory of a path that lives for one call: small paths fit on the stack.
struct Arena {
  std::size_t used = 0;
  alignas(std::max_align_t) char bytes[4096];

  static void *allocate(std::uint64_t size, void *context) {
    auto *arena = static_cast<Arena *>(context);
    const std::uint64_t start = (arena->used + alignof(std::max_align_t) - 1) & ~(alignof(std::max_align_t) - 1);
    if (size > sizeof arena->bytes || start > sizeof arena->bytes - size)
      return std::malloc(size);
    arena->used = start + size;
    return arena->bytes + start;
  }

  static void release(void *memory, void *context) {
    const auto *arena = static_cast<Arena *>(context);
    const auto address = reinterpret_cast<std::uintptr_t>(memory);
    const auto begin = reinterpret_cast<std::uintptr_t>(arena->bytes);
    if (address < begin || address >= begin + sizeof arena->bytes)
      std::free(memory);
  }
};

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
    Route route;
    LevelPath levels;
    if (routeOf(from, to, flags, route))
      if (const Bytes result = levels.map({text, strnlen(text, LevelPath::longest + 1)}, route); result.data() != nullptr)
        return makeString(result, alloc, context);
  }
  Arena arena;
  const zelPath path = parsePath(*from->language, text, from, Arena::allocate, &arena);
  if (path == nullptr)
    return nullptr;
  char *result = nullptr;
  if ((zelPathGetFlag(path) & ZEL_PATH_ERROR) == 0)
    result =
        printPath(printingLanguage(*to->language), path, to, static_cast<std::int32_t>(flags), alloc, context, true);
  zelFreePath(path, Arena::release, &arena);
  // cppcheck-suppress returnDanglingLifetime ; the result is the caller's memory, not the path's
  return result;
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
