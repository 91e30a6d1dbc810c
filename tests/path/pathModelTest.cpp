// The path object: how items are stored, walked, located, removed and released.
#include "path/pathSupport.h"

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace {

using Bytes = std::vector<int>;
Bytes bytesOf(const zelPathRecord *chunk) { return {chunk->items, chunk->items + chunk->used}; }

// One long number makes all numbers of its item long.
TEST(PathModel, ItemsAreStoredAsKindAndNumbers) {
  const std::pair<const char *, Bytes> rows[] = {{"[-4]", {2, 128}},
                                                 {"[123]", {2, 255}},
                                                 {"[124]", {3, 188, 155, 140}},
                                                 {"[-5]", {3, 187, 154, 140}},
                                                 {"[-200000]", {3, 128, 128, 128}},
                                                 {"[1897151]", {3, 255, 255, 255}},
                                                 {"[-4:123]", {4, 128, 255}},
                                                 {"[0:124]", {5, 192, 154, 140, 188, 155, 140}},
                                                 {"[-5:0]", {5, 187, 154, 140, 192, 154, 140}},
                                                 {"[0:6:2]", {6, 132, 138, 134}}, // the walk trips over its step
                                                 {"[0:0:124]", {7, 192, 154, 140, 192, 154, 140, 188, 155, 140}},
                                                 {"<*2>", {8, 134}},
                                                 {"<*124>", {9, 188, 155, 140}},
                                                 {"{ , }", {11, 10, 12}},
                                                 {"^Sa Sb", {18, 27, 28}},
                                                 {"@Sl.Sc @Sl.Sc(Sv)", {17, 43, 17, 53}}};
  for (const auto &[items, bytes] : rows) {
    const Path path = built(items);
    EXPECT_EQ(bytesOf(path.get()), bytes) << items;
    EXPECT_EQ(itemsOf(path.get()), items + std::string(bytes[0] == 6 ? " ?" : ""));
    EXPECT_EQ(flagsOf(path.get()), items[0] == '@' ? "H" : "");
    EXPECT_EQ(zelPathGenNext(path.get()), ZEL_ITEM_END);
  }
  for (const int number : {ZEL_MIN_NUMBER - 1, ZEL_MAX_NUMBER + 1, std::numeric_limits<int>::min()}) {
    const std::string digits = std::to_string(number);
    for (const std::string &item :
         {"[" + digits + "]", "[" + digits + ":0]", "[0:0:" + digits + "]", "<*" + digits + ">"}) {
      errno = 0;
      const Path path = built("Sa " + item + " Sb");
      EXPECT_EQ(errno, EINVAL);
      EXPECT_EQ(itemsOf(path.get()) + flagsOf(path.get()), "Sa SbE");
    }
  }
}

TEST(PathModel, ItemsCrossIntoFurtherChunksWhole) {
  const char *const indexes = "[0] [1] [2] [3] [4] [5] [6] [0:200]";
  const Path path = built(indexes);
  EXPECT_EQ(itemsOf(path.get()), indexes);
  EXPECT_EQ(path->used, 14);
  EXPECT_EQ(path->next->used, 7);
  EXPECT_EQ(path->next->head, path.get());
  EXPECT_EQ(path->next->next, nullptr);

  // The slots that the head keeps for itself: none, the text, the allocator and its context, all three.
  Memory memory;
  const std::pair<zelPath, int> heads[] = {{zelCreatePath(nullptr, nullptr), 8},
                                           {zelParseVerilog("", nullptr, nullptr, nullptr), 7},
                                           {zelCreatePath(Memory::alloc, &memory), 6},
                                           {zelParseVerilog("", nullptr, Memory::alloc, &memory), 5}};
  for (const auto &[head, room] : heads) {
    for (int i = 0; i <= room; ++i)
      zelPathAddIdent(head, "Sa", 1);
    EXPECT_EQ(head->used, room);
    EXPECT_EQ(bytesOf(head->next), Bytes{27});
    zelFreePath(head, memory.live.contains(head) ? Memory::free : nullptr, &memory);
  }
  EXPECT_TRUE(memory.live.empty());

  // Names stay together, and so does a marker with what it marks.
  const Path names = built(repeated("Sa ", 10) + "@Sl.Sc(Sv) @Sl.Sc @Sl.Sc");
  EXPECT_EQ(bytesOf(names->next), (Bytes{27, 28, 17, 53, 17, 48}));
  EXPECT_EQ(bytesOf(names->next->next), (Bytes{17, 43}));
  const Path marked = built(repeated(", ", 18) + "^Sa");
  EXPECT_EQ(marked->used, 18);
  EXPECT_EQ(bytesOf(marked->next), (Bytes{18, 27}));
}

TEST(PathModel, GettersReadOnlyTheirKind) {
  const Path path = built("Sa [3] [7:1] [0:600:2] <*5> @Sl.Sc");
  // Item, index, range, step range (preset to 41), repeat, Ident, library reference (preset to l.c.v).
  const char *const rows[] = {"1 -1 -1:-1 40:40:41 -1 Sa l.c.v", "2 3 -1:-1 40:40:41 -1 - l.c.v",
                              "3 -1 7:1 40:40:41 -1 - l.c.v",    "4 -1 0:600 0:600:2 -1 - l.c.v",
                              "5 -1 -1:-1 40:40:41 5 - l.c.v",   "12 -1 -1:-1 40:40:41 -1 - Sl.Sc.-",
                              "13 -1 -1:-1 40:40:41 -1 - l.c.v", "13 -1 -1:-1 40:40:41 -1 - l.c.v"};
  zelPathGenStart(path.get());
  for (const char *const row : rows) {
    int range[] = {0, 0};
    int step[] = {0, 0, 41};
    const char *end = "end";
    const char *names[] = {"l", "c", "v"};
    std::ostringstream read;
    read << zelPathGenNext(path.get()) << ' ' << zelPathGetIndex(path.get()) << ' ';
    zelPathGetRange(path.get(), &range[0], &range[1]);
    zelPathGetStepRange(path.get(), &step[0], &step[1], &step[2]);
    read << range[0] << ':' << range[1] << ' ' << step[0] << ':' << step[1] << ':' << step[2] << ' ';
    zelPathGetLib(path.get(), &names[0], &names[1], &names[2]);
    read << zelPathGetRepeat(path.get()) << ' ' << resultOf(zelPathGetIdent(path.get())).value_or("-") << ' '
         << names[0] << '.' << names[1] << '.' << resultOf(names[2]).value_or("-");
    EXPECT_EQ(read.str(), row);
    EXPECT_EQ(zelPathGetString(path.get(), &end), nullptr);
    EXPECT_EQ(end, nullptr);
  }
}

// On request (and then kept as text when it fails), or for printing (and then lost when it fails).
TEST(PathModel, NamesAreConvertedOnce) {
  for (std::size_t i = 0; i < std::size(sources); ++i) {
    const std::string source = sources[i];
    SCOPED_TRACE(source);
    // Verilog's plain names have case, those of the other languages none where no capital says so.
    const char *const expected = source == "Verilog" || source == "VerilogAMS" || source == "KirraHDL" ? "Sa" : "Ia";
    const bool isSpice = source == "Spice";
    Memory memory;
    const zelPath path = parserOf(sources[i])("a", nullptr, Memory::alloc, &memory);
    zelPathGenStart(path);
    zelPathGenNext(path);
    const char *end = nullptr;
    EXPECT_EQ(zelPathGetString(path, &end) == nullptr, isSpice || source == "Kirra" || source == "KirraHDL");
    const char *const ident = zelPathGetIdent(path);
    EXPECT_STREQ(ident, isSpice ? nullptr : expected);
    EXPECT_EQ(zelPathGetIdent(path), ident);
    EXPECT_EQ(zelPathGetString(path, &end), nullptr);
    EXPECT_EQ(memory.allocated, isSpice ? 1 : 2);
    EXPECT_EQ(flagsOf(path), "");
    memory.release(path);
    EXPECT_TRUE(memory.live.empty());

    const Path other = parse(sources[i], "a");
    EXPECT_STREQ(zelStrToIdent(other.get(), 0), expected);
    EXPECT_EQ(zelStrToIdent(other.get(), 0), nullptr);
    EXPECT_EQ(itemsOf(other.get()), expected);
  }
  const Path illegal = parse("Sdf", "a.b/c"); // scans, but does not convert
  zelPathGenStart(illegal.get());
  zelPathGenNext(illegal.get());
  EXPECT_EQ(zelPathGetIdent(illegal.get()), nullptr);
  EXPECT_EQ(itemsOf(illegal.get()) + flagsOf(illegal.get()), "a.b cEH");
  illegal->flags &= ~1U;
  EXPECT_EQ(zelStrToIdent(illegal.get(), 0), nullptr);
  EXPECT_EQ(itemsOf(illegal.get()) + flagsOf(illegal.get()), "- cH");
  EXPECT_EQ(zelStrToIdent(illegal.get(), 99), nullptr);
  // Names are read with the separators of the path's own handle.
  for (const auto &[space, text, ident] :
       {std::array{"Def", R"(a\<[.b)", "Ia<["}, std::array{"Lef", R"(a\.<1>)", "Ia."}}) {
    const Handle dots = handleOf(space, '.', '<', '>');
    const Path handled = parse(space, text, dots.get());
    EXPECT_STREQ(zelStrToIdent(handled.get(), 0), ident);
  }
  const Path unknown = parse("Verilog", "a[3]");
  EXPECT_EQ(zelStrToIdent(unknown.get(), 1), nullptr); // an index
  unknown->flags = 0;
  EXPECT_EQ(zelStrToIdent(unknown.get(), 0), nullptr);
  EXPECT_EQ(unknown->items[0], 20);
}

TEST(PathModel, FlagsAreReportedRearranged) {
  const int reported[] = {ZEL_PATH_ERROR,     ZEL_PATH_HIERARCHY, ZEL_PATH_INDEX,  ZEL_PATH_RANGE, ZEL_PATH_COMPLEX,
                          ZEL_PATH_MID_INDEX, ZEL_PATH_MID_RANGE, ZEL_PATH_REPEAT, ZEL_PATH_LIST};
  const Path path = built("");
  for (path->flags = 0; path->flags < 1U << 14; ++path->flags) {
    int expected = (path->flags & 0x390) == 0 ? ZEL_PATH_SINGLE_VERILOG | ZEL_PATH_SINGLE_VHDL : 0;
    expected |= (path->flags & 0x180) == 0 ? ZEL_PATH_SINGLE_ORKA : 0;
    for (std::size_t bit = 0; bit < std::size(reported); ++bit)
      expected |= (path->flags >> bit & 1) != 0 ? reported[bit] : 0;
    ASSERT_EQ(zelPathGetFlag(path.get()), expected) << path->flags;
  }
  path->flags = 0;
}

TEST(PathModel, Locations) {
  const Path path = built("Sa [3] Sb");                   // in the bytes 0, 1 and 3
  EXPECT_EQ(zelPathGetLocation(path.get()), 256U + 200U); // nowhere yet
  zelPathGenStart(path.get());
  for (const std::uint32_t location : {0U, 256U, 257U, 259U, 256U + 200U}) {
    EXPECT_EQ(zelPathGetLocation(path.get()), location);
    zelPathGenNext(path.get());
  }
  struct {
    std::uint32_t location, result;
    int next; // the item behind
  } const rows[] = {{0, 0, ZEL_ITEM_IDENT}, {256, 1, ZEL_ITEM_INDEX},     {257, 1, ZEL_ITEM_IDENT},
                    {259, 1, ZEL_ITEM_END}, {256 + 4, 1, ZEL_ITEM_END},   {256 + 9, 4, ZEL_ITEM_END},
                    {512, 4, ZEL_ITEM_END}, {0xFFFFFFFF, 4, ZEL_ITEM_END}};
  for (const auto &row : rows) {
    EXPECT_EQ(zelPathSetLocation(path.get(), row.location), row.result) << row.location;
    EXPECT_EQ(zelPathGenNext(path.get()), row.next) << row.location;
  }
  EXPECT_EQ(zelPathSetLocation(path.get(), 3), 0U); // there is no chunk of number 0
  EXPECT_EQ(zelPathSetLocation(path.get(), 256 + 4), 1U);
  EXPECT_EQ(zelPathGetIndex(path.get()), -1); // nothing stands at the end
  EXPECT_EQ(zelPathGetIdent(path.get()), nullptr);

  const Path longer = built(repeated("Sa ", 10)); // eight in the first chunk
  const std::pair<std::uint32_t, std::uint32_t> further[] = {{256 + 6, 256 + 7}, {256 + 7, 512}, {512, 513}};
  for (const auto &[location, next] : further) {
    EXPECT_EQ(zelPathSetLocation(longer.get(), location), 1U);
    EXPECT_EQ(zelPathGetLocation(longer.get()), location);
    EXPECT_EQ(zelPathGenNext(longer.get()), ZEL_ITEM_IDENT);
    EXPECT_EQ(zelPathGetLocation(longer.get()), next);
  }
  EXPECT_EQ(zelPathGenNext(longer.get()), ZEL_ITEM_END);

  const std::pair<std::string, std::uint32_t> last[] = {
      {"", 0},
      {"Sa [3] Sb", 259},
      {"Sa [0:200]", 257},
      {"Sa [0:6:2]", 258},                   // back by what the walk takes it to be
      {repeated("Sa ", 10), 256 + 200 - 1}}; // looked for in the first chunk
  for (const auto &[items, location] : last)
    EXPECT_EQ(zelPathGetLastLocation(built(items).get()), location) << items;
}

TEST(PathModel, RemovalOfIndexesAndLevels) {
  struct {
    const char *items;
    intptr_t index, level;    // the results; 0: the chunk
    int usedIndex, usedLevel; // bytes that are left
  } const rows[] = {{"Sa", 27 - 2, 0, 1, 0},
                    {"Sa [3]", 0, 2 - 19, 2, 2}, // the level is looked for in front of the index's own kind
                    {"Sa [300]", 0, 3 - 19, 4, 4},
                    {"Sa [3:0]", 0, 4 - 19, 3, 3},
                    {"Sa [0:6:2]", 0, 6 - 19, 4, 4},
                    {"Sa <*2>", 8 - 2, 8 - 19, 3, 3},
                    {"Sa }", 12 - 2, 12 - 19, 2, 2},
                    {"Sa @Sl.Sc", 44 - 2, 44 - 19, 3, 3},
                    {"", -2, -19, 0, 0}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.items);
    const Path index = built(row.items);
    EXPECT_EQ(zelPathRemoveIndex(index.get()), row.index == 0 ? reinterpret_cast<intptr_t>(index.get()) : row.index);
    EXPECT_EQ(index->used, row.usedIndex);
    const Path level = built(row.items);
    EXPECT_EQ(zelPathRemoveLevel(level.get()), row.level == 0 ? reinterpret_cast<intptr_t>(level.get()) : row.level);
    EXPECT_EQ(level->used, row.usedLevel);
  }
  // A chunk that is emptied is free for what is added next.
  const Path path = built(repeated("Sa ", 9));
  const zelPath second = path->next;
  EXPECT_EQ(zelPathRemoveLevel(path.get()), reinterpret_cast<intptr_t>(second));
  EXPECT_EQ(itemsOf(path.get()), repeated("Sa ", 7) + "Sa");
  zelPathAddIdent(path.get(), "Sb", 1);
  EXPECT_EQ(path->next, second);
  EXPECT_EQ(itemsOf(path.get()), repeated("Sa ", 8) + "Sb");
}

