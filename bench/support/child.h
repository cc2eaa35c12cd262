#ifndef KX_BENCH_CHILD_H
#define KX_BENCH_CHILD_H

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace bench {

/// What is to be run as a process of its own: a process reads a property file once, replaces its
/// directory once, and starts once.
struct Child {
  std::string program;  ///< its name; it lies beside the program that runs
  std::vector<std::string> arguments;
  std::string root;  ///< below the generated catalogues: what the child uses instead of them
};

/// Runs a child to its end and answers the number that it wrote. Throws std::runtime_error when it
/// failed.
double NumberFrom(const Child& child);

/// Runs a child that writes seconds, once an iteration.
void MeasureTold(benchmark::State& state, const Child& child);

/// Measures a child from its start to its end.
void MeasureWhole(benchmark::State& state, const Child& child);

/// Runs a child that writes a count of something, which becomes the row's value.
void MeasureCount(benchmark::State& state, const Child& child);

}  // namespace bench

#endif  // KX_BENCH_CHILD_H
