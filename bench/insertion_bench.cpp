#include <benchmark/benchmark.h>

#include <cstdio>

#include "CKxXlate.h"

namespace {

void InsertTwoArguments(benchmark::State& state) {
  char line[256];
  for (auto _ : state) {
    CKxXlate::Insert(line, sizeof line - 1, "The task %0 on server %1 ended without errors.",
                     "backup", "alpha.example");
    benchmark::ClobberMemory();
  }
}

// What a C programmer would have written instead: a yardstick in the same run.
void PrintTwoArguments(benchmark::State& state) {
  char line[256];
  for (auto _ : state) {
    std::snprintf(line, sizeof line, "The task %s on server %s ended without errors.", "backup",
                  "alpha.example");
    benchmark::ClobberMemory();
  }
}

BENCHMARK(InsertTwoArguments);
BENCHMARK(PrintTwoArguments);

}  // namespace
