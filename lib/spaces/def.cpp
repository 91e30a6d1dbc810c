// DEF, Design Exchange Format 5.x.
#include "spaces/keywords.h"
#include "spaces/layoutFamily.h"
#include "spaces/redefinable.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *defKeywordsA[] = {"align", "array", "assertions"};
constexpr const char *defKeywordsB[] = {"beginext", "bottomleft", "busbitchars", "by"};
constexpr const char *defKeywordsC[] = {"cannotoccupy", "canplace", "capacitance", "commonscanpins", "component",
    "componentpin", "components", "constraints", "cover"};
constexpr const char *defKeywordsD[] = {"defaultcap", "design", "diearea", "diff", "direction", "distance",
    "dividerchar", "do", "drivecell"};
constexpr const char *defKeywordsE[] = {"e", "eeqmaster", "end", "endext", "equal", "estcap"};
constexpr const char *defKeywordsF[] = {"fall", "fallmax", "fallmin", "fe", "fixed", "floating", "floorplan",
    "floorplanconstraints", "fn", "foreign", "fromclockpin", "fromcomppin", "fromiopin", "frompin", "fs", "fw"};
constexpr const char *defKeywordsG[] = {"gcellgrid", "generate", "group", "groups"};
constexpr const char *defKeywordsH[] = {"history", "holdfall", "holdrise", "horizontal"};
constexpr const char *defKeywordsI[] = {"in", "integer", "iotimings"};
constexpr const char *defKeywordsL[] = {"layer"};
constexpr const char *defKeywordsM[] = {"max", "maxdist", "maxhalfperimeter", "maxx", "maxy", "microns", "min",
    "minpins", "mustjoin"};
constexpr const char *defKeywordsN[] = {"n", "namemapstring", "namescasesensitive", "net", "nets", "new",
    "nondefaultrule", "noshield"};
constexpr const char *defKeywordsO[] = {"ordered", "original", "out"};
constexpr const char *defKeywordsP[] = {"parallel", "partitions", "path", "pattern", "patternname", "pin",
    "pinproperties", "pins", "placed", "property", "propertydefinitions"};
constexpr const char *defKeywordsR[] = {"range", "real", "rect", "reentrantpaths", "region", "regions", "rise",
    "risemax", "risemin", "routed", "row", "rows"};
constexpr const char *defKeywordsS[] = {"s", "scanchains", "setupfall", "setuprise", "shape", "shield", "shieldnet",
    "site", "slewrate", "soft", "source", "spacing", "special", "specialnet", "specialnets", "start", "step", "stop",
    "string", "style", "subnet", "sum", "synthesized"};
constexpr const char *defKeywordsT[] = {"taper", "taperrule", "technology", "timingdisables", "toclockpin",
    "tocomppin", "toiopin", "topin", "topright", "tracks", "turnoff"};
constexpr const char *defKeywordsU[] = {"units", "unplaced", "use"};
constexpr const char *defKeywordsV[] = {"variable", "version", "vertical", "vias", "voltage", "vpin"};
constexpr const char *defKeywordsW[] = {"w", "weight", "width", "wirecap", "wiredlogic"};
constexpr const char *defKeywordsX[] = {"xtalk"};
constexpr Keywords keywords = {{'a', defKeywordsA}, {'b', defKeywordsB}, {'c', defKeywordsC}, {'d', defKeywordsD},
    {'e', defKeywordsE}, {'f', defKeywordsF}, {'g', defKeywordsG}, {'h', defKeywordsH}, {'i', defKeywordsI}, {'l',
    defKeywordsL}, {'m', defKeywordsM}, {'n', defKeywordsN}, {'o', defKeywordsO}, {'p', defKeywordsP}, {'r',
    defKeywordsR}, {'s', defKeywordsS}, {'t', defKeywordsT}, {'u', defKeywordsU}, {'v', defKeywordsV}, {'w',
    defKeywordsW}, {'x', defKeywordsX}};
static_assert(keywords.words() == 151);
// clang-format on

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = foldedKeywordsOf<keywordTable>;

constexpr BackslashRules rulesUnder(const Separators &separators) {
  return layoutFamily(layoutChar, chars({separators.pinDelimiter, separators.busOpen, separators.busClose}));
}

constexpr RedefinableRules<defNames, rulesUnder, defSeparators> rules;

} // namespace

const Operations zeli::defNames = redefinableOperationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalDef, rules)
ZEL_EXPORT_WRITER(zelIdentToDef, rules)
ZEL_EXPORT_READER(zelDefToIdent, rules)
ZEL_EXPORT_WRITER_WITH_HANDLE(zelIdentToDefWithHandle, rules)
ZEL_EXPORT_READER_WITH_HANDLE(zelDefToIdentWithHandle, rules)
ZEL_EXPORT_CHARACTER(zelIsDefChar, layoutChar)
ZEL_EXPORT_CHARACTER_UNDER_HANDLE(zelIsDefEscapableChar, rules.isEscapable)
ZEL_EXPORT_KEYWORD(zelIsDefKeyword, isKeyword)
ZEL_EXPORT_VERIFY(zelVerifyDefKeywords, keywords)
