// Several threads map at once, with different separators, and get what one thread gets.
#include "core/zel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int threadCount = 8;
constexpr int rounds = 40;

const char *const names[] = {"clk",   "Data_Out", "\\a+b ", "\\a b\\", "u1/u2",
                             "a#20b", "x[3]",     "signal", "2n3904",  "%Lib"};
const char *const idents[] = {"Stop", "IReg", "Sa/b", "Sa.b[3]", "Ix:y", "S#2341", "Sa%20b", "F_\\", "Sa|b<1>", "Sq{}"};
const char *const paths[] = {"top.u1.d[3:0]", "{2{a,b}}", "a[1:0].b[5:4]", "\\u/1 .x", "m.n[7]"};
const char *const pathSpaces[] = {"Verilog", "VHDL", "ORKA", "Tessel", "Kirra", "KirraHDL", "Spice",
                                  "Sdf",     "Spf",  "Spef", "Gcf",    "Lef",   "Def",      "FlatTessel"};

using Writer = char *(*)(const char *ident, zelAllocFunc alloc, void *context, zelHandle handle);
constexpr struct {
  const char *space;
  Writer write;
} redefinable[] = {{"Sdf", zelIdentToSdfWithHandle},   {"Spf", zelIdentToSpfWithHandle},
                   {"Spef", zelIdentToSpefWithHandle}, {"Gcf", zelIdentToGcfWithHandle},
                   {"Lef", zelIdentToLefWithHandle},   {"Def", zelIdentToDefWithHandle}};

struct FreeHandle {
  void operator()(zelHandle handle) const { zelFreeHandle(handle); }
};

// Everything that one caller with separators of its own maps, through its own ring.
std::vector<std::string> mapAll(int caller) {
  const auto separator = static_cast<unsigned char>("./|:_-#x"[caller % threadCount]);
  std::vector<std::string> results;
  zelRing ring = nullptr;
  const auto keep = [&results](const char *text) { results.emplace_back(text != nullptr ? text : "(null)"); };
  for (const char *const *from = zelGetAllSpaceNames(); *from != nullptr; ++from)
    for (const char *const *to = zelGetAllSpaceNames(); *to != nullptr; ++to)
      keep(zelMapName(*from, *to, names[results.size() % std::size(names)], zelAllocRing, &ring));
  for (const auto &space : redefinable) {
    const std::unique_ptr<const zelHandleRecord, FreeHandle> handle(
        zelGetHandle(space.space, separator, separator, '(', ')'));
    for (const char *ident : idents)
      keep(space.write(ident, zelAllocRing, &ring, handle.get()));
    for (const char *path : paths)
      for (const uint32_t flags : {0U, 1U, 8U, 31U})
        keep(zelPathMapperEx(path, zelVerilogHandle, handle.get(), flags, nullptr, nullptr, zelAllocRing, &ring));
  }
  for (const char *path : paths)
    for (const char *space : pathSpaces)
      keep(zelPathMapperEx(path, nullptr, nullptr, 0, "Verilog", space, zelAllocRing, &ring));
  zelFreeRing(&ring);
  return results;
}

TEST(Threads, MapAsOneThreadDoes) {
  std::array<std::vector<std::string>, threadCount> expected;
  for (int caller = 0; caller < threadCount; ++caller)
    expected[static_cast<size_t>(caller)] = mapAll(caller);
  EXPECT_NE(expected[0], expected[1]); // the separators do make a difference

  std::array<int, threadCount> differing{};
  std::vector<std::thread> threads;
  threads.reserve(threadCount);
  for (int caller = 0; caller < threadCount; ++caller)
    threads.emplace_back([&expected, &differing, caller] {
      const auto own = static_cast<size_t>(caller);
      for (int round = 0; round < rounds; ++round)
        differing[own] += mapAll(caller) != expected[own] ? 1 : 0;
    });
  for (std::thread &thread : threads)
    thread.join();
  EXPECT_EQ(std::count(differing.begin(), differing.end(), 0), threadCount);
  EXPECT_GT(expected[0].size() * threadCount * rounds, 300000U); // names and paths in all
}

} // namespace
