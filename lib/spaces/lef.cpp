// LEF, Library Exchange Format 5.x.
#include "spaces/keywords.h"
#include "spaces/layoutFamily.h"
#include "spaces/redefinable.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *lefKeywordsA[] = {"abut", "abutment", "accurrentdensity", "active", "analog", "and",
    "antennaareafactor", "antennalengthfactor", "antennametalarea", "antennametallength", "antennasize", "anyedge",
    "array", "average"};
constexpr const char *lefKeywordsB[] = {"beginext", "block", "bottomleft", "bottomright", "buffer", "busbitchars",
    "by"};
constexpr const char *lefKeywordsC[] = {"cannotoccupy", "canplace", "capacitance", "capmultiplier", "class", "clock",
    "clocktype", "columnmajor", "componentpin", "components", "core", "corner", "correctionfactor", "correctiontable",
    "cover", "cpersqdistcurrentcurrentdencurrentsourcecutcutarea"};
constexpr const char *lefKeywordsD[] = {"data", "database", "dccurrentdensity", "default", "defaultcap", "delay",
    "dielectric", "direction", "dividerchar", "do"};
constexpr const char *lefKeywordsE[] = {"edgecapacitance", "edgerate", "edgeratescalefactor", "edgeratethreshold1",
    "edgeratethreshold2", "eeq", "else", "end", "endcap", "endext", "extension"};
constexpr const char *lefKeywordsF[] = {"fall", "fallcs", "fallrs", "fallsatcur", "fallsatt1", "fallslewlimit",
    "fallt0", "fallthresh", "fallvoltagethreshold", "false", "fe", "feedthru", "fixed", "floorplan", "fn", "foreign",
    "frequency", "frompin", "fs", "function", "fw"};
constexpr const char *lefKeywordsG[] = {"gcellgrid", "generate", "generator", "ground"};
constexpr const char *lefKeywordsH[] = {"height", "history", "hold", "horizontal"};
constexpr const char *lefKeywordsI[] = {"if", "inout", "inoutpinantennasize", "input", "inputnoisemargin",
    "inputpinantennasize", "integer", "intrinsic", "invert", "inverter", "irdrop", "iterate", "iv_tables"};
constexpr const char *lefKeywordsL[] = {"layer", "leakage", "lengththreshold", "leq", "library"};
constexpr const char *lefKeywordsM[] = {"macro", "masterslice", "match", "maxdelay", "maxload", "megahertz",
    "metaloverhang", "milliamps", "milliwatts", "minfeature", "minpins", "mpwh", "mpwl", "mustjoin", "mx", "mxr90",
    "my", "myr90"};
constexpr const char *lefKeywordsN[] = {"namemapstring", "namescasesensitive", "nanoseconds", "negedge", "nets",
    "new", "noisetable", "nondefaultrule", "noninvert", "nonunate", "nowireextensionatpin"};
constexpr const char *lefKeywordsO[] = {"obs", "off", "offset", "ohms", "on", "or", "orientation", "origin", "output",
    "outputnoisemargin", "outputpinantennasize", "outputresistance", "outputresistance", "overhang", "overlap",
    "overlaps"};
constexpr const char *lefKeywordsP[] = {"pad", "path", "pattern", "peak", "period", "picofarads", "pin", "pitch",
    "placed", "polygon", "port", "posedge", "post", "power", "pre", "property", "propertydefinitions", "pulldownres",
    "pwl"};
constexpr const char *lefKeywordsR[] = {"r0", "r180", "r270", "r90", "range", "real", "recovery", "rect",
    "resistance", "resistive", "ring", "rise", "risecs", "risers", "risesatcur", "risesatt1", "riseslewlimit",
    "riset0", "risethresh", "risevoltagethreshold", "rms", "routing", "rowmajor", "rpersq"};
constexpr const char *lefKeywordsS[] = {"samenet", "scanuse", "sdfcond", "sdfcondend", "sdfcondstart", "setup",
    "shape", "shrinkage", "signal", "site", "size", "skew", "source", "spacer", "spacing", "specialnets", "stable",
    "stack", "start", "step", "stop", "string", "structure", "symmetry"};
constexpr const char *lefKeywordsT[] = {"table", "tableaxis", "tabledimension", "tabledimension", "tableentries",
    "taperrule", "then", "thickness", "tiehigh", "tielow", "tieoffr", "time", "timing", "to", "topin", "topleft",
    "topofstackonly", "topright", "tracks", "transitiontime", "tristate", "true", "type"};
constexpr const char *lefKeywordsU[] = {"unateness", "units", "universalnoisemargin", "use", "uselengththreshold",
    "user"};
constexpr const char *lefKeywordsV[] = {"variable", "version", "vertical", "vhi", "via", "viarule", "victimlength",
    "victimnoise", "virtual", "vlo", "voltage", "volts"};
constexpr const char *lefKeywordsW[] = {"w", "width", "wirecap", "wireextension"};
constexpr const char *lefKeywordsX[] = {"x"};
constexpr const char *lefKeywordsY[] = {"Y"};
constexpr Keywords keywords = {{'a', lefKeywordsA}, {'b', lefKeywordsB}, {'c', lefKeywordsC}, {'d', lefKeywordsD},
    {'e', lefKeywordsE}, {'f', lefKeywordsF}, {'g', lefKeywordsG}, {'h', lefKeywordsH}, {'i', lefKeywordsI}, {'l',
    lefKeywordsL}, {'m', lefKeywordsM}, {'n', lefKeywordsN}, {'o', lefKeywordsO}, {'p', lefKeywordsP}, {'r',
    lefKeywordsR}, {'s', lefKeywordsS}, {'t', lefKeywordsT}, {'u', lefKeywordsU}, {'v', lefKeywordsV}, {'w',
    lefKeywordsW}, {'x', lefKeywordsX}, {'y', lefKeywordsY}};
static_assert(keywords.words() == 264);
// clang-format on

// Four entries are irregular on purpose: the last word of 'c' runs several together, "outputresistance" and
// "tabledimension" stand twice, and "Y" is never found because words are folded before the search.

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = foldedKeywordsOf<keywordTable>;

// Other than in DEF, the divider is escaped instead of the pin delimiter, and a separator never stands plain.
constexpr BackslashRules rulesUnder(const Separators &separators) {
  const ByteSet syntax = chars({separators.divider, separators.busOpen, separators.busClose});
  return layoutFamily(layoutChar - syntax, syntax);
}

constexpr RedefinableRules<lefNames, rulesUnder, lefSeparators> rules;

} // namespace

const Operations zeli::lefNames = redefinableOperationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalLef, rules)
ZEL_EXPORT_WRITER(zelIdentToLef, rules)
ZEL_EXPORT_READER(zelLefToIdent, rules)
ZEL_EXPORT_WRITER_WITH_HANDLE(zelIdentToLefWithHandle, rules)
ZEL_EXPORT_READER_WITH_HANDLE(zelLefToIdentWithHandle, rules)
ZEL_EXPORT_CHARACTER_UNDER_HANDLE(zelIsLefChar, rules.isPlain)
ZEL_EXPORT_CHARACTER_UNDER_HANDLE(zelIsLefEscapableChar, rules.isEscapable)
ZEL_EXPORT_KEYWORD(zelIsLefKeyword, isKeyword)
ZEL_EXPORT_VERIFY(zelVerifyLefKeywords, keywords)
