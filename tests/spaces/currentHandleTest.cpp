// The spaces whose separators a file may redefine, under handles that do.
#include "support/rules.h"

namespace {
const struct Driven {
  std::string name;
  char *(*write)(const char *, zelAllocFunc, void *, zelHandle);
  char *(*read)(const char *, zelAllocFunc, void *, zelHandle);
  int (*isEscapable)(int);
} drivenSpaces[] = {{"Sdf", zelIdentToSdfWithHandle, zelSdfToIdentWithHandle, zelIsSdfEscapableChar},
                    {"Spef", zelIdentToSpefWithHandle, zelSpefToIdentWithHandle, zelIsSpefEscapableChar},
                    {"Gcf", zelIdentToGcfWithHandle, zelGcfToIdentWithHandle, zelIsGcfEscapableChar},
                    {"Spf", zelIdentToSpfWithHandle, zelSpfToIdentWithHandle, zelIsSpfEscapableChar},
                    {"Def", zelIdentToDefWithHandle, zelDefToIdentWithHandle, zelIsDefEscapableChar},
                    {"Lef", zelIdentToLefWithHandle, zelLefToIdentWithHandle, zelIsLefEscapableChar}};

using Handle = std::unique_ptr<const zelHandleRecord, decltype(&zelFreeHandle)>;
Handle handleOf(const std::string &space, const std::string &separators) {
  return {makeHandle(zelAllocHandle, space, separators), zelFreeHandle};
}
} // namespace

TEST(CurrentHandle, decidesWhatIsEscaped) {
  const MapState state(ZEL_MAP_DEFAULT);
  // Separators:Ident→as it is written→as that reads; or separators:name→as it reads.
  const char *const rows[][2] = {
      {"Sdf Spef Gcf Spf Def", R"(x/[]:Sxy→\xy→Ixy //o]:Soo→\o\o→Ioo X/[]:IX→x→Ix X/[]:SX→\X→SX x/[]:IX→\x→Ix
       ␣/[]:Sa␣b→a\␣b→Ia␣b \/[]:Sa\b→a\\b→Ia\b ␁/[]:S␁→\␁→I␁)"},
      {"Sdf Spef Gcf", R"(/x[]:Sxy→xy→Ixy //[c:Sc]→\c\]→Ic] #/[]:Sa#41→a\#2341→Ia#41 A/[]:S#41→\#41→I#41
       2/[]:S#412→\#2341\2→I#412 1/[]:S#41→\#234\1→I#2341 ␣/[]:Sa#20→a\#20→Ia#20 %/[]:Sa%20→a\%20→Ia%20
       é/[]:Sé→\#e9→Ié)"},
      {"Spf", R"(/x[]:Sxy→\xy→Ixy //[c:Sc]→\c]→Ic] ./[]:Sa:b.→a:b\.→Ia:b. #/[]:Sa#b→a#b→Ia#b
       #/[]:S\#41→\\#2341→I\#41 #/[]:S#2323→#232323→I#2323 A/[]:S#41→#41→I#41 é/[]:Sé→\#e9→I\é #/[]:\#41→IA)"},
      {"Def", R"(/x[]:Sxy→xy→Ixy //[c:Sc]→\c]→Ic] .x[]:Sa/b.→a/b\.→Ia/b. %/[]:Sa%b→a%b→Ia%b %/[]:Sa%41→a%2541→Ia%41
       %/[]:Sa%25→a%25→Ia%25 A/[]:S%41→%41→I%41 ;/[]:Sa;b→a\;b→Ia;b é/[]:Sé%e9→\é%e9→Ié%e9
       //[]:Sé%e9→%e9%25e9→Ié%e9 x/[]:axb→Iaxb)"},
      // A separator of LEF cannot stand plain, and the mark has no other form.
      {"Lef", R"(x/[]:Sxy→xy→Ixy /x[]:Sxy→\xy→Ixy //o]:Soo→\o\o→Ioo //[c:Sc]→\c]→Ic] /.[]:Sa/b.→a/b\.→Ia/b.
       /%[]:Sa%b→a%b→✗ /␣[]:Sa␣b→a\␣b→Ia␣b /é[]:Sé%e9→\é%e9→Ié%e9 /x[]:axb→✗ /%[]:\%41→IA)"}};
  for (const Driven &space : drivenSpaces)
    for (const auto &[spaces, cases] : rows)
      for (const Row &row : rowsOf(std::string(spaces).find(space.name) == std::string::npos ? "" : cases)) {
        SCOPED_TRACE(space.name + " " + row.input);
        const Handle handle = handleOf(space.name, row.input);
        const bool isWritten = row.result.value_or("").find("→") != std::string::npos;
        const std::string text = row.input.substr(5);
        const Result name = isWritten ? take(space.write(text.c_str(), nullptr, nullptr, handle.get())) : text;
        const Result back = take(space.read(name.value_or("").c_str(), nullptr, nullptr, handle.get()));
        EXPECT_EQ((isWritten ? name.value_or("✗") + "→" : "") + back.value_or("✗"), row.result.value_or("✗"));
      }
}

TEST(CurrentHandle, standsForOneCallWhateverTheOutcome) {
  // An allocator that has no memory, and notes whether the x of a handle is in force when it is asked.
  struct Probe {
    const Driven &space;
    zelHandle inner; // of a call inside
    std::string seen = {};

    static void *allocate(std::uint64_t, void *context) {
      auto &self = *static_cast<Probe *>(context);
      self.space.write("", nullptr, nullptr, self.inner);
      self.seen += self.space.isEscapable('x') != 0 ? 'x' : '-';
      return nullptr;
    }
  };
  for (const Driven &space : drivenSpaces) {
    const Handle handle = handleOf(space.name, "xxxx");
    for (const auto conversion : {space.write, space.read}) {
      for (const char *text : {"Sa", "", static_cast<const char *>(nullptr)}) {
        EXPECT_EQ(take(conversion(text, nullptr, nullptr, handle.get())).has_value(), text != nullptr && *text != '\0');
        EXPECT_EQ(space.isEscapable('x'), 0);
      }
      // The end of a call inside puts the default in force, but not without a handle.
      for (const zelHandle inner : {zelHandle(), zelGetHandle(space.name.c_str(), 0, 0, 0, 0)}) {
        Probe probe = {space, inner};
        for (const zelHandle each : {handle.get(), zelHandle()})
          EXPECT_EQ(conversion("Sa", Probe::allocate, &probe, each), nullptr);
        EXPECT_EQ(probe.seen, inner != nullptr ? "--" : "x-") << space.name;
      }
    }
  }
}
