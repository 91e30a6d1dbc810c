// The spaces whose separators a file may redefine, under handles that do.
#include "support/rules.h"

#include <cctype>

namespace {

bool isWordSyntax(int c, const std::string &separators) {
  const auto is = [c](char s) { return c == static_cast<unsigned char>(s); };
  return c < 128 && ((std::ispunct(c) && c != '_') || is(separators[0]) || is(separators[2]) || is(separators[3]));
}

bool isLayoutSyntax(int c, char separator, const std::string &separators) {
  return std::string({separator, separators[2], separators[3], '#', '\\'}).find(static_cast<char>(c)) !=
         std::string::npos;
}
bool isSpfSyntax(int c, const std::string &separators) {
  return c < 128 && (separators + '\\').find(static_cast<char>(c)) != std::string::npos;
}
bool isDefSyntax(int c, const std::string &separators) { return isLayoutSyntax(c, separators[0], separators); }
bool isLefSyntax(int c, const std::string &separators) { return isLayoutSyntax(c, separators[1], separators); }

const struct Driven {
  const char *name;
  char *(*write)(const char *, zelAllocFunc, void *, zelHandle);
  char *(*read)(const char *, zelAllocFunc, void *, zelHandle);
  int (*isEscapable)(int);
  bool (*isSyntax)(int c, const std::string &separators); // the same, by the separators in force
} drivenSpaces[] = {{"Sdf", zelIdentToSdfWithHandle, zelSdfToIdentWithHandle, zelIsSdfEscapableChar, isWordSyntax},
                    {"Spef", zelIdentToSpefWithHandle, zelSpefToIdentWithHandle, zelIsSpefEscapableChar, isWordSyntax},
                    {"Gcf", zelIdentToGcfWithHandle, zelGcfToIdentWithHandle, zelIsGcfEscapableChar, isWordSyntax},
                    {"Spf", zelIdentToSpfWithHandle, zelSpfToIdentWithHandle, zelIsSpfEscapableChar, isSpfSyntax},
                    {"Def", zelIdentToDefWithHandle, zelDefToIdentWithHandle, zelIsDefEscapableChar, isDefSyntax},
                    {"Lef", zelIdentToLefWithHandle, zelLefToIdentWithHandle, zelIsLefEscapableChar, isLefSyntax}};

// A handle of a space with four separators: pin delimiter, divider, bus brackets.
class Handle {
public:
  Handle(const char *space, const std::string &c)
      : handle(zelAllocHandle(space, byte(c[0]), byte(c[1]), byte(c[2]), byte(c[3]))) {}
  ~Handle() { zelFreeHandle(handle); }
  Handle(const Handle &) = delete;
  Handle &operator=(const Handle &) = delete;
  operator zelHandle() const { return handle; }

private:
  static std::uint32_t byte(char c) { return static_cast<unsigned char>(c); }
  zelHandle handle;
};

template <typename Conversion> Result convertWith(zelHandle handle, Conversion conversion, const std::string &input) {
  const auto bound = [&](const char *text, zelAllocFunc alloc, void *context) {
    return conversion(text, alloc, context, handle);
  };
  return convert(bound, input.c_str());
}

} // namespace

