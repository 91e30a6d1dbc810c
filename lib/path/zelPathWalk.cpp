// Walking a path, reading its items, and cutting it.
#include "path/zelPath.h"
#include "path/zelPathIdent.h"

#include <cstdlib>

using namespace zeli;

namespace {

constexpr int locationShift = 8;
constexpr std::uint32_t positionMask = 0xFF;

// How far the walk steps over an item. A step range of small numbers is stepped over one byte short: the walk then
// meets its last number once as ZEL_ITEM_NONE.
std::uint8_t walkSize(std::uint8_t kind) { return kind == kindStepRange ? std::uint8_t{3} : itemSize(kind); }

// The chunk that the walk stands on: the first whose cursor does not say passed. What moves the walk remembers it.
zelPath walkedChunk(zelPath path) {
  if (path->walked != nullptr)
    return path->walked;
  zelPath chunk = path;
  while (chunk->cursor == cursorPassed && chunk->next != nullptr)
    chunk = chunk->next;
  return chunk;
}

struct WalkedItem {
  zelPath chunk = nullptr;
  std::uint8_t position = 0;
  std::uint8_t kind = kindNone;

  std::int32_t number(std::size_t index) const { return numberAt(chunk, position, index); }
  Slot &slot(std::size_t offset = 0) const { return chunk->slots[slotOf(kind) + offset]; }
};

WalkedItem walkedItem(zelPath path) {
  if (path == nullptr)
    return {};
  const zelPath chunk = walkedChunk(path);
  return {chunk, chunk->cursor, byteAt(chunk, chunk->cursor)};
}

int generatorResult(std::uint8_t kind, bool isTop) {
  static constexpr int results[] = {ZEL_ITEM_NONE,           ZEL_ITEM_NONE,
                                    ZEL_ITEM_INDEX,          ZEL_ITEM_INDEX,
                                    ZEL_ITEM_RANGE,          ZEL_ITEM_RANGE,
                                    ZEL_ITEM_STEP_RANGE,     ZEL_ITEM_STEP_RANGE,
                                    ZEL_ITEM_REPEAT,         ZEL_ITEM_REPEAT,
                                    ZEL_ITEM_LIST,           ZEL_ITEM_LIST_START,
                                    ZEL_ITEM_LIST_END,       ZEL_ITEM_INDEX_LIST_START,
                                    ZEL_ITEM_INDEX_LIST_END, ZEL_ITEM_INDEX_REPEAT,
                                    ZEL_ITEM_INDEX_REPEAT};
  if (kind <= kindIndexRepeat + 1)
    return results[kind];
  if (isIdent(kind))
    return isTop ? ZEL_ITEM_TOP_IDENT : ZEL_ITEM_IDENT;
  return isLib(kind) ? ZEL_ITEM_LIB : ZEL_ITEM_NONE;
}

template <typename T> void store(T *out, T value) {
  if (out != nullptr)
    *out = value;
}

// What the caller of a release chose.
struct Release {
  zelFreeFunc free;
  void *context;

  void operator()(const void *memory) const {
    if (memory == nullptr)
      return;
    if (free != nullptr)
      free(const_cast<void *>(memory), context);
    else
      std::free(const_cast<void *>(memory));
  }
};

// Releases what the items of a chunk own, from a position on. It looks at every byte: number bytes are no kinds, and an
// item that zelPathRemoveIndex cut short hides nothing behind it.
void releaseItems(const zelPathRecord *chunk, std::size_t position, const Release &release) {
  // The mark of a reference belongs to it also when the walk starts between the two.
  bool isShared = position > 0 && byteAt(chunk, position - 1) == kindSharedMark;
  for (; position < chunk->used; ++position) {
    const std::uint8_t kind = chunk->items[position];
    const Slot *slots = chunk->slots;
    if (kind == kindSharedMark) {
      isShared = true;
    } else if (hasSlot(kind, kindOwnedIdent)) {
      release(slots[slotOf(kind)].string);
    } else if (isLib(kind)) {
      const std::size_t names = kind >= kindLibView ? 3 : 2;
      for (std::size_t i = 0; i < names && !isShared; ++i)
        release(slots[slotOf(kind) + i].string);
      isShared = false;
    }
  }
}

void releaseChunks(zelPath chunk, const Release &release) {
  while (chunk != nullptr) {
    const zelPath next = chunk->next;
    releaseItems(chunk, 0, release);
    release(chunk);
    chunk = next;
  }
}

void forgetPlaces(zelPath head) {
  head->last = head;
  head->walked = nullptr;
}

} // namespace

