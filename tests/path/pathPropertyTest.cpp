// What holds for any path: round trips, the number of names of an expansion, linear time, the same result under every
// convention.
#include "path/pathSupport.h"

#include <algorithm>
#include <chrono>
#include <random>

namespace {

// Languages as a writer of paths sees them, with indexes that stand for a number of bits each.
const struct Language {
  const char *spaces, *divider, *comma, *groupOpen, *groupClose;
  std::vector<std::pair<std::string, int>> indexes;
} languages[] = {
    {"Verilog VerilogAMS Kirra KirraHDL", ".", ",", "{2{", "}}", {{"[3]", 1}, {"[2:0]", 3}, {"[123:124]", 2}}},
    {"VHDL", ":", "&&", "", "", {{"(3)", 1}, {"(2 downto 0)", 3}, {"(123 to 124)", 2}}},
    {"ORKA", "/", ",", "<*2>(", ")", {{"<3>", 1}, {"<0:3:2>", 2}, {"<200:0:200>", 2}, {"<0:1*1>", 4}, {"<1,2:3>", 3}}},
    {"Tessel", "|", "", "", "", {{"[3]", 1}, {"[2:0]", 3}, {"[-5:-6]", 2}}},
    {"Lef Def Sdf Spf Spef", "/", "", "", "", {{"[3]", 1}, {"[2:0]", 3}, {"[123:124]", 2}}},
    {"Gcf", ".", "", "", "", {{"<3>", 1}, {"<2:0>", 3}, {"<-5:-6>", 2}}},
    {"Spice", ".", "", "", "", {{"", 1}}}};

using Random = std::mt19937;
int below(Random &random, std::size_t limit) { return static_cast<int>(random() % limit); }

// A path of the language and how many single names it stands for.
std::pair<std::string, int> generated(const Language &language, Random &random, bool inGroup) {
  std::string text = inGroup ? language.groupOpen : "";
  int names = 0;
  for (int element = *language.comma != '\0' ? below(random, 3) : 0; element >= 0; --element) {
    int combinations = 1;
    for (int level = below(random, 3); level >= 0; --level) {
      text += "n" + std::to_string(below(random, 100));
      if (below(random, 2) == 0) {
        const auto &[index, bits] = language.indexes[random() % language.indexes.size()];
        text += index;
        combinations *= bits;
      }
      text += level > 0 ? language.divider : "";
    }
    names += combinations;
    text += element > 0 ? language.comma : "";
  }
  return {text + (inGroup ? language.groupClose : ""), names};
}

TEST(PathProperty, WhatIsPrintedReadsBackAndExplodesToEveryName) {
  Random random(1);
  for (const Language &language : languages)
    for (const std::string &space : split(language.spaces))
      for (int i = 0; i < 300; ++i) {
        const auto [text, names] = generated(language, random, false);
        const std::string bits = mapped(space, text, "Verilog", ZEL_PRINT_EXPLODE);
        EXPECT_EQ(std::count(bits.begin(), bits.end(), ',') + 1, names) << text << " -> " << bits;
        EXPECT_EQ(bits.find_first_of(":{"), std::string::npos) << text << " -> " << bits;
        const std::string original = generated(language, random, below(random, 3) == 0).first;
        if (original.find("&&") != std::string::npos && original.find(':') != std::string::npos)
          continue; // VHDL's printer puts a ':' before every name, its parser takes none behind "&&"
        const Path path = parse(space, original.c_str());
        const std::string again = printed(path, space);
        const Path copy = parse(space, again.c_str());
        EXPECT_EQ(itemsOf(copy.get()) + flagsOf(copy.get()),
                  itemsOf(parse(space, original.c_str()).get()) + flagsOf(path.get()))
            << space << ": " << original << " -> " << again;
      }
}

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

TEST(PathMapper, TakesNamesOrHandlesUnderEveryConvention) {
  for (const std::string source : sources)
    for (const std::string target : sources) {
      const zelHandle from = zelGetHandle(source.c_str(), 0, 0, 0, 0), to = zelGetHandle(target.c_str(), 0, 0, 0, 0);
      const auto map = [=](const char *text, zelAllocFunc alloc, void *context) {
        return zelPathMapperEx(text, from, to, 0, nullptr, nullptr, alloc, context);
      };
      const std::string expected = mapped(source, "a1", target);
      EXPECT_EQ(convert(map, "a1"), expected);
      EXPECT_EQ(take(zelPathMapper("a1", nullptr, nullptr, 0, source.c_str(), target.c_str())), expected);
    }
  const zelHandle dots = spaceAt("Sdf.<>").handle;
  EXPECT_EQ(take(zelPathMapper("a.b<1:0>", dots, nullptr, 1, nullptr, "Sdf")), "a/b[1],a/b[0]");
  EXPECT_EQ(take(zelPathMapper("a/b[1:0]", nullptr, dots, 9, "Sdf", "x")), "a.b<1>,a.b<0>");
  for (const auto &[text, from, to] : {std::array{"a.", "Verilog", "VHDL"},
                                       {nullptr, "Verilog", "VHDL"},
                                       {"a", "VHDL", nullptr},
                                       {"a", "Ascii", "VHDL"}}) {
    errno = 0;
    EXPECT_EQ(zelPathMapper(text, nullptr, nullptr, 0, from, to), nullptr);
    EXPECT_EQ(errno, EINVAL);
  }
}

} // namespace
