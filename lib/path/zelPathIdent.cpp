#include "path/zelPathIdent.h"

#include "core/text.h"
#include "path/zelPath.h"

using namespace zeli;

char *zeli::convertText(const PathLanguage &language, const zelPathRecord *head, const char *text) {
  const NameReader &names = language.names;
  const auto length = static_cast<std::size_t>(names.scan(text, head->handle) - text);
  if (length > maxName) {
    errno = EINVAL;
    return nullptr;
  }
  char name[maxName + 1];
  std::memcpy(name, text, length);
  name[length] = '\0';
  const Allocator memory = allocatorOf(head);
  if (names.toIdentWithHandle != nullptr)
    return names.toIdentWithHandle(name, memory.alloc, memory.context, head->handle);
  return names.toIdent(name, memory.alloc, memory.context);
}

char *zelStrToIdent(zelPath chunk, std::uint32_t position) noexcept {
  if (chunk == nullptr || !isText(byteAt(chunk, position)))
    return nullptr;
  std::uint8_t &kind = chunk->items[position];
  const char *&slot = chunk->slots[slotOf(kind)].string;
  const PathLanguage *language = languageOf(chunk->head);
  const int error = errno;
  errno = 0;
  char *ident = language == nullptr ? nullptr : convertText(*language, chunk->head, slot);
  // A name that does not convert becomes a null Ident, so that it is tried only once; one that memory lacks for stays.
  if (ident == nullptr && errno == ENOMEM)
    return nullptr;
  if (errno == 0)
    errno = error;
  slot = ident;
  kind = static_cast<std::uint8_t>(kind - kindTextIdent + kindOwnedIdent);
  return ident;
}
