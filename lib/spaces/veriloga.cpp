// Verilog-A: Verilog with the reserved words of the analog subset.
#include "core/zelpvt.h"
#include "spaces/verilogFamily.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *VerilogAKeywordsA[] = {"abs", "abstol", "access", "acos", "acosh", "ac_stim", "always",
    "analog", "analysis", "and", "asin", "asinh", "assign", "atan", "atanh"};
constexpr const char *VerilogAKeywordsB[] = {"begin", "bound_step", "branch", "buf", "bufif0", "bufif1"};
constexpr const char *VerilogAKeywordsC[] = {"case", "casex", "casez", "cmos", "cos", "cosh", "cross"};
constexpr const char *VerilogAKeywordsD[] = {"ddt", "ddt_nature", "deassign", "default", "defparam", "delay",
    "disable", "discipline", "discontinuity"};
constexpr const char *VerilogAKeywordsE[] = {"edge", "else", "end", "endcase", "enddiscipline", "endfunction",
    "endmodule", "endnature", "endprimitive", "endspecify", "endtable", "endtask", "event", "exclude", "exp"};
constexpr const char *VerilogAKeywordsF[] = {"final_step", "flicker_noise", "flow", "for", "force", "forever", "fork",
    "from", "function"};
constexpr const char *VerilogAKeywordsG[] = {"generate", "ground"};
constexpr const char *VerilogAKeywordsH[] = {"highz0", "highz1"};
constexpr const char *VerilogAKeywordsI[] = {"idt", "idt_nature", "if", "ifnone", "inf", "initial", "initial_step",
    "inout", "input", "integer"};
constexpr const char *VerilogAKeywordsJ[] = {"join"};
constexpr const char *VerilogAKeywordsL[] = {"laplace_nd", "laplace_np", "laplace_zd", "laplace_zp", "large",
    "last_crossing", "ln", "log"};
constexpr const char *VerilogAKeywordsM[] = {"macromodule", "max", "medium", "min", "module"};
constexpr const char *VerilogAKeywordsN[] = {"nand", "nature", "negedge", "nmos", "noise_table", "nor", "not",
    "notif0", "notif1"};
constexpr const char *VerilogAKeywordsO[] = {"or", "output"};
constexpr const char *VerilogAKeywordsP[] = {"parameter", "pmos", "posedge", "potential", "pow", "primitive", "pull0",
    "pull1", "pulldown", "pullup"};
constexpr const char *VerilogAKeywordsR[] = {"rcmos", "real", "realtime", "reg", "release", "repeat", "rnmos",
    "rpmos", "rtran", "rtranif0", "rtranif1"};
constexpr const char *VerilogAKeywordsS[] = {"scalared", "sin", "sinh", "slew", "small", "specify", "specparam",
    "sqrt", "strong0", "strong1", "supply0", "supply1"};
constexpr const char *VerilogAKeywordsT[] = {"table", "tan", "tanh", "task", "time", "timer", "tran", "tranif0",
    "tranif1", "transitiontri", "tri0", "tri1", "triand", "trior", "trireg"};
constexpr const char *VerilogAKeywordsU[] = {"units"};
constexpr const char *VerilogAKeywordsV[] = {"vectored"};
constexpr const char *VerilogAKeywordsW[] = {"wait", "wand", "weak0", "weak1", "while", "white_noise", "wire", "wor"};
constexpr const char *VerilogAKeywordsX[] = {"xnor", "xor"};
constexpr const char *VerilogAKeywordsZ[] = {"zi_nd", "zi_np", "zi_zd", "zi_zp"};
constexpr Keywords keywords = {{'a', VerilogAKeywordsA}, {'b', VerilogAKeywordsB}, {'c', VerilogAKeywordsC}, {'d',
    VerilogAKeywordsD}, {'e', VerilogAKeywordsE}, {'f', VerilogAKeywordsF}, {'g', VerilogAKeywordsG}, {'h',
    VerilogAKeywordsH}, {'i', VerilogAKeywordsI}, {'j', VerilogAKeywordsJ}, {'l', VerilogAKeywordsL}, {'m',
    VerilogAKeywordsM}, {'n', VerilogAKeywordsN}, {'o', VerilogAKeywordsO}, {'p', VerilogAKeywordsP}, {'r',
    VerilogAKeywordsR}, {'s', VerilogAKeywordsS}, {'t', VerilogAKeywordsT}, {'u', VerilogAKeywordsU}, {'v',
    VerilogAKeywordsV}, {'w', VerilogAKeywordsW}, {'x', VerilogAKeywordsX}, {'z', VerilogAKeywordsZ}};
static_assert(keywords.words() == 164);
// clang-format on

// Two arrays are irregular on purpose: "acosh" stands before "ac_stim", so that the search finds neither, and
// "transitiontri" stands where "transition" and "tri" would be expected. All four are plain names of the space.

constexpr EscapedIdentifierSpace space = verilogFamily(keywords);

} // namespace

int zelIsLegalVerilogA(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToVerilogA(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelVerilogAToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsLegalVerilogANormal(const char *name) noexcept { return space.isNormal(wholeBytes(name)) ? 1 : 0; }

int zelIsVerilogAKeyword(const char *word) noexcept { return keywords.has(wholeBytes(word)) ? 1 : 0; }

int zelIsVerilogAFirstChar(int c) noexcept { return isIn(space.first, c); }

int zelIsVerilogANormalChar(int c) noexcept { return isIn(space.normal, c); }

int zelIsVerilogAEscapableChar(int c) noexcept { return isIn(space.escape.literal, c); }

int zelVerifyVerilogAKeywords() noexcept { return keywords.verify() ? 1 : 0; }