TEST(PathModel, RemovalFromALocation) {
  struct {
    std::size_t left;
    std::uint32_t location;
    int freed;
  } const rows[] = {{0, 256, 10}, {1, 257, 9}, {5, 256 + 5, 5}, {6, 512, 3}, {8, 512 + 2, 1}, {9, 512 + 9, 0}};
  for (const auto &row : rows) {
    Memory memory;
    const zelPath path = zelCreatePath(Memory::alloc, &memory);
    for (int i = 0; i < 9; ++i) // six in the head
      zelPathAddIdent(path, memory.string("Sa"), 0);
    zelPathRemoveFromLocation(path, row.location, Memory::free, &memory);
    EXPECT_EQ(memory.freed, row.freed) << row.location;
    zelPathAddIdent(path, memory.string("Sb"), 0);
    EXPECT_EQ(itemsOf(path), repeated("Sa ", row.left) + "Sb");
    zelFreePathFromLocation(path, 18, Memory::free, &memory); // behind the head's items: only what follows goes
    EXPECT_EQ(path->used, std::min<std::size_t>(row.left, 6));
    EXPECT_EQ(path->next, nullptr);
    memory.release(path);
    EXPECT_TRUE(memory.live.empty());
  }
}

TEST(PathModel, ReleasesWhatItOwnsOnce) {
  Memory memory;
  const zelPath path = zelCreatePath(Memory::alloc, &memory);
  char *const borrowed = memory.string("Sx");
  zelPathAddTopIdent(path, memory.string("Sa"), 0);
  zelPathAddIdent(path, memory.string("Sb"), 0);
  zelPathAddIdent(path, nullptr, 0);
  zelPathAddTopIdent(path, borrowed, 1);
  zelPathAddLib(path, borrowed, borrowed, borrowed, 1);
  zelPathAddLib(path, memory.string("Sl"), memory.string("Sc"), memory.string("Sv"), 0); // not shared, unlike the last
  zelPathAddLib(path, nullptr, memory.string("Sc"), nullptr, 0);
  zelPathAddStepRange(path, 0, 27, 35); // numbers are no items
  zelPathAddStepRange(path, 19, 200, 43);
  zelFreePathFromLocation(path->next, path->next->used, Memory::free, &memory); // nothing is left to release there
  EXPECT_EQ(memory.freed, 0);
  memory.release(path);
  EXPECT_EQ(memory.live, std::set<void *>{borrowed});
  Memory::free(borrowed, &memory);

  for (const char *const text : {"@l.c(v):a", "a@l.c,b", "@l.c(v", "@l.c,@d"}) {
    memory.release(zelParseVHDL(text, nullptr, Memory::alloc, &memory));
    EXPECT_TRUE(memory.live.empty()) << text;
  }
}

