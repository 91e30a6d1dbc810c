// What holds for any name in every space and mapping state: what is written is legal and reads back as the Ident that
// it was written from. Where a space cannot keep that, the table below says exactly when, and why.
#include "support/awkwardNames.h"

#include <algorithm>
#include <cctype>

namespace {

bool hasUpper(const std::string &s) {
  return std::any_of(s.begin(), s.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}
bool startsWith(const std::string &s, const std::string &prefix) { return s.compare(0, prefix.size(), prefix) == 0; }

// An Ident and what the space wrote for it.
struct Written {
  const Space &space;
  int state;
  char marker;
  std::string body;
  std::string name;

  bool isSensitive() const { return marker != 'I'; }
  bool keepsCase() const { return state == ZEL_MAP_MATCH && marker != 'F'; }
  bool isForced() const { return startsWith(body, "ESC_"); }
  std::string unforced() const { return isForced() ? body.substr(4) : body; }
  bool isEscaped() const { return name[0] == '\\'; }
  bool isPlain(const std::string &s) const { return s[0] != '\\' && space.isLegal(s.c_str()) == 1; }
};

bool losesForce(const Written &w, bool keepsCapitals) {
  if (!w.isForced())
    return false;
  const std::string rest = w.unforced();
  return w.isSensitive() ? !w.isPlain(rest) || (!keepsCapitals && hasUpper(rest)) : !w.isPlain(w.body);
}

const struct Loss {
  std::vector<std::string> spaces;
  const char *reason;
  bool (*loses)(const Written &);
  bool isIllegal = false; // not only lost: what is written is no legal name
} losses[] = {
    {{"Spice"},
     "The first character is not tested, so a backslash there quotes nothing, and what is behind it stands bare.",
     [](const Written &w) {
       const std::size_t bare = w.body.find_first_not_of('\\');
       return bare < w.body.size() - 1 && zelIsSpiceEscapableChar(w.body[bare]) && !zelIsSpiceNormalChar(w.body[bare]);
     },
     true},
    {{"Kirra"},
     "A part number stands as it is, with backslashes that read as quoting.",
     [](const Written &w) {
       return std::isdigit(static_cast<unsigned char>(w.body[0])) && w.name.size() == w.body.size() &&
              w.body.find('\\') != std::string::npos;
     }},
    {{"Kirra"},
     "A keyword behind three prefixes gets no fourth.",
     [](const Written &w) {
       return w.name.size() == w.body.size() && startsWith(w.name, "KEYWORD_KEYWORD_KEYWORD_") &&
              zelIsKirraKeyword(w.name.c_str() + 24);
     }},
    {{"Spf"},
     "A backslash stands before the escape of a byte beyond ASCII, and is a character itself.",
     [](const Written &w) {
       return std::any_of(w.body.begin(), w.body.end(), [](char c) { return static_cast<unsigned char>(c) > 127; });
     }},
    {{"VHDL", "VHDL87", "VHDLAMS"},
     "The force prefix only tells that a basic identifier was extended; with capitals nothing needs to tell.",
     [](const Written &w) { return losesForce(w, w.state == ZEL_MAP_VHDL || w.state == ZEL_MAP_TANDEM); }},
    {{"VHDL", "VHDL87", "VHDLAMS"},
     "Under TANDEM compatibility capitals make no extended identifier, and basic ones have no case.",
     [](const Written &w) {
       return w.state == ZEL_MAP_TANDEM && w.isSensitive() && !w.isForced() && w.isPlain(w.body) && hasUpper(w.body);
     }},
    {{"EscORKA"},
     "The force prefix, as in VHDL.",
     [](const Written &w) {
       return w.isForced() && (w.isSensitive() ? !zelIsLegal44ORKA(w.unforced().c_str()) || hasUpper(w.unforced())
                                               : !zelIsLegal44ORKA(w.body.c_str()));
     }},
    {{"Vellum"},
     "Between backslashes an escape is text.",
     [](const Written &w) {
       const std::string text = w.unforced();
       const auto doubled = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\\'));
       return w.isEscaped() && w.name.size() != 1 + text.size() + doubled + 1;
     }},
    {{"Vellum"},
     "The force prefix, as in VHDL.",
     [](const Written &w) { return w.isEscaped() && w.isForced() && hasUpper(w.unforced()); }},
    {{"Vellum"},
     "At either end the escape of a space is always one.",
     [](const Written &w) {
       return !w.isEscaped() &&
              (startsWith(w.body, "#20") || (w.body.size() > 2 && w.body.rfind("#20") + 3 == w.body.size()));
     }},
    {{"LibraryNT"},
     "The '%' of a capital digit tears the pair behind an escaped mark.",
     [](const Written &w) {
       for (std::size_t i = 0; i + 2 < w.body.size(); ++i) {
         std::uint32_t used = 0;
         const int value = w.body[i] == '#' ? zelFromPoundHex(w.body.c_str() + i + 1, &used) : 0;
         if (value != 0 && !zelIsNTChar(value) && hasUpper(w.body.substr(i + 1, 2)))
           return w.isSensitive() && !w.keepsCase();
       }
       return false;
     }},
    {{"LibraryNT"},
     "In MATCH a capital has no '%' that would tell a library from a device.",
     [](const Written &w) { return w.marker == 'S' && w.keepsCase() && zelIsNTKeyword(w.name.c_str()); },
     true},
    {{"Library", "LibraryUnix"},
     "The force prefix is dropped.",
     [](const Written &w) { return w.state >= ZEL_MAP_TANDEM && w.isSensitive() && w.isForced() && w.body != "ESC_"; }},
    {{"Library", "LibraryUnix"},
     "The force prefix is dropped, and nothing is left.",
     [](const Written &w) { return w.state >= ZEL_MAP_TANDEM && w.isSensitive() && w.body == "ESC_"; },
     true}};

bool concerns(const Loss &loss, const Written &written) {
  return std::find(loss.spaces.begin(), loss.spaces.end(), written.space.name) != loss.spaces.end() &&
         loss.loses(written);
}

} // namespace

TEST(RoundTrip, keepsEveryIdentButTheListedOnes) {
  const VHDLMode mode(2);
  const std::vector<std::string> bodies = awkwardNames(1000);
  int met[std::size(losses)] = {};
  for (const int state : {ZEL_MAP_VHDL, ZEL_MAP_DEFAULT, ZEL_MAP_TANDEM, ZEL_MAP_MATCH}) {
    const MapState scope(state);
    for (const Space &space : allSpaces())
      for (const std::string &body : bodies)
        for (const char marker : {'S', 'I', 'F'}) {
          const std::string ident = marker + body;
          const Result name = convert(space.write, ident.c_str());
          ASSERT_TRUE(name) << space.name << " " << ident;
          const Written written = {space, state, marker, body, *name};
          bool isLost = false;
          bool isIllegal = false;
          for (const Loss &loss : losses)
            if (concerns(loss, written)) {
              isLost = true;
              isIllegal |= loss.isIllegal;
              ++met[&loss - losses];
            }
          const Result back = convert(space.read, name->c_str());
          const bool survives =
              back && zelIsLegalIdent(back->c_str()) && zelIdentCmp(ident.c_str(), back->c_str()) == 0;
          ASSERT_EQ(space.isLegal(name->c_str()), isIllegal ? 0 : 1)
              << space.name << " in state " << state << ": " << ident << " -> " << *name;
          ASSERT_EQ(survives, !isLost) << space.name << " in state " << state << ": " << ident << " -> " << *name
                                       << " -> " << back.value_or("(null)");
        }
  }
  for (const Loss &loss : losses)
    EXPECT_GT(met[&loss - losses], 0) << loss.reason;
}

// But for Verilog, VHDL and Kirra, which do not check all that they read.
TEST(RoundTrip, readsWhatIsLegal) {
  const auto spaces =
      split("44ORKA Spice Sdf Spf Spef Gcf Lef Def Tessel FlatTessel LibraryNT LibraryUnix NVerilog Print "
            "Ascii Vellum Edif200 Edif300");
  for (const std::string &plain : awkwardNames(500))
    for (const std::string &name : {plain, "\\" + plain + "\\", "'" + plain + "'", "a" + plain})
      for (const std::string &space : spaces)
        ASSERT_EQ(convert(spaceOf(space).read, name.c_str()).has_value(),
                  zelIsLegalName(space.c_str(), name.c_str()) == 1)
            << space << " " << name;
}
