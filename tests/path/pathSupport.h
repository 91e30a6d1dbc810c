// What the path tests share: a path as one readable string, in both directions, and owners of paths, texts and counted
// memory. Spaces go by their names; what parses and prints is that of their handles.
#ifndef PATH_SUPPORT_H
#define PATH_SUPPORT_H

#include "core/handle.h"
#include "path/chunk.h"
#include "path/language.h"
#include "support/results.h"

#include <cstring>
#include <set>
#include <sstream>

constexpr const char *sources[] = {
    "Verilog", "ORKA", "VHDL", "VerilogAMS", "VHDLAMS", "Tessel", "Kirra",  "KirraHDL",  "Lef",
    "Def",     "Sdf",  "Spf",  "Spef",       "Gcf",     "Spice",  "VHDL87", "FlatTessel"}; // by language code, from 1
constexpr const char *targets[] = {"Verilog", "Kirra", "KirraHDL", "VHDL", "ORKA", "Tessel", "FlatTessel",
                                   "Lef",     "Def",   "Sdf",      "Spf",  "Spef", "Gcf",    "Spice"};
constexpr int everyFlag = 32; // flag words below it

struct Release {
  void operator()(zelPath path) const { zelFreePath(path, nullptr, nullptr); }
  void operator()(zelHandle handle) const { zelFreeHandle(handle); }
};
using Path = std::unique_ptr<zelPathRecord, Release>;
using Handle = std::unique_ptr<const zelHandleRecord, Release>;

inline Handle handleOf(const char *space, char divider, char busOpen, char busClose) {
  const auto code = [](char c) { return static_cast<unsigned char>(c); };
  return Handle(zelGetHandle(space, 0, code(divider), code(busOpen), code(busClose)));
}

inline zeli::PathParser parserOf(const char *space) { return zelGetHandle(space, 0, 0, 0, 0)->varBits->parse; }
inline zeli::PathPrinter printerOf(const char *space) { return zelGetHandle(space, 0, 0, 0, 0)->varBits->print; }

// A result as a string, released; for null the errno that tells why.
inline std::string taken(char *text) {
  const char *const reason = errno == EINVAL ? "EINVAL" : errno == ENOMEM ? "ENOMEM" : "null";
  return take(text).value_or(reason);
}

inline std::string repeated(const std::string &text, std::size_t count) {
  std::string result;
  while (count-- > 0)
    result += text;
  return result;
}

// The identifier that the walk stands on: its text, or its Ident once it is converted.
inline std::string identAt(zelPath path) {
  const std::uint32_t location = zelPathGetLocation(path);
  const zelPathRecord *chunk = path;
  for (std::uint32_t number = location >> 8; number > 1; --number)
    chunk = chunk->next;
  const std::uint8_t kind = chunk->items[location & 0xFF];
  if (!zeli::isText(kind))
    return resultOf(zelPathGetIdent(path)).value_or("-");
  const char *const text = chunk->slots[zeli::slotOf(kind)].string;
  const char *const scanned = zeli::languageOf(path)->scan(text, path->handle);
  const char *end = nullptr;
  const char *const shown = zelPathGetString(path, &end);
  EXPECT_TRUE(shown == nullptr || (shown == text && end == scanned));
  return scanned == text ? "''" : std::string(text, scanned);
}

// The items as the walk gives them, a blank between them: an identifier, "^" before a top identifier; [3] [3:0] [0:6:2]
// indexes, [*2] index repeat, ( ) index list; <*2> group repeat, { , } list; @library.cell(view), "-" for a null name;
// ? no item.
inline std::string itemsOf(zelPath path) {
  std::ostringstream text;
  zelPathGenStart(path);
  const char *gap = "";
  for (int item = zelPathGenNext(path); item != ZEL_ITEM_END; item = zelPathGenNext(path), gap = " ") {
    std::int32_t numbers[3] = {};
    const char *names[3] = {};
    text << gap;
    if (item == ZEL_ITEM_TOP_IDENT || item == ZEL_ITEM_IDENT) {
      text << (item == ZEL_ITEM_TOP_IDENT ? "^" : "") << identAt(path);
    } else if (item == ZEL_ITEM_INDEX) {
      text << '[' << zelPathGetIndex(path) << ']';
    } else if (item == ZEL_ITEM_RANGE) {
      zelPathGetRange(path, &numbers[0], &numbers[1]);
      text << '[' << numbers[0] << ':' << numbers[1] << ']';
    } else if (item == ZEL_ITEM_STEP_RANGE) {
      zelPathGetStepRange(path, &numbers[0], &numbers[1], &numbers[2]);
      text << '[' << numbers[0] << ':' << numbers[1] << ':' << numbers[2] << ']';
    } else if (item == ZEL_ITEM_REPEAT) {
      text << "<*" << zelPathGetRepeat(path) << '>';
    } else if (item == ZEL_ITEM_INDEX_REPEAT) {
      text << "[*" << zelPathGetRepeat(path) << ']';
    } else if (item == ZEL_ITEM_LIB) {
      zelPathGetLib(path, &names[0], &names[1], &names[2]);
      text << '@' << (names[0] != nullptr ? names[0] : "-") << '.' << (names[1] != nullptr ? names[1] : "-");
      text << (names[2] != nullptr ? '(' + std::string(names[2]) + ')' : "");
    } else {
      text << (item == ZEL_ITEM_NONE ? '?' : "{,}()"[item - ZEL_ITEM_LIST_START]);
    }
  }
  return text.str();
}

