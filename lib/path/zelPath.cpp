// The path object: its memory and its appends.
#include "path/zelPath.h"

#include "core/zelpvt.h"

using namespace zeli;

namespace {

constexpr std::int32_t shortest = -4;
constexpr std::int32_t longest = 123;
constexpr std::int32_t shortOffset = 132;
constexpr std::int32_t longOffset = 200000;

bool isShort(std::int32_t value) { return value >= shortest && value <= longest; }

bool fail(zelPath head, int error) {
  head->flags |= flagError;
  errno = error;
  return false;
}

// Room for an item at the end of the path; null with the error flag set.
zelPath makeRoom(zelPath head, std::size_t bytesNeeded, std::size_t slotsNeeded) {
  const Allocator memory = allocatorOf(head);
  const zelPath chunk = zeliPathAdd(lastChunk(head), bytesNeeded, slotsNeeded, memory.alloc, memory.context);
  if (chunk == nullptr)
    fail(head, ENOMEM);
  else
    head->last = chunk;
  return chunk;
}

void putByte(zelPath chunk, int byte) { chunk->items[chunk->used++] = static_cast<std::uint8_t>(byte); }

} // namespace

std::int32_t zeli::numberAt(const zelPathRecord *chunk, std::size_t position, std::size_t index) {
  const bool isLong = isLongForm(byteAt(chunk, position));
  const std::size_t size = isLong ? 3 : 1;
  const std::size_t start = position + 1 + index * size;
  if (start + size > chunk->used)
    return -1;
  const std::uint8_t *bytes = chunk->items + start;
  if (!isLong)
    return bytes[0] - shortOffset;
  return bytes[0] + 128 * bytes[1] + 16384 * bytes[2] - (128 + 128 * 128 + 16384 * 128 + longOffset);
}

Cursor Cursor::next() const {
  const std::size_t behind = position + itemSize(kind());
  if (behind < chunk->used)
    return {chunk, static_cast<std::uint8_t>(behind)};
  return firstItem(chunk->next);
}

Cursor zeli::firstItem(zelPath path) { return path == nullptr || path->used == 0 ? Cursor{} : Cursor{path, 0}; }

Allocator zeli::allocatorOf(const zelPathRecord *head) {
  if ((head->flags & flagAllocator) == 0)
    return {nullptr, nullptr};
  return {head->slots[0].alloc, head->slots[1].context};
}

zelPath zeli::lastChunk(zelPath head) {
  zelPath chunk = head->last;
  while (chunk->next != nullptr && chunk->next->used != 0)
    chunk = chunk->next;
  head->last = chunk;
  return chunk;
}

std::uint8_t zeli::lastItem(zelPath head) {
  zelPath found = nullptr;
  const zelPath last = lastChunk(head);
  return zeliPrevItem(head, last, last->used, &found);
}

zelPath zeli::removeLastByte(zelPath head) {
  const zelPath chunk = lastChunk(head);
  --chunk->used;
  if (chunk->used == 0 && chunk != head)
    head->last = chunk->previous;
  return chunk;
}

bool zeli::append(zelPath head, Kind kind) {
  const zelPath chunk = makeRoom(head, 1, 0);
  if (chunk == nullptr)
    return false;
  putByte(chunk, kind);
  return true;
}

bool zeli::appendNumbers(zelPath head, Kind shortForm, std::size_t count, const std::int32_t *numbers) {
  bool allShort = true;
  for (std::size_t i = 0; i < count; ++i) {
    if (!isNumber(numbers[i]))
      return fail(head, EINVAL);
    allShort = allShort && isShort(numbers[i]);
  }
  const zelPath chunk = makeRoom(head, 1 + count * (allShort ? 1 : 3), 0);
  if (chunk == nullptr)
    return false;
  putByte(chunk, allShort ? shortForm : shortForm + 1);
  for (std::size_t i = 0; i < count; ++i) {
    if (allShort) {
      putByte(chunk, numbers[i] + shortOffset);
      continue;
    }
    const std::int32_t value = numbers[i] + longOffset;
    putByte(chunk, (value & 0x7F) | 0x80);
    putByte(chunk, ((value >> 7) & 0x7F) | 0x80);
    putByte(chunk, (value >> 14) + 0x80);
  }
  return true;
}

bool zeli::appendNumber(zelPath head, Kind shortForm, std::int32_t number) {
  return appendNumbers(head, shortForm, 1, &number);
}

bool zeli::appendRange(zelPath head, std::int32_t from, std::int32_t to) {
  const std::int32_t numbers[] = {from, to};
  return appendNumbers(head, kindRange, 2, numbers);
}

