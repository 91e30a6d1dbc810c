// VHDL (IEEE 1076-1993), with a mode that takes the reserved words back to VHDL-87.
#include "core/zelpvt.h"
#include "spaces/keywords.h"
#include "spaces/vhdlFamily.h"

#include <atomic>
#include <cstdlib>
#include <iterator>

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

// Reserved since VHDL-93.
constexpr const char *VHDL93Keywords[] = {"group",  "impure", "inertial",   "literal", "postponed", "pure",
                                          "reject", "rol",    "ror",        "shared",  "sla",       "sll",
                                          "sra",    "srl",    "unaffected", "xnor"};

// Whether ZEL_USE_VHDL87_KEYWORDS asks for VHDL-87, kept from its first reading on.
enum EnvironmentMode { unread, notSet, set };
std::atomic<EnvironmentMode> environmentMode{unread};

bool isEnvironmentSet() {
  EnvironmentMode mode = environmentMode.load(std::memory_order_relaxed);
  if (mode == unread) {
    const char *value = std::getenv("ZEL_USE_VHDL87_KEYWORDS");
    mode = value != nullptr && (Bytes{value} == "YES" || Bytes{value} == "yes") ? set : notSet;
    environmentMode.store(mode, std::memory_order_relaxed);
  }
  return mode == set;
}

int vhdlMode() { return std::atomic_ref(ZEL_VHDL_TYPE).load(std::memory_order_relaxed); }

bool isKeyword(Bytes word) {
  const int mode = vhdlMode();
  const bool isVHDL87 = mode == 1 || (mode == 0 && isEnvironmentSet());
  const FoldedWord folded(word);
  if (isVHDL87 && tableHas(VHDL93Keywords, std::size(VHDL93Keywords), folded.view))
    return false;
  return keywords.has(folded.view);
}

constexpr ExtendedIdentifierSpace space = vhdlFamily(isKeyword);

} // namespace

int zelIsLegalVHDL(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToVHDL(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelVHDLToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsLegalVHDLNormal(const char *name) noexcept { return space.isNormal(wholeBytes(name)) ? 1 : 0; }

int zelIsVHDLKeyword(const char *word) noexcept { return isKeyword(wholeBytes(word)) ? 1 : 0; }

int zelIsVHDLFirstChar(int c) noexcept { return isIn(space.first, c); }

int zelIsVHDLNormalChar(int c) noexcept { return isIn(space.normal, c); }

int zelIsVHDLEscapableChar(int c) noexcept { return isIn(space.escape.literal, c); }

int zelVerifyVHDLKeywords() noexcept { return keywords.verify() ? 1 : 0; }

int ZEL_VHDL_TYPE = 0;

void zelSetVHDLMode(int mode) noexcept { std::atomic_ref(ZEL_VHDL_TYPE).store(mode, std::memory_order_relaxed); }

int zelIsVHDLModeSet() noexcept { return vhdlMode() != 0 ? 1 : 0; }

int zelIsVHDL87ModeSet() noexcept { return vhdlMode() == 1 ? 1 : 0; }

int zelIsVHDLEnvvarSet() noexcept { return isEnvironmentSet() ? 1 : 0; }
