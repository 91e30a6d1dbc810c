// The helpers that all translators share, and the mapping state.
#include "core/zelpvt.h"

#include "core/hexEscape.h"

using namespace zeli;

namespace {

bool containsFolded(Bytes text, Bytes lowerWord) {
  for (std::size_t start = 0; start + lowerWord.size() <= text.size(); ++start) {
    std::size_t i = 0;
    while (i < lowerWord.size() && toLower(text[start + i]) == lowerWord[i])
      ++i;
    if (i == lowerWord.size())
      return true;
  }
  return false;
}

std::int32_t stateFromEnvironment(bool allChoices) {
  const char *value = std::getenv("VRN_ALT_ZEL");
  if (value == nullptr)
    return ZEL_MAP_DEFAULT;
  if (containsFolded(value, "match"))
    return ZEL_MAP_MATCH;
  if (allChoices && containsFolded(value, "vhdl"))
    return ZEL_MAP_VHDL;
  if (allChoices && containsFolded(value, "tandem"))
    return ZEL_MAP_TANDEM;
  return ZEL_MAP_DEFAULT;
}

} // namespace

constinit std::atomic<std::int32_t> zeli::zelMapState{ZEL_MAP_UNSET};

std::int32_t zeli::resolveMapState() {
  std::int32_t state = zelMapState.load(std::memory_order_relaxed);
  // A state that another thread sets while this one reads the environment wins.
  while (state <= ZEL_MAP_RESOLVE) {
    const std::int32_t resolved = stateFromEnvironment(state == ZEL_MAP_RESOLVE);
    if (zelMapState.compare_exchange_weak(state, resolved, std::memory_order_relaxed))
      state = resolved;
  }
  return state;
}

std::int32_t zelGetMapState() noexcept { return mapStateOfProcess(); }

void zelSetMapState(std::int32_t value) noexcept {
  const bool isChoice = value >= ZEL_MAP_VHDL && value <= ZEL_MAP_MATCH;
  zelMapState.store(isChoice ? value : static_cast<std::int32_t>(ZEL_MAP_RESOLVE), std::memory_order_relaxed);
}

char *zelNewIdent(std::int32_t kind, const char *text, zelAllocFunc alloc, void *context) noexcept {
  if (text == nullptr)
    return makeIdent(refuseIdent(), alloc, context);
  const char marker = kind == 0 ? 'S' : kind == 2 ? 'F' : 'I';
  return makeIdent({marker, {nameBytes(text), 0}}, alloc, context);
}

char *zelNewString(const char *text, zelAllocFunc alloc, void *context) noexcept {
  return makeString(text == nullptr ? refuse() : nameBytes(text), alloc, context);
}

void zelToLowerCopy(char *dst, const char *src) noexcept {
  if (dst == nullptr || src == nullptr)
    return;
  for (; *src != '\0'; ++src)
    *dst++ = toLower(*src);
  *dst = '\0';
}

int zelTableSearch(const char *const *table, std::int32_t count, const char *key) noexcept {
  return table != nullptr && key != nullptr && tableHas(table, count, key) ? 1 : 0;
}

int zelToPoundHex(char *dst, int c) noexcept {
  if (dst == nullptr)
    return 0;
  Text out;
  HexEscape{'#', {}}.put(out, static_cast<char>(c));
  std::memcpy(dst, out.bytes, out.size);
  dst[out.size] = '\0';
  return static_cast<int>(out.size);
}

int zelFromPoundHex(const char *s, std::uint32_t *used) noexcept {
  const bool isPair = s != nullptr && hexDigit(s[0]) >= 0 && hexDigit(s[1]) >= 0;
  if (used != nullptr)
    *used = isPair ? 2 : 0;
  return isPair ? hexDigit(s[0]) * 16 + hexDigit(s[1]) : 0;
}

int zelAllLower(const char *s) noexcept { return s != nullptr && !Name(wholeBytes(s)).has(traitUpper) ? 1 : 0; }

int zelIsForce(const char *s) noexcept { return s != nullptr && isForce(s) ? 1 : 0; }

const char *zelSkipForce(const char *s) noexcept { return s != nullptr ? skipForce(s).data() : nullptr; }
