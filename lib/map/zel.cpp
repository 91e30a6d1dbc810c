// The mapping of names and paths between spaces.
#include "path/zelPathParse.h"
#include "path/zelPathPrint.h"
#include "spaces/spaces.h"

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

// Whether a word is a name of both spaces as it stands. In the default mapping state only, which it must not determine.
bool isPlain(const Name &name, const Operations &from, const Operations &to) {
  constexpr std::uint64_t forceHead = 0x5F435345;           // "ESC_"
  constexpr std::uint64_t keywordHead = 0x5F44524F5759454B; // "KEYWORD_"
  if (!name.isWord() || (name.head() & 0xFFFFFFFF) == forceHead || name.head() == keywordHead ||
      zelMapState.load(std::memory_order_relaxed) != ZEL_MAP_DEFAULT)
    return false;
  const bool isSensitive = from.plainWords.readAs == 'S' || (from.plainWords.readAs == '\0' && name.has(traitUpper));
  const auto isAs = [&name](const Operations &space, Traits unless) {
    return !name.has(unless) && (space.plainWords.isKeyword == nullptr || !space.plainWords.isKeyword(name)) &&
           (space.currentHandle == nullptr || space.currentHandle() == nullptr);
  };
  return isAs(from, from.plainWords.notRead) &&
         isAs(to, isSensitive ? to.plainWords.notWrittenSensitive : to.plainWords.notWrittenInsensitive);
}

// By way of the Ident.
char *mapGeneral(const Name &given, const Space &from, const Space &to, zelAllocFunc alloc, void *context) {
  Text readWork;
  const Ident ident = from.names->read(given, {}, readWork);
  if (to.id == SpaceId::Ident && ident.body.data() != nullptr)
    return makeIdent(ident, alloc, context, maxName - 1); // the marker counts
  if (!isNameLength(ident.body))
    return makeString(refuse(), alloc, context);
  Text writeWork;
  Bytes spelled = to.names->write(ident, {}, writeWork);
  if (alloc != nullptr && spelled.data() != writeWork.bytes) {
    // An allocator may write where the name lies: a ring marks its old results.
    writeWork.size = 0;
    writeWork.put(spelled);
    spelled = writeWork.view();
  }
  return makeString(spelled, alloc, context);
}

} // namespace

char *zelMapName(const char *fromName, const char *toName, const char *name, zelAllocFunc alloc,
                 void *context) noexcept {
  const SpaceId fromId = recognise(fromName);
  const SpaceId toId = recognise(toName);
  if (fromId == SpaceId::none || toId == SpaceId::none)
    return nullptr;
  const Space &from = spaceOf(fromId);
  const Space &to = spaceOf(toId);
  if (fromId == SpaceId::Ident)
    return to.descriptor.identToName(name, alloc, context);

  const Name given(nameBytes(name));
  if (alloc == nullptr && toId != SpaceId::Ident && isNameLength(given) && isPlain(given, *from.names, *to.names))
    return makeString(given, alloc, context);
  return mapGeneral(given, from, to, alloc, context);
}
char *zelMapper(zelNameToIdentFunc nameToIdent, zelIdentToNameFunc identToName, const char *name, zelAllocFunc alloc,
                void *context) noexcept {
  if (nameToIdent == nullptr || identToName == nullptr)
    return nullptr;
  char ident[maxName + 2];
  return identToName(nameToIdent(name, nullptr, ident), alloc, context);
}

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