// The flag word: E error, H hierarchy, I index, R range, C complex, m mid index, M mid range, * repeat, L list,
// X complex index, / leading divider.
inline std::string flagsOf(zelPath path) {
  std::string text;
  for (int bit = 0; bit < 12; ++bit)
    if (bit != 10 && (path->flags >> bit & 1) != 0)
      text += "EHIRCmM*LX?/"[bit];
  return text;
}

// The path that itemsOf would show so, of Idents that are not its own ("-" for null, "@v" for a library reference).
inline Path built(const std::string &items) {
  static std::set<std::string> idents;
  Path path(zelCreatePath(nullptr, nullptr));
  std::istringstream words(items);
  for (std::string word; words >> word;) {
    int numbers[3] = {};
    const int count = std::sscanf(word.c_str(), "[%d:%d:%d]", &numbers[0], &numbers[1], &numbers[2]);
    if (count == 1)
      zelPathAddIndex(path.get(), numbers[0]);
    else if (count == 2)
      zelPathAddRange(path.get(), numbers[0], numbers[1]);
    else if (count == 3)
      zelPathAddStepRange(path.get(), numbers[0], numbers[1], numbers[2]);
    else if (std::sscanf(word.c_str(), "<*%d>", &numbers[0]) == 1)
      zelPathAddRepeat(path.get(), numbers[0]);
    else if (word == "{")
      zelPathAddListStart(path.get());
    else if (word == ",")
      zelPathAddList(path.get());
    else if (word == "}")
      zelPathAddListEnd(path.get());
    else if (word == "@Sl.Sc" || word == "@Sl.Sc(Sv)")
      zelPathAddLib(path.get(), "Sl", "Sc", word == "@Sl.Sc" ? nullptr : "Sv", 1);
    else if (word[0] == '^')
      zelPathAddTopIdent(path.get(), idents.insert(word.substr(1)).first->c_str(), 1);
    else
      zelPathAddIdent(path.get(), word == "-" ? nullptr : idents.insert(word).first->c_str(), 1);
  }
  return path;
}

// text must outlive the path.
inline Path parse(const char *source, const char *text, zelHandle handle = nullptr) {
  return Path(parserOf(source)(text, handle, nullptr, nullptr));
}

// The printed path. Printing converts its names where they stand, so a second run must give the same.
inline std::string printed(const Path &path, const char *target, int flags = 0, zelHandle handle = nullptr) {
  errno = 0;
  std::string text = taken(printerOf(target)(path.get(), handle, flags, nullptr, nullptr));
  EXPECT_EQ(taken(printerOf(target)(path.get(), handle, flags, nullptr, nullptr)), text) << target << ", again";
  return text;
}

inline std::string mapped(const char *source, const std::string &text, const char *target, int flags = 0) {
  const Path path = parse(source, text.c_str());
  EXPECT_EQ(flagsOf(path.get()).find('E'), std::string::npos) << source << ": " << text.substr(0, 80);
  return printed(path, target, flags);
}

// Memory for the allocator convention that counts, and fails one request when left others were served.
struct Memory {
  std::set<void *> live;
  int allocated = 0;
  int freed = 0;
  int left = -1; // never
  int failures = 0;

  static void *alloc(std::uint64_t size, void *context) {
    auto &memory = *static_cast<Memory *>(context);
    if (memory.left-- == 0) {
      ++memory.failures;
      return nullptr;
    }
    ++memory.allocated;
    return *memory.live.insert(std::malloc(size)).first;
  }
  static void free(void *block, void *context) {
    auto &memory = *static_cast<Memory *>(context);
    ++memory.freed;
    EXPECT_EQ(memory.live.erase(block), 1U) << "released without being owned";
    std::free(block);
  }
  char *string(const char *text) {
    const std::size_t size = std::strlen(text) + 1;
    return static_cast<char *>(std::memcpy(alloc(size, this), text, size));
  }
  void release(zelPath path) { zelFreePath(path, free, this); }
};

#endif
