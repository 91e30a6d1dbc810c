// The path object: a chain of chunks that hold items as bytes. An item is a kind byte below 128 and number bytes of 128
// and above, and never straddles two chunks; identifiers and library references use pointer slots of their chunk, the
// slot number folded into the kind.
#ifndef ZEL_PATH_ZELPATH_H
#define ZEL_PATH_ZELPATH_H

#include "core/zel.h"

#include <cstddef>
#include <cstdint>

namespace zeli {

// Kind bytes. A long form, one above its short form, has three bytes a number instead of one.
enum Kind : std::uint8_t {
  kindNone = 0, // what reads where no item stands
  kindIndex = 2,
  kindRange = 4,
  kindStepRange = 6,
  kindGroupRepeat = 8,
  kindList = 10,
  kindListStart = 11,
  kindListEnd = 12,
  kindIndexListStart = 13,
  kindIndexListEnd = 14,
  kindIndexRepeat = 15,
  kindSharedMark = 17, // the library reference behind does not own its names
  kindTopMark = 18,    // the identifier behind is a top identifier
  kindOwnedIdent = 19, // + slot
  kindBorrowedIdent = 27,
  kindTextIdent = 35, // the slot points into the parsed text
  kindLib = 43,       // library and cell, from the slot on
  kindLibView = 51,   // library, cell and view
  kindEnd = 59
};

constexpr std::size_t chunkBytes = 19;
constexpr std::size_t chunkSlots = 8;

constexpr bool hasSlot(std::uint8_t kind, Kind first) { return kind >= first && kind < first + chunkSlots; }
constexpr bool isLongForm(std::uint8_t kind) { return kind < kindList ? (kind & 1) != 0 : kind == kindIndexRepeat + 1; }
constexpr bool isForm(std::uint8_t kind, Kind shortForm) { return kind == shortForm || kind == shortForm + 1; }
constexpr bool isConverted(std::uint8_t kind) { return kind >= kindOwnedIdent && kind < kindTextIdent; }
constexpr bool isText(std::uint8_t kind) { return hasSlot(kind, kindTextIdent); }
constexpr bool isIdent(std::uint8_t kind) { return isConverted(kind) || isText(kind); }
constexpr bool isLib(std::uint8_t kind) { return kind >= kindLib && kind < kindEnd; }
constexpr bool isAnyIndex(std::uint8_t kind) { return kind >= kindIndex && kind < kindGroupRepeat; }

// The slot that an identifier or library reference names in its kind.
constexpr std::size_t slotOf(std::uint8_t kind) { return (kind - kindOwnedIdent) % chunkSlots; }

// How many bytes an item takes.
constexpr std::uint8_t itemSize(std::uint8_t kind) {
  switch (kind) {
  case kindIndex:
  case kindGroupRepeat:
  case kindIndexRepeat:
    return 2;
  case kindIndex + 1:
  case kindGroupRepeat + 1:
  case kindIndexRepeat + 1:
  case kindStepRange:
    return 4;
  case kindRange:
    return 3;
  case kindRange + 1:
    return 7;
  case kindStepRange + 1:
    return 10;
  default:
    return 1;
  }
}

// Bits of the flag word in the head. The reported ones are rearranged by zelPathGetFlag.
enum PathFlag : std::uint32_t {
  flagError = 0x1,
  flagHierarchy = 0x2,
  flagIndex = 0x4,
  flagRange = 0x8,
  flagComplex = 0x10, // reserved
  flagMidIndex = 0x20,
  flagMidRange = 0x40,
  flagRepeat = 0x80,
  flagList = 0x100,
  flagComplexIndex = 0x200, // a step range or an index repeat
  flagAllocator = 0x400,    // slots 0 and 1 of the head hold the allocator and its context
  flagLeadingDivider = 0x800
};
constexpr int languageShift = 12;
constexpr std::uint32_t languageMask = 0x1F;

// States of a chunk's cursor beside item positions.
enum CursorState : std::uint8_t { cursorPassed = 100, cursorIdle = 200, cursorReset = 255 };

union Slot {
  const char *string;
  zelAllocFunc alloc;
  void *context;
};

} // namespace zeli

