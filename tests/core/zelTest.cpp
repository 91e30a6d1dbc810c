// Mapping one name between two spaces.
#include "support/awkwardNames.h"

namespace {
Result mapName(const char *from, const char *to, const char *name) {
  const auto conversion = [=](const char *text, zelAllocFunc alloc, void *context) {
    return zelMapName(from, to, text, alloc, context);
  };
  return convert(conversion, name);
}
} // namespace

TEST(MapName, goesThroughIdent) {
  const VHDLMode mode(2);
  const MapState state(ZEL_MAP_DEFAULT);
  const struct {
    const char *from;
    const char *rows[12][2]; // to, name→name
  } tables[] = {{"Verilog",
                 {{"VHDL", R"(\a+b␣→\a+b\ Abc→\Abc\ signal→\signal\ \abc␣→abc a␣b→✗)"},
                  {"ORKA", R"(\a/b[3]␣→a#2fb[3])"},
                  {"Kirra", R"(\real␣→KEYWORD_real \.x␣→\.x)"},
                  {"Library", R"(\a.b␣→a#2eb)"},
                  {"Vellum", R"(\it's␣→'it''s' Abc→\Abc\)"},
                  {"Ident", R"(\A#2320␣→SA#20 \abc␣→Iabc)"}}},
                {"VHDL",
                 {{"Verilog", R"(Module→\module␣ \Module\→Module \abc\→ESC_abc \a\\b\→\a\b␣)"},
                  {"VHDL87", R"(\abc\→\abc\ Abc→Abc)"},
                  {"VHDLAMS", R"(quantity→\quantity\)"},
                  {"Vellum", R"(Abc→Abc \a:b\→'a:b')"}}},
                {"VHDL87", {{"VHDL", R"(xnor→\xnor\ Signal→✗)"}}},
                {"VHDLAMS", {{"VHDL", "quantity→✗ \\quantity\\→quantity"}}},
                {"VerilogA", {{"VerilogAMS", R"(acosh→\acosh␣ a$b→a$b)"}}},
                {"VerilogAMS", {{"VerilogA", R"(\tri␣→tri)"}}},
                {"ORKA", {{"Verilog", R"(a(3)→\a(3)␣)"}, {"Sdf", R"(a#2fb→a\/b)"}}},
                {"44ORKA", {{"EscORKA", R"(A#2fb→\A/b\)"}}},
                {"EscORKA", {{"ORKA", R"(\a<3>\→a#3c3#3e)"}, {"VHDL", R"(\abc\→\abc\)"}}},
                {"Kirra", {{"Verilog", "KEYWORD_model→model"}, {"KirraHDL", R"(a\$b→\a$b␣)"}}},
                {"KirraHDL", {{"Kirra", R"(\2n3904␣→2n3904)"}, {"Spice", R"(\.model␣→\.model)"}}},
                {"Spice", {{"Kirra", R"(x1/m+→x1\/m\+)"}, {"Sdf", R"(a#20b→a\#20b)"}, {"Verilog", R"(.ab→\.ab␣)"}}},
                {"Sdf", {{"Spf", R"(top\/u1\[3\]→top\/u1\[3\])"}, {"Print", R"(a\#41→aa)"}}},
                {"Spf", {{"Sdf", R"(a␣b.c→a\#20b\.c)"}, {"Def", R"(a\:b→a:b)"}, {"Gcf", R"(a\b→a\\b)"}}},
                {"Spef", {{"Gcf", R"(A\.b\/c→A\.b\/c)"}}},
                {"Gcf", {{"Spef", R"(n\<1\>→n\<1\>)"}, {"Spf", R"(n\<1\>→n<1>)"}}},
                {"Def", {{"Lef", R"(a/b→a\/b)"}, {"Verilog", "PINS→PINS"}, {"Tessel", R"(a\[1\]%2541→a\[1\]%41)"}}},
                {"Lef", {{"Def", R"(a\#1%20→a\#1%20 a/b→✗)"}}},
                {"Tessel", {{"Def", R"(a#2341→a\#41)"}, {"FlatTessel", R"(a\|b→a|b)"}}},
                {"FlatTessel", {{"Tessel", R"(a|b\[1\]→a\|b\[1\])"}, {"Sdf", R"(a#2320→a\#2320)"}}},
                {"Library", {{"LibraryNT", "MyLib→%My%Lib"}}},
                {"Filesys", {{"LibraryNT", "con→%%con"}}},
                {"LibraryNT", {{"LibraryUnix", "MyLib→mylib %My%Lib→MyLib con→✗"}, {"Filesys", "%%aux→aux"}}},
                {"LibraryUnix", {{"Verilog", R"(a#2eb→\a.b␣)"}}},
                {"Vellum", {{"VHDL", R"('a:b'→\a:b\ Abc→Abc)"}, {"Print", "#20a→#20a"}}},
                {"Print", {{"Vellum", "a#20→a#20"}, {"Verilog", R"(module→\module␣)"}}},
                {"NVerilog", {{"Ascii", "a#20b→a␣b"}}},
                {"Ascii", {{"NVerilog", "a␣b→a#20b"}, {"Edif200", "a#e9→a#e9"}}},
                {"Edif200", {{"Edif300", "A#2341→A#2341"}}},
                {"Edif300", {{"Spice", R"(a\b#7f→a\\b#7f)"}, {"Ascii", "a#01→a␁"}}},
                {"Ident", {{"Verilog", "Sabc→abc xabc→✗"}, {"VHDL", R"(FAbc→\Abc\)"}, {"Ident", "any→any"}}},
                {"Nosuch", {{"Verilog", R"(a+b→\a+b␣)"}}}}; // NVerilog, by its first character
  for (const auto &[from, rows] : tables)
    for (const auto &[to, cases] : rows)
      for (const Row &row : rowsOf(cases != nullptr ? cases : "")) {
        EXPECT_EQ(mapName(from, to, row.input.c_str()), row.result) << from << " " << to << " " << row.input;
        EXPECT_EQ(errno, row.result ? 0 : EINVAL);
      }
}