TEST(PathModel, NullArguments) {
  for (const auto call : {zelPathAddListStart, zelPathAddList, zelPathAddListEnd, zelPathGenStart})
    call(nullptr);
  for (const auto call : {zelPathGenNext, zelPathGetIndex, zelPathGetRepeat})
    call(nullptr);
  for (const auto call : {zelPathRemoveIndex, zelPathRemoveLevel})
    call(nullptr);
  zelPathAddTopIdent(nullptr, "Sa", 1);
  zelPathAddIdent(nullptr, "Sa", 1);
  zelPathAddLib(nullptr, "Sl", "Sc", nullptr, 1);
  zelPathAddIndex(nullptr, 1);
  zelPathAddRange(nullptr, 1, 2);
  zelPathAddStepRange(nullptr, 1, 2, 3);
  zelPathAddRepeat(nullptr, 1);
  zelPathRemoveFromLocation(nullptr, 256, nullptr, nullptr);
  zelFreePathFromLocation(nullptr, 256, nullptr, nullptr);
  EXPECT_EQ(zelPathGetFlag(nullptr), 0);
  EXPECT_EQ(zelPathGetLocation(nullptr) + zelPathSetLocation(nullptr, 256) + zelPathGetLastLocation(nullptr), 0U);
  EXPECT_EQ(zelPathGetIdent(nullptr), nullptr);
  EXPECT_EQ(zelStrToIdent(nullptr, 0), nullptr);
  for (const zelPath path : {zelPath(), parse("Verilog", "a[0:600]").release()}) {
    zelPathGenStart(path);
    zelPathGenNext(path);
    EXPECT_EQ(zelPathGetString(path, nullptr) != nullptr, path != nullptr);
    zelPathGenNext(path);
    zelPathGetRange(path, nullptr, nullptr);
    zelPathGetStepRange(path, nullptr, nullptr, nullptr);
    zelPathGetLib(path, nullptr, nullptr, nullptr);
    zelFreePath(path, nullptr, nullptr);
  }
}

} // namespace