void zelPathGenStart(zelPath path) noexcept {
  if (path == nullptr)
    return;
  path->cursor = cursorReset;
  path->walked = path;
}

int zelPathGenNext(zelPath path) noexcept {
  if (path == nullptr || path->cursor == cursorIdle)
    return ZEL_ITEM_END;
  zelPath chunk = path;
  if (path->cursor == cursorReset) {
    path->cursor = 0;
  } else {
    chunk = walkedChunk(path);
    chunk->cursor = static_cast<std::uint8_t>(chunk->cursor + walkSize(byteAt(chunk, chunk->cursor)));
  }

  if (chunk->cursor >= chunk->used) {
    if (chunk->next == nullptr || chunk->next->used == 0) {
      path->cursor = cursorIdle;
      path->walked = path;
      return ZEL_ITEM_END;
    }
    chunk->cursor = cursorPassed;
    chunk = chunk->next;
    chunk->cursor = 0;
  }
  path->walked = chunk;

  if (byteAt(chunk, chunk->cursor) == kindSharedMark)
    ++chunk->cursor;
  const bool isTop = byteAt(chunk, chunk->cursor) == kindTopMark;
  if (isTop)
    ++chunk->cursor;
  return generatorResult(byteAt(chunk, chunk->cursor), isTop);
}

int zelPathGetIndex(zelPath path) noexcept {
  const WalkedItem item = walkedItem(path);
  return isForm(item.kind, kindIndex) ? item.number(0) : -1;
}

void zelPathGetRange(zelPath path, std::int32_t *from, std::int32_t *to) noexcept {
  const WalkedItem item = walkedItem(path);
  const bool isRange = isForm(item.kind, kindRange) || isForm(item.kind, kindStepRange);
  store(from, isRange ? item.number(0) : -1);
  store(to, isRange ? item.number(1) : -1);
}

void zelPathGetStepRange(zelPath path, std::int32_t *from, std::int32_t *to, std::int32_t *step) noexcept {
  const WalkedItem item = walkedItem(path);
  if (isForm(item.kind, kindStepRange)) {
    store(from, item.number(0));
    store(to, item.number(1));
    store(step, item.number(2));
    return;
  }
  const std::uint32_t preset = step != nullptr ? static_cast<std::uint32_t>(*step) : 0;
  store(from, static_cast<std::int32_t>(preset - 1));
  store(to, static_cast<std::int32_t>(preset - 1));
}

int zelPathGetRepeat(zelPath path) noexcept {
  const WalkedItem item = walkedItem(path);
  return isForm(item.kind, kindGroupRepeat) || isForm(item.kind, kindIndexRepeat) ? item.number(0) : -1;
}

const char *zelPathGetIdent(zelPath path) noexcept {
  const WalkedItem item = walkedItem(path);
  if (isConverted(item.kind))
    return item.slot().string;
  const PathLanguage *language = isText(item.kind) ? languageOf(path) : nullptr;
  if (language == nullptr || !language->names.convertsOnRequest)
    return nullptr;
  char *ident = convertText(*language, path, item.slot().string);
  if (ident == nullptr) {
    path->flags |= flagError;
    return nullptr;
  }
  item.slot().string = ident;
  item.chunk->items[item.position] = static_cast<std::uint8_t>(item.kind - kindTextIdent + kindOwnedIdent);
  return ident;
}

const char *zelPathGetString(zelPath path, const char **end) noexcept {
  const WalkedItem item = walkedItem(path);
  const PathLanguage *language = isText(item.kind) ? languageOf(path) : nullptr;
  if (language == nullptr || !language->names.showsText) {
    store(end, static_cast<const char *>(nullptr));
    return nullptr;
  }
  const char *start = item.slot().string;
  store(end, language->names.scan(start, path->handle));
  return start;
}

void zelPathGetLib(zelPath path, const char **library, const char **cell, const char **view) noexcept {
  const WalkedItem item = walkedItem(path);
  if (!isLib(item.kind))
    return;
  store(library, item.slot(0).string);
  store(cell, item.slot(1).string);
  store(view, item.kind >= kindLibView ? item.slot(2).string : nullptr);
}

