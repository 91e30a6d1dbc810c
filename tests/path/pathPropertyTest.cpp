// What holds for any path: round trips, the number of names of an expansion, and that nothing breaks, leaks or takes
// more than linear time.
#include "path/pathSupport.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <vector>

namespace {

// A language as a writer of paths sees it, with indexes that stand for a number of bits each.
struct Language {
  const char *space;
  const char *divider;
  const char *comma; // null: no lists
  const char *groupOpen, *groupClose;
  std::vector<std::pair<std::string, int>> indexes;
};

const std::vector<std::pair<std::string, int>> brackets = {{"[3]", 1}, {"[2:0]", 3}, {"[-5:-6]", 2}, {"[123:124]", 2}};
const std::vector<std::pair<std::string, int>> angles = {
    {"<3>", 1}, {"<0:2>", 3}, {"<0:3:2>", 2}, {"<200:0:200>", 2}, {"<0:1*1>", 4}, {"<1,2:3>", 3}, {"<0*0>", 1}};
const Language languages[] = {{"Verilog", ".", ",", "{2{", "}}", brackets},
                              {"VerilogAMS", ".", ",", "{2{", "}}", brackets},
                              {"Kirra", ".", ",", "{2{", "}}", brackets},
                              {"KirraHDL", ".", ",", "{2{", "}}", brackets},
                              {"VHDL", ":", "&&", "", "", {{"(3)", 1}, {"(2 downto 0)", 3}, {"(123 to 124)", 2}}},
                              {"ORKA", "/", ",", "<*2>(", ")", angles},
                              {"Tessel", "|", nullptr, "", "", brackets},
                              {"FlatTessel", nullptr, nullptr, "", "", brackets},
                              {"Lef", "/", nullptr, "", "", brackets},
                              {"Def", "/", nullptr, "", "", brackets},
                              {"Sdf", "/", nullptr, "", "", brackets},
                              {"Spf", "/", nullptr, "", "", brackets},
                              {"Spef", "/", nullptr, "", "", brackets},
                              {"Gcf", ".", nullptr, "", "", {{"<3>", 1}, {"<2:0>", 3}, {"<-5:-6>", 2}}},
                              {"Spice", ".", nullptr, "", "", {{"", 1}}}};

using Random = std::mt19937;
unsigned below(Random &random, std::size_t limit) { return static_cast<unsigned>(random() % limit); }

// A path of the language and how many single names it stands for.
std::pair<std::string, int> generated(const Language &language, Random &random, bool withGroup) {
  const bool inGroup = withGroup && below(random, 3) == 0;
  std::string text = inGroup ? language.groupOpen : "";
  int names = 0;
  for (unsigned element = language.comma != nullptr ? below(random, 3) + 1 : 1; element > 0; --element) {
    int combinations = 1;
    for (unsigned level = language.divider != nullptr ? below(random, 3) + 1 : 1; level > 0; --level) {
      text += "n" + std::to_string(below(random, 100));
      if (below(random, 2) == 0) {
        const auto &[index, bits] = language.indexes[below(random, language.indexes.size())];
        text += index;
        combinations *= bits;
      }
      text += level > 1 ? language.divider : "";
    }
    names += combinations;
    text += element > 1 ? language.comma : "";
  }
  return {text + (inGroup ? language.groupClose : ""), names};
}

TEST(PathProperty, WhatIsPrintedReadsBackAndExplodesToEveryName) {
  Random random(1);
  for (const Language &language : languages)
    for (int i = 0; i < 300; ++i) {
      const auto [text, names] = generated(language, random, false);
      const std::string bits = mapped(language.space, text, "Verilog", ZEL_PRINT_EXPLODE);
      EXPECT_EQ(std::count(bits.begin(), bits.end(), ',') + 1, names) << text << " -> " << bits;
      EXPECT_EQ(bits.find_first_of(":{"), std::string::npos) << text << " -> " << bits;

      const std::string original = generated(language, random, true).first;
      if (original.find("&&") != std::string::npos && original.find(':') != std::string::npos)
        continue; // VHDL's printer puts a ':' before every name, its parser takes none behind "&&"
      const Path path = parse(language.space, original.c_str());
      const std::string items = itemsOf(path.get());
      const std::string again = printed(path, language.space);
      const Path copy = parse(language.space, again.c_str());
      EXPECT_EQ(itemsOf(copy.get()), items) << language.space << ": " << original << " -> " << again;
      EXPECT_EQ(flagsOf(copy.get()), flagsOf(path.get())) << language.space << ": " << original;
    }
}

// Texts of the pieces that the grammars are made of, in every language, to every target, with every flag.
TEST(PathProperty, NoTextAndNoFlagsBreakAnything) {
  const char *const pieces[] = {"a",    "b1",   "/",        ".",     ":",   "|",       "[",    "]",     "(",
                                ")",    "<",    ">",        "{",     "}",   ",",       "&",    "@",     "\\",
                                "*",    "-",    "0",        "12",    "200", " ",       "\t",   ";",     "#20",
                                "+",    "$",    "a<(1",     "_",     "aBc", "(3)",     "<3>",  "[7:0]", "{2{",
                                "<*2>", " to ", " downto ", "0:6:2", "*3",  "1897152", "\x80", "\x01"};
  Random random(3);
  for (const char *const source : sources)
    for (int i = 0; i < 150; ++i) {
      std::string text;
      for (unsigned length = below(random, 24); length > 0; --length)
        text += pieces[below(random, std::size(pieces))];
      SCOPED_TRACE(std::string(source) + ": " + text);
      const Path path = parse(source, text.c_str());
      const bool hasIndexList = itemsOf(path.get()).find(" ( ") != std::string::npos;
      for (const char *const target : targets)
        for (int flags = 0; flags < everyFlag; ++flags) {
          // Only here a bracketed list is left where it ends the process.
          if (target == std::string("ORKA") && (flags & 3) == ZEL_PRINT_NOREPEAT && hasIndexList)
            continue;
          errno = 0;
          const Owned result(printerOf(target)(path.get(), nullptr, flags, nullptr, nullptr));
          EXPECT_TRUE(result ? std::strlen(result.get()) <= ZEL_MAX_NAME : errno == EINVAL) << target << flags;
        }
    }
}

TEST(PathProperty, TimeIsLinear) {
  constexpr std::size_t size = 1 << 20;
  struct {
    const char *source;
    std::string text;
    bool isPath;
    const char *verilog;
  } const rows[] = {{"Verilog", repeated("a.", size / 2) + "a", true, "EINVAL"},
                    {"Verilog", "{" + repeated("2{", size / 3) + "a" + repeated("}", size / 3) + "}", true, "EINVAL"},
                    {"Verilog", repeated("a[1:0].", size / 7) + "a", true, "EINVAL"},
                    {"Verilog", repeated("a[1:0],", size / 7) + "a", true, "EINVAL"},
                    {"VHDL", repeated("@a.b,", size / 5) + "a", true, "EINVAL"},
                    {"VHDL", "a(" + repeated("1", size) + ")", false, "a"},
                    {"ORKA", "a<" + repeated("(", size / 2) + "1" + repeated(")", size / 2) + ">", true, "a[1]"},
                    {"ORKA", "a<" + repeated("(", size), false, "a"},
                    {"ORKA", "a<0" + repeated(",0*1", size / 4) + ">", true, "EINVAL"},
                    {"ORKA", repeated("(a,", size / 3), false, "EINVAL"},
                    {"ORKA", repeated("<*1>a,", size / 6) + "a", true, "EINVAL"},
                    {"Sdf", "a" + repeated("[1]", size / 3), true, "EINVAL"},
                    {"Sdf", repeated("/", size), true, ""},
                    {"Spice", repeated("a", size), false, ""},
                    {"Kirra", repeated("\\", size), false, ""},
                    {"Tessel", repeated(" ", size), true, ""}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.source + (": " + row.text.substr(0, 20)));
    const auto start = std::chrono::steady_clock::now();
    const Path path = parse(row.source, row.text.c_str());
    EXPECT_EQ((path->flags & zeli::flagError) == 0, row.isPath);
    zelPathGenStart(path.get());
    while (zelPathGenNext(path.get()) != ZEL_ITEM_END) {
    }
    EXPECT_EQ(printed(path, "Verilog", ZEL_PRINT_EXPLODE), row.verilog);
    taken(zelPathToORKA(path.get(), nullptr, 0));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20)); // usually below one
  }
}

