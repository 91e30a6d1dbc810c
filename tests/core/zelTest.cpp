// Mapping one name between two spaces.
#include "support/pairs.h"

TEST(MapName, goesThroughIdent) {
  const VHDLMode mode(2);
  const MapState state(ZEL_MAP_DEFAULT);
  for (Row &row : rowsOf(HERE, R"(
    \a+b␣   \a+b\
    Abc     \Abc\
    signal  \signal\
    \abc␣   abc
    a b     refused
  )")) {
    const auto map = [](const char *name, zelAllocFunc alloc, void *context) {
      return zelMapName("Verilog", "VHDL", name, alloc, context);
    };
    row.expect(row[1], convert(map, row[0].c_str()));
  }
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
  forEachPairOfSpaces([](const std::string &from, const std::string &to, const std::string &name) {
    const auto read = spaceOf(from)->nameToIdent;
    const auto write = spaceOf(to)->identToName;
    const Result ident = from == "Ident" ? name : take(read(name.c_str(), nullptr, nullptr));
    const Result expected = ident ? take(write(ident->c_str(), nullptr, nullptr)) : Result();
    const Result mapped = take(zelMapName(from.c_str(), to.c_str(), name.c_str(), nullptr, nullptr));
    EXPECT_TRUE(mapped == expected) << from << " " << to << " " << shown(name) << ": "
                                    << shown(mapped.value_or("null"));
    // Without the shortcut for Idents, of which none of 2048 characters is copied.
    const Result composed = take(zelMapper(read, write, name.c_str(), nullptr, nullptr));
    const bool isCopied = from != "Ident" || name.size() <= ZEL_MAX_NAME;
    EXPECT_TRUE(composed == (isCopied ? expected : Result())) << from << " " << to << " " << shown(name);
  });
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
