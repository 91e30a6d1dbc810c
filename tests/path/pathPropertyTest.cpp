// What holds for any path: linear time, and the same result under every convention.
#include "path/pathSupport.h"

#include <chrono>

namespace {

TEST(PathProperty, TimeIsLinear) {
  constexpr std::size_t size = 1 << 20;
  const std::pair<const char *, std::string> rows[] = {
      {"Verilog", repeated("a[1:0].", size / 7) + "a"},
      {"Verilog", "{" + repeated("2{", size / 3) + "a" + repeated("}", size / 3) + "}"},
      {"VHDL", repeated("@a.b,", size / 5) + "a"},
      {"ORKA", "a<" + repeated("(", size / 2) + "1" + repeated(")", size / 2) + ">"},
      {"ORKA", "a<0" + repeated(",0*1", size / 4) + ">"},
      {"ORKA", repeated("(a,", size / 3)},
      {"Kirra", repeated("\\", size)}};
  for (const auto &[source, text] : rows) {
    const auto start = std::chrono::steady_clock::now();
    const Path path = parse(source, text.c_str());
    zelPathGenStart(path.get());
    while (zelPathGenNext(path.get()) != ZEL_ITEM_END) {
    }
    for (const char *const target : {"Verilog", "ORKA"})
      printed(path, target, ZEL_PRINT_EXPLODE);
    const auto time = std::chrono::steady_clock::now() - start;
    EXPECT_LT(time, std::chrono::seconds(20)) << text.substr(0, 20); // usually below one
  }
}

// The end of a path is changed in the same time, whatever the path's length, also where that goes to and fro between
// two chunks, and when nothing is left.
TEST(PathProperty, TheEndIsFoundWithoutASearch) {
  constexpr std::size_t levels = 200000;
  const auto start = std::chrono::steady_clock::now();
  const Path path = built("Sa");
  for (std::size_t i = 1; i < levels; ++i)
    zelPathAddIdent(path.get(), "Sa", 1);
  for (std::size_t i = 0; i < levels; ++i) {
    zelPathRemoveIndex(path.get());
    zelPathRemoveLevel(path.get());
    zelPathAddIndex(path.get(), 1);
    zelPathRemoveLevel(path.get());
  }
  zelPathGenStart(path.get());
  std::size_t left = 0;
  while (zelPathGenNext(path.get()) != ZEL_ITEM_END)
    ++left;
  for (std::size_t i = 0; i < levels; ++i)
    EXPECT_EQ(zelPathRemoveLevel(path.get()), -19);
  const auto time = std::chrono::steady_clock::now() - start;
  EXPECT_LT(time, std::chrono::seconds(20)) << left; // usually below one
}

TEST(PathMapper, TakesNamesOrHandlesUnderEveryConvention) {
  for (const std::string &source : pathLanguages)
    for (const std::string &target : pathLanguages) {
      const auto map = [&](const char *text, zelAllocFunc alloc, void *context) {
        return zelPathMapperEx(text, zelGetHandle(source.c_str(), 0, 0, 0, 0), zelGetHandle(target.c_str(), 0, 0, 0, 0),
                               0, nullptr, nullptr, alloc, context);
      };
      const std::string expected = mapped(source, "a1", target);
      EXPECT_EQ(convert(map, "a1"), expected) << source << " " << target;
      EXPECT_EQ(take(zelPathMapper("a1", nullptr, nullptr, 0, source.c_str(), target.c_str())), expected);
    }
  const zelHandle dots = spaceAt("Sdf(.<>)").handle;
  EXPECT_EQ(take(zelPathMapper("a.b<1:0>", dots, nullptr, 1, nullptr, "Sdf")), "a/b[1],a/b[0]");
  EXPECT_EQ(take(zelPathMapper("a/b[1:0]", nullptr, dots, 9, "Sdf", "x")), "a.b<1>,a.b<0>");
  errno = 0;
  EXPECT_EQ(zelPathMapper("a", nullptr, nullptr, 0, "Ascii", "VHDL"), nullptr);
  EXPECT_EQ(errno, EINVAL);
  EXPECT_EQ(zelPathMapper("a.", nullptr, nullptr, 0, "Verilog", "VHDL"), nullptr);
  EXPECT_EQ(zelPathMapper("a", nullptr, nullptr, 0, "VHDL", nullptr), nullptr);
}

TEST(PathMapper, ParsesAndPrints) {
  const VHDLMode mode(2);
  forEachPairOfLanguages([](const std::string &from, const std::string &to, const std::string &text) {
    const std::string expected = mapped(from, text, to);
    errno = 0;
    const Result result = take(zelPathMapper(text.c_str(), nullptr, nullptr, 0, from.c_str(), to.c_str()));
    const bool isRight = expected == "does not parse" ? !result : stated(result, errno) == expected;
    EXPECT_TRUE(isRight) << from << " " << to << " " << shown(text) << ": " << shown(result.value_or("null"));
  });
}

} // namespace
