// What the path printers share: the text of a printing run, and one record a target language.
#ifndef ZEL_PATH_PRINT_H
#define ZEL_PATH_PRINT_H

#include "core/handle.h"
#include "core/text.h"
#include "path/explode.h"

namespace zeli {

// State of a printing run, beside the explode mask in the low bits.
enum PrintState : std::uint32_t {
  stateAfterIdent = 32,      // a level separator is due before the next identifier
  stateGroup = 64,           // one grouping expression was asked for
  stateRepeatOpen = 128,     // a group repeat was opened and not closed yet
  stateRepeatList = 256,     // its list has begun
  stateBracketOpen = 512,    // an ORKA index bracket is open
  stateTopIdent = 1024,      // an ORKA top identifier follows
  stateTopOfHierarchy = 2048 // ORKA: as the top of the hierarchy
};

struct Target;

// One printing run. The text has room for one item behind the longest result; a further one overwrites it, since an
// over-long text cannot be returned any more.
struct PrintRun {
  const Target &target;
  zelPath path;
  zelHandle handle;      // where a file may redefine the separators
  Separators separators; // in force
  std::uint32_t state;
  bool isOutOfMemory = false;
  std::size_t size = 0;
  char text[2 * (maxName + 1) + 64];

  PrintRun(const Target &printTarget, zelPath printedPath, zelHandle givenHandle, std::uint32_t mask);

  bool has(std::uint32_t bits) const { return (state & bits) != 0; }
  void set(std::uint32_t bits) { state |= bits; }
  void clear(std::uint32_t bits) { state &= ~bits; }

  bool isOverlong() const { return size > maxName; }
  void guard() {
    if (isOverlong())
      size = maxName + 1;
  }

  // What every item printer writes with.
  void put(char c) { text[size++] = c; }
  void put(Bytes bytes) {
    std::memcpy(text + size, bytes.data(), bytes.size());
    size += bytes.size();
  }
  void putNumber(std::int32_t number);
  void putIdent(const char *ident); // nothing for one that the target cannot write
  void putIdentAt(Cursor cursor);

  // The calls of the item printer.
  void item(Cursor cursor);
  void value(std::int32_t index);
  void alternative();
};

// The item printer of a target: for an item of the path, a generated index, the end of one name with another to follow,
// and the end of the text.
struct ItemPrinter {
  void (*item)(PrintRun &run, Cursor cursor);
  void (*value)(PrintRun &run, std::int32_t index);
  void (*alternative)(PrintRun &run);
  void (*finish)(PrintRun &run);
};

using IdentToNameWithHandle = char *(*)(const char *ident, zelAllocFunc alloc, void *context, zelHandle handle);

// How the braces of a target open and close.
enum class Braces {
  balanced, // a repeat brings an outer brace, which the end of its list closes
  verilog,  // a repeat stands inside a list; what is still open is closed at the end
  kirra     // as verilog, but the brace that closes a group is never opened
};

struct Target {
  const ItemPrinter &printer;
  zelIdentToNameFunc identToName = nullptr;
  // Instead of identToName where a file may redefine the separators, with the handle for those who give none.
  IdentToNameWithHandle identToNameWithHandle = nullptr;
  const zelHandle *defaultHandle = nullptr;
  // What the target never writes as it stands; what it also expands for single bits; and without repeats.
  std::uint32_t mask = 0;
  std::uint32_t explodeMask = 0;
  std::uint32_t noRepeatMask = 0;
  // For the targets with braces: the separators where they are fixed, and whether a text that began with a divider gets
  // one in front of every name.
  Separators separators = {};
  bool marksLeading = false;
  Braces braces = Braces::balanced;
};

// What stands for an item that the target cannot write.
constexpr Bytes unprintable = "!ERROR!";

// Prints a path, or null as the public printers do.
char *printPath(const Target &target, zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc,
                void *context);

} // namespace zeli

#endif
