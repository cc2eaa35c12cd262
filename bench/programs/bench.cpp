// The benchmarks: options are Google Benchmark's. TAVI_XLATE_ROOT names the generated catalogues.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <iostream>

#include "support/tree.h"

int main(int argc, char** argv) {
  if (!std::filesystem::exists(bench::TreePath("made"))) {
    std::cerr << "TAVI_XLATE_ROOT does not name the generated catalogues; use scripts/bench.sh.\n";
    return 2;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
