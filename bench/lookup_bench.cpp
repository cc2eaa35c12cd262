#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "CKxXlate.h"
#include "catalogue_tree.h"

namespace {

CKxXlate* Translator() {
  CatalogueTree::Use();
  static CKxXlate* const translator = CKxXlate::GetBundle("bench", "fr-CA");
  return translator;
}

std::vector<std::string> Keys(const std::string& prefix) {
  std::vector<std::string> keys;
  for (int number = 0; number < 1000; ++number) {
    keys.push_back(prefix + CatalogueTree::Key(number * 7));
  }
  return keys;
}

void LookUp(benchmark::State& state, const std::string& prefix) {
  CKxXlate* translator = Translator();
  const std::vector<std::string> keys = Keys(prefix);
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(translator->GetText(keys[next].c_str()));
    next = next + 1 == keys.size() ? 0 : next + 1;
  }
}

void Hit(benchmark::State& state) { LookUp(state, ""); }

// The first miss of each key writes a log line; what is measured are the many that follow.
void RepeatedMiss(benchmark::State& state) { LookUp(state, "ABSENT_"); }

void HitIntoBuffer(benchmark::State& state) {
  CKxXlate* translator = Translator();
  const std::string key = CatalogueTree::Key(17);
  char text[256];
  for (auto _ : state) {
    benchmark::DoNotOptimize(translator->GetText(text, sizeof text, key.c_str(), nullptr));
    benchmark::ClobberMemory();
  }
}

void AcquireAndRelease(benchmark::State& state, const char* locale) {
  Translator();
  for (auto _ : state) CKxXlate::GetBundle("bench", locale)->Release();
}

void LoadFile(benchmark::State& state) {
  Translator();
  static int number = 0;
  for (auto _ : state) {
    const std::string bundle = "load" + std::to_string(number++);
    CKxXlate::GetBundle(bundle.c_str(), "")->Release();
  }
  state.SetItemsProcessed(state.iterations() * CatalogueTree::kKeys);
}

BENCHMARK(Hit)->ThreadRange(1, 4);
BENCHMARK(HitIntoBuffer);
BENCHMARK(RepeatedMiss)->ThreadRange(1, 4);
BENCHMARK_CAPTURE(AcquireAndRelease, exact_locale, "fr-CA")->ThreadRange(1, 4);
BENCHMARK_CAPTURE(AcquireAndRelease, fallback_locale, "fr-BE");
BENCHMARK(LoadFile)->Iterations(CatalogueTree::kLoadBundles)->Unit(benchmark::kMillisecond);

}  // namespace
