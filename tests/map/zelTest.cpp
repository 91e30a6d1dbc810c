// Mapping one name between two spaces.
#include "support/pairs.h"

TEST(MapName, goesThroughIdent) {
  const VHDLMode mode(2);
  const MapState state(ZEL_MAP_DEFAULT);
  const auto map = [](const char *name, zelAllocFunc alloc, void *context) {
    return zelMapName("Verilog", "VHDL", name, alloc, context);
  };
  EXPECT_EQ(convert(map, "\\a+b "), "\\a+b\\");
  EXPECT_EQ(convert(map, "abc"), "abc");
  EXPECT_EQ(convert(map, "a b"), "refused");
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

// Also where it needs no Ident, because the name stands as it is in both spaces.
TEST(MapName, isTheOneConversionAfterTheOther) {
  const std::vector<std::string> names = namesOfEveryHabit();
  const auto expectSame = [](const std::string &from, const std::string &to, const std::string &name) {
    zelNameToIdentFunc read = nullptr;
    zelIdentToNameFunc write = nullptr;
    zelGetAllFuncs(from.c_str(), nullptr, &read, nullptr);
    zelGetAllFuncs(to.c_str(), nullptr, nullptr, &write);
    // Of an Ident of 2048 characters none is copied, but its name may be written.
    const bool isCopied = from != "Ident" || name.size() <= ZEL_MAX_NAME;
    errno = 0;
    const Result result =
        take(isCopied ? zelMapper(read, write, name.c_str(), nullptr, nullptr) : write(name.c_str(), nullptr, nullptr));
    const std::string expected = stated(result, errno);
    errno = 0;
    const Result mapped = take(zelMapName(from.c_str(), to.c_str(), name.c_str(), nullptr, nullptr));
    const std::string found = stated(mapped, errno);
    std::string buffer = name + std::string(ZEL_MAX_NAME + 2, '\0');
    const Result inPlace = resultOf(zelMapName(from.c_str(), to.c_str(), buffer.c_str(), nullptr, buffer.data()));
    EXPECT_TRUE(found == expected && inPlace == mapped)
        << from << " " << to << " " << shown(name) << ": " << shown(found) << ", in place "
        << shown(inPlace.value_or("null")) << ", not " << shown(expected);
  };
  inEverySetting([&] {
    for (const std::string &from : allSpaces())
      for (const std::string &to : allSpaces())
        for (const std::string &name : names)
          if (!testing::Test::HasFailure())
            expectSame(from, to, name);
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
