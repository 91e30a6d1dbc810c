// What every translator needs from the core: Idents as views, results under the allocator convention and the mapping
// state.
#ifndef ZEL_CORE_ZELPVT_H
#define ZEL_CORE_ZELPVT_H

#include "core/text.h"

#include <atomic>
#include <cstdlib>

// A program that links the archive keeps the library's identification string, too.
asm(".globl vrnIdentString");

namespace zeli {

// size bytes under the allocator convention; null with ENOMEM.
inline void *allocate(std::size_t size, zelAllocFunc alloc, void *context) {
  void *memory = alloc != nullptr ? alloc(size, context) : context != nullptr ? context : std::malloc(size);
  if (memory == nullptr)
    errno = ENOMEM;
  return memory;
}

// A string of what copies itself.
template <typename Source> char *makeCopy(const Source &source, zelAllocFunc alloc, void *context) {
  const std::size_t size = source.size();
  auto *result = static_cast<char *>(allocate(size + 1, alloc, context));
  if (result == nullptr)
    return nullptr;
  source.copyTo(result);
  result[size] = '\0';
  return result;
}

// The one copy at the end of an operation; text may lie in the caller's buffer that it goes to. Null for a refused one
// (errno is then the writer's), EINVAL for an over-long one.
inline char *makeString(const Spelled &text, zelAllocFunc alloc, void *context) {
  if (text.isRefused())
    return nullptr;
  if (text.size() > maxName) {
    errno = EINVAL;
    return nullptr;
  }
  return makeCopy(text, alloc, context);
}

// The same for what a writer made in work. An allocator of the caller's may write where the Ident lies: a ring marks
// its old results.
inline char *makeSpelled(const Spelled &text, Text &work, zelAllocFunc alloc, void *context) {
  if (alloc == nullptr || text.isRefused() || text.data == work.bytes)
    return makeString(text, alloc, context);
  std::memmove(work.bytes, text.data, text.length);
  return makeString({{work.bytes, text.length}, text.open, text.close}, alloc, context);
}

// The same for an Ident, whose body may be empty; limit is that of the body.
inline char *makeIdent(const Ident &ident, zelAllocFunc alloc, void *context, std::size_t limit = maxName) {
  const Bytes body = ident.body;
  if (body.data() == nullptr)
    return nullptr;
  if (body.size() > limit) {
    errno = EINVAL;
    return nullptr;
  }
  auto *result = static_cast<char *>(allocate(body.size() + 2, alloc, context));
  if (result == nullptr)
    return nullptr;
  moveBytes(result + 1, body.data(), body.size());
  result[0] = ident.marker;
  result[body.size() + 1] = '\0';
  return result;
}

// A writer's view of an Ident string; refused (EINVAL) when it is no Ident or its body is over-long.
inline Ident identOf(const char *ident) {
  if (ident == nullptr || (*ident != 'S' && *ident != 'I' && *ident != 'F'))
    return refuseIdent();
  const Bytes body = nameBytes(ident + 1);
  return isNameLength(body) ? Ident{*ident, Name(body)} : refuseIdent();
}

// table and key as in zelTableSearch.
constexpr bool tableHas(const char *const *table, std::int32_t count, Bytes key) {
  constexpr std::int32_t scannedWhole = 4;
  if (count <= scannedWhole) {
    for (std::int32_t i = 0; i < count; ++i)
      if (key == table[i])
        return true;
    return false;
  }
  std::int32_t low = 0;
  std::int32_t high = count - 1;
  while (low <= high) {
    const std::int32_t middle = low + (high - low) / 2;
    const int order = key.compare(table[middle]);
    if (order == 0)
      return true;
    (order > 0 ? low : high) = order > 0 ? middle + 1 : middle - 1;
  }
  return false;
}

// The mapping state of the process, and how one that is not determined yet is.
extern std::atomic<std::int32_t> zelMapState;
std::int32_t resolveMapState();
inline std::int32_t mapStateOfProcess() {
  const std::int32_t state = zelMapState.load(std::memory_order_relaxed);
  return state > ZEL_MAP_RESOLVE ? state : resolveMapState();
}

} // namespace zeli

#endif
