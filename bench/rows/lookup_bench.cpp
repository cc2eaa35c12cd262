#include <cstring>

#include "floor/flat_table.h"
#include "rows/own_texts.h"
#include "support/lookup_rows.h"

namespace bench {

namespace {

template <typename Texts>
void FindIntoBuffer(benchmark::State& state) {
  CKxXlate* const translator = TextsOf<Texts>(10000).Translator();
  const Requests& requests = Hits(10000);
  char text[256];
  std::size_t turn = 0;
  for (auto _ : state) {
    const char* key = requests.At(turn++);
    benchmark::DoNotOptimize(translator->GetText(text, sizeof text, key, nullptr));
    benchmark::ClobberMemory();
  }
}

void FloorFindIntoBuffer(benchmark::State& state) {
  const FloorTexts& texts = TextsOf<FloorTexts>(10000);
  const Requests& requests = Hits(10000);
  char text[256];
  std::size_t turn = 0;
  for (auto _ : state) {
    const char* found = texts.Find(requests.At(turn++));
    const std::size_t length = std::strlen(found);
    if (length < sizeof text) std::memcpy(text, found, length + 1);
    benchmark::ClobberMemory();
  }
}

template <typename Texts>
void FindInOtherCase(benchmark::State& state) {
  AskFor(state, TextsOf<Texts>(10000), OtherCaseHits());
}

[[maybe_unused]] const bool kRegistered = [] {
  RegisterLookups<PropertyTexts>("ours.property", 1000000);
  RegisterLookups<LanguageTexts>("ours.language", 1000000);
  benchmark::RegisterBenchmark("hit/ours.property_other_case", FindInOtherCase<PropertyTexts>);
  benchmark::RegisterBenchmark("hit/ours.language_other_case", FindInOtherCase<LanguageTexts>);
  benchmark::RegisterBenchmark("buffer/ours.property", FindIntoBuffer<PropertyTexts>);
  benchmark::RegisterBenchmark("buffer/ours.language", FindIntoBuffer<LanguageTexts>);
  benchmark::RegisterBenchmark("buffer/floor", FloorFindIntoBuffer);
  return true;
}();

}  // namespace

}  // namespace bench
