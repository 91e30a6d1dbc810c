// Several threads map at once, with different separators, and get what one thread gets.
#include "path/pathSupport.h"

#include <algorithm>
#include <thread>

namespace {

constexpr int threadCount = 8, rounds = 44;

// Everything that one caller with separators of its own maps, through its own ring, and by a mapping that all share.
std::vector<std::string> mapAll(std::size_t caller, zelMapping shared) {
  const auto separator = static_cast<unsigned char>("./|:_-#x"[caller]);
  const std::vector<std::string> names = wordsOf(R"(clk Data_Out \a+b␣ \a␣b\ u1/u2 a#20b x[3] signal 2n3904 %Lib)");
  std::vector<std::string> results;
  zelRing ring = nullptr;
  const auto keep = [&results](const char *text) { results.push_back(resultOf(text).value_or("(null)")); };
  for (const char *const *from = zelGetAllSpaceNames(); *from != nullptr; ++from)
    for (const char *const *to = zelGetAllSpaceNames(); *to != nullptr; ++to)
      keep(zelMapName(*from, *to, names[results.size() % names.size()].c_str(), zelAllocRing, &ring));
  for (const auto &[space, convertName] : {std::pair("Sdf", &zelIdentToSdfWithHandle),
                                           {"Gcf", &zelGcfToIdentWithHandle},
                                           {"Spef", &zelIdentToSpefWithHandle},
                                           {"Lef", &zelLefToIdentWithHandle}}) {
    const Handle handle(zelGetHandle(space, 0, separator, '(', ')'));
    for (const std::string &ident : wordsOf("Stop IReg Sa/b Sa.b[3] Ix:y S#2341 Sa%20b F_\\ Sa|b<1> Sq{}"))
      keep(convertName(ident.c_str(), zelAllocRing, &ring, handle.get()));
    for (const std::string &path : wordsOf(R"(top.u1.d[3:0] {2{a,b}} a[1:0].b[5:4] \u/1␣.x m.n[7])"))
      for (const std::uint32_t flags : {0U, 1U, 8U, 31U})
        keep(zelPathMapperEx(path.c_str(), nullptr, handle.get(), flags, "Verilog", nullptr, zelAllocRing, &ring));
  }
  for (const std::string &path : wordsOf(R"(u1.Clk[3] \a/b␣ {a,b} module top.\u/1␣.x)"))
    keep(zelMappingApply(shared, path.c_str(), zelAllocRing, &ring));
  zelFreeRing(&ring);
  return results;
}

TEST(Threads, MapAsOneThreadDoes) {
  zelMappingOptions options = {};
  options.size = sizeof options;
  options.from = "Verilog";
  options.to = "Sdf";
  options.toSeparators = {'\0', '.', '<', '>'};
  const zelMapping shared = zelCreateMapping(&options, nullptr, 0);
  ASSERT_NE(shared, nullptr);
  std::vector<std::vector<std::string>> expected(threadCount);
  for (std::size_t caller = 0; caller < threadCount; ++caller)
    expected[caller] = mapAll(caller, shared);
  EXPECT_NE(expected[0], expected[1]); // the separators do make a difference
  EXPECT_GT(expected[0].size() * threadCount * rounds, 300000U);
  int differing[threadCount] = {};
  std::vector<std::thread> threads;
  for (std::size_t caller = 0; caller < threadCount; ++caller)
    threads.emplace_back([&, caller] {
      for (int round = 0; round < rounds; ++round)
        differing[caller] += mapAll(caller, shared) != expected[caller] ? 1 : 0;
    });
  for (std::thread &thread : threads)
    thread.join();
  EXPECT_EQ(std::count(differing, differing + threadCount, 0), threadCount);
  zelFreeMapping(shared);
}

} // namespace
