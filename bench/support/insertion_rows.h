#ifndef KX_BENCH_INSERTION_ROWS_H
#define KX_BENCH_INSERTION_ROWS_H

#include <benchmark/benchmark.h>

#include "CKxXlate.h"

namespace bench {

/// Registers a row of an insertion into a buffer of 256 bytes.
template <void (*Insert)(char*, KxSize)>
void RegisterInsertion(const char* name) {
  benchmark::RegisterBenchmark(name, [](benchmark::State& state) {
    char line[256];
    for (auto _ : state) {
      Insert(line, sizeof line);
      benchmark::DoNotOptimize(line);
      benchmark::ClobberMemory();
    }
  });
}

}  // namespace bench

#endif  // KX_BENCH_INSERTION_ROWS_H
