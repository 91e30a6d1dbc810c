// What holds for any path: round trips, the number of names of an expansion, linear time, the same result under every
// convention.
#include "path/pathSupport.h"

#include <algorithm>
#include <chrono>
#include <random>

namespace {

// Languages as a writer of paths sees them, with indexes that stand for a number of bits each.
struct Language {
  const char *spaces, *divider, *comma, *groupOpen, *groupClose;
  std::vector<std::pair<std::string, int>> indexes;
};
const std::vector<std::pair<std::string, int>> brackets = {{"[3]", 1}, {"[2:0]", 3}, {"[-5:-6]", 2}, {"[123:124]", 2}};
const Language languages[] = {
    {"Verilog VerilogAMS Kirra KirraHDL", ".", ",", "{2{", "}}", brackets},
    {"VHDL", ":", "&&", "", "", {{"(3)", 1}, {"(2 downto 0)", 3}, {"(123 to 124)", 2}}},
    {"ORKA",
     "/",
     ",",
     "<*2>(",
     ")",
     {{"<3>", 1}, {"<0:2>", 3}, {"<0:3:2>", 2}, {"<200:0:200>", 2}, {"<0:1*1>", 4}, {"<1,2:3>", 3}}},
    {"Tessel", "|", "", "", "", brackets},
    {"Lef Def Sdf Spf Spef", "/", "", "", "", brackets},
    {"FlatTessel", "_", "", "", "", brackets},
    {"Gcf", ".", "", "", "", {{"<3>", 1}, {"<2:0>", 3}, {"<-5:-6>", 2}}},
    {"Spice", ".", "", "", "", {{"", 1}}}};

using Random = std::mt19937;
int below(Random &random, std::size_t limit) { return static_cast<int>(random() % limit); }

// A path of the language and how many single names it stands for; one name of a flat language has one index at most.
std::pair<std::string, int> generated(const Language &language, Random &random, bool inGroup) {
  std::string text = inGroup ? language.groupOpen : "";
  int names = 0;
  for (int element = *language.comma != '\0' ? below(random, 3) : 0; element >= 0; --element) {
    int combinations = 1;
    for (int level = below(random, 3); level >= 0; --level) {
      text += "n" + std::to_string(below(random, 100));
      if ((level == 0 || *language.divider != '_') && below(random, 2) == 0) {
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
  const struct {
    const char *source;
    std::string text;
    const char *verilog; // "…": refused
  } rows[] = {{"Verilog", repeated("a[1:0].", size / 7) + "a", "EINVAL"},
              {"Verilog", "{" + repeated("2{", size / 3) + "a" + repeated("}", size / 3) + "}", "EINVAL"},
              {"VHDL", repeated("@a.b,", size / 5) + "a", "EINVAL"},
              {"ORKA", "a<" + repeated("(", size / 2) + "1" + repeated(")", size / 2) + ">", "a[1]"},
              {"ORKA", "a<" + repeated("(", size), "a"},
              {"ORKA", "a<0" + repeated(",0*1", size / 4) + ">", "EINVAL"},
              {"ORKA", repeated("(a,", size / 3), "EINVAL"},
              {"Sdf", "a" + repeated("[1]", size / 3), "EINVAL"},
              {"Kirra", repeated("\\", size), ""}};
  for (const auto &row : rows) {
    const auto start = std::chrono::steady_clock::now();
    const Path path = parse(row.source, row.text.c_str());
    zelPathGenStart(path.get());
    while (zelPathGenNext(path.get()) != ZEL_ITEM_END) {
    }
    EXPECT_EQ(printed(path, "Verilog", ZEL_PRINT_EXPLODE), row.verilog) << row.text.substr(0, 20);
    printed(path, "ORKA");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20)) // usually below one
        << row.text.substr(0, 20);
  }
}

TEST(PathMapper, GivesTheSameUnderEveryConvention) {
  for (const std::string source : sources)
    for (const std::string target : sources) {
      const zelHandle from = zelGetHandle(source.c_str(), 0, 0, 0, 0), to = zelGetHandle(target.c_str(), 0, 0, 0, 0);
      const auto map = [=](const char *text, zelAllocFunc alloc, void *context) {
        return zelPathMapperEx(text, from, to, 0, nullptr, nullptr, alloc, context);
      };
      EXPECT_EQ(convert(map, "a1"), mapped(source, "a1", target));
      EXPECT_EQ(take(zelPathMapper("a1", nullptr, nullptr, 0, source.c_str(), target.c_str())),
                mapped(source, "a1", target));
    }
}

TEST(PathMapper, Arguments) {
  const Handle dots = handleOf("Sdf", '.', '<', '>');
  EXPECT_EQ(take(zelPathMapper("a.b<1:0>", dots.get(), zelSdfHandle, 0, nullptr, nullptr)), "a/b[1:0]");
  EXPECT_EQ(take(zelPathMapper("a/b[1:0]", nullptr, dots.get(), 1, "Sdf", nullptr)), "a.b<1>,a.b<0>");
  EXPECT_EQ(take(zelPathMapper("a.b[1:0]", zelVerilogHandle, zelVHDLHandle, 9, "", "")), ":a:b(1)&&:a:b(0)");
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
