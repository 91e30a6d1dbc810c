// Times an operation over a set of names against the floor, which is what any operation with a fresh result costs at
// least: malloc, memcpy and free of the same names. The floor is taken right before and behind every pass, so that
// what else the machine does weighs on both alike.
#ifndef ZEL_BENCH_MEASURE_H
#define ZEL_BENCH_MEASURE_H

#include "names.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace bench {

// For the compiler, whoever value is given to might read it.
template <typename T> void keep(T value) { asm volatile("" : : "r"(value) : "memory"); }

// A failure stops the run, so that it cannot pass for speed.
[[noreturn]] inline void fail(const char *name) {
  std::fprintf(stderr, "zel_bench: no result for '%s'\n", name);
  std::exit(1);
}

// ns a name.
template <typename Operation> double passTime(const Names &names, Operation operation) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  for (std::size_t i = 0; i < names.size(); ++i)
    operation(i);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / static_cast<double>(names.size());
}

inline double floorTime(const Names &names) {
  return passTime(names, [&](std::size_t i) {
    void *copy = std::malloc(names.length(i) + 1);
    std::memcpy(copy, names[i], names.length(i) + 1);
    keep(copy);
    std::free(copy);
  });
}

inline double median(std::vector<double> &values) {
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
  return values[values.size() / 2];
}

struct Measured {
  double time = 0;  // ns a name
  double ratio = 0; // to the floor
};

constexpr int manyPasses = 31;

// operation(i) does the work for names[i].
template <typename Operation> Measured measure(const Names &names, Operation operation, int passes = manyPasses) {
  std::vector<double> times;
  std::vector<double> ratios;
  passTime(names, operation); // the first pass warms up and is not counted
  floorTime(names);
  for (int i = 0; i < passes; ++i) {
    const double before = floorTime(names);
    const double time = passTime(names, operation);
    const double behind = floorTime(names);
    times.push_back(time);
    ratios.push_back(2 * time / (before + behind));
  }
  return {median(times), median(ratios)};
}

// What a measurement is to reach.
struct Target {
  enum Of { nothing, ratio, time } of = nothing;
  double limit = 0;
};
constexpr Target ratioUpTo(double limit) { return {Target::ratio, limit}; }
constexpr Target timeUpTo(double limit) { return {Target::time, limit}; }

// As it stands in the table: ns, ratio, and whether the target is met.
inline std::string shown(const Measured &measured, Target target) {
  char text[64];
  std::snprintf(text, sizeof text, "%9.2f %6.2f", measured.time, measured.ratio);
  std::string result = text;
  if (target.of != Target::nothing) {
    const bool isTime = target.of == Target::time;
    const bool isMet = (isTime ? measured.time : measured.ratio) <= target.limit;
    std::snprintf(text, sizeof text, "  <= %g%s %s", target.limit, isTime ? " ns" : "", isMet ? "met" : "missed");
    result += text;
  }
  return result;
}

inline void printRow(const std::string &work, const std::string &allocated, const std::string &inBuffer = {}) {
  if (inBuffer.empty())
    std::printf("%-44s %s\n", work.c_str(), allocated.c_str());
  else
    std::printf("%-44s %-36s %s\n", work.c_str(), allocated.c_str(), inBuffer.c_str());
}

} // namespace bench

#endif
