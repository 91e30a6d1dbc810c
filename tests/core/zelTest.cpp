// Mapping one name between two spaces.
#include "support/rules.h"

TEST(MapName, goesThroughIdent) {
  const VHDLMode mode(2);
  const MapState state(ZEL_MAP_DEFAULT);
  const auto map = [](const char *name, zelAllocFunc alloc, void *context) {
    return zelMapName("Verilog", "VHDL", name, alloc, context);
  };
  for (const Row &row : rowsOf(R"(\a+b␣→\a+b\ Abc→\Abc\ signal→\signal\ \abc␣→abc a␣b→✗)"))
    EXPECT_EQ(convert(map, row.input.c_str()), row.result) << row.input;
  for (const auto &[from, to, error] :
       {std::tuple("Verilog", "VHDL", EINVAL), {"Ident", "VHDL", EINVAL}, {"x", "VHDL", 0}, {"VHDL", nullptr, 0}}) {
    errno = 0;
    EXPECT_EQ(zelMapName(from, to, nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(errno, error);
  }
  const std::string longest(ZEL_MAX_NAME, 'a'); // for which an Ident is not copied first
  EXPECT_EQ(take(zelMapName("Ident", "VHDL", ("S" + longest).c_str(), nullptr, nullptr)), longest);
  EXPECT_EQ(zelMapper(nullptr, zelIdentToVHDL, "a", nullptr, nullptr), nullptr);
  EXPECT_EQ(zelMapper(zelVHDLToIdent, nullptr, "a", nullptr, nullptr), nullptr);
}

TEST(MapName, isTheOneConversionAfterTheOther) {
  std::vector<std::string> names = split(R"(Sa a Model signal ESC_a KEYWORD_model #2320 a%41 a.b a/b \a+b␣ \A\ (3) é)");
  names.insert(names.end(), {"", std::string(ZEL_MAX_NAME, 'a'), std::string(ZEL_MAX_NAME + 1, 'a')});
  for (const std::string &from : allSpaces())
    for (const std::string &to : allSpaces())
      for (const std::string &name : names) {
        const auto read = spaceOf(from)->nameToIdent;
        const auto write = spaceOf(to)->identToName;
        const Result ident = from == "Ident" ? name : take(read(name.c_str(), nullptr, nullptr));
        const Result expected = ident ? take(write(ident->c_str(), nullptr, nullptr)) : Result();
        EXPECT_EQ(take(zelMapName(from.c_str(), to.c_str(), name.c_str(), nullptr, nullptr)), expected)
            << from << " " << to << " " << name;
        // Without the shortcut for Idents.
        EXPECT_EQ(take(zelMapper(read, write, name.c_str(), nullptr, nullptr)), expected);
      }
}

TEST(Spaces, giveTheirOperationsByName) {
  for (const std::string &word : allSpaces()) {
    const zelSpaceRecord &space = *spaceOf(word);
    const char *const name = word.c_str();
    zelSpaceRecord found = {};
    EXPECT_EQ(zelGetAllFuncs(name, &found.isLegal, &found.nameToIdent, &found.identToName), 0) << name;
    EXPECT_EQ(zelGetAllFuncs(name, nullptr, nullptr, nullptr), 0) << name;
    EXPECT_TRUE(found.isLegal == space.isLegal && zelGetIsLegalFunc(name) == space.isLegal) << name;
    EXPECT_TRUE(found.nameToIdent == space.nameToIdent && zelGetNameToIdentFunc(name) == space.nameToIdent) << name;
    EXPECT_TRUE(found.identToName == space.identToName && zelGetIdentToNameFunc(name) == space.identToName) << name;
    EXPECT_EQ(zelIsLegalName(name, "Sa") - zelIsLegalName(name, ""), 1) << name;
  }
  EXPECT_EQ(zelGetAllFuncs("x", nullptr, nullptr, nullptr) + zelIsLegalName("x", "a"), 1);
  EXPECT_TRUE(!zelGetIsLegalFunc("x") && !zelGetNameToIdentFunc("x") && !zelGetIdentToNameFunc("x"));
}
