// What every translator needs from the core: results under the allocator convention and the mapping state.
#ifndef ZEL_CORE_ZELPVT_H
#define ZEL_CORE_ZELPVT_H

#include "core/text.h"

#include <cstdint>

// A program that links the archive keeps the library's identification string, too.
asm(".globl vrnIdentString");

namespace zeli {

// size bytes under the allocator convention; null with ENOMEM.
void *allocate(std::size_t size, zelAllocFunc alloc, void *context);

// The one copy at the end of an operation; text may lie in the caller's buffer that it goes to. Null for a text without
// data (errno is then the writer's), EINVAL for an over-long one.
char *makeString(Bytes text, zelAllocFunc alloc, void *context);
char *makeIdent(const Ident &ident, zelAllocFunc alloc, void *context);

// The two conversions of a space: a record with write(Ident, Text &) -> Bytes and read(Bytes, Text &) -> Ident, whose
// results lie in the input or in the Text.
template <typename Space> char *writeName(const Space &space, const char *ident, zelAllocFunc alloc, void *context) {
  const Ident view = identOf(ident);
  if (view.body.data() == nullptr)
    return nullptr;
  Text work;
  return makeString(space.write(view, work), alloc, context);
}

template <typename Space> char *readName(const Space &space, const char *name, zelAllocFunc alloc, void *context) {
  Text work;
  return makeIdent(space.read(nameBytes(name), work), alloc, context);
}

// For the tests of a character and of a word that has no limit of length.
inline int isIn(const ByteSet &set, int c) { return set.has(static_cast<char>(c)) ? 1 : 0; }
inline Bytes wholeBytes(const char *s) { return s == nullptr ? Bytes{} : Bytes{s}; }

// Whether a writer puts the body of ident in lower case.
bool foldsCase(const Ident &ident);

// table and key as in zelTableSearch.
bool tableHas(const char *const *table, std::int32_t count, Bytes key);

} // namespace zeli

#endif