int zelPathGetFlag(zelPath path) noexcept {
  if (path == nullptr)
    return 0;
  static constexpr struct {
    std::uint32_t internal;
    int reported;
  } bits[] = {
      {flagError, ZEL_PATH_ERROR},        {flagHierarchy, ZEL_PATH_HIERARCHY}, {flagIndex, ZEL_PATH_INDEX},
      {flagRange, ZEL_PATH_RANGE},        {flagComplex, ZEL_PATH_COMPLEX},     {flagMidIndex, ZEL_PATH_MID_INDEX},
      {flagMidRange, ZEL_PATH_MID_RANGE}, {flagList, ZEL_PATH_LIST},           {flagRepeat, ZEL_PATH_REPEAT}};
  int result = 0;
  for (const auto &bit : bits)
    if ((path->flags & bit.internal) != 0)
      result |= bit.reported;
  if ((path->flags & (flagComplex | flagRepeat | flagList | flagComplexIndex)) == 0)
    result |= ZEL_PATH_SINGLE_VERILOG | ZEL_PATH_SINGLE_VHDL;
  if ((path->flags & (flagRepeat | flagList)) == 0)
    result |= ZEL_PATH_SINGLE_ORKA;
  return result;
}

std::uint32_t zelPathGetLocation(zelPath path) noexcept {
  if (path == nullptr || path->cursor == cursorReset)
    return 0;
  const zelPathRecord *walked = walkedChunk(path);
  std::uint32_t number = 1;
  for (const zelPathRecord *chunk = path; chunk != walked; chunk = chunk->next)
    ++number;
  return (number << locationShift) + walked->cursor;
}

std::uint32_t zelPathSetLocation(zelPath path, std::uint32_t location) noexcept {
  if (path == nullptr)
    return 0;
  path->walked = path;
  if (location == 0) {
    path->cursor = cursorReset;
    return 0;
  }
  zelPath chunk = path;
  for (std::uint32_t number = location >> locationShift; number > 1; --number) {
    if (chunk->next == nullptr) {
      path->cursor = path->used;
      return path->used;
    }
    chunk->cursor = cursorPassed;
    chunk = chunk->next;
  }
  path->walked = chunk;
  const std::uint32_t position = location & positionMask;
  if (position > chunk->used) {
    chunk->cursor = chunk->used;
    return chunk->used;
  }
  chunk->cursor = static_cast<std::uint8_t>(position);
  return location >> locationShift != 0 ? 1 : 0;
}

std::uint32_t zelPathGetLastLocation(zelPath path) noexcept {
  if (path == nullptr)
    return 0;
  const zelPath last = lastChunk(path);
  if (last->used == 0)
    return 0;
  path->walked = nullptr;
  last->cursor = last->used;
  // The last item is looked for in the head, whatever chunk it is in.
  zelPath found = nullptr;
  const std::uint8_t kind = zeliPrevItem(path, path, last->used, &found);
  found->cursor = static_cast<std::uint8_t>(found->cursor - walkSize(kind));
  return zelPathGetLocation(found);
}

void zelPathRemoveFromLocation(zelPath path, std::uint32_t location, zelFreeFunc free, void *context) noexcept {
  if (path == nullptr)
    return;
  zelPathSetLocation(path, location);
  const zelPath chunk = walkedChunk(path);
  const std::uint32_t position = path->cursor == cursorReset ? 0 : chunk->cursor;
  zelFreePathFromLocation(chunk, position, free, context);
}

void zelFreePathFromLocation(zelPath chunk, std::uint32_t location, zelFreeFunc free, void *context) noexcept {
  if (chunk == nullptr)
    return;
  const Release release{free, context};
  const std::uint32_t position = location & positionMask;
  releaseItems(chunk, position, release);
  releaseChunks(chunk->next, release);
  chunk->next = nullptr;
  if (position < chunk->used)
    chunk->used = static_cast<std::uint8_t>(position);
  forgetPlaces(chunk->head);
}

std::intptr_t zelPathRemoveIndex(zelPath path) noexcept {
  const std::uint8_t kind = path == nullptr ? std::uint8_t{kindNone} : lastItem(path);
  return isAnyIndex(kind) ? reinterpret_cast<std::intptr_t>(removeLastByte(path)) : kind - kindIndex;
}

std::intptr_t zelPathRemoveLevel(zelPath path) noexcept {
  zelPathRemoveIndex(path);
  const std::uint8_t kind = path == nullptr ? std::uint8_t{kindNone} : lastItem(path);
  return isIdent(kind) ? reinterpret_cast<std::intptr_t>(removeLastByte(path)) : kind - kindOwnedIdent;
}

void zelFreePath(zelPath path, zelFreeFunc free, void *context) noexcept {
  releaseChunks(path, Release{free, context});
}
