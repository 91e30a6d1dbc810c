// Reserved words of the revisions of Verilog and VHDL. A revision of Verilog keeps every word of the one before it.
#include "spaces/keywordRevisions.h"
#include "spaces/keywords.h"

using namespace zeli;

namespace {

// clang-format off
// IEEE 1364-2001, Annex B.
constexpr const char *since1364_2001[] = {"always", "and", "assign", "automatic", "begin", "buf", "bufif0", "bufif1",
    "case", "casex", "casez", "cell", "cmos", "config", "deassign", "default", "defparam", "design", "disable", "edge",
    "else", "end", "endcase", "endconfig", "endfunction", "endgenerate", "endmodule", "endprimitive", "endspecify",
    "endtable", "endtask", "event", "for", "force", "forever", "fork", "function", "generate", "genvar", "highz0",
    "highz1", "if", "ifnone", "incdir", "include", "initial", "inout", "input", "instance", "integer", "join", "large",
    "liblist", "library", "localparam", "macromodule", "medium", "module", "nand", "negedge", "nmos", "nor",
    "noshowcancelled", "not", "notif0", "notif1", "or", "output", "parameter", "pmos", "posedge", "primitive", "pull0",
    "pull1", "pulldown", "pullup", "pulsestyle_ondetect", "pulsestyle_onevent", "rcmos", "real", "realtime", "reg",
    "release", "repeat", "rnmos", "rpmos", "rtran", "rtranif0", "rtranif1", "scalared", "showcancelled", "signed",
    "small", "specify", "specparam", "strong0", "strong1", "supply0", "supply1", "table", "task", "time", "tran",
    "tranif0", "tranif1", "tri", "tri0", "tri1", "triand", "trior", "trireg", "unsigned", "use", "vectored", "wait",
    "wand", "weak0", "weak1", "while", "wire", "wor", "xnor", "xor"};
// IEEE 1364-2005, Annex B, without the words of 2001.
constexpr const char *since1364_2005[] = {"uwire"};
// IEEE 1800-2017, Annex B, without the words of IEEE 1364-2005.
constexpr const char *since1800_2017[] = {"accept_on", "alias", "always_comb", "always_ff", "always_latch", "assert",
    "assume", "before", "bind", "bins", "binsof", "bit", "break", "byte", "chandle", "checker", "class", "clocking",
    "const", "constraint", "context", "continue", "cover", "covergroup", "coverpoint", "cross", "dist", "do",
    "endchecker", "endclass", "endclocking", "endgroup", "endinterface", "endpackage", "endprogram", "endproperty",
    "endsequence", "enum", "eventually", "expect", "export", "extends", "extern", "final", "first_match", "foreach",
    "forkjoin", "global", "iff", "ignore_bins", "illegal_bins", "implements", "implies", "import", "inside", "int",
    "interconnect", "interface", "intersect", "join_any", "join_none", "let", "local", "logic", "longint", "matches",
    "modport", "nettype", "new", "nexttime", "null", "package", "packed", "priority", "program", "property",
    "protected", "pure", "rand", "randc", "randcase", "randsequence", "ref", "reject_on", "restrict", "return",
    "s_always", "s_eventually", "s_nexttime", "s_until", "s_until_with", "sequence", "shortint", "shortreal", "soft",
    "solve", "static", "string", "strong", "struct", "super", "sync_accept_on", "sync_reject_on", "tagged", "this",
    "throughout", "timeprecision", "timeunit", "type", "typedef", "union", "unique", "unique0", "until", "until_with",
    "untyped", "var", "virtual", "void", "wait_order", "weak", "wildcard", "with", "within"};
// IEEE 1076-2008, clause 15.10.
constexpr const char *in1076_2008[] = {"abs", "access", "after", "alias", "all", "and", "architecture", "array",
    "assert", "assume", "assume_guarantee", "attribute", "begin", "block", "body", "buffer", "bus", "case", "component",
    "configuration", "constant", "context", "cover", "default", "disconnect", "downto", "else", "elsif", "end",
    "entity", "exit", "fairness", "file", "for", "force", "function", "generate", "generic", "group", "guarded", "if",
    "impure", "in", "inertial", "inout", "is", "label", "library", "linkage", "literal", "loop", "map", "mod", "nand",
    "new", "next", "nor", "not", "null", "of", "on", "open", "or", "others", "out", "package", "parameter", "port",
    "postponed", "procedure", "process", "property", "protected", "pure", "range", "record", "register", "reject",
    "release", "rem", "report", "restrict", "restrict_guarantee", "return", "rol", "ror", "select", "sequence",
    "severity", "shared", "signal", "sla", "sll", "sra", "srl", "strong", "subtype", "then", "to", "transport", "type",
    "unaffected", "units", "until", "use", "variable", "vmode", "vprop", "vunit", "wait", "when", "while", "with",
    "xnor", "xor"};
// clang-format on

constexpr std::size_t words1364_2001 = std::size(since1364_2001);
constexpr std::size_t words1364_2005 = words1364_2001 + std::size(since1364_2005);
constexpr std::size_t words1800_2017 = words1364_2005 + std::size(since1800_2017);
static_assert(words1364_2001 == 123 && words1364_2005 == 124 && words1800_2017 == 248);
static_assert(std::size(in1076_2008) == 115);

constexpr KeywordTable tableSince1364_2001(since1364_2001);
constexpr KeywordTable tableSince1364_2005(since1364_2005);
constexpr KeywordTable tableSince1800_2017(since1800_2017);
constexpr KeywordTable table1076_2008(in1076_2008);

// Every revision of Verilog keeps the words of the one before.
bool isIn1364_2001(const Name &word) { return tableSince1364_2001.has(word); }
bool isIn1364_2005(const Name &word) { return isIn1364_2001(word) || tableSince1364_2005.has(word); }
bool isIn1800_2017(const Name &word) { return isIn1364_2005(word) || tableSince1800_2017.has(word); }

constexpr std::size_t longest1364_2005 = std::max(tableSince1364_2001.longest, tableSince1364_2005.longest);

} // namespace

constexpr KeywordRevision zeli::keywordRevisions[] = {
    {"1364-2001", false, {isIn1364_2001, tableSince1364_2001.longest}},
    {"1364-2005", false, {isIn1364_2005, longest1364_2005}},
    {"1800-2017", false, {isIn1800_2017, std::max(longest1364_2005, tableSince1800_2017.longest)}},
    {"1076-2008", true, foldedKeywordsOf<table1076_2008>}};

const KeywordRevision *zeli::findKeywordRevision(Bytes name) {
  constexpr Bytes publisher = "ieee ";
  if (name.size() > publisher.size() && isSameFolded(upTo(name, publisher.size()), publisher))
    name = from(name, publisher.size());
  for (const KeywordRevision &revision : keywordRevisions)
    if (name == revision.name)
      return &revision;
  return nullptr;
}
