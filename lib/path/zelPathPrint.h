// What the path printers share: the text of a printing run, and one item printer a kind of syntax.
#ifndef ZEL_PATH_ZELPATHPRINT_H
#define ZEL_PATH_ZELPATHPRINT_H

#include "core/text.h"
#include "path/languages.h"
#include "path/zelPathExplode.h"

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

// The names of a path that lives for one mapping only: read straight from its text and written as the mapping says,
// without Idents. What is refused first is noted.
struct TransientNames {
  const char *text;
  const Operations *read;
  Setting from;
  const Operations *written;
  Setting to;
  const Operations *tested = nullptr; // as whose names they must be legal, too; or null
  char indexEnd = '\0';               // behind which no name may stand without a divider; NUL where one may
  zelRefusal refusal = {};

  // The grammars begin a level there, which a name with brackets inside, a[3]_b, hardly means.
  bool isBehindIndex(const char *name) const {
    while (name != text && white.has(name[-1]))
      --name;
    return indexEnd != '\0' && name != text && name[-1] == indexEnd;
  }

  void refuse(const char *at, std::int32_t reason) {
    if (refusal.reason == ZEL_REASON_NONE)
      refusal = {reason, static_cast<std::uint32_t>(at - text)};
  }
};

// One printing run. The text has room for one item behind the longest result; a further one overwrites it, since an
// over-long text cannot be returned any more.
struct PrintRun {
  const PathLanguage &language;
  zelPath path;
  zelHandle handle;  // where a file may redefine the separators
  Punctuation marks; // in force
  std::uint32_t state;
  bool isOutOfMemory = false;
  TransientNames *transient; // null where the path's names become Idents
  std::size_t size = 0;
  std::size_t numberStart = 0; // of the last number
  std::size_t numberEnd = 0;
  char text[2 * (maxName + 1) + 64];

  PrintRun(const PathLanguage &target, zelPath printedPath, zelHandle givenHandle, std::uint32_t mask,
           TransientNames *transientNames);

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
  void putName(const Spelled &name) {
    name.copyTo(text + size);
    size += name.size();
  }
  void putNumber(std::int32_t number);
  void putIdent(const char *ident); // nothing for one that the target cannot write
  bool putIdent(const Ident &ident, const Operations &names, const Setting &setting);
  void putIdentAt(Cursor cursor);
  void putUnprintable(Cursor cursor);

  // The calls of the item printer.
  void item(Cursor cursor);
  void value(std::int32_t index);
  void alternative();
};

// How a language writes an item of the path, a generated index, the end of one name with another to follow, and the end
// of the text.
struct ItemPrinter {
  void (*item)(PrintRun &run, Cursor cursor);
  void (*value)(PrintRun &run, std::int32_t index);
  void (*alternative)(PrintRun &run);
  void (*finish)(PrintRun &run);
  // What it never writes as it stands; what it also expands for single bits; and without repeats.
  std::uint32_t mask;
  std::uint32_t explodeMask;
  std::uint32_t noRepeatMask;
};

extern const ItemPrinter bracePrinter; // of all but ORKA and VHDL
extern const ItemPrinter orkaPrinter;
extern const ItemPrinter vhdlPrinter;

// What stands for an item that the target cannot write.
constexpr Bytes unprintable = "!ERROR!";

// The printer of a language.
char *printPath(const PathLanguage &language, zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc,
                void *context, TransientNames *transient = nullptr);

} // namespace zeli

#endif
