#include <benchmark/benchmark.h>

#include <atomic>
#include <string>

#include "CKxXlate.h"
#include "floor/flat_table.h"
#include "floor/floor_files.h"
#include "support/child.h"

namespace bench {

namespace {

void AcquireProperty(benchmark::State& state) {
  for (auto _ : state) CKxXlate::GetBundle("agent", "fr-CA")->Release();
}

// What resolution must at least do: find the bundle and the locale, and count.
void FloorAcquire(benchmark::State& state) {
  static const FlatTable table = BundleTable({"agent|", "agent|fr", "agent|fr-CA", "agent|de"});
  static std::atomic<int> count;
  for (auto _ : state) {
    benchmark::DoNotOptimize(table.Find("agent|fr-CA"));
    count.fetch_add(1, std::memory_order_relaxed);
    count.fetch_sub(1, std::memory_order_acq_rel);
  }
}

// The same with a count for each thread.
void FloorAcquireUnshared(benchmark::State& state) {
  static const FlatTable table = BundleTable({"agent|", "agent|fr", "agent|fr-CA", "agent|de"});
  for (auto _ : state) benchmark::DoNotOptimize(table.Find("agent|fr-CA"));
}

void AcquireLanguage(benchmark::State& state) {
  for (auto _ : state) CKxXlate::GetBundle("gateway", "de-AT")->Release();
}

void FloorAcquireLanguage(benchmark::State& state) {
  for (auto _ : state) AskForFourFiles();
}

void FloorAcquireLanguageBelow(benchmark::State& state) {
  for (auto _ : state) AskForFourFilesBelow();
}

void AcquireAbsentLanguage(benchmark::State& state) {
  for (auto _ : state) CKxXlate::GetBundle("gateway", "xy")->Release();
}

void FloorAcquireAbsentLanguage(benchmark::State& state) {
  for (auto _ : state) AskForAbsentLanguage();
}

/// Registers a row for one thread and the same for two.
void RegisterBoth(const std::string& row, const std::string& contender,
                  void (*measure)(benchmark::State&)) {
  benchmark::RegisterBenchmark((row + "/" + contender).c_str(), measure)->UseRealTime();
  benchmark::RegisterBenchmark((row + "_two_threads/" + contender).c_str(), measure)
      ->Threads(2)
      ->UseRealTime();
}

void RegisterBundleCounts() {
  for (const char* count : {"1", "100", "10000"}) {
    for (const char* contender : {"ours", "floor"}) {
      const std::string row = "acquire_among/" + std::string(count) + "/" + contender;
      const Child child{
          "kxxlate_bench_files", {"acquire", contender, count}, "bundles/" + std::string(count)};
      benchmark::RegisterBenchmark(row.c_str(), MeasureTold, child)->Iterations(1)->UseManualTime();
    }
  }
}

[[maybe_unused]] const bool kRegistered = [] {
  RegisterBoth("acquire", "ours.property", AcquireProperty);
  RegisterBoth("acquire", "floor", FloorAcquireUnshared);
  RegisterBoth("acquire", "floor.counted", FloorAcquire);
  RegisterBoth("acquire_language", "ours", AcquireLanguage);
  RegisterBoth("acquire_language", "floor", FloorAcquireLanguage);
  RegisterBoth("acquire_language", "floor.below_directory", FloorAcquireLanguageBelow);
  RegisterBoth("absent_language", "ours", AcquireAbsentLanguage);
  RegisterBoth("absent_language", "floor", FloorAcquireAbsentLanguage);
  RegisterBundleCounts();
  return true;
}();

}  // namespace

}  // namespace bench
