// Verilog (IEEE 1364).
#include "spaces/exports.h"
#include "spaces/keywords.h"
#include "spaces/spaces.h"
#include "spaces/verilogFamily.h"

using namespace zeli;

namespace {

// clang-format off
constexpr const char *VerilogKeywordsA[] = {"always", "and", "assign", "attribute"};
constexpr const char *VerilogKeywordsB[] = {"begin", "buf", "bufif0", "bufif1"};
constexpr const char *VerilogKeywordsC[] = {"case", "casex", "casez", "cmos", "const"};
constexpr const char *VerilogKeywordsD[] = {"deassign", "default", "defparam", "disable"};
constexpr const char *VerilogKeywordsE[] = {"edge", "else", "end", "endattribute", "endcase", "endfunction",
    "endmodule", "endpackage", "endprimitive", "endspecify", "endtable", "endtask", "event"};
constexpr const char *VerilogKeywordsF[] = {"for", "force", "forever", "fork", "function"};
constexpr const char *VerilogKeywordsH[] = {"highz0", "highz1"};
constexpr const char *VerilogKeywordsI[] = {"if", "ifnone", "initial", "inout", "input", "integer"};
constexpr const char *VerilogKeywordsJ[] = {"join"};
constexpr const char *VerilogKeywordsL[] = {"large"};
constexpr const char *VerilogKeywordsM[] = {"macromodule", "medium", "module"};
constexpr const char *VerilogKeywordsN[] = {"nand", "negedge", "nmos", "nor", "not", "notif0", "notif1"};
constexpr const char *VerilogKeywordsO[] = {"or", "output"};
constexpr const char *VerilogKeywordsP[] = {"package", "parameter", "pmos", "posedge", "primitive", "pull0", "pull1",
    "pulldown", "pullup"};
constexpr const char *VerilogKeywordsR[] = {"rcmos", "real", "realtime", "reg", "release", "repeat", "rnmos", "rpmos",
    "rtran", "rtranif0", "rtranif1"};
constexpr const char *VerilogKeywordsS[] = {"scalared", "signed", "small", "specify", "specparam", "strength",
    "strong0", "strong1", "supply0", "supply1"};
constexpr const char *VerilogKeywordsT[] = {"table", "task", "time", "tran", "tranif0", "tranif1", "tri", "tri0",
    "tri1", "triand", "trior", "trireg"};
constexpr const char *VerilogKeywordsU[] = {"use"};
constexpr const char *VerilogKeywordsV[] = {"vectored"};
constexpr const char *VerilogKeywordsW[] = {"wait", "wand", "weak0", "weak1", "when", "while", "wire", "wor"};
constexpr const char *VerilogKeywordsX[] = {"xnor", "xor"};
constexpr Keywords keywords = {{'a', VerilogKeywordsA}, {'b', VerilogKeywordsB}, {'c', VerilogKeywordsC}, {'d',
    VerilogKeywordsD}, {'e', VerilogKeywordsE}, {'f', VerilogKeywordsF}, {'h', VerilogKeywordsH}, {'i',
    VerilogKeywordsI}, {'j', VerilogKeywordsJ}, {'l', VerilogKeywordsL}, {'m', VerilogKeywordsM}, {'n',
    VerilogKeywordsN}, {'o', VerilogKeywordsO}, {'p', VerilogKeywordsP}, {'r', VerilogKeywordsR}, {'s',
    VerilogKeywordsS}, {'t', VerilogKeywordsT}, {'u', VerilogKeywordsU}, {'v', VerilogKeywordsV}, {'w',
    VerilogKeywordsW}, {'x', VerilogKeywordsX}};
static_assert(keywords.words() == 111);
// clang-format on

constexpr KeywordTable<keywords.words()> keywordTable(keywords);

constexpr KeywordTest isKeyword = keywordsOf<keywordTable>;

constexpr EscapedIdentifierRules rules = verilogFamily(isKeyword);

} // namespace

const Operations zeli::verilogNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalVerilog, rules)
ZEL_EXPORT_WRITER(zelIdentToVerilog, rules)
ZEL_EXPORT_READER(zelVerilogToIdent, rules)
ZEL_EXPORT_WORD(zelIsLegalVerilogNormal, rules.isNormal)
ZEL_EXPORT_KEYWORD(zelIsVerilogKeyword, isKeyword)
ZEL_EXPORT_CHARACTER(zelIsVerilogFirstChar, rules.first)
ZEL_EXPORT_CHARACTER(zelIsVerilogNormalChar, rules.normal)
ZEL_EXPORT_CHARACTER(zelIsVerilogEscapableChar, rules.escape.literal)
ZEL_EXPORT_VERIFY(zelVerifyVerilogKeywords, keywords)
