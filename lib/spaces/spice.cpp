// Spice netlists. Much punctuation stands as it is; keywords are legal names, for their place tells them apart.
#include "spaces/backslash.h"
#include "spaces/exports.h"
#include "spaces/keywords.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *SpiceKeywordsA[] = {"ac", "aci", "agauss", "all", "am", "at", "aunif", "avg"};
constexpr const char *SpiceKeywordsB[] = {"bart", "beta", "bisection", "black", "brief"};
constexpr const char *SpiceKeywordsC[] = {"cross", "current"};
constexpr const char *SpiceKeywordsD[] = {"data", "dc", "debug", "dec", "deriv", "derivative", "dtemp"};
constexpr const char *SpiceKeywordsE[] = {"enddata", "err1", "exp"};
constexpr const char *SpiceKeywordsF[] = {"fall", "fil", "find", "freelib", "freq", "from", "fs"};
constexpr const char *SpiceKeywordsG[] = {"gauss", "goal"};
constexpr const char *SpiceKeywordsH[] = {"hamm", "hann", "harris"};
constexpr const char *SpiceKeywordsI[] = {"ic", "ignor", "integ", "integral"};
constexpr const char *SpiceKeywordsK[] = {"kaiser"};
constexpr const char *SpiceKeywordsL[] = {"lam", "last", "limit", "lin"};
constexpr const char *SpiceKeywordsM[] = {"max", "maxfld", "mer", "min", "minval", "model", "monte"};
constexpr const char *SpiceKeywordsN[] = {"nodeset", "none", "norm", "numf"};
constexpr const char *SpiceKeywordsO[] = {"oct", "opt", "optimize"};
constexpr const char *SpiceKeywordsP[] = {"par", "passfail", "pe", "pl", "plot", "poi", "power", "pp", "pu", "pulse",
    "pwl"};
constexpr const char *SpiceKeywordsR[] = {"r", "rd", "rect", "results", "rin", "rise", "rms", "rout"};
constexpr const char *SpiceKeywordsS[] = {"sffm", "sin", "start", "sweep"};
constexpr const char *SpiceKeywordsT[] = {"targ", "td", "temp", "to", "tol", "top", "trig"};
constexpr const char *SpiceKeywordsU[] = {"uic", "unif", "unorm"};
constexpr const char *SpiceKeywordsV[] = {"voltage"};
constexpr const char *SpiceKeywordsW[] = {"weight", "when"};
constexpr const char *SpiceKeywordsY[] = {"yin", "ymax", "ymin", "yout"};
constexpr const char *SpiceKeywordsZ[] = {"zin", "zout"};
constexpr Keywords keywords = {{'a', SpiceKeywordsA}, {'b', SpiceKeywordsB}, {'c', SpiceKeywordsC}, {'d',
    SpiceKeywordsD}, {'e', SpiceKeywordsE}, {'f', SpiceKeywordsF}, {'g', SpiceKeywordsG}, {'h', SpiceKeywordsH}, {'i',
    SpiceKeywordsI}, {'k', SpiceKeywordsK}, {'l', SpiceKeywordsL}, {'m', SpiceKeywordsM}, {'n', SpiceKeywordsN}, {'o',
    SpiceKeywordsO}, {'p', SpiceKeywordsP}, {'r', SpiceKeywordsR}, {'s', SpiceKeywordsS}, {'t', SpiceKeywordsT}, {'u',
    SpiceKeywordsU}, {'v', SpiceKeywordsV}, {'w', SpiceKeywordsW}, {'y', SpiceKeywordsY}, {'z', SpiceKeywordsZ}};
static_assert(keywords.words() == 102);
// clang-format on

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = keywordsOf<keywordTable>;

constexpr ByteSet normal = wordChar | chars("!#$%*+-/<>[]");

struct SpiceRules : BackslashRules {
  // The first and the last character are not tested.
  bool isLegal(const Name &name) const {
    return isNameLength(name) && (name.isWord() || name.size() <= 2 || holdsOnly(plain, name, 1, name.size() - 1));
  }

  Ident read(const Name &name, const Setting &, Text &work) const {
    // A backslash in front is a first character.
    if (!name.isWord() && isNameLength(name) && name[0] != '\\')
      if (Ident ident = readQuoted(name, work); ident.body.data() != nullptr)
        return ident;
    return isLegal(name) ? readLegal(name, work) : refuseIdent();
  }
};

constexpr SpiceRules rules = {{normal, graphic, (graphic - normal) | chars("#"), {'#', graphic}}};

} // namespace

const Operations zeli::spiceNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalSpice, rules)
ZEL_EXPORT_WRITER(zelIdentToSpice, rules)
ZEL_EXPORT_READER(zelSpiceToIdent, rules)
ZEL_EXPORT_KEYWORD(zelIsSpiceKeyword, isKeyword)
ZEL_EXPORT_CHARACTER(zelIsSpiceNormalChar, normal)
ZEL_EXPORT_CHARACTER(zelIsSpiceEscapableChar, rules.escapable)
ZEL_EXPORT_VERIFY(zelVerifySpiceKeywords, keywords)
