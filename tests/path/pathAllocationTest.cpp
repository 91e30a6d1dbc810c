// Every request for memory fails once, of a caller's allocator and of malloc: what comes back is null or a whole path
// with its error flag, errno is ENOMEM, and nothing is lost.
#include "path/pathSupport.h"

namespace {

// With the parameter true memory comes from the caller's allocator, otherwise from malloc.
class PathAllocation : public testing::TestWithParam<bool> {
protected:
  Memory memory;
  const zelAllocFunc alloc = GetParam() ? Memory::alloc : nullptr;
  Memory *const context = GetParam() ? &memory : nullptr;
  int failures = 0;

  void TearDown() override { EXPECT_EQ(memory.live, 0); }

  // Calls function and hands check its result, with one request later failing each time, until it needs no more.
  template <typename Function, typename Check> void failEach(Function function, Check check) {
    failures = 1;
    for (int number = 0; failures != 0 && number < 1000; ++number) {
      errno = 0;
      failingMalloc::failures = 0;
      failingMalloc::left = number;
      const auto result = function();
      failingMalloc::left = -1;
      failures = failingMalloc::failures;
      EXPECT_EQ(errno, failures != 0 ? ENOMEM : 0) << "request " << number;
      check(result);
      if (HasFailure())
        return; // others would say the same
    }
    EXPECT_EQ(failures, 0) << "for ever";
  }
  void release(zelPath path) { zelFreePath(path, GetParam() ? Memory::free : nullptr, context); }
};

INSTANTIATE_TEST_SUITE_P(Heaps, PathAllocation, testing::Bool());

// Languages with texts that move the items behind them by a few bytes, so that any item comes to begin a chunk.
const struct {
  const char *source, *byName, *byRange;
  std::string text;
} samples[] = {{"Verilog", "n,", "n[0:1],", "{2{a[1],b.c.d.e.f.g.h.i[300:299]},{j}}"},
               {"VHDL", "n&&", "n(0 to 1)&&", "a(1)&&@l.c(v):a:b:c:d:e:f:g:h:i(300)&&@l.c:a&&@c&&b@l.c(v)"},
               {"ORKA", "n,", "n<0:1>,", "a<3>/b/c,g<((((1,0:400:200))))*1,3:4>,<*2>(/i<0:6:2,6*124>,j<1,2>/k<3*1>)"},
               {"ORKA", "n,", "n<0:1>,", "(/a,b<((300:301)4*130)(1:5:2)>,c)"},
               {"ORKA", "n<3>/", "n<0:1>/", "e<(((1)))>"},
               {"Sdf", "n/", "n[0:1]/", "a/b/c/d[3:0][1][2][3][4][5:6][300:299][1]/e"},
               {"Spice", "n.", "o.", "a.b.c.d.e.f.g.h.i"},
               {"Gcf", "n.", "n<0:1>.", repeated("n.", 150) + "n"}};

TEST_P(PathAllocation, Parsing) {
  for (const auto &[source, byName, byRange, sample] : samples)
    for (std::size_t shift = 0; shift < 18; ++shift) {
      const std::string text = repeated(byName, shift % 6) + repeated(byRange, shift / 6) + sample;
      const std::string whole = itemsOf(parse(source, text.c_str()).get());
      failEach([&, source = source] { return spaceAt(source).parse(text.c_str(), nullptr, alloc, context); },
               [&](zelPath path) {
                 EXPECT_TRUE(path != nullptr || failures != 0);
                 EXPECT_EQ(path != nullptr && itemsOf(path) == whole, failures == 0) << text;
                 EXPECT_TRUE(path == nullptr || hasError(path) == (failures != 0)) << text;
                 // What was read of it can be printed.
                 for (const auto print : {zelPathToVerilog, zelPathToVHDL, zelPathToORKA})
                   for (const int flags : {0, 1})
                     EXPECT_NE(take(print(path, nullptr, flags)), Result()) << text;
                 release(path);
               });
    }
}

TEST_P(PathAllocation, BuildingAndConverting) {
  const auto build = [&] {
    const zelPath path = zelCreatePath(alloc, context);
    for (int i = 0; i < 3; ++i)
      zelPathAddLib(path, "Sl", "Sc", "Sv", 1);
    return path;
  };
  failEach(build, [&](zelPath path) {
    EXPECT_TRUE(path == nullptr || flagsOf(path) == (failures != 0 ? "error hierarchy" : "hierarchy"));
    release(path);
  });
  for (const bool onRequest : {true, false}) {
    const zelPath path = zelParseVerilog("a.b", nullptr, alloc, context);
    zelPathSetLocation(path, 256);
    failEach([&] { return onRequest ? zelPathGetIdent(path) : zelStrToIdent(path, 0); },
             [&](const char *ident) { EXPECT_STREQ(ident, failures != 0 ? nullptr : "Sa"); });
    EXPECT_EQ(flagsOf(path), onRequest ? "error hierarchy" : "hierarchy");
    release(path);
  }
}

TEST_P(PathAllocation, PrintingAndMapping) {
  for (const auto &sample : samples)
    for (const std::string &target : printedLanguages)
      for (const std::uint32_t flags : {0U, 1U, 3U}) {
        const std::string whole = mapped(sample.source, sample.text, target, static_cast<int>(flags));
        const auto parseAndPrint = [&] {
          return zelPathMapperEx(sample.text.c_str(), nullptr, nullptr, flags, sample.source, target.c_str(), alloc,
                                 context);
        };
        failEach(parseAndPrint, [&](char *result) {
          EXPECT_EQ(take(result), failures != 0 ? Result() : whole) << sample.text << " in " << target;
          EXPECT_EQ(memory.live, result != nullptr && alloc != nullptr ? 1 : 0);
          memory.live = 0; // take() released it
        });
      }
}

} // namespace
