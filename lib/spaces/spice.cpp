// Spice netlists. Much punctuation stands as it is; keywords are legal names, for their place tells them apart.
#include "core/zelpvt.h"
#include "spaces/backslash.h"
#include "spaces/keywords.h"

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

constexpr ByteSet normal = letter | digit | chars("!#$%*+-/<>[]_");

struct SpiceSpace : BackslashSpace {
  // The first and the last character are not tested.
  bool isLegal(Bytes name) const {
    return isNameLength(name) && (name.size() <= 2 || holdsOnly(plain, name, 1, name.size() - 1));
  }

  Ident read(Bytes name, Text &work) const { return isLegal(name) ? readLegal(name, work) : refuseIdent(); }
};

constexpr SpiceSpace space = {
    {.plain = normal, .escapable = graphic, .quoted = (graphic - normal) | chars("#"), .escape = {'#', graphic}}};

} // namespace

int zelIsLegalSpice(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToSpice(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelSpiceToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsSpiceKeyword(const char *word) noexcept { return keywords.has(wholeBytes(word)) ? 1 : 0; }

int zelIsSpiceNormalChar(int c) noexcept { return isIn(normal, c); }

int zelIsSpiceEscapableChar(int c) noexcept { return isIn(space.escapable, c); }

int zelVerifySpiceKeywords() noexcept { return keywords.verify() ? 1 : 0; }
