// What holds for any path: linear time.
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

} // namespace
