// The helpers that all translators share, and the mapping state.
#include "core/zelpvt.h"

#include "core/hexEscape.h"

#include <atomic>
#include <cstdlib>

namespace zeli {

namespace {

// The mapping state of the process.
std::atomic<std::int32_t> zelMapState{ZEL_MAP_UNSET};

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

// As strcmp of key and word.
int compare(Bytes key, const char *word) {
  for (const char c : key) {
    if (c != *word)
      return static_cast<unsigned char>(c) - static_cast<unsigned char>(*word);
    ++word;
  }
  return *word == '\0' ? 0 : -1;
}

} // namespace

void *allocate(std::size_t size, zelAllocFunc alloc, void *context) {
  void *memory = alloc != nullptr ? alloc(size, context) : context != nullptr ? context : std::malloc(size);
  if (memory == nullptr)
    errno = ENOMEM;
  return memory;
}

char *makeString(Bytes text, zelAllocFunc alloc, void *context) {
  if (text.data() == nullptr)
    return nullptr;
  if (text.size() > maxName) {
    errno = EINVAL;
    return nullptr;
  }
  auto *result = static_cast<char *>(allocate(text.size() + 1, alloc, context));
  if (result == nullptr)
    return nullptr;
  std::memmove(result, text.data(), text.size());
  result[text.size()] = '\0';
  return result;
}

char *makeIdent(const Ident &ident, zelAllocFunc alloc, void *context) {
  const Bytes body = ident.body;
  if (body.data() == nullptr)
    return nullptr;
  if (body.size() > maxName) {
    errno = EINVAL;
    return nullptr;
  }
  auto *result = static_cast<char *>(allocate(body.size() + 2, alloc, context));
  if (result == nullptr)
    return nullptr;
  std::memmove(result + 1, body.data(), body.size());
  result[0] = ident.marker;
  result[body.size() + 1] = '\0';
  return result;
}

bool foldsCase(const Ident &ident) {
  // Also a case-sensitive Ident is a first use that determines the state.
  const std::int32_t state = zelGetMapState();
  return !ident.isCaseSensitive() && state != ZEL_MAP_MATCH;
}

bool tableHas(const char *const *table, std::int32_t count, Bytes key) {
  constexpr std::int32_t scannedWhole = 4;
  if (count <= scannedWhole) {
    for (std::int32_t i = 0; i < count; ++i)
      if (compare(key, table[i]) == 0)
        return true;
    return false;
  }
  std::int32_t low = 0;
  std::int32_t high = count - 1;
  while (low <= high) {
    const std::int32_t middle = low + (high - low) / 2;
    const int order = compare(key, table[middle]);
    if (order == 0)
      return true;
    if (order > 0)
      low = middle + 1;
    else
      high = middle - 1;
  }
  return false;
}

} // namespace zeli

using namespace zeli;

std::int32_t zelGetMapState() noexcept {
  std::int32_t state = zelMapState.load(std::memory_order_relaxed);
  // A state that another thread sets while this one reads the environment wins.
  while (state <= ZEL_MAP_RESOLVE) {
    const std::int32_t resolved = stateFromEnvironment(state == ZEL_MAP_RESOLVE);
    if (zelMapState.compare_exchange_weak(state, resolved, std::memory_order_relaxed))
      state = resolved;
  }
  return state;
}

void zelSetMapState(std::int32_t value) noexcept {
  const bool isChoice = value >= ZEL_MAP_VHDL && value <= ZEL_MAP_MATCH;
  zelMapState.store(isChoice ? value : static_cast<std::int32_t>(ZEL_MAP_RESOLVE), std::memory_order_relaxed);
}

char *zelNewIdent(std::int32_t kind, const char *text, zelAllocFunc alloc, void *context) noexcept {
  if (text == nullptr)
    return makeIdent(refuseIdent(), alloc, context);
  const char marker = kind == 0 ? 'S' : kind == 2 ? 'F' : 'I';
  return makeIdent({marker, nameBytes(text)}, alloc, context);
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

int zelAllLower(const char *s) noexcept { return s != nullptr && !hasUpper(s) ? 1 : 0; }

int zelIsForce(const char *s) noexcept { return s != nullptr && isForce(s) ? 1 : 0; }

const char *zelSkipForce(const char *s) noexcept { return s != nullptr ? skipForce(s).data() : nullptr; }
