// VHDL (IEEE 1076-1993), with a mode that takes the reserved words back to VHDL-87.
#include "spaces/exports.h"
#include "spaces/keywords.h"
#include "spaces/spaces.h"
#include "spaces/vhdlFamily.h"

#include <atomic>
#include <cstdlib>

using namespace zeli;

namespace {

// clang-format off
constexpr const char *VHDLKeywordsA[] = {"abs", "access", "after", "alias", "all", "and", "architecture", "array",
    "assert", "attribute"};
constexpr const char *VHDLKeywordsB[] = {"begin", "block", "body", "buffer", "bus"};
constexpr const char *VHDLKeywordsC[] = {"case", "component", "configuration", "constant"};
constexpr const char *VHDLKeywordsD[] = {"disconnect", "downto"};
constexpr const char *VHDLKeywordsE[] = {"else", "elsif", "end", "entity", "exit"};
constexpr const char *VHDLKeywordsF[] = {"file", "for", "function"};
constexpr const char *VHDLKeywordsG[] = {"generate", "generic", "group", "guarded"};
constexpr const char *VHDLKeywordsI[] = {"if", "impure", "in", "inertial", "inout", "is"};
constexpr const char *VHDLKeywordsL[] = {"label", "library", "linkage", "literal", "loop"};
constexpr const char *VHDLKeywordsM[] = {"map", "mod"};
constexpr const char *VHDLKeywordsN[] = {"nand", "new", "next", "nor", "not", "null"};
constexpr const char *VHDLKeywordsO[] = {"of", "on", "open", "or", "others", "out"};
constexpr const char *VHDLKeywordsP[] = {"package", "port", "postponed", "procedure", "process", "pure"};
constexpr const char *VHDLKeywordsR[] = {"range", "record", "register", "reject", "rem", "report", "return", "rol",
    "ror"};
constexpr const char *VHDLKeywordsS[] = {"select", "severity", "shared", "signal", "sla", "sll", "sra", "srl",
    "subtype"};
constexpr const char *VHDLKeywordsT[] = {"then", "to", "transport", "type"};
constexpr const char *VHDLKeywordsU[] = {"unaffected", "units", "until", "use"};
constexpr const char *VHDLKeywordsV[] = {"variable"};
constexpr const char *VHDLKeywordsW[] = {"wait", "when", "while", "with"};
constexpr const char *VHDLKeywordsX[] = {"xnor", "xor"};
constexpr Keywords keywords = {{'a', VHDLKeywordsA}, {'b', VHDLKeywordsB}, {'c', VHDLKeywordsC}, {'d', VHDLKeywordsD},
    {'e', VHDLKeywordsE}, {'f', VHDLKeywordsF}, {'g', VHDLKeywordsG}, {'i', VHDLKeywordsI}, {'l', VHDLKeywordsL},
    {'m', VHDLKeywordsM}, {'n', VHDLKeywordsN}, {'o', VHDLKeywordsO}, {'p', VHDLKeywordsP}, {'r', VHDLKeywordsR},
    {'s', VHDLKeywordsS}, {'t', VHDLKeywordsT}, {'u', VHDLKeywordsU}, {'v', VHDLKeywordsV}, {'w', VHDLKeywordsW},
    {'x', VHDLKeywordsX}};
static_assert(keywords.words() == 97);
// clang-format on

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

// Reserved since VHDL-93.
constexpr const char *VHDL93Keywords[] = {"group",  "impure", "inertial",   "literal", "postponed", "pure",
                                          "reject", "rol",    "ror",        "shared",  "sla",       "sll",
                                          "sra",    "srl",    "unaffected", "xnor"};

// Whether ZEL_USE_VHDL87_KEYWORDS asks for VHDL-87, kept from its first reading on.
enum EnvironmentMode : std::int32_t { unread, notSet, set };
std::atomic<std::int32_t> environmentMode{unread};

[[gnu::noinline]] std::int32_t readEnvironment() {
  const char *value = std::getenv("ZEL_USE_VHDL87_KEYWORDS");
  const std::int32_t mode = value != nullptr && (Bytes{value} == "YES" || Bytes{value} == "yes") ? set : notSet;
  environmentMode.store(mode, std::memory_order_relaxed);
  return mode;
}

bool isEnvironmentSet() {
  const std::int32_t mode = environmentMode.load(std::memory_order_relaxed);
  return (mode == unread ? readEnvironment() : mode) == set;
}

int vhdlMode() { return std::atomic_ref(ZEL_VHDL_TYPE).load(std::memory_order_relaxed); }

bool isIn93(Bytes word) {
  for (const Bytes added : VHDL93Keywords)
    if (isSameFolded(word, added))
      return true;
  return false;
}

bool isInMode(const Name &word) {
  // Every keyword test is a use of the environment.
  const int mode = vhdlMode();
  const bool isVHDL87 = mode == 1 || (mode == 0 && isEnvironmentSet());
  return keywordTable.hasFolded(word) && !(isVHDL87 && isIn93(word));
}

constexpr KeywordTest isKeyword = [] {
  KeywordTest test = keywordTable.test(isInMode);
  test.determined = &environmentMode;
  return test;
}();
constexpr ExtendedIdentifierRules rules = vhdlFamily(isKeyword);

// Without a mode: the words of 1993, whatever the process asks for.
constexpr ExtendedIdentifierRules rules93 = vhdlFamily(foldedKeywordsOf<keywordTable>);

} // namespace

const Operations zeli::vhdlNames = operationsOf<rules>;
const Operations zeli::vhdl93Names = operationsOf<rules93>;

ZEL_EXPORT_LEGAL(zelIsLegalVHDL, rules)
ZEL_EXPORT_WRITER(zelIdentToVHDL, rules)
ZEL_EXPORT_READER(zelVHDLToIdent, rules)
ZEL_EXPORT_WORD(zelIsLegalVHDLNormal, rules.isNormal)
ZEL_EXPORT_KEYWORD(zelIsVHDLKeyword, isKeyword)
ZEL_EXPORT_CHARACTER(zelIsVHDLFirstChar, rules.first)
ZEL_EXPORT_CHARACTER(zelIsVHDLNormalChar, rules.normal)
ZEL_EXPORT_CHARACTER(zelIsVHDLEscapableChar, rules.escape.literal)
ZEL_EXPORT_VERIFY(zelVerifyVHDLKeywords, keywords)

int ZEL_VHDL_TYPE = 0;

void zelSetVHDLMode(int mode) noexcept { std::atomic_ref(ZEL_VHDL_TYPE).store(mode, std::memory_order_relaxed); }

int zelIsVHDLModeSet() noexcept { return vhdlMode() != 0 ? 1 : 0; }

int zelIsVHDL87ModeSet() noexcept { return vhdlMode() == 1 ? 1 : 0; }

int zelIsVHDLEnvvarSet() noexcept { return isEnvironmentSet() ? 1 : 0; }
