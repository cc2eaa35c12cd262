// What can be measured only in a process of its own: loads of files, whole directories, the start
// of a process, memory.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "rows/peer_names.h"
#include "support/child.h"

namespace bench {

namespace {

benchmark::internal::Benchmark* Register(const std::string& row,
                                         void (*measure)(benchmark::State&, const Child&),
                                         const Child& child) {
  return benchmark::RegisterBenchmark(row.c_str(), measure, child)->UseManualTime();
}

/// Counts are the same in every run, so one is enough.
void RegisterCount(const std::string& row, const std::vector<std::string>& arguments) {
  Register(row, MeasureCount, {"kxxlate_bench_memory", arguments, ""})
      ->Iterations(1)
      ->Repetitions(1);
}

void RegisterLoads(const std::string& row, int size, int iterations) {
  const std::string count = std::to_string(size);
  for (const std::string& contender : LoadContenders(size)) {
    Register(row + "/" + count + "/" + contender, MeasureTold,
             {"kxxlate_bench_files", {"load", contender, count}, ""})
        ->Iterations(iterations);
  }
}

void RegisterDirectories() {
  for (const char* count : {"1000", "10000"}) {
    for (const char* contender : {"ours", "std_filesystem", "floor"}) {
      Register("directory/" + std::string(count) + "/" + contender, MeasureTold,
               {"kxxlate_bench_files", {"directory", contender, count}, "files"})
          ->Iterations(3);
    }
  }
}

void RegisterStarts() {
  for (const char* count : {"100", "10000"}) {
    for (const std::string& contender : StartContenders()) {
      Register("start/" + std::string(count) + "/" + contender, MeasureWhole,
               {"kxxlate_bench_start_" + contender, {count}, ""})
          ->Iterations(20);
    }
  }
}

void RegisterMemory() {
  for (const int size : {10000, 100000}) {
    const std::string count = std::to_string(size);
    const auto add = [&](const std::string& what, const std::string& contender) {
      RegisterCount("memory/" + what + "/" + count + "/" + contender, {what, contender, count});
    };
    for (const std::string& contender : LoadContenders(size)) {
      for (const char* what : {"resident", "held", "peak"}) add(what, contender);
    }
    for (const std::string& contender : MappingPeers(size)) add("resident", contender);
  }
}

void RegisterRegion() {
  for (const char* contender : {"ours", "floor"}) {
    Register("region/time/" + std::string(contender), MeasureTold,
             {"kxxlate_bench_files", {"region", contender, "8"}, ""})
        ->Iterations(3);
  }
  RegisterCount("region/bytes/ours", {"region", "ours", "8"});
}

void RegisterAllocations() {
  for (const char* style : {"percent", "brace", "variable_f", "va_2f", "va_texts"}) {
    RegisterCount("allocations/" + std::string(style) + "/ours", {"allocations", style, "1000"});
  }
}

void RegisterGrowth() {
  RegisterLoads("growth/load", 1000, 5);
  for (const char* languages : {"1", "4", "16", "64"}) {
    RegisterCount("growth/languages/" + std::string(languages) + "/ours",
                  {"languages", "ours", languages});
  }
}

[[maybe_unused]] const bool kRegistered = [] {
  RegisterLoads("load", 10000, 5);
  RegisterLoads("load", 100000, 1);
  RegisterLoads("load", 1000000, 1);
  RegisterDirectories();
  RegisterStarts();
  RegisterMemory();
  RegisterRegion();
  RegisterAllocations();
  RegisterGrowth();
  return true;
}();

}  // namespace

}  // namespace bench
