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

CKxXlate* Language() {
  CatalogueTree::Use();
  static CKxXlate* const translator = CKxXlate::GetBundle("language", "fr");
  return translator;
}

std::vector<std::string> Keys(const std::string& prefix) {
  std::vector<std::string> keys;
  for (int number = 0; number < 1000; ++number) {
    keys.push_back(prefix + CatalogueTree::Key(number * 7));
  }
  return keys;
}

void LookUp(benchmark::State& state, CKxXlate* translator, const std::string& prefix) {
  const std::vector<std::string> keys = Keys(prefix);
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(translator->GetText(keys[next].c_str()));
    next = next + 1 == keys.size() ? 0 : next + 1;
  }
}

void Hit(benchmark::State& state) { LookUp(state, Translator(), ""); }
void LanguageHit(benchmark::State& state) { LookUp(state, Language(), ""); }

// The first miss of each key writes a log line; what is measured are the many that follow.
void RepeatedMiss(benchmark::State& state) { LookUp(state, Translator(), "ABSENT_"); }
void LanguageRepeatedMiss(benchmark::State& state) { LookUp(state, Language(), "ABSENT_"); }

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

// Asks the system for the status of the files each time.
void AcquireAndReleaseLanguage(benchmark::State& state) {
  Language();
  for (auto _ : state) CKxXlate::GetBundle("language", "fr")->Release();
}

void LoadLanguage(benchmark::State& state) {
  Language();
  for (auto _ : state) {
    CKxXlate::FreeCache();
    CKxXlate::GetBundle("language", "fr")->Release();
  }
  state.SetItemsProcessed(state.iterations() * CatalogueTree::kKeys);
}

void LoadFile(benchmark::State& state) {
  Translator();
  static int number = 0;
  for (auto _ : state) {
    if (number == CatalogueTree::kLoadBundles) {
      state.SkipWithError("no bundle is left that was not read yet");
      break;
    }
    const std::string bundle = "load" + std::to_string(number++);
    CKxXlate::GetBundle(bundle.c_str(), "")->Release();
  }
  state.SetItemsProcessed(state.iterations() * CatalogueTree::kKeys);
}

BENCHMARK(Hit)->ThreadRange(1, 4);
BENCHMARK(LanguageHit)->ThreadRange(1, 4);
BENCHMARK(HitIntoBuffer);
BENCHMARK(RepeatedMiss)->ThreadRange(1, 4);
BENCHMARK(LanguageRepeatedMiss)->ThreadRange(1, 4);
BENCHMARK_CAPTURE(AcquireAndRelease, exact_locale, "fr-CA")->ThreadRange(1, 4);
BENCHMARK_CAPTURE(AcquireAndRelease, fallback_locale, "fr-BE");
BENCHMARK(LoadFile)->Iterations(CatalogueTree::kLoadBundles)->Unit(benchmark::kMillisecond);
BENCHMARK(AcquireAndReleaseLanguage);
BENCHMARK(LoadLanguage)->Unit(benchmark::kMillisecond);

}  // namespace