bool zeli::appendPointers(zelPath head, Kind mark, Kind kind, std::size_t count, const char *const *pointers) {
  const zelPath chunk = makeRoom(head, mark == kindNone ? 1 : 2, count);
  if (chunk == nullptr)
    return false;
  if (mark != kindNone)
    putByte(chunk, mark);
  putByte(chunk, kind + chunk->slotsUsed);
  for (std::size_t i = 0; i < count; ++i)
    chunk->slots[chunk->slotsUsed++].string = pointers[i];
  return true;
}

zelPath zeliGetNewPath(zelAllocFunc alloc, void *context) {
  // The context alone would stand for an output buffer, which a path cannot use.
  auto *chunk = static_cast<zelPath>(allocate(sizeof(zelPathRecord), alloc, alloc == nullptr ? nullptr : context));
  if (chunk == nullptr)
    return nullptr;
  chunk->next = nullptr;
  chunk->head = nullptr;
  chunk->flags = 0;
  chunk->handle = nullptr;
  chunk->used = 0;
  chunk->slotsUsed = 0;
  chunk->cursor = cursorIdle;
  chunk->previous = nullptr;
  chunk->last = chunk;
  chunk->walked = nullptr;
  chunk->refusedAt = nullptr;
  return chunk;
}

zelPath zeliPathAdd(zelPath chunk, std::size_t bytesNeeded, std::size_t slotsNeeded, zelAllocFunc alloc,
                    void *context) {
  if (chunkBytes - chunk->used >= bytesNeeded && chunkSlots - chunk->slotsUsed >= slotsNeeded)
    return chunk;
  const zelPath behind = chunk->next != nullptr ? chunk->next : zeliGetNewPath(alloc, context);
  if (behind == nullptr)
    return nullptr;
  chunk->next = behind;
  behind->head = chunk->head;
  behind->previous = chunk;
  behind->used = 0;
  behind->slotsUsed = 0;
  return behind;
}

std::uint8_t zeliPrevItem(const zelPathRecord *head, zelPath chunk, std::size_t position, zelPath *found) {
  if (position == 0 && chunk != head && chunk->previous != nullptr) {
    chunk = chunk->previous;
    position = chunk->used;
  }
  *found = chunk;
  while (position > 0) {
    const std::uint8_t byte = byteAt(chunk, --position);
    if (byte < 128)
      return byte;
  }
  return kindNone;
}

zelPath zelCreatePath(zelAllocFunc alloc, void *context) noexcept {
  const zelPath path = zeliGetNewPath(alloc, context);
  if (path == nullptr)
    return nullptr;
  path->head = path;
  if (alloc != nullptr) {
    path->flags |= flagAllocator;
    path->slots[0].alloc = alloc;
    path->slots[1].context = context;
    path->slotsUsed = 2;
  }
  return path;
}

void zelPathAddTopIdent(zelPath path, const char *ident, int borrowed) noexcept {
  if (path != nullptr)
    appendPointers(path, kindTopMark, borrowed != 0 ? kindBorrowedIdent : kindOwnedIdent, 1, &ident);
}

void zelPathAddIdent(zelPath path, const char *ident, int borrowed) noexcept {
  if (path != nullptr)
    appendPointers(path, kindNone, borrowed != 0 ? kindBorrowedIdent : kindOwnedIdent, 1, &ident);
}

void zelPathAddLib(zelPath path, const char *library, const char *cell, const char *view, int shared) noexcept {
  if (path == nullptr)
    return;
  const char *const names[] = {library, cell, view};
  const bool hasView = view != nullptr;
  const Kind mark = shared != 0 ? kindSharedMark : kindNone;
  if (appendPointers(path, mark, hasView ? kindLibView : kindLib, hasView ? 3 : 2, names))
    path->flags |= flagHierarchy;
}

void zelPathAddIndex(zelPath path, std::int32_t index) noexcept {
  if (path != nullptr)
    appendNumber(path, kindIndex, index);
}

void zelPathAddRange(zelPath path, std::int32_t from, std::int32_t to) noexcept {
  if (path != nullptr)
    appendRange(path, from, to);
}

void zelPathAddStepRange(zelPath path, std::int32_t from, std::int32_t to, std::int32_t step) noexcept {
  const std::int32_t numbers[] = {from, to, step};
  if (path != nullptr)
    appendNumbers(path, kindStepRange, 3, numbers);
}

void zelPathAddRepeat(zelPath path, std::int32_t count) noexcept {
  if (path != nullptr)
    appendNumber(path, kindGroupRepeat, count);
}

void zelPathAddListStart(zelPath path) noexcept {
  if (path != nullptr)
    append(path, kindListStart);
}

void zelPathAddList(zelPath path) noexcept {
  if (path != nullptr)
    append(path, kindList);
}

void zelPathAddListEnd(zelPath path) noexcept {
  if (path != nullptr)
    append(path, kindListEnd);
}