struct zelPathRecord {
  zelPath next;
  zelPath head;
  std::uint32_t flags; // in the head
  zelHandle handle;    // in the head: the separators that the path was parsed with, if they can be redefined
  std::uint8_t used;
  std::uint8_t slotsUsed;
  std::uint8_t cursor;
  std::uint8_t items[zeli::chunkBytes];
  zeli::Slot slots[zeli::chunkSlots];

  const char *refusedAt; // in the head: where its parser refused the text, null where it did not

  // So that long paths cost no search: the chunk before this one (null in the head); in the head a chunk at or before
  // the last used one, and the chunk that the walk stands on (null when it has to be looked up).
  zelPath previous;
  zelPath last;
  zelPath walked;
};

namespace zeli {

// The byte at a position; no item where the chunk holds none.
inline std::uint8_t byteAt(const zelPathRecord *chunk, std::size_t position) {
  return position < chunk->used ? chunk->items[position] : static_cast<std::uint8_t>(kindNone);
}

// The number at an index of the item at position; -1 where its bytes are missing.
std::int32_t numberAt(const zelPathRecord *chunk, std::size_t position, std::size_t index);

inline bool isNumber(std::int64_t value) { return value >= ZEL_MIN_NUMBER && value <= ZEL_MAX_NUMBER; }

// Writes the decimal digits of a number, and returns where they end.
inline char *writeNumber(char *out, std::int32_t number) {
  auto magnitude = static_cast<std::uint32_t>(number);
  if (number < 0) {
    *out++ = '-';
    magnitude = 0 - magnitude;
  }
  std::size_t count = 1;
  for (std::uint64_t limit = 10; magnitude >= limit; limit *= 10)
    ++count;
  for (char *at = out + count; at != out; magnitude /= 10)
    *--at = static_cast<char>('0' + magnitude % 10);
  return out + count;
}

// A place in the item stream, for walks that leave the path's own cursor alone.
struct Cursor {
  zelPath chunk = nullptr; // null behind the last item
  std::uint8_t position = 0;

  bool atEnd() const { return chunk == nullptr; }
  std::uint8_t kind() const { return byteAt(chunk, position); }
  std::int32_t number(std::size_t index) const { return numberAt(chunk, position, index); }
  Cursor next() const;

  friend bool operator==(const Cursor &, const Cursor &) = default;
};

Cursor firstItem(zelPath path);

// How the path allocates.
struct Allocator {
  zelAllocFunc alloc;
  void *context;
};
Allocator allocatorOf(const zelPathRecord *head);

// The last chunk in use (the head of an empty path).
zelPath lastChunk(zelPath head);

// The kind of the item that ends the path.
std::uint8_t lastItem(zelPath head);

// Takes the last byte off the path, which must not be empty; returns its chunk.
zelPath removeLastByte(zelPath head);

// The appends of parsers and of the public functions. On failure the head's error flag and errno are set.
bool append(zelPath head, Kind kind);
bool appendNumbers(zelPath head, Kind shortForm, std::size_t count, const std::int32_t *numbers);
bool appendNumber(zelPath head, Kind shortForm, std::int32_t number);
bool appendRange(zelPath head, std::int32_t from, std::int32_t to);
// pointers go into neighbouring slots; kind gets the number of the first; mark stands before it unless kindNone.
bool appendPointers(zelPath head, Kind mark, Kind kind, std::size_t count, const char *const *pointers);

} // namespace zeli

// One chunk, without its head set; null with ENOMEM.
zelPath zeliGetNewPath(zelAllocFunc alloc, void *context);

// The chunk that an item of so many bytes and slots goes to: the given one, or the one behind it, made if need be. Null
// with ENOMEM.
zelPath zeliPathAdd(zelPath chunk, std::size_t bytesNeeded, std::size_t slotsNeeded, zelAllocFunc alloc, void *context);

// The kind of the item that ends before a position of a chunk, which *found reports; at position 0 the last item of the
// chunk before it. kindNone when there is none.
std::uint8_t zeliPrevItem(const zelPathRecord *head, zelPath chunk, std::size_t position, zelPath *found);

#endif
