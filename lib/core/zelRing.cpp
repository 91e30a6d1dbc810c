// The ring allocator.
#include "core/zelpvt.h"

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

constexpr std::uint32_t slotCount = 15;
constexpr std::uint32_t deadAfter = 10; // a result is marked dead this many allocations after its own
constexpr std::uint64_t smallestBuffer = 20;
constexpr char deadMark[] = "@DEAD!";
static_assert(sizeof deadMark <= smallestBuffer);

void *outOfMemory() {
  errno = ENOMEM;
  return nullptr;
}

} // namespace

struct zelRingBlock {
  std::uint32_t next;
  std::uint64_t sizes[slotCount];
  char *buffers[slotCount];
};

void *zelAllocRing(std::uint64_t size, void *ring) noexcept {
  if (ring == nullptr) {
    errno = EINVAL;
    return nullptr;
  }
  auto &block = *static_cast<zelRing *>(ring);
  if (block == nullptr) {
    block = static_cast<zelRing>(std::calloc(1, sizeof(zelRingBlock)));
    if (block == nullptr)
      return outOfMemory();
  }

  const std::uint32_t slot = block->next;
  block->next = (slot + 1) % slotCount;
  const std::uint32_t dead = (slot + slotCount - deadAfter) % slotCount;
  if (block->sizes[dead] != 0)
    std::memcpy(block->buffers[dead], deadMark, sizeof deadMark);

  std::uint64_t &capacity = block->sizes[slot];
  char *&buffer = block->buffers[slot];
  if (buffer == nullptr || size > capacity) {
    const std::uint64_t wanted = capacity == 0 && size < smallestBuffer ? smallestBuffer : size;
    std::free(buffer);
    buffer = static_cast<char *>(std::malloc(wanted));
    capacity = buffer != nullptr ? wanted : 0;
    if (buffer == nullptr)
      return outOfMemory();
  }
  return buffer;
}

void zelFreeRing(zelRing *ring) noexcept {
  if (ring == nullptr || *ring == nullptr)
    return;
  for (char *buffer : (*ring)->buffers)
    std::free(buffer);
  std::free(*ring);
  *ring = nullptr;
}
