#include "path/zelPathIdent.h"

#include "path/zelPath.h"
#include "spaces/redefinable.h"

using namespace zeli;

Ident zeli::readText(const PathLanguage &language, const zelPathRecord *head, const char *text, const Operations &names,
                     const Setting &setting, Text &work, const Operations *tested) {
  const auto length = static_cast<std::size_t>(language.names.scan(text, head->handle) - text);
  if (length > maxName)
    return refuseIdent();
  const Name name(Bytes(text, length));
  return tested == nullptr || tested->isLegal(name, setting) ? names.read(name, setting, work) : refuseIdent();
}

char *zeli::convertText(const PathLanguage &language, const zelPathRecord *head, const char *text) {
  const Operations &names = *language.names.read;
  zelHandle unused = nullptr;
  const HandleScope scope(names.currentHandle != nullptr ? names.currentHandle() : unused, head->handle);
  const Allocator memory = allocatorOf(head);
  Text work;
  return makeIdent(readText(language, head, text, names, {.handle = head->handle}, work), memory.alloc, memory.context);
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
