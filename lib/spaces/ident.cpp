// The Ident space: the canonical form itself.
#include "spaces/spaces.h"

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

constexpr ByteSet markers = chars("SIF");
bool isMarker(char c) { return markers.has(c); }

bool isIdent(const char *ident) { return ident != nullptr && isMarker(*ident) && ident[1] != '\0'; }

[[gnu::noinline]] int compareDifferent(const char *a, const char *b) {
  if (!isIdent(a) || !isIdent(b))
    return 0;
  bool foldA = *a == 'I';
  bool foldB = *b == 'I';
  if (foldA != foldB && mapStateOfProcess() == ZEL_MAP_MATCH)
    foldA = foldB = true;
  return compareBodies(a + 1, foldA, b + 1, foldB);
}

struct IdentRules {
  // Never: the marker tells.
  static constexpr PlainWords plainWords() { return {traitOther, traitOther, traitOther, 'S'}; }

  static bool isLegal(const Name &name) { return name.size() > 1 && isMarker(name[0]); }

  static zelRefusal explain(const Name &name) {
    return {name.empty() || isMarker(name[0]) ? ZEL_REASON_EMPTY : ZEL_REASON_ILLEGAL_FIRST_CHARACTER, 0};
  }

  static Ident read(const Name &name, const Setting &, Text &) {
    return isLegal(name) ? Ident{name[0], Name(from(name, 1))} : refuseIdent();
  }

  static Spelled write(const Ident &ident, const Setting &, Text &work) {
    work.put(ident.marker);
    work.put(ident.body);
    return work.view();
  }
};

constexpr IdentRules rules;

} // namespace

const Operations zeli::identNames = operationsOf<rules>;

int zelIsLegalIdent(const char *ident) noexcept { return isIdent(ident) ? 1 : 0; }

char *zelIdentToIdent(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return zelNewString(ident, alloc, context);
}

int zelIdentCmp(const char *a, const char *b) noexcept {
  // Most Idents that are compared are equal as they stand, and two that are not legal are equal as well.
  return a == nullptr || b == nullptr || std::strcmp(a, b) == 0 ? 0 : compareDifferent(a, b);
}

std::uint32_t zelIdentHash(const char *ident) noexcept {
  if (ident == nullptr || *ident == '\0')
    return 0;
  // The ELF hash in 28 bits; the OR folds case. What flows over the 28 bits stays where it is until the next step,
  // whose shift takes it out again.
  const auto folded = [](char c) { return std::uint32_t{static_cast<unsigned char>(c)} | 0x20U; };
  const char *c = ident + 1;
  std::uint32_t hash = 0;
  for (int i = 0; i < 6 && *c != '\0'; ++i) // which cannot flow over
    hash = (hash << 4) + folded(*c++);
  // Three steps at once: what flows over in them is known, unless a carry could run through the ones below it.
  constexpr std::uint32_t below = 0xFFE00;
  while (c[0] != '\0' && c[1] != '\0' && c[2] != '\0' && (hash & below) != below) {
    const std::uint32_t over = hash >> 12;
    hash = ((hash << 12) ^ (over & 0xF0000)) + (folded(c[0]) << 8);
    hash = (hash ^ (over & 0xF000)) + (folded(c[1]) << 4);
    hash = (hash ^ (over & 0xF00)) + folded(c[2]);
    c += 3;
  }
  for (; *c != '\0'; ++c)
    hash = ((hash << 4) ^ (hash >> 20 & 0xF00U)) + folded(*c);
  return (hash ^ (hash >> 24 & 0xF0U)) & 0x0FFFFFFFU;
}
