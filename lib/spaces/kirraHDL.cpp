// KirraHDL: the behavioural language beside Kirra netlists.
#include "spaces/escapedIdentifier.h"
#include "spaces/exports.h"
#include "spaces/keywords.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *KirraHDLKeywordsA[] = {"abs", "abstol", "ac_stim", "acos", "acosh", "always", "analog",
    "analysis", "ascii", "asin", "asinh", "assert", "assign", "atan", "atan2", "atanh"};
constexpr const char *KirraHDLKeywordsB[] = {"bound_step", "branch", "break", "break_point", "build_string",
    "build_table", "bus"};
constexpr const char *KirraHDLKeywordsC[] = {"case", "ceil", "complex", "const", "continue", "cos", "cosh", "cross"};
constexpr const char *KirraHDLKeywordsD[] = {"debug", "default", "do", "domain", "dot"};
constexpr const char *KirraHDLKeywordsE[] = {"else", "enum", "error", "event", "exclude", "exp", "export"};
constexpr const char *KirraHDLKeywordsF[] = {"fatal", "fclose", "fdebug", "fflush", "final", "finish",
    "flicker_noise", "floor", "flow", "fopen", "for", "fread", "fread_table", "freq", "from", "fstrobe", "fwrite",
    "fwrite_table"};
constexpr const char *KirraHDLKeywordsG[] = {"generate", "global"};
constexpr const char *KirraHDLKeywordsH[] = {"halt", "hypot"};
constexpr const char *KirraHDLKeywordsI[] = {"idtmod", "if", "inf", "initial", "inout", "input", "integ", "integer",
    "interpolate", "laplace_nd", "laplace_np", "laplace_zd", "laplace_zp", "last_crossing", "limexp", "ln", "log"};
constexpr const char *KirraHDLKeywordsM[] = {"mag", "max", "min", "model", "module"};
constexpr const char *KirraHDLKeywordsN[] = {"negedge", "net", "netlist_node_alias", "node", "noise_table", "notice"};
constexpr const char *KirraHDLKeywordsO[] = {"output"};
constexpr const char *KirraHDLKeywordsP[] = {"param_given", "parameter", "pclose", "phase", "popen", "posedge", "pow",
    "pwl", "pwr"};
constexpr const char *KirraHDLKeywordsQ[] = {"quantity"};
constexpr const char *KirraHDLKeywordsR[] = {"random", "read", "real", "reg", "reject_step", "reltol", "return"};
constexpr const char *KirraHDLKeywordsS[] = {"sin", "sinh", "slew", "sqrt", "state", "step", "stop", "str", "strcat",
    "strchr", "strcmp", "strcpy", "strcspn", "stream", "string", "strlen", "strobe", "strrchr", "strspn", "strstr",
    "strtoint", "strtoreal", "substr", "switch", "system"};
constexpr const char *KirraHDLKeywordsT[] = {"table", "tan", "tanh", "tdelay", "temp", "terminal", "threshold",
    "time", "transition"};
constexpr const char *KirraHDLKeywordsU[] = {"unit"};
constexpr const char *KirraHDLKeywordsV[] = {"val", "void", "vt"};
constexpr const char *KirraHDLKeywordsW[] = {"wait", "warning", "when", "while", "white_noise", "wire", "write"};
constexpr const char *KirraHDLKeywordsZ[] = {"zdelay", "zi_nd", "zi_np", "zi_zd", "zi_zp"};
constexpr Keywords keywords = {{'a', KirraHDLKeywordsA}, {'b', KirraHDLKeywordsB}, {'c', KirraHDLKeywordsC}, {'d',
    KirraHDLKeywordsD}, {'e', KirraHDLKeywordsE}, {'f', KirraHDLKeywordsF}, {'g', KirraHDLKeywordsG}, {'h',
    KirraHDLKeywordsH}, {'i', KirraHDLKeywordsI}, {'m', KirraHDLKeywordsM}, {'n', KirraHDLKeywordsN}, {'o',
    KirraHDLKeywordsO}, {'p', KirraHDLKeywordsP}, {'q', KirraHDLKeywordsQ}, {'r', KirraHDLKeywordsR}, {'s',
    KirraHDLKeywordsS}, {'t', KirraHDLKeywordsT}, {'u', KirraHDLKeywordsU}, {'v', KirraHDLKeywordsV}, {'w',
    KirraHDLKeywordsW}, {'z', KirraHDLKeywordsZ}};
static_assert(keywords.words() == 161);
// clang-format on

// The words with 'l' stand among those with 'i' on purpose: they are never found, and so plain names of the space.

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = keywordsOf<keywordTable>;

constexpr EscapedIdentifierRules rules = escapedIdentifierRules(letter | chars("_"), wordChar, isKeyword);

} // namespace

const Operations zeli::kirraHDLNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalKirraHDL, rules)
ZEL_EXPORT_WRITER(zelIdentToKirraHDL, rules)
ZEL_EXPORT_READER(zelKirraHDLToIdent, rules)
ZEL_EXPORT_WORD(zelIsLegalKirraHDLNormal, rules.isNormal)
ZEL_EXPORT_KEYWORD(zelIsKirraHDLKeyword, isKeyword)
ZEL_EXPORT_CHARACTER(zelIsKirraHDLFirstChar, rules.first)
ZEL_EXPORT_CHARACTER(zelIsKirraHDLNormalChar, rules.normal)
ZEL_EXPORT_CHARACTER(zelIsKirraHDLEscapableChar, rules.escape.literal)
ZEL_EXPORT_VERIFY(zelVerifyKirraHDLKeywords, keywords)
