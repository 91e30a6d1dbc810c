// Verilog-A: Verilog with the reserved words of the analog subset.
#include "spaces/exports.h"
#include "spaces/keywords.h"
#include "spaces/spaces.h"
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

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = keywordsOf<keywordTable>;

constexpr EscapedIdentifierRules rules = verilogFamily(isKeyword);

} // namespace

const Operations zeli::verilogANames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalVerilogA, rules)
ZEL_EXPORT_WRITER(zelIdentToVerilogA, rules)
ZEL_EXPORT_READER(zelVerilogAToIdent, rules)
ZEL_EXPORT_WORD(zelIsLegalVerilogANormal, rules.isNormal)
ZEL_EXPORT_KEYWORD(zelIsVerilogAKeyword, isKeyword)
ZEL_EXPORT_CHARACTER(zelIsVerilogAFirstChar, rules.first)
ZEL_EXPORT_CHARACTER(zelIsVerilogANormalChar, rules.normal)
ZEL_EXPORT_CHARACTER(zelIsVerilogAEscapableChar, rules.escape.literal)
ZEL_EXPORT_VERIFY(zelVerifyVerilogAKeywords, keywords)
