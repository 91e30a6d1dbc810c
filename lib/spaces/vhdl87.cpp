// VHDL-87 (IEEE 1076-1987).
#include "core/zelpvt.h"
#include "spaces/keywords.h"
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

bool isKeyword(Bytes word) { return keywords.hasFolded(word); }

constexpr ExtendedIdentifierSpace space = vhdlFamily(isKeyword);

} // namespace

int zelIsLegalVHDL87(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToVHDL87(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelVHDL87ToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsLegalVHDL87Normal(const char *name) noexcept { return space.isNormal(wholeBytes(name)) ? 1 : 0; }

int zelIsVHDL87Keyword(const char *word) noexcept { return isKeyword(wholeBytes(word)) ? 1 : 0; }

int zelIsVHDL87FirstChar(int c) noexcept { return isIn(space.first, c); }

int zelIsVHDL87NormalChar(int c) noexcept { return isIn(space.normal, c); }

int zelIsVHDL87EscapableChar(int c) noexcept { return isIn(space.escape.literal, c); }

int zelVerifyVHDL87Keywords() noexcept { return keywords.verify() ? 1 : 0; }
