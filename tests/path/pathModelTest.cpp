// The path object: how items are stored, walked, located, removed and released.
#include "path/pathSupport.h"

namespace {

// A small number is one byte, 132 more than it is. One number beyond -4 to 123 makes all of its item long: the kind is
// one more, and each number has three bytes, in base 128 from -200000 on. An item does not straddle two chunks, nor do
// a marker and what it marks.
TEST(PathModel, ItemsAreStoredAsKindAndNumbers) {
  for (Row &row : rowsOf(HERE, R"(
    [124]                  3 188 155 140
    [-5]                   3 187 154 140
    [-200000]              3 128 128 128
    [-4:123]               4 128 255
    [0:124]                5 192 154 140 188 155 140
    [0:6:2]                6 132 138 134               [0:6:2] ?  // the walk trips over its step
    <*124>                 9 188 155 140
    { , }                  11 10 12
    ^Sa Sb                 18 27 28                    // a mark in front; the number of a slot is in the kind
    @Sl.Sc @Sl.Sc(Sv)      17 43 17 53                 // two slots, then three
    // What no longer fits goes to the next chunk: 19 bytes, eight slots.
    [0] [1] [2] [3] [4] [5] [6] [0:200]           2 132 2 133 2 134 2 135 2 136 2 137 2 138 | 5 192 154 140 136 156 140
    Sa Sa Sa Sa Sa Sa Sa Sa Sa Sa @Sl.Sc(Sv) @Sl.Sc  27 28 29 30 31 32 33 34 | 27 28 17 53 17 48
    , , , , , , , , , , , , , , , , , , ^Sa       10 10 10 10 10 10 10 10 10 10 10 10 10 10 10 10 10 10 | 18 27
  )")) {
    const Path path = built(row[0]);
    row.expect(row[1], internals::bytesOf(path.get()), "the chunks");
    row.expect(row[2].empty() ? row[0] : row[2], itemsOf(path.get()), "the walk");
    row.expect(row[0].find('@') != std::string::npos ? "hierarchy" : "", flagsOf(path.get()), "the flags");
  }
  for (const std::string &outside : wordsOf("[-200001] [1897152] [-2147483648] [0:0:-200001] <*1897152>")) {
    errno = 0;
    const Path path = built("Sa " + outside + " Sb");
    EXPECT_EQ(errno, EINVAL) << outside;
    EXPECT_EQ(itemsOf(path.get()) + "; " + flagsOf(path.get()), "Sa Sb; error") << outside;
  }
}

// On request (and then kept as text when it fails), or for printing (and then lost when it fails). Verilog's plain
// names have case, those of the other languages none where no capital says so.
TEST(PathModel, NamesAreConvertedOnce) {
  for (const std::string &source : pathLanguages) {
    SCOPED_TRACE(source);
    const char *const expected = source == "Verilog" || source == "VerilogAMS" || source == "KirraHDL" ? "Sa" : "Ia";
    const Path path = parse(source, "a");
    const Path other = parse(source, "a");
    zelPathSetLocation(path.get(), 256);
    const char *end = nullptr;
    EXPECT_EQ(zelPathGetString(path.get(), &end) == nullptr,
              source == "Spice" || source == "Kirra" || source == "KirraHDL");
    const char *const ident = zelPathGetIdent(path.get());
    EXPECT_STREQ(ident, source == "Spice" ? nullptr : expected);
    EXPECT_EQ(zelPathGetIdent(path.get()), ident);
    EXPECT_EQ(zelPathGetString(path.get(), &end), nullptr);
    EXPECT_EQ(flagsOf(path.get()), "");
    EXPECT_STREQ(zelStrToIdent(other.get(), 0), expected);
    EXPECT_EQ(zelStrToIdent(other.get(), 0), nullptr);
  }
  const Path illegal = parse("Sdf", "a.b/c"); // scans, but does not convert
  zelPathSetLocation(illegal.get(), 256);
  EXPECT_EQ(zelPathGetIdent(illegal.get()), nullptr);
  EXPECT_EQ(itemsOf(illegal.get()) + "; " + flagsOf(illegal.get()), "a.b c; error hierarchy");
  EXPECT_EQ(zelStrToIdent(illegal.get(), 0), nullptr);
  EXPECT_EQ(itemsOf(illegal.get()), "- c");
  internals::setNoLanguage(illegal.get());
  zelPathSetLocation(illegal.get(), 257);
  EXPECT_TRUE(zelPathGetIdent(illegal.get()) == nullptr && !zelStrToIdent(illegal.get(), 1) &&
              !zelStrToIdent(illegal.get(), 99));
  EXPECT_STREQ(zelStrToIdent(parse("Def(.<>)", R"(a\<[.b)").get(), 0), "Ia<["); // with the separators of the path
}

// The place set, what setting gives, and the item behind it with its place. "short" has items in the bytes 0, 1 and 3
// of its one chunk, "long" has eight in the head.
TEST(PathModel, Locations) {
  const std::map<int, std::string> items = {
      {ZEL_ITEM_IDENT, "ident"}, {ZEL_ITEM_INDEX, "index"}, {ZEL_ITEM_END, "end"}};
  const Path shortPath = built("Sa [3] Sb");
  const Path longPath = built(repeated("Sa ", 10));
  zelPathGenStart(shortPath.get());
  EXPECT_EQ(zelPathGetLocation(shortPath.get()), 0U);  // before the first
  EXPECT_EQ(zelPathGetLocation(longPath.get()), 456U); // nowhere
  for (Row &row : rowsOf(HERE, R"(
    short  0           0  ident 256
    short  256         1  index 257
    short  257         1  ident 259
    short  259         1  end 456
    short  4294967295  4  end 456
    short  3           0  end 456    // no chunk
    long   262         1  ident 263
    long   263         1  ident 512  // on to the next chunk
  )")) {
    const zelPath path = row[0] == "short" ? shortPath.get() : longPath.get();
    row.expect(row[2], std::to_string(zelPathSetLocation(path, static_cast<std::uint32_t>(std::stoul(row[1])))));
    const int item = zelPathGenNext(path);
    row.expect(row[3], items.at(item) + ' ' + std::to_string(zelPathGetLocation(path)));
  }
  zelPath found = nullptr;
  EXPECT_EQ(zeliPrevItem(longPath.get(), longPath->next, 0, &found), 27 + 7);
  EXPECT_EQ(found, longPath.get());
}

TEST(PathModel, LastLocation) {
  for (Row &row : rowsOf(HERE, R"(
    ""                             0
    Sa [3] Sb                      259
    Sa [0:200]                     257
    Sa [0:6:2]                     258  // back by what the walk takes the last item to be
    Sa Sa Sa Sa Sa Sa Sa Sa Sa Sa  455  // looked for in the first chunk
  )"))
    row.expect(row[1], std::to_string(zelPathGetLastLocation(built(row[0]).get())));
}

// What each call gives ("chunk" for the chunk) and the bytes then left. The level is looked for in front of the index's
// own kind.
TEST(PathModel, RemovalOfIndexesAndLevels) {
  for (Row &row : rowsOf(HERE, R"(
    // items    the index  the level
    Sa          25 1       chunk 0
    Sa [3]      chunk 2    -17 2
    Sa [0:6:2]  chunk 4    -13 4
    Sa <*2>     6 3        -11 3
    Sa }        10 2       -7 2
    Sa @Sl.Sc   42 3       25 3
    ""          -2 0       -19 0
  )")) {
    const auto removed = [&](intptr_t (*remove)(zelPath)) {
      const Path path = built(row[0]);
      const intptr_t result = remove(path.get());
      const bool isChunk = result == reinterpret_cast<intptr_t>(path.get());
      return (isChunk ? "chunk" : std::to_string(result)) + ' ' + std::to_string(path->used);
    };
    row.expect(row[1], removed(zelPathRemoveIndex), "zelPathRemoveIndex");
    row.expect(row[2], removed(zelPathRemoveLevel), "zelPathRemoveLevel");
  }
  const Path cut = built("[0:6:2]");
  zelPathRemoveIndex(cut.get());
  EXPECT_EQ(itemsOf(cut.get()), "[0:6:-1]"); // where a byte of a number is gone
  const Path path = built(repeated("Sa ", 9));
  EXPECT_EQ(zelPathRemoveLevel(path.get()), reinterpret_cast<intptr_t>(path->next));
  EXPECT_EQ(itemsOf(path.get()), repeated("Sa ", 7) + "Sa");
  zelPathAddIdent(path.get(), "Sb", 1); // into the chunk that was emptied
  EXPECT_EQ(internals::bytesOf(path.get()), "27 28 29 30 31 32 33 34 | 27");
}

// The chunk that the walk stands on is taken from under it.
TEST(PathModel, EndsTheWalkWhereItsChunkIsGone) {
  const Path path = built(repeated("Sa ", 10));
  zelPathSetLocation(path.get(), 513);
  zelFreePathFromLocation(path.get(), 8, nullptr, nullptr);
  EXPECT_EQ(zelPathGetIndex(path.get()), -1);
  zelPathAddIdent(path.get(), "Sb", 1);
  EXPECT_EQ(zelPathGenNext(path.get()), ZEL_ITEM_END);
  EXPECT_EQ(zelPathGetLocation(path.get()), 456U); // nowhere
}

TEST(PathModel, RemovalFromALocation) {
  for (const auto &[left, location] : {std::pair(0, 0U), {0, 256}, {1, 257}, {5, 261}, {6, 512}, {8, 514}, {9, 521}}) {
    Memory memory;
    const zelPath path = zelCreatePath(Memory::alloc, &memory);
    for (int i = 0; i < 9; ++i) // six in the head
      zelPathAddIdent(path, zelNewString("Sa", Memory::alloc, &memory), 0);
    zelPathRemoveFromLocation(path, location, Memory::free, &memory);
    EXPECT_EQ(memory.live, left + (location < 512 ? 1 : 2)) << location; // and chunks
    zelPathAddIdent(path, zelNewString("Sb", Memory::alloc, &memory), 0);
    EXPECT_EQ(itemsOf(path), repeated("Sa ", static_cast<std::size_t>(left)) + "Sb");
    zelFreePathFromLocation(path, 18, Memory::free, &memory); // behind the head's items: only what follows goes
    EXPECT_EQ(path->used, std::min(left, 6)) << location;     // its slots stay taken
    zelFreePath(path, Memory::free, &memory);
    EXPECT_EQ(memory.live, 0);
  }
}

TEST(PathModel, ReleasesWhatItOwnsOnce) {
  Memory memory;
  const auto owned = [&] { return zelNewString("Sa", Memory::alloc, &memory); };
  const zelPath path = zelCreatePath(Memory::alloc, &memory);
  zelPathAddTopIdent(path, owned(), 0);
  zelPathAddIdent(path, nullptr, 0);
  zelPathAddTopIdent(path, "Sx", 1);
  zelPathAddLib(path, "Sx", "Sx", "Sx", 1);
  const std::uint32_t behindMark = zelPathGetLastLocation(path);
  zelPathAddLib(path, "Sx", "Sx", nullptr, 1); // in the chunk of the next, which is not shared
  zelPathAddLib(path, owned(), owned(), owned(), 0);
  zelPathAddLib(path, nullptr, owned(), nullptr, 0);
  zelPathAddStepRange(path, 0, 27, 35); // numbers are no items
  zelPathAddStepRange(path, 19, 200, 43);
  const int all = memory.live;
  const zelPath second = path->next;
  const auto end = static_cast<std::uint32_t>(second->used);
  zelFreePathFromLocation(second, end, Memory::free, &memory); // nothing is left to release there
  EXPECT_EQ(memory.live, all);
  zelPathRemoveFromLocation(path, behindMark, Memory::free, &memory);
  zelFreePath(path, Memory::free, &memory);
  for (const char *const text : {"@l.c(v):a", "a@l.c,b", "@l.c(v", "@l.c,@d"})
    zelFreePath(zelParseVHDL(text, nullptr, Memory::alloc, &memory), Memory::free, &memory);
  EXPECT_EQ(memory.live, 0);
}

TEST(PathModel, NullArguments) {
  for (const auto call : {zelPathAddListStart, zelPathAddList, zelPathAddListEnd, zelPathGenStart})
    call(nullptr);
  for (const auto call : {zelPathAddTopIdent, zelPathAddIdent})
    call(nullptr, "Sa", 1);
  for (const auto call : {zelPathRemoveFromLocation, zelFreePathFromLocation})
    call(nullptr, 256, nullptr, nullptr);
  zelPathAddLib(nullptr, "Sl", "Sc", nullptr, 1);
  for (const auto call : {zelPathAddIndex, zelPathAddRepeat})
    call(nullptr, 1);
  zelPathAddRange(nullptr, 1, 2);
  zelPathAddStepRange(nullptr, 1, 2, 3);
  EXPECT_EQ(zelPathGetLocation(nullptr) | zelPathSetLocation(nullptr, 256) | zelPathGetLastLocation(nullptr), 0U);
  EXPECT_TRUE(zelPathRemoveIndex(nullptr) == -2 && zelPathRemoveLevel(nullptr) == -19 && zelPathGetFlag(nullptr) == 0);
  EXPECT_EQ(zelStrToIdent(nullptr, 0), nullptr);
}

// The step is preset to 41, library, cell and view to "l".
TEST(PathModel, GettersReadOnlyTheirKind) {
  const Path some = built("Sa [3] [7:1] [0:600:2] <*5> @Sl.Sc");
  for (const zelPath path : {zelPath(), some.get()})
    for (int item = 0; item != ZEL_ITEM_END; item = zelPathGenNext(path)) {
      int n[] = {0, 0, 0, 0, 41};
      const char *names[] = {"l", "l", "l"};
      zelPathGetRange(path, nullptr, nullptr);
      zelPathGetRange(path, &n[0], &n[1]);
      zelPathGetStepRange(path, nullptr, nullptr, nullptr);
      zelPathGetStepRange(path, &n[2], &n[3], &n[4]);
      zelPathGetLib(path, &names[0], &names[1], &names[2]);
      zelPathGetLib(path, nullptr, nullptr, nullptr);
      const bool isStep = item == ZEL_ITEM_STEP_RANGE;
      const bool isRange = item == ZEL_ITEM_RANGE || isStep;
      EXPECT_EQ(zelPathGetIndex(path), item == ZEL_ITEM_INDEX ? 3 : -1);
      EXPECT_EQ(std::pair(n[0], n[1]), !isRange ? std::pair(-1, -1) : isStep ? std::pair(0, 600) : std::pair(7, 1));
      EXPECT_EQ(std::tuple(n[2], n[3], n[4]), isStep ? std::tuple(0, 600, 2) : std::tuple(40, 40, 41));
      EXPECT_EQ(zelPathGetRepeat(path), item == ZEL_ITEM_REPEAT ? 5 : -1);
      EXPECT_EQ(zelPathGetIdent(path) != nullptr, item == ZEL_ITEM_IDENT);
      EXPECT_EQ(zelPathGetString(path, nullptr), nullptr);
      EXPECT_EQ(resultOf(names[1]), item == ZEL_ITEM_LIB ? "Sc" : "l");
      EXPECT_EQ(names[2] == nullptr, item == ZEL_ITEM_LIB);
    }
}

} // namespace
