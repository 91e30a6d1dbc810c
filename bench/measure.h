// Times an operation over a set of names beside the least that any operation with a fresh result costs: malloc, memcpy
// and free of the same names, in the same run.
#ifndef ZEL_BENCH_MEASURE_H
#define ZEL_BENCH_MEASURE_H

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace bench {

using Names = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

inline double nanoseconds(Clock::duration time) { return std::chrono::duration<double, std::nano>(time).count(); }

// ns a name for a malloc'ed copy, released again.
inline double copyTime(const Names &names) {
  constexpr int rounds = 2000;
  const auto copyAll = [&names] {
    for (const std::string &name : names) {
      void *copy = std::malloc(name.size() + 1);
      std::memcpy(copy, name.c_str(), name.size() + 1);
      benchmark::DoNotOptimize(copy);
      std::free(copy);
    }
  };
  copyAll();
  const auto start = Clock::now();
  for (int i = 0; i < rounds; ++i)
    copyAll();
  return nanoseconds(Clock::now() - start) / (rounds * static_cast<double>(names.size()));
}

// Runs operation(name) over all names until the benchmark has seen enough. operation returns how many names that stands
// for: 1, or the number of bits of an explosion.
template <typename Operation> void measure(benchmark::State &state, const Names &names, Operation operation) {
  const double copy = copyTime(names);
  double count = 0;
  const auto start = Clock::now();
  for (auto _ : state)
    for (const std::string &name : names)
      count += operation(name.c_str());
  const double time = nanoseconds(Clock::now() - start) / count;
  state.counters["ns/name"] = time;
  state.counters["ratio"] = time / copy;
}

// Releases a result; a missing one stops the run, so that no failure passes for speed.
inline double consume(char *result) {
  if (result == nullptr)
    std::abort();
  benchmark::DoNotOptimize(result);
  std::free(result);
  return 1;
}

} // namespace bench

#endif