TEST(CurrentHandle, decidesWhatIsEscaped) {
  const MapState state(ZEL_MAP_DEFAULT);
  // Separators:Ident→as it is written→as that reads.
  const char *const rows[][2] = {
      {"Sdf Spef Gcf", R"(x/[]:Sxy→\xy→Ixy /x[]:Sxy→xy→Ixy //o]:Soo→\o\o→Ioo //[c:Sc]→\c\]→Ic] X/[]:IX→x→Ix
           X/[]:SX→\X→SX x/[]:IX→\x→Ix #/[]:Sa#41→a\#2341→Ia#41 A/[]:S#41→\#41→I#41 2/[]:S#412→\#2341\2→I#412
           1/[]:S#41→\#234\1→I#2341 ␣/[]:Sa␣b→a\␣b→Ia␣b ␣/[]:Sa#20→a\#20→Ia#20 \/[]:Sa\b→a\\b→Ia\b ␁/[]:S␁→\␁→I␁
           %/[]:Sa%20→a\%20→Ia%20 é/[]:Sé→\#e9→Ié)"},
      {"Spf", R"(x/[]:Sxy→\xy→Ixy /x[]:Sxy→\xy→Ixy //o]:Soo→\o\o→Ioo //[c:Sc]→\c]→Ic] ./[]:Sa:b.→a:b\.→Ia:b.
           X/[]:IX→x→Ix X/[]:SX→\X→SX x/[]:IX→\x→Ix #/[]:Sa#b→a#b→Ia#b #/[]:S\#41→\\#2341→I\#41
           #/[]:S#2323→#232323→I#2323 A/[]:S#41→#41→I#41 ␣/[]:Sa␣b→a\␣b→Ia␣b \/[]:Sa\b→a\\b→Ia\b ␁/[]:S␁→\␁→I␁
           é/[]:Sé→\#e9→I\é)"},
      {"Def", R"(x/[]:Sxy→\xy→Ixy /x[]:Sxy→xy→Ixy //o]:Soo→\o\o→Ioo //[c:Sc]→\c]→Ic] .x[]:Sa/b.→a/b\.→Ia/b.
           X/[]:IX→x→Ix X/[]:SX→\X→SX x/[]:IX→\x→Ix %/[]:Sa%b→a%b→Ia%b %/[]:Sa%41→a%2541→Ia%41
           %/[]:Sa%25→a%25→Ia%25 A/[]:S%41→%41→I%41 ␣/[]:Sa␣b→a\␣b→Ia␣b ;/[]:Sa;b→a\;b→Ia;b \/[]:Sa\b→a\\b→Ia\b
           ␁/[]:S␁→\␁→I␁ é/[]:Sé%e9→\é%e9→Ié%e9 //[]:Sé%e9→%e9%25e9→Ié%e9)"},
      // A separator of LEF cannot stand plain, and the mark has no other form.
      {"Lef", R"(x/[]:Sxy→xy→Ixy /x[]:Sxy→\xy→Ixy //o]:Soo→\o\o→Ioo //[c:Sc]→\c]→Ic] /.[]:Sa/b.→a/b\.→Ia/b.
           /%[]:Sa%b→a%b→✗ /␣[]:Sa␣b→a\␣b→Ia␣b /é[]:Sé%e9→\é%e9→Ié%e9)"}};
  for (const Driven &space : drivenSpaces)
    for (const auto &[spaces, cases] : rows)
      for (const Row &row : rowsOf(std::string(spaces).find(space.name) == std::string::npos ? "" : cases)) {
        SCOPED_TRACE(std::string(space.name) + " " + row.input);
        const Handle handle(space.name, row.input);
        const Result name = convertWith(handle, space.write, row.input.substr(5));
        const Result back = convertWith(handle, space.read, name.value_or(""));
        EXPECT_EQ(errno, back ? 0 : EINVAL);
        EXPECT_EQ(name.value_or("✗") + "→" + back.value_or("✗"), row.result);
      }
  // Names that no writer makes: a plain separator, and an escape behind a separator's backslash.
  EXPECT_EQ(convertWith(Handle("Def", "x/[]"), zelDefToIdentWithHandle, "axb"), "Iaxb");
  EXPECT_EQ(convertWith(Handle("Lef", "/x[]"), zelLefToIdentWithHandle, "axb"), Result());
  EXPECT_EQ(convertWith(Handle("Lef", "/%[]"), zelLefToIdentWithHandle, R"(\%41)"), "IA");
  EXPECT_EQ(convertWith(Handle("Spf", "#/[]"), zelSpfToIdentWithHandle, R"(\#41)"), "IA");
}

namespace {
// What an allocator finds in force while it is asked for the result.
struct Probe {
  const Driven &space;
  std::string separators;
  bool gives = true;
  bool nests = false;
  int calls = 0;
  char memory[64] = "";

  static void *allocate(std::uint64_t, void *context) {
    auto &self = *static_cast<Probe *>(context);
    ++self.calls;
    if (self.nests) { // the end of the inner call puts the default in force
      EXPECT_EQ(self.space.write("S", nullptr, nullptr, Handle(self.space.name, "yyyy")), nullptr);
    }
    for (int c = 0; c < 256; ++c)
      EXPECT_EQ(self.space.isEscapable(c), self.space.isSyntax(c, self.separators) ? 1 : 0) << c;
    return self.gives ? self.memory : nullptr;
  }
};
} // namespace

TEST(CurrentHandle, standsForOneCallWhateverTheSeparatorsAndTheOutcome) {
  for (const Driven &space : drivenSpaces) {
    std::string defaults = "1234";
    ASSERT_EQ(zelGetHandleDefaults(space.name, defaults.data(), &defaults[1], &defaults[2], &defaults[3]), 1);
    for (const char separator : {'x', 'X', '9', '#', '%', '\\', ' ', '\t', '\x01', '_', '\x7f', '\x80', '\xff'})
      for (const std::size_t position : {0U, 1U, 2U, 3U}) {
        std::string separators = defaults;
        separators[position] = separator;
        SCOPED_TRACE(std::string(space.name) + " with '" + separators + "'");
        const Handle handle(space.name, separators);
        for (const bool gives : {true, false}) {
          Probe probe = {space, separators, gives};
          EXPECT_EQ(space.write("Sa", Probe::allocate, &probe, handle) != nullptr, gives);
          EXPECT_EQ(space.read("a", Probe::allocate, &probe, handle) != nullptr, gives);
          EXPECT_EQ(probe.calls, 2);
        }
        Probe nested = {.space = space, .separators = defaults, .nests = true};
        EXPECT_NE(space.write("Sa", Probe::allocate, &nested, handle), nullptr);
        for (const char *refused : {static_cast<const char *>(nullptr), ""}) {
          EXPECT_EQ(space.write(refused, nullptr, nullptr, handle), nullptr);
          EXPECT_EQ(space.read(refused, nullptr, nullptr, handle), nullptr);
        }
        Probe plain = {space, defaults};
        EXPECT_NE(spaceOf(space.name).write("Sa", Probe::allocate, &plain), nullptr);
        EXPECT_NE(space.read("a", Probe::allocate, &plain, nullptr), nullptr);
      }
  }
}