TEST(MapName, isTheOneConversionAfterTheOther) {
  const std::string longest(ZEL_MAX_NAME, 'a');
  std::vector<std::string> names = awkwardNames(20);
  names.insert(names.end(), {longest, longest + 'a'});
  for (const Space &from : allSpaces())
    for (const Space &to : allSpaces())
      for (const std::string &name : names) {
        const Result ident = from.name == "Ident" ? Result(name) : take(from.read(name.c_str(), nullptr, nullptr));
        const Result expected = ident ? take(to.write(ident->c_str(), nullptr, nullptr)) : Result();
        char buffer[ZEL_MAX_NAME + 2];
        EXPECT_EQ(resultOf(zelMapName(from.name.c_str(), to.name.c_str(), name.c_str(), nullptr, buffer)), expected);
        // Without the shortcut for Idents.
        const Result mapped = resultOf(zelMapper(from.read, to.write, name.c_str(), nullptr, buffer));
        EXPECT_EQ(mapped, expected) << from.name << " " << to.name << " " << name;
      }
}

TEST(MapName, refusesWhatItDoesNotKnow) {
  EXPECT_EQ(mapName("x", "Verilog", "a"), Result());
  EXPECT_EQ(errno, 0);
  EXPECT_EQ(mapName("Verilog", nullptr, "a"), Result());
  EXPECT_EQ(errno, 0);
  EXPECT_EQ(mapName("Verilog", "VHDL", nullptr), Result());
  EXPECT_EQ(errno, EINVAL);
  EXPECT_EQ(mapName("Ident", "VHDL", nullptr), Result());
  EXPECT_EQ(errno, EINVAL);
  EXPECT_EQ(zelMapper(nullptr, zelIdentToVHDL, "a", nullptr, nullptr), nullptr);
  EXPECT_EQ(zelMapper(zelVHDLToIdent, nullptr, "a", nullptr, nullptr), nullptr);
  Allocator none = {.gives = false};
  EXPECT_EQ(zelMapName("Verilog", "VHDL", "a", Allocator::allocate, &none), nullptr);
  EXPECT_EQ(errno, ENOMEM);
}

TEST(Spaces, giveTheirOperationsByName) {
  for (const Space &space : allSpaces()) {
    const char *const name = space.name.c_str();
    const zelSpace descriptor = zelGetSpaceByName(name);
    ASSERT_NE(descriptor, nullptr) << name;
    for (const zelIsLegalFunc isLegal : {descriptor->isLegal, zelGetIsLegalFunc(name)})
      EXPECT_EQ(isLegal, space.isLegal) << name;
    for (const zelNameToIdentFunc read : {descriptor->nameToIdent, zelGetNameToIdentFunc(name)})
      EXPECT_EQ(read, space.read) << name;
    for (const zelIdentToNameFunc write : {descriptor->identToName, zelGetIdentToNameFunc(name)})
      EXPECT_EQ(write, space.write) << name;
    EXPECT_EQ(zelIsLegalName(name, "Sa") - zelIsLegalName(name, ""), 1) << name;
    EXPECT_EQ(zelGetAllFuncs(name, nullptr, nullptr, nullptr), 0) << name;
  }
  EXPECT_EQ(zelVHDLSpace->nameToIdent, zelVHDLToIdent);
  EXPECT_EQ(zelORKASpace->nameToIdent, zel44ORKAToIdent);
  zelIsLegalFunc untouched = zelIsLegalVHDL;
  EXPECT_EQ(zelGetAllFuncs("x", &untouched, nullptr, nullptr), 1);
  EXPECT_EQ(untouched, zelIsLegalVHDL);
  EXPECT_EQ(zelGetIsLegalFunc("x"), nullptr);
  EXPECT_EQ(zelGetNameToIdentFunc("x"), nullptr);
  EXPECT_EQ(zelGetIdentToNameFunc(nullptr), nullptr);
  EXPECT_EQ(zelIsLegalName("x", "a"), 0);
}
