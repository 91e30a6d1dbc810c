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
  if (!isIdent(a) || !isIdent(b))
    return 0;
  // Most Idents that are compared are equal, or differ in what case does not change.
  if (*a == *b)
    if (const int order = std::strcmp(a + 1, b + 1); order == 0 || *a != 'I')
      return order;
  bool foldA = *a == 'I';
  bool foldB = *b == 'I';
  if (foldA != foldB && mapStateOfProcess() == ZEL_MAP_MATCH)
    foldA = foldB = true;
  return compareBodies(a + 1, foldA, b + 1, foldB);
}

std::uint32_t zelIdentHash(const char *ident) noexcept {
  if (ident == nullptr || *ident == '\0')
    return 0;
  // The ELF hash in 28 bits; the OR folds case. What flows over the 28 bits stays where it is until the next step,
  // whose shift takes it out again.
  std::uint32_t hash = 0;
  for (const char *c = ident + 1; *c != '\0'; ++c)
    hash = ((hash << 4) ^ (hash >> 20 & 0xF00U)) + (static_cast<unsigned char>(*c) | 0x20U);
  return (hash ^ (hash >> 24 & 0xF0U)) & 0x0FFFFFFFU;
}
