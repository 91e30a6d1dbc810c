#include "map/itemPath.h"

#include "path/zelPathParse.h"

#include <cstddef>
#include <cstdlib>

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

// A number out of range in front of the place where a grammar refuses it; null where there is none.
const char *numberBefore(const char *text, const char *place) {
  const char *start = place;
  while (start != text && digit.has(start[-1]))
    --start;
  std::int64_t value = 0;
  for (const char *at = start; at != place && value <= ZEL_MAX_NUMBER; ++at)
    value = value * 10 + (*at - '0');
  static constexpr ByteSet opens = chars("[(<{:, ");
  if (value <= ZEL_MAX_NUMBER || start == text)
    return nullptr;
  if (sign.has(start[-1]))
    --start;
  return start != text && opens.has(start[-1]) ? start : nullptr;
}

// Why a grammar refuses a text at a place.
std::int32_t reasonAt(const char *text, const char *place) {
  if (*place != '\0')
    return ZEL_REASON_UNEXPECTED_CHARACTER;
  int brackets = 0;
  int braces = 0;
  for (; text != place; ++text) {
    if (*text == '\\' && text[1] != '\0' && text + 1 != place)
      ++text;
    else if (*text == '{' || *text == '}')
      braces += *text == '{' ? 1 : -1;
    else if (chars("[(<").has(*text) || chars("])>").has(*text))
      brackets += chars("[(<").has(*text) ? 1 : -1;
  }
  if (braces != 0)
    return ZEL_REASON_UNBALANCED_BRACE;
  return brackets != 0 ? ZEL_REASON_UNBALANCED_BRACKET : ZEL_REASON_UNEXPECTED_END;
}

// Tells more of a refusal that a name began.
void explainName(const PathLanguage &language, zelHandle handle, TransientNames &names, const char *place) {
  if (const char *number = numberBefore(names.text, place)) {
    names.refuse(number, ZEL_REASON_NUMBER_OUT_OF_RANGE);
    return;
  }
  const Operations *tested = language.names.tested;
  const auto length = static_cast<std::size_t>(language.names.scan(place, handle) - place);
  if (length > maxName) {
    names.refuse(place + maxName, ZEL_REASON_TOO_LONG);
    return;
  }
  const Name name(Bytes(place, length));
  if (length == 0 || tested == nullptr || tested->isLegal(name, names.from)) {
    names.refuse(place, reasonAt(names.text, place));
    return;
  }
  const zelRefusal inside = tested->explain(name);
  names.refuse(place + inside.position, inside.reason);
}

// Tells more of a name that gives no Ident.
void explainUnread(const PathLanguage &language, zelHandle handle, TransientNames &names) {
  const char *const place = names.text + names.refusal.position;
  const Operations &read = *names.read;
  const Name name(Bytes(place, static_cast<std::size_t>(language.names.scan(place, handle) - place)));
  if (name.size() > maxName || read.isLegal(name, names.from))
    return;
  const bool hasRules = read.rulesUnder != nullptr && names.from.handle != nullptr;
  const zelRefusal inside =
      hasRules ? read.rulesUnder(names.from.handle->separators).explain(name) : read.explain(name);
  names.refusal = {inside.reason, names.refusal.position + inside.position};
}

} // namespace

char *zeli::mapByItems(const PathLanguage &from, zelHandle fromHandle, const PathLanguage &to, zelHandle toHandle,
                       std::uint32_t flags, TransientNames &names, zelAllocFunc alloc, void *context) {
  Arena arena;
  const zelPath path = parsePath(from, names.text, fromHandle, Arena::allocate, &arena);
  if (path == nullptr)
    return nullptr;
  char *result = nullptr;
  if ((path->flags & flagError) == 0)
    result = printPath(to, path, toHandle, static_cast<std::int32_t>(flags), alloc, context, &names);
  else if (path->refusedAt != nullptr)
    explainName(from, path->handle, names, path->refusedAt);
  else
    names.refuse(names.text, errno == ENOMEM ? ZEL_REASON_NO_MEMORY : ZEL_REASON_NUMBER_OUT_OF_RANGE);
  if (names.refusal.reason == ZEL_REASON_NOT_CONVERTED)
    explainUnread(from, path->handle, names);
  zelFreePath(path, Arena::release, &arena);
  // cppcheck-suppress returnDanglingLifetime ; the result is the caller's memory, not the path's
  return result;
}
