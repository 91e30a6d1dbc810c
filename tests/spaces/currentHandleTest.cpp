// The spaces whose separators a file may redefine, under handles that do.
#include "support/spaces.h"

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
} // namespace

// Pin delimiter, divider and bus brackets; what is written under them and read again, or only read.
TEST(CurrentHandle, decidesWhatIsEscaped) {
  const MapState state(ZEL_MAP_DEFAULT);
  for (Row &row : rowsOf(HERE, R"(
    Sdf Spef Gcf Spf Def:
      x/[]  write  Sxy   \xy   Ixy
      X/[]  write  SX    \X    SX
      \/[]  write  Sa\b  a\\b  Ia\b
      ␁/[]  write  S␁    \␁    I␁
    Sdf Spef Gcf:
      /x[]  write  Sxy    xy        Ixy
      //[c  write  Sc]    \c\]      Ic]
      #/[]  write  Sa#41  a\#2341   Ia#41         // would be read as an escape, though the mark is quoted
      A/[]  write  S#41   \#41      I#41          // no escape: A is quoted
      1/[]  write  S#41   \#234\1   I#2341        // the quoted digit hides the escape from the reader
      é/[]  write  Sé     \#e9      Ié            // of no class, whatever the separators
    Spf:
      /x[]  write  Sxy     \xy      Ixy
      //[c  write  Sc]     \c]      Ic]
      #/[]  write  Sa#b    a#b      Ia#b
      #/[]  write  S\#41   \\#2341  I\#41
      A/[]  write  S#41    #41      I#41
      é/[]  write  Sé      \#e9     I\é
      #/[]  read   \#41    IA
    Def:
      /x[]  write  Sxy    xy        Ixy
      //[c  write  Sc]    \c]       Ic]
      .x[]  write  Sa/b.  a/b\.     Ia/b.
      %/[]  write  Sa%41  a%2541    Ia%41
      A/[]  write  S%41   %41       I%41
      ;/[]  write  Sa;b   a\;b      Ia;b
      x/[]  read   axb    Iaxb
    Lef:
      x/[]  write  Sxy    xy       Ixy
      /x[]  write  Sxy    \xy      Ixy
      //o]  write  Soo    \o\o     Ioo
      //[c  write  Sc]    \c]      Ic]
      /.[]  write  Sa/b.  a/b\.    Ia/b.
      /%[]  write  Sa%b   a%b      refused        // the mark stands as it is
      /é[]  write  Sé%e9  \é%e9    Ié%e9
      /x[]  read   axb    refused                 // a separator of LEF cannot stand plain
      /%[]  read   \%41   IA
  )")) {
    const std::vector<std::string> spaces = wordsOf(row.heading);
    for (const Driven &space : drivenSpaces)
      if (std::find(spaces.begin(), spaces.end(), space.name) != spaces.end()) {
        const Handle handle(makeHandle(zelAllocHandle, space.name, row[0]));
        std::string name = row[2];
        if (row[1] == "write") {
          const Result written = take(space.write(row[2].c_str(), nullptr, nullptr, handle.get()));
          name = stated(written, errno);
          row.expect(row[3], name, space.name);
        }
        const Result ident = take(space.read(name.c_str(), nullptr, nullptr, handle.get()));
        row.expect(decoded(row.cells.back()), stated(ident, errno), space.name);
      }
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
    const Handle handle(makeHandle(zelAllocHandle, space.name, "xxxx"));
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
