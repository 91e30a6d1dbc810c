// VHDL-AMS (IEEE 1076.1).
#include "spaces/exports.h"
#include "spaces/keywords.h"
#include "spaces/spaces.h"
#include "spaces/vhdlFamily.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *VHDLAMSKeywordsA[] = {"abs", "access", "across", "after", "alias", "all", "and", "architecture",
    "array", "assert", "attribute"};
constexpr const char *VHDLAMSKeywordsB[] = {"begin", "block", "body", "break", "buffer", "bus"};
constexpr const char *VHDLAMSKeywordsC[] = {"case", "component", "configuration", "constant"};
constexpr const char *VHDLAMSKeywordsD[] = {"disconnect", "downto"};
constexpr const char *VHDLAMSKeywordsE[] = {"else", "elsif", "end", "entity", "exit"};
constexpr const char *VHDLAMSKeywordsF[] = {"file", "for", "function"};
constexpr const char *VHDLAMSKeywordsG[] = {"generate", "generic", "group", "guarded"};
constexpr const char *VHDLAMSKeywordsI[] = {"if", "impure", "in", "inertial", "inout", "is"};
constexpr const char *VHDLAMSKeywordsL[] = {"label", "library", "limit", "linkage", "literal", "loop"};
constexpr const char *VHDLAMSKeywordsM[] = {"map", "mod"};
constexpr const char *VHDLAMSKeywordsN[] = {"nand", "nature", "new", "next", "noise", "nor", "not", "null"};
constexpr const char *VHDLAMSKeywordsO[] = {"of", "on", "open", "or", "others", "out"};
constexpr const char *VHDLAMSKeywordsP[] = {"package", "port", "postponed", "procedural", "procedure", "process",
    "pure"};
constexpr const char *VHDLAMSKeywordsQ[] = {"quantity"};
constexpr const char *VHDLAMSKeywordsR[] = {"range", "record", "reference", "register", "reject", "rem", "report",
    "return", "rol", "ror"};
constexpr const char *VHDLAMSKeywordsS[] = {"select", "severity", "shared", "signal", "sla", "sll", "spectrum", "sra",
    "srl", "subnature", "subtype"};
constexpr const char *VHDLAMSKeywordsT[] = {"terminal", "then", "through", "to", "tolerance", "transport", "type"};
constexpr const char *VHDLAMSKeywordsU[] = {"unaffected", "units", "until", "use"};
constexpr const char *VHDLAMSKeywordsV[] = {"variable"};
constexpr const char *VHDLAMSKeywordsW[] = {"wait", "when", "while", "with"};
constexpr const char *VHDLAMSKeywordsX[] = {"xnor", "xor"};
constexpr Keywords keywords = {{'a', VHDLAMSKeywordsA}, {'b', VHDLAMSKeywordsB}, {'c', VHDLAMSKeywordsC}, {'d',
    VHDLAMSKeywordsD}, {'e', VHDLAMSKeywordsE}, {'f', VHDLAMSKeywordsF}, {'g', VHDLAMSKeywordsG}, {'i',
    VHDLAMSKeywordsI}, {'l', VHDLAMSKeywordsL}, {'m', VHDLAMSKeywordsM}, {'n', VHDLAMSKeywordsN}, {'o',
    VHDLAMSKeywordsO}, {'p', VHDLAMSKeywordsP}, {'q', VHDLAMSKeywordsQ}, {'r', VHDLAMSKeywordsR}, {'s',
    VHDLAMSKeywordsS}, {'t', VHDLAMSKeywordsT}, {'u', VHDLAMSKeywordsU}, {'v', VHDLAMSKeywordsV}, {'w',
    VHDLAMSKeywordsW}, {'x', VHDLAMSKeywordsX}};
static_assert(keywords.words() == 110);
// clang-format on

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = foldedKeywordsOf<keywordTable>;

constexpr ExtendedIdentifierRules rules = vhdlFamily(isKeyword);

} // namespace

const Operations zeli::vhdlAMSNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalVHDLAMS, rules)
ZEL_EXPORT_WRITER(zelIdentToVHDLAMS, rules)
ZEL_EXPORT_READER(zelVHDLAMSToIdent, rules)
ZEL_EXPORT_WORD(zelIsLegalVHDLAMSNormal, rules.isNormal)
ZEL_EXPORT_KEYWORD(zelIsVHDLAMSKeyword, isKeyword)
ZEL_EXPORT_CHARACTER(zelIsVHDLAMSFirstChar, rules.first)
ZEL_EXPORT_CHARACTER(zelIsVHDLAMSNormalChar, rules.normal)
ZEL_EXPORT_CHARACTER(zelIsVHDLAMSEscapableChar, rules.escape.literal)
ZEL_EXPORT_VERIFY(zelVerifyVHDLAMSKeywords, keywords)