TEST(PathMapper, GivesTheSameUnderEveryConvention) {
  zelRing ring = nullptr;
  for (const char *const source : sources)
    for (const char *const target : sources) {
      char buffer[ZEL_MAX_NAME + 1] = "";
      const zelHandle handle = zelGetHandle(target, 0, 0, 0, 0);
      const std::string expected = mapped(source, "a1", target);
      EXPECT_EQ(taken(zelPathMapper("a1", nullptr, nullptr, 0, source, target)), expected);
      EXPECT_EQ(zelPathMapperEx("a1", nullptr, handle, 0, source, nullptr, nullptr, buffer), buffer);
      EXPECT_EQ(buffer, expected);
      EXPECT_EQ(zelPathMapperEx("a1", nullptr, handle, 0, source, nullptr, zelAllocRing, &ring), expected);
    }
  zelFreeRing(&ring);
}

TEST(PathMapper, Arguments) {
  const Handle dots = handleOf("Sdf", '.', '<', '>');
  EXPECT_EQ(taken(zelPathMapper("a.b<1:0>", dots.get(), zelSdfHandle, 0, nullptr, nullptr)), "a/b[1:0]");
  EXPECT_EQ(taken(zelPathMapper("a/b[1:0]", nullptr, dots.get(), 1, "Sdf", nullptr)), "a.b<1>,a.b<0>");
  EXPECT_EQ(taken(zelPathMapper("a.b[1:0]", zelVerilogHandle, zelVHDLHandle, 9, "", "")), ":a:b(1)&&:a:b(0)");
  EXPECT_EQ(zelPathMapper("a.", nullptr, nullptr, 0, "Verilog", "VHDL"), nullptr);
  EXPECT_EQ(zelPathMapper(nullptr, nullptr, nullptr, 0, "Verilog", "VHDL"), nullptr);
  EXPECT_EQ(zelPathMapper("a", nullptr, nullptr, 0, "VHDL", nullptr), nullptr);
  errno = 0;
  EXPECT_EQ(taken(zelPathMapper("a", nullptr, nullptr, 0, "Ascii", "VHDL")), "EINVAL");
}

} // namespace
