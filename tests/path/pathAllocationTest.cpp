// Every request for memory fails once, of a caller's allocator and of malloc: what comes back is null or a whole path
// with its error flag, errno is ENOMEM, and nothing is lost.
#include "path/pathSupport.h"

#include <algorithm>

namespace {

// With the parameter true memory comes from the caller's allocator, otherwise from malloc.
class PathAllocation : public testing::TestWithParam<bool> {
protected:
  Memory memory;
  const zelAllocFunc alloc = GetParam() ? Memory::alloc : nullptr;
  const zelFreeFunc free = GetParam() ? Memory::free : nullptr;
  Memory *const context = GetParam() ? &memory : nullptr;
  int &left = GetParam() ? memory.left : failingMalloc::left;
  int &failures = GetParam() ? memory.failures : failingMalloc::failures;
  int error = 0; // of what was to fail

  void SetUp() override {
    if (!GetParam() && !failingMalloc::isInPlace())
      GTEST_SKIP() << "something else stands in for malloc";
  }
  void TearDown() override { EXPECT_TRUE(memory.live.empty()); }

  // What the function returns when the request of the current number fails.
  template <typename Function> auto failing(Function function) {
    errno = 0;
    left = number;
    const auto result = function();
    left = -1;
    error = errno;
    EXPECT_EQ(error, failures != 0 ? ENOMEM : 0);
    return result;
  }
  // Makes attempts that fail one request later each time, until one needs no more.
  template <typename Attempt> void failEach(Attempt attempt) {
    for (number = 0; number < 1000; ++number) {
      failures = 0;
      attempt();
      if (failures == 0)
        return;
    }
    FAIL() << "fails for ever";
  }
  void release(void *text) const { free != nullptr &&text != nullptr ? free(text, context) : std::free(text); }

private:
  int number = 0;
};

INSTANTIATE_TEST_SUITE_P(Heaps, PathAllocation, testing::Bool());

const std::pair<const char *, const char *> samples[] = {
    {"Verilog", "{2{a.b.c.d.e.f.g.h.i[3:0]}}"},
    {"VHDL", "@l.c(v):a:b:c:d:e:f:g:h:i(3)&&@l.c:a&&@c&&b"},
    {"ORKA", "/a/b/c/d/e/f/g<(1,0:400:200)*1>,<*2>(/i<0:6:2*300>,j)"},
    {"Sdf", "/a/b/c/d/e/f/g/h/i[3:0][1][2]"},
    {"Spice", "a.b.c.d.e.f.g.h.i"}};

TEST_P(PathAllocation, Parsing) {
  for (const auto &[source, text] : samples) {
    const std::string whole = itemsOf(parse(source, text).get());
    failEach([&, source = source, text = text] {
      const zelPath path = failing([&] { return parserOf(source)(text, nullptr, alloc, context); });
      EXPECT_TRUE(path != nullptr || failures != 0);
      if (path != nullptr) {
        const std::string items = itemsOf(path);
        EXPECT_EQ(flagsOf(path).find('E') != std::string::npos, failures != 0);
        EXPECT_EQ(items == whole, failures == 0);
        // A library reference that memory lacked for is there, but not all of its Idents are; an ORKA index is refused,
        // and the rest read as text.
        const std::size_t kept = std::min(items.size(), items.find_last_of("@[("));
        EXPECT_EQ(whole.substr(0, kept), items.substr(0, kept));
      }
      zelFreePath(path, free, context);
    });
  }
}

TEST_P(PathAllocation, Building) {
  failEach([&] {
    const zelPath path = failing([&] {
      const zelPath made = zelCreatePath(alloc, context);
      for (int i = 0; i < 3 && made != nullptr; ++i) {
        zelPathAddTopIdent(made, "Sa", 1);
        zelPathAddStepRange(made, 0, 200, 100);
        zelPathAddLib(made, "Sl", "Sc", "Sv", 1);
        zelPathAddRepeat(made, 2000);
      }
      return made;
    });
    EXPECT_TRUE(path == nullptr || flagsOf(path) == (failures != 0 ? "EH" : "H"));
    EXPECT_TRUE(path == nullptr || itemsOf(path).rfind("^Sa [0:200:100] @Sl.Sc(Sv)", 0) == 0);
    zelFreePath(path, free, context);
  });
}

TEST_P(PathAllocation, Converting) {
  failEach([&] {
    const zelPath path = zelParseVerilog("a.b", nullptr, alloc, context);
    zelPathGenStart(path);
    zelPathGenNext(path);
    const char *const ident = failing([&] { return zelPathGetIdent(path); });
    EXPECT_STREQ(ident, failures != 0 ? nullptr : "Sa");
    EXPECT_EQ(flagsOf(path), failures != 0 ? "EH" : "H");
    EXPECT_STREQ(zelPathGetIdent(path), "Sa"); // the text was still there
    zelFreePath(path, free, context);
  });
}

TEST_P(PathAllocation, PrintingAndMapping) {
  for (const auto &[source, text] : samples)
    for (const char *const target : targets) {
      const std::string whole = mapped(source, text, target, ZEL_PRINT_EXPLODE);
      failEach([&, source = source, text = text] {
        const zelPath path = parserOf(source)(text, nullptr, alloc, context);
        char *const result =
            failing([&] { return printerOf(target)(path, nullptr, ZEL_PRINT_EXPLODE, alloc, context); });
        EXPECT_EQ(resultOf(result).value_or("null"), failures != 0 ? "null" : whole) << text << " in " << target;
        release(result);
        zelFreePath(path, free, context);
      });
    }
  const std::string longPath = repeated("n.", 700) + "n";
  failEach([&] {
    char *const result = failing(
        [&] { return zelPathMapperEx(longPath.c_str(), nullptr, nullptr, 0, "Verilog", "Kirra", alloc, context); });
    EXPECT_EQ(resultOf(result).value_or("null"), failures != 0 ? "null" : longPath);
    release(result);
  });
}

} // namespace
