// The path object: how items are stored, walked, located, removed and released.
#include "path/pathSupport.h"

namespace {

// The bytes of every chunk in use, with a bar between chunks.
std::string bytesOf(const zelPathRecord *path) {
  std::string text;
  for (const zelPathRecord *chunk = path; chunk != nullptr && chunk->used != 0; chunk = chunk->next) {
    text += chunk == path ? "" : " |";
    for (int i = 0; i < chunk->used; ++i)
      text += (text.empty() ? "" : " ") + std::to_string(chunk->items[i]);
  }
  return text;
}

// One long number makes all numbers of its item long. An item does not straddle two chunks, nor do a marker and what it
// marks.
TEST(PathModel, ItemsAreStoredAsKindAndNumbers) {
  for (const Row &row : rowsOf(R"([-4]→2·128 [123]→2·255 [124]→3·188·155·140 [-5]→3·187·154·140 [-200000]→3·128·128·128
           [1897151]→3·255·255·255 [-4:123]→4·128·255 [0:124]→5·192·154·140·188·155·140 [0:6:2]→6·132·138·134
           [0:0:124]→7·192·154·140·192·154·140·188·155·140 <*2>→8·134 <*124>→9·188·155·140 {·,·}→11·10·12
           ^Sa·Sb→18·27·28 @Sl.Sc·@Sl.Sc(Sv)→17·43·17·53
           [0]·[1]·[2]·[3]·[4]·[5]·[6]·[0:200]→2·132·2·133·2·134·2·135·2·136·2·137·2·138·|·5·192·154·140·136·156·140
           [0]·[0]·[0]·[0]·[0]·[0]·[0]·[0]·[0:1]→2·132·2·132·2·132·2·132·2·132·2·132·2·132·2·132·4·132·133
           Sa·Sa·Sa·Sa·Sa·Sa·Sa·Sa·Sa·Sa·@Sl.Sc(Sv)·@Sl.Sc→27·28·29·30·31·32·33·34·|·27·28·17·53·17·48
           ,·,·,·,·,·,·,·,·,·,·,·,·,·,·,·,·,·,·^Sa→10·10·10·10·10·10·10·10·10·10·10·10·10·10·10·10·10·10·|·18·27)")) {
    const Path path = built(row.input);
    EXPECT_EQ(bytesOf(path.get()), row.result);
    EXPECT_EQ(itemsOf(path.get()), row.input + (row.input == "[0:6:2]" ? " ?" : "")); // the walk trips over its step
    EXPECT_EQ(flagsOf(path.get()), row.input.find('@') != std::string::npos ? "H" : "");
  }
  for (const std::string &outside : split("[-200001] [1897152] [-2147483648] [1897152:0] [0:0:-200001] <*1897152>")) {
    errno = 0;
    const Path path = built("Sa " + outside + " Sb");
    EXPECT_EQ(errno, EINVAL);
    EXPECT_EQ(itemsOf(path.get()) + flagsOf(path.get()), "Sa SbE");
  }
}

// On request (and then kept as text when it fails), or for printing (and then lost when it fails). Verilog's plain
// names have case, those of the other languages none where no capital says so.
TEST(PathModel, NamesAreConvertedOnce) {
  for (const std::string &source : sources) {
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
  EXPECT_EQ(itemsOf(illegal.get()) + flagsOf(illegal.get()), "a.b cEH");
  EXPECT_EQ(zelStrToIdent(illegal.get(), 0), nullptr);
  EXPECT_EQ(itemsOf(illegal.get()), "- c");
  illegal->flags |= zeli::languageMask << zeli::languageShift; // no language
  zelPathSetLocation(illegal.get(), 257);
  EXPECT_TRUE(zelPathGetIdent(illegal.get()) == nullptr && !zelStrToIdent(illegal.get(), 1) &&
              !zelStrToIdent(illegal.get(), 99));
  EXPECT_STREQ(zelStrToIdent(parse("Def.<>", R"(a\<[.b)").get(), 0), "Ia<["); // with the separators of the path
}

// "path location→result item location": what setting gives, and the item behind with its location. p has items in the
// bytes 0, 1 and 3; l has eight in the head.
TEST(PathModel, Locations) {
  const Path p = built("Sa [3] Sb");
  const Path l = built(repeated("Sa ", 10));
  zelPathGenStart(p.get());
  EXPECT_TRUE(zelPathGetLocation(p.get()) == 0 && zelPathGetLocation(l.get()) == 456); // before the first, and nowhere
  for (const Row &row :
       rowsOf("p0→0·1·256 p256→1·2·257 p257→1·1·259 p259→1·13·456 p260→1·13·456 p265→4·13·456 "
              "p512→4·13·456 p4294967295→4·13·456 p3→0·13·456 l262→1·1·263 l263→1·1·512 l512→1·1·513")) {
    const zelPath path = row.input[0] == 'p' ? p.get() : l.get();
    const auto result = zelPathSetLocation(path, static_cast<std::uint32_t>(std::stoul(row.input.substr(1))));
    const std::string found = std::to_string(result) + ' ' + std::to_string(zelPathGenNext(path));
    EXPECT_EQ(found + ' ' + std::to_string(zelPathGetLocation(path)), row.result) << row.input;
  }
  zelPath found = nullptr;
  EXPECT_TRUE(zeliPrevItem(l.get(), l->next, 0, &found) == 27 + 7 && found == l.get());
  // Back by what the walk takes the last item to be, and looked for in the first chunk.
  for (const Row &row : rowsOf("→0 Sa·[3]·Sb→259 Sa·[0:200]→257 Sa·[0:6:2]→258 Sa·Sa·Sa·Sa·Sa·Sa·Sa·Sa·Sa·Sa→455"))
    EXPECT_EQ(std::to_string(zelPathGetLastLocation(built(row.input).get())), row.result) << row.input;
}

// "items→index bytes level bytes": the results (chunk for the chunk) and the bytes left. The level is looked for in
// front of the index's own kind.
TEST(PathModel, RemovalOfIndexesAndLevels) {
  for (const Row &row : rowsOf(R"(Sa→25·1·chunk·0 Sa·[3]→chunk·2·-17·2 Sa·[300]→chunk·4·-16·4 Sa·[3:0]→chunk·3·-15·3
           Sa·[0:6:2]→chunk·4·-13·4 Sa·<*2>→6·3·-11·3 Sa·}→10·2·-7·2 Sa·@Sl.Sc→42·3·25·3 →-2·0·-19·0)")) {
    std::string found;
    for (const auto remove : {zelPathRemoveIndex, zelPathRemoveLevel}) {
      const Path path = built(row.input);
      const intptr_t result = remove(path.get());
      found += (found.empty() ? "" : " ") +
               (result == reinterpret_cast<intptr_t>(path.get()) ? "chunk" : std::to_string(result));
      found += ' ' + std::to_string(path->used);
    }
    EXPECT_EQ(found, row.result) << row.input;
  }
  const Path cut = built("[0:6:2]");
  zelPathRemoveIndex(cut.get());
  EXPECT_EQ(itemsOf(cut.get()), "[0:6:-1]"); // where a byte of a number is gone
  const Path path = built(repeated("Sa ", 9));
  EXPECT_EQ(zelPathRemoveLevel(path.get()), reinterpret_cast<intptr_t>(path->next));
  EXPECT_EQ(itemsOf(path.get()), repeated("Sa ", 7) + "Sa");
  zelPathAddIdent(path.get(), "Sb", 1); // into the chunk that was emptied
  EXPECT_EQ(bytesOf(path.get()), "27 28 29 30 31 32 33 34 | 27");
}

// Also where the chunk that the walk stands on is taken from under it.
TEST(PathModel, GettersLeaveTheWalkAlone) {
  const auto walk = [](bool reads) {
    const Path path = built(repeated("Sa ", 10));
    zelPathSetLocation(path.get(), 513);
    zelFreePathFromLocation(path.get(), 8, nullptr, nullptr);
    const char *end = nullptr;
    if (reads)
      for (int i = 0; i < 2; ++i) {
        zelPathGetIndex(path.get());
        zelPathGetRepeat(path.get());
        zelPathGetRange(path.get(), nullptr, nullptr);
        zelPathGetStepRange(path.get(), nullptr, nullptr, nullptr);
        zelPathGetIdent(path.get());
        zelPathGetString(path.get(), &end);
        zelPathGetLib(path.get(), &end, &end, &end);
        zelPathGetFlag(path.get());
        zelPathGetLocation(path.get());
      }
    zelPathAddIdent(path.get(), "Sb", 1);
    const int item = zelPathGenNext(path.get());
    return std::to_string(item) + ' ' + std::to_string(zelPathGetLocation(path.get()));
  };
  EXPECT_EQ(walk(true), walk(false));
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
  zelPathAddLib(path, owned(), owned(), owned(), 0); // not shared, unlike the last
  zelPathAddLib(path, nullptr, owned(), nullptr, 0);
  zelPathAddStepRange(path, 0, 27, 35); // numbers are no items
  zelPathAddStepRange(path, 19, 200, 43);
  const int all = memory.live;
  zelFreePathFromLocation(path->next, path->next->used, Memory::free, &memory); // nothing is left to release there
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
