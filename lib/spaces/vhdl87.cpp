// VHDL-87 (IEEE 1076-1987).
#include "spaces/exports.h"
#include "spaces/keywords.h"
#include "spaces/spaces.h"
#include "spaces/vhdlFamily.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *VHDL87KeywordsA[] = {"abs", "access", "after", "alias", "all", "and", "architecture", "array",
    "assert", "attribute"};
constexpr const char *VHDL87KeywordsB[] = {"begin", "block", "body", "buffer", "bus"};
constexpr const char *VHDL87KeywordsC[] = {"case", "component", "configuration", "constant"};
constexpr const char *VHDL87KeywordsD[] = {"disconnect", "downto"};
constexpr const char *VHDL87KeywordsE[] = {"else", "elsif", "end", "entity", "exit"};
constexpr const char *VHDL87KeywordsF[] = {"file", "for", "function"};
constexpr const char *VHDL87KeywordsG[] = {"generate", "generic", "guarded"};
constexpr const char *VHDL87KeywordsI[] = {"if", "in", "inout", "is"};
constexpr const char *VHDL87KeywordsL[] = {"label", "library", "linkage", "loop"};
constexpr const char *VHDL87KeywordsM[] = {"map", "mod"};
constexpr const char *VHDL87KeywordsN[] = {"nand", "new", "next", "nor", "not", "null"};
constexpr const char *VHDL87KeywordsO[] = {"of", "on", "open", "or", "others", "out"};
constexpr const char *VHDL87KeywordsP[] = {"package", "port", "procedure", "process"};
constexpr const char *VHDL87KeywordsR[] = {"range", "record", "register", "rem", "report", "return"};
constexpr const char *VHDL87KeywordsS[] = {"select", "severity", "signal", "subtype"};
constexpr const char *VHDL87KeywordsT[] = {"then", "to", "transport", "type"};
constexpr const char *VHDL87KeywordsU[] = {"units", "until", "use"};
constexpr const char *VHDL87KeywordsV[] = {"variable"};
constexpr const char *VHDL87KeywordsW[] = {"wait", "when", "while", "with"};
constexpr const char *VHDL87KeywordsX[] = {"xor"};
constexpr Keywords keywords = {{'a', VHDL87KeywordsA}, {'b', VHDL87KeywordsB}, {'c', VHDL87KeywordsC}, {'d',
    VHDL87KeywordsD}, {'e', VHDL87KeywordsE}, {'f', VHDL87KeywordsF}, {'g', VHDL87KeywordsG}, {'i', VHDL87KeywordsI},
    {'l', VHDL87KeywordsL}, {'m', VHDL87KeywordsM}, {'n', VHDL87KeywordsN}, {'o', VHDL87KeywordsO}, {'p',
    VHDL87KeywordsP}, {'r', VHDL87KeywordsR}, {'s', VHDL87KeywordsS}, {'t', VHDL87KeywordsT}, {'u', VHDL87KeywordsU},
    {'v', VHDL87KeywordsV}, {'w', VHDL87KeywordsW}, {'x', VHDL87KeywordsX}};
static_assert(keywords.words() == 81);
// clang-format on

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = foldedKeywordsOf<keywordTable>;

constexpr ExtendedIdentifierRules rules = vhdlFamily(isKeyword);

} // namespace

const Operations zeli::vhdl87Names = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalVHDL87, rules)
ZEL_EXPORT_WRITER(zelIdentToVHDL87, rules)
ZEL_EXPORT_READER(zelVHDL87ToIdent, rules)
ZEL_EXPORT_WORD(zelIsLegalVHDL87Normal, rules.isNormal)
ZEL_EXPORT_KEYWORD(zelIsVHDL87Keyword, isKeyword)
ZEL_EXPORT_CHARACTER(zelIsVHDL87FirstChar, rules.first)
ZEL_EXPORT_CHARACTER(zelIsVHDL87NormalChar, rules.normal)
ZEL_EXPORT_CHARACTER(zelIsVHDL87EscapableChar, rules.escape.literal)
ZEL_EXPORT_VERIFY(zelVerifyVHDL87Keywords, keywords)
