// VHDL-AMS (IEEE 1076.1).
#include "core/zelpvt.h"
#include "spaces/keywords.h"
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

bool isKeyword(Bytes word) { return keywords.hasFolded(word); }

constexpr ExtendedIdentifierSpace space = vhdlFamily(isKeyword);

} // namespace

int zelIsLegalVHDLAMS(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToVHDLAMS(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelVHDLAMSToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsLegalVHDLAMSNormal(const char *name) noexcept { return space.isNormal(wholeBytes(name)) ? 1 : 0; }

int zelIsVHDLAMSKeyword(const char *word) noexcept { return isKeyword(wholeBytes(word)) ? 1 : 0; }

int zelIsVHDLAMSFirstChar(int c) noexcept { return isIn(space.first, c); }

int zelIsVHDLAMSNormalChar(int c) noexcept { return isIn(space.normal, c); }

int zelIsVHDLAMSEscapableChar(int c) noexcept { return isIn(space.escape.literal, c); }

int zelVerifyVHDLAMSKeywords() noexcept { return keywords.verify() ? 1 : 0; }
