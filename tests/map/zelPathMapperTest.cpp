// The mapping of paths: what parses and prints them, given by names or handles.
#include "path/pathSupport.h"

namespace {

TEST(PathMapper, TakesNamesOrHandlesUnderEveryConvention) {
  for (const std::string &source : pathLanguages)
    for (const std::string &target : pathLanguages) {
      const auto map = [&](const char *text, zelAllocFunc alloc, void *context) {
        return zelPathMapperEx(text, zelGetHandle(source.c_str(), 0, 0, 0, 0), zelGetHandle(target.c_str(), 0, 0, 0, 0),
                               0, nullptr, nullptr, alloc, context);
      };
      const std::string expected = mapped(source, "a1", target);
      EXPECT_EQ(convert(map, "a1"), expected) << source << " " << target;
      EXPECT_EQ(take(zelPathMapper("a1", nullptr, nullptr, 0, source.c_str(), target.c_str())), expected);
    }
  const zelHandle dots = spaceAt("Sdf(.<>)").handle;
  EXPECT_EQ(take(zelPathMapper("a.b<1:0>", dots, nullptr, 1, nullptr, "Sdf")), "a/b[1],a/b[0]");
  EXPECT_EQ(take(zelPathMapper("a/b[1:0]", nullptr, dots, 9, "Sdf", "x")), "a.b<1>,a.b<0>");
  errno = 0;
  EXPECT_EQ(zelPathMapper("a", nullptr, nullptr, 0, "Ascii", "VHDL"), nullptr);
  EXPECT_EQ(errno, EINVAL);
  EXPECT_EQ(zelPathMapper("a.", nullptr, nullptr, 0, "Verilog", "VHDL"), nullptr);
  EXPECT_EQ(zelPathMapper("a", nullptr, nullptr, 0, "VHDL", nullptr), nullptr);
}

// The languages, and some under separators that a file may choose: others, letters, digits, one for everything, a
// backslash, a letter for pins.
const std::vector<std::string> separatedLanguages = wordsOf(R"(
    Verilog ORKA VHDL VerilogAMS VHDLAMS Tessel Kirra KirraHDL Lef Def Sdf Spf Spef Gcf Spice VHDL87 FlatTessel
    Sdf(.<>) Lef(.<>) Gcf(|[]) FlatTessel(.<>) Sdf(xoc) Spef(1) Spef(:) Spef(/-]) Spf([[[) Gcf([<[) Gcf([[]) Gcf(/<<) Def(\)
    Sdf(/\]) Sdf(/[]x) Lef(/[]b) Def(.<>3))");

// A path with / for the divider, [ ] for the brackets and : within ranges, as it stands in a language.
std::string inMarksOf(const std::string &language, const std::string &path) {
  static const std::map<std::string, std::string> marks = {{"Verilog", ".[]"},  {"VerilogAMS", ".[]"}, {"Kirra", ".[]"},
                                                           {"KirraHDL", ".[]"}, {"Spice", ".[]"},      {"VHDL", ":()"},
                                                           {"VHDL87", ":()"},   {"VHDLAMS", ":()"},    {"ORKA", "/<>"},
                                                           {"Gcf", ".<>"},      {"Tessel", "|[]"}};
  const std::size_t end = std::min(language.find('('), language.size());
  const std::string name = language.substr(0, end);
  std::string own = marks.contains(name) ? marks.at(name) : "/[]";
  if (end != language.size())
    for (std::size_t i = 0; i < own.size() && end + i + 2 < language.size(); ++i)
      own[i] = language[end + i + 1];
  std::string text;
  for (const char c : path) {
    const std::size_t mark = std::string("/[]").find(c);
    if (mark != std::string::npos)
      text += own[mark];
    else
      text += c == ':' && own == ":()" ? " to " : std::string(1, c);
  }
  return text;
}

// Paths of levels and at most one index or range, which need no path object where nothing else is in them; and others.
std::vector<std::string> pathsOfEveryHabit() {
  std::vector<std::string> paths = wordsOf(R"(
      a/b/c /a /a/b a/b/ a//b / Top/u1/Data_Out a/a__b/c a/_b a_/b a/1b 1a/b a/module/c ESC_a/b a/KEYWORD_model x1/xo3c
      a[3] a/b[3] /a/b[3] a/b[3:0] a/b[0:3] a/b[3:3] a[3]/b a[3][4] a[1:0][2] [3] /[3] a/[3] a[0] a[03] a[00] a[007:1]
      a[1:02] a[999999] a[1000000] a[1897151] a[1897152] a[1897152:0] a[0:1897152] a[18446744073709551617] a[-1] a[+1]
      a[-3:4] a[] a[3 a[3]] a[3:] a[:3] a[1:2:3] a[0:6:2] a] a[b] a[3]b a␣[3] a[␣3] a[3␣] a[␣3␣:␣0␣] ␣a/b a/b␣ a␣b a/␣b
      a,b a/b,c/d a[1:0],b {a} {2{a}} a&b @l.c(v) a/b\+c/d a/b\/c[3] a\[3\]/b[2] \a+b␣/c \a+b\/c[1] a+b a#b/c[7] a\/b
      a.b/c a|b/c a<b/c a:b/c é a/é/b[1] "" a\ \ _/_ a/b-c a;b/c[0])");
  for (const std::string &name : namesOfEveryHabit())
    for (const std::string &path : {name, "a/" + name + "/b[3]"})
      paths.push_back(path);
  // Levels that fill blocks of sixteen bytes, and texts up to and behind the length that a short way may stop at, also
  // where the result is longer than that.
  for (const std::size_t size : {7U, 8U, 15U, 16U, 17U, 31U, 32U, 33U, 63U, 64U, 65U, 254U, 255U, 256U, 257U}) {
    const std::string level(size, 'n');
    for (const std::string &path : {level, level.substr(3) + "[3]", "a/" + level.substr(2), level.substr(2) + "/B",
                                    level.substr(2) + "__", level.substr(1) + "+", repeated("a/", size / 2) + "b"})
      paths.push_back(path);
  }
  paths.push_back("a/" + repeated("\\+", 126));
  return paths;
}

// Also where a path is mapped from text to text, without a path object.
TEST(PathMapper, ParsesAndPrints) {
  std::vector<std::pair<std::string, PathSpace>> languages;
  languages.reserve(separatedLanguages.size());
  for (const std::string &language : separatedLanguages)
    languages.emplace_back(language, spaceAt(language));
  const std::vector<std::string> paths = pathsOfEveryHabit();
  constexpr int others[] = {ZEL_PRINT_EXPLODE, ZEL_PRINT_NOREPEAT | ZEL_PRINT_NOCOMPLEX, ZEL_PRINT_GROUP,
                            ZEL_PRINT_TOP};
  std::size_t tried = 0;
  inEverySetting([&] {
    const bool isUsual = zelGetMapState() == ZEL_MAP_DEFAULT && ZEL_VHDL_TYPE != 0;
    for (const auto &[from, source] : languages)
      for (const std::string &path : paths) {
        const std::string text = inMarksOf(from, path);
        errno = 0;
        const Path parsed(source.parse(text.c_str(), source.handle, nullptr, nullptr));
        const std::string refusal = stated({}, errno);
        std::size_t turn = tried++;
        for (const auto &[to, target] : languages) {
          if (source.handle != nullptr && target.handle != nullptr)
            continue;
          for (const int flags : isUsual ? std::vector{0, others[turn++ % 4]} : std::vector{0}) {
            errno = 0;
            Result result = hasError(parsed.get())
                                ? Result()
                                : take(target.print(parsed.get(), target.handle, flags, nullptr, nullptr));
            const std::string expected = hasError(parsed.get()) ? refusal : stated(result, errno);
            errno = 0;
            result = take(zelPathMapper(text.c_str(), source.handle, target.handle, static_cast<std::uint32_t>(flags),
                                        from.c_str(), to.c_str()));
            const std::string found = stated(result, errno);
            ASSERT_TRUE(found == expected) << from << " " << to << " " << shown(text) << ", flags " << flags << ": "
                                           << shown(found) << ", not " << shown(expected);
          }
        }
      }
  });
}

// What an allocator maps goes by the handle of the call that asked it, also what stands as it is without one.
TEST(PathMapper, AndMapNameGoByTheHandleOfACallAround) {
  struct Call {
    const char *from, *to, *text;
    Result name = {}, nameByIdent = {}, path = {}, pathByItems = {};

    static void *allocate(std::uint64_t, void *context) {
      auto &self = *static_cast<Call *>(context);
      const auto &[from, to, text, name, nameByIdent, path, pathByItems] = self;
      self.name = take(zelMapName(from, to, text, nullptr, nullptr));
      self.nameByIdent = take(zelMapper(spaceOf(from)->nameToIdent, spaceOf(to)->identToName, text, nullptr, nullptr));
      self.path = take(zelPathMapper(text, nullptr, nullptr, 0, from, to));
      const Path parsed = parse(from, text);
      if (!hasError(parsed.get()))
        self.pathByItems = take(pathSpaces.at(to).print(parsed.get(), nullptr, 0, nullptr, nullptr));
      return nullptr;
    }
  };
  const MapState state(ZEL_MAP_DEFAULT);
  for (const auto &[space, write] : {std::pair("Sdf", &zelIdentToSdfWithHandle),
                                     {"Spf", zelIdentToSpfWithHandle},
                                     {"Spef", zelIdentToSpefWithHandle},
                                     {"Gcf", zelIdentToGcfWithHandle},
                                     {"Lef", zelIdentToLefWithHandle},
                                     {"Def", zelIdentToDefWithHandle}}) {
    const Handle handle(makeHandle(zelGetHandle, space, "xxxx"));
    for (const char *const text : {"axb", "ab", "x", "a\\xb"})
      for (Call call : {Call{"Verilog", space, text}, {space, "Verilog", text}, {space, space, text}}) {
        write("Sa", Call::allocate, &call, handle.get());
        EXPECT_TRUE(call.name == call.nameByIdent && call.path == call.pathByItems) << call.from << call.to << text;
        EXPECT_TRUE(text != std::string("axb") || call.from == space || call.name == "a\\xb") << space;
      }
  }
}

// The environment is read at the first keyword test, of which a path that does not parse makes none in its target. In
// processes of their own, for it is read once.
TEST(PathMapper, TestsNoKeywordBeforeTheParserIsDone) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  const auto read = [](const char *text, bool hasObject) {
    zelSetMapState(ZEL_MAP_DEFAULT);
    setenv("ZEL_USE_VHDL87_KEYWORDS", "yes", 1);
    hasObject ? mapped("Sdf", text, "VHDL")
              : std::string(take(zelPathMapper(text, nullptr, nullptr, 0, "Sdf", "VHDL")).value_or(""));
    unsetenv("ZEL_USE_VHDL87_KEYWORDS");
    std::fputs(zelIsVHDLKeyword("xnor") == 0 ? "read" : "unread", stderr);
    std::exit(0);
  };
  for (const auto &[text, expected] : {std::pair("a/b", "^read$"), {"a/b[", "^unread$"}})
    for (const bool hasObject : {true, false})
      EXPECT_EXIT(read(text, hasObject), testing::ExitedWithCode(0), expected) << text << hasObject;
}

} // namespace
