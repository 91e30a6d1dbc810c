// The Ident space: the canonical form itself.
#include "core/zelpvt.h"

using namespace zeli;

namespace {

// As strcmp, each body folded first where asked.
int compareBodies(const char *a, bool foldA, const char *b, bool foldB) {
  for (;; ++a, ++b) {
    const auto left = static_cast<unsigned char>(foldA ? toLower(*a) : *a);
    const auto right = static_cast<unsigned char>(foldB ? toLower(*b) : *b);
    if (left != right || left == '\0')
      return left - right;
  }
}

} // namespace

int zelIsLegalIdent(const char *ident) noexcept {
  return ident != nullptr && (*ident == 'I' || *ident == 'S' || *ident == 'F') && ident[1] != '\0' ? 1 : 0;
}

char *zelIdentToIdent(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return zelNewString(ident, alloc, context);
}

int zelIdentCmp(const char *a, const char *b) noexcept {
  if (zelIsLegalIdent(a) == 0 || zelIsLegalIdent(b) == 0)
    return 0;
  bool foldA = *a == 'I';
  bool foldB = *b == 'I';
  if (foldA != foldB && zelGetMapState() == ZEL_MAP_MATCH)
    foldA = foldB = true;
  return compareBodies(a + 1, foldA, b + 1, foldB);
}

std::uint32_t zelIdentHash(const char *ident) noexcept {
  if (ident == nullptr || *ident == '\0')
    return 0;
  // The ELF hash in 28 bits; the OR folds case.
  std::uint32_t hash = 0;
  for (const char *c = ident + 1; *c != '\0'; ++c) {
    hash = (hash << 4) + (static_cast<unsigned char>(*c) | 0x20U);
    const std::uint32_t overflow = hash & 0xF0000000U;
    if (overflow != 0)
      hash = (hash ^ (overflow >> 24)) & 0x0FFFFFFFU;
  }
  return hash;
}
