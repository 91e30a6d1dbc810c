// Verilog-AMS: Verilog with the reserved words of the analog and mixed-signal extensions.
#include "spaces/exports.h"
#include "spaces/keywords.h"
#include "spaces/spaces.h"
#include "spaces/verilogFamily.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *VerilogAMSKeywordsA[] = {"a2d", "above", "abs", "absdelay", "abstol", "ac_stim", "access",
    "acos", "acosh", "always", "analog", "analysis", "and", "asin", "asinh", "assign", "atan", "atan2", "atanh",
    "attribute"};
constexpr const char *VerilogAMSKeywordsB[] = {"begin", "bound_step", "branch", "buf", "bufif0", "bufif1"};
constexpr const char *VerilogAMSKeywordsC[] = {"case", "casex", "casez", "ceil", "class", "cmos", "connect",
    "connectmodule", "connectrules", "const", "continuous", "cos", "cosh", "cross"};
constexpr const char *VerilogAMSKeywordsD[] = {"ddt", "ddt_nature", "deassign", "default", "defparam", "disable",
    "discipline", "discontinuity", "discrete", "domain", "driver_active", "driver_count", "driver_delay",
    "driver_local", "driver_next_state", "driver_next_strength", "driver_state", "driver_strength", "driver_update",
    "dynamicparam"};
constexpr const char *VerilogAMSKeywordsE[] = {"edge", "else", "end", "endattribute", "endcase", "endconnectrules",
    "enddiscipline", "endfunction", "endmodule", "endnature", "endpackage", "endprimitive", "endspecify", "endtable",
    "endtask", "event", "exclude", "exp"};
constexpr const char *VerilogAMSKeywordsF[] = {"final_step", "flicker_noise", "floor", "flow", "for", "force",
    "forever", "fork", "from", "function"};
constexpr const char *VerilogAMSKeywordsG[] = {"generate", "genvar", "ground"};
constexpr const char *VerilogAMSKeywordsH[] = {"highz0", "highz1", "hypot"};
constexpr const char *VerilogAMSKeywordsI[] = {"idt", "idt_nature", "idtmod", "if", "ifnone", "inf", "initial",
    "initial_step", "inout", "input", "integer"};
constexpr const char *VerilogAMSKeywordsJ[] = {"join"};
constexpr const char *VerilogAMSKeywordsL[] = {"laplace_nd", "laplace_np", "laplace_zd", "laplace_zp", "large",
    "last_crossing", "limexp", "ln", "log"};
constexpr const char *VerilogAMSKeywordsM[] = {"macromodule", "max", "medium", "merged", "min", "module"};
constexpr const char *VerilogAMSKeywordsN[] = {"name", "nand", "nature", "negedge", "net_resolution", "nmos",
    "noise_table", "nor", "noshowcancelled", "not", "notif0", "notif1"};
constexpr const char *VerilogAMSKeywordsO[] = {"or", "output"};
constexpr const char *VerilogAMSKeywordsP[] = {"package", "parameter", "pathdelay_controlsignal", "pathdelay_max0",
    "pathdelay_max1", "pathdelay_min0", "pathdelay_min1", "pathdelay_sense", "pmos", "posedge", "potential", "pow",
    "pragma", "primitive", "pull0", "pull1", "pulldown", "pullup", "pulsestyle_ondetect", "pulsestyle_onevent"};
constexpr const char *VerilogAMSKeywordsR[] = {"rcmos", "real", "real2int", "realtime", "reg", "release", "repeat",
    "resolveto", "rnmos", "rpmos", "rtran", "rtranif0", "rtranif1"};
constexpr const char *VerilogAMSKeywordsS[] = {"scalared", "showcancelled", "signed", "sin", "sinh", "slew", "small",
    "specify", "specparam", "split", "sqrt", "strength", "string", "strong0", "strong1", "supply0", "supply1"};
constexpr const char *VerilogAMSKeywordsT[] = {"table", "tan", "tanh", "task", "time", "timer", "to", "tran",
    "tranif0", "tranif1", "transition", "tri", "tri0", "tri1", "triand", "trior", "trireg"};
constexpr const char *VerilogAMSKeywordsU[] = {"units", "use", "using"};
constexpr const char *VerilogAMSKeywordsV[] = {"vectored"};
constexpr const char *VerilogAMSKeywordsW[] = {"wait", "wand", "weak0", "weak1", "when", "while", "white_noise",
    "wire", "with", "wor", "wreal"};
constexpr const char *VerilogAMSKeywordsX[] = {"xnor", "xor"};
constexpr const char *VerilogAMSKeywordsZ[] = {"zi_nd", "zi_np", "zi_zd", "zi_zp"};
constexpr Keywords keywords = {{'a', VerilogAMSKeywordsA}, {'b', VerilogAMSKeywordsB}, {'c', VerilogAMSKeywordsC},
    {'d', VerilogAMSKeywordsD}, {'e', VerilogAMSKeywordsE}, {'f', VerilogAMSKeywordsF}, {'g', VerilogAMSKeywordsG},
    {'h', VerilogAMSKeywordsH}, {'i', VerilogAMSKeywordsI}, {'j', VerilogAMSKeywordsJ}, {'l', VerilogAMSKeywordsL},
    {'m', VerilogAMSKeywordsM}, {'n', VerilogAMSKeywordsN}, {'o', VerilogAMSKeywordsO}, {'p', VerilogAMSKeywordsP},
    {'r', VerilogAMSKeywordsR}, {'s', VerilogAMSKeywordsS}, {'t', VerilogAMSKeywordsT}, {'u', VerilogAMSKeywordsU},
    {'v', VerilogAMSKeywordsV}, {'w', VerilogAMSKeywordsW}, {'x', VerilogAMSKeywordsX}, {'z', VerilogAMSKeywordsZ}};
static_assert(keywords.words() == 223);
// clang-format on

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = keywordsOf<keywordTable>;

constexpr EscapedIdentifierRules rules = verilogFamily(isKeyword);

} // namespace

const Operations zeli::verilogAMSNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalVerilogAMS, rules)
ZEL_EXPORT_WRITER(zelIdentToVerilogAMS, rules)
ZEL_EXPORT_READER(zelVerilogAMSToIdent, rules)
ZEL_EXPORT_WORD(zelIsLegalVerilogAMSNormal, rules.isNormal)
ZEL_EXPORT_KEYWORD(zelIsVerilogAMSKeyword, isKeyword)
ZEL_EXPORT_CHARACTER(zelIsVerilogAMSFirstChar, rules.first)
ZEL_EXPORT_CHARACTER(zelIsVerilogAMSNormalChar, rules.normal)
ZEL_EXPORT_CHARACTER(zelIsVerilogAMSEscapableChar, rules.escape.literal)
ZEL_EXPORT_VERIFY(zelVerifyVerilogAMSKeywords, keywords)
