#ifndef KX_BENCH_LOOKUP_ROWS_H
#define KX_BENCH_LOOKUP_ROWS_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>

#include "support/requests.h"

namespace bench {

/// The texts of a catalogue, made when they are first asked for and kept for the whole run.
template <typename Texts>
const Texts& TextsOf(int catalogueSize) {
  static std::map<int, Texts> made;
  return made.try_emplace(catalogueSize, catalogueSize).first->second;
}

/// Asks for one request an iteration, and begins to read the text, as whoever asked for it does.
template <typename Texts>
void AskFor(benchmark::State& state, const Texts& texts, const Requests& requests) {
  std::size_t turn = 0;
  for (auto _ : state) {
    const auto text = texts.Find(requests.At(turn++));
    if (text != nullptr) benchmark::DoNotOptimize(*text);
  }
}

/// Registers the rows of a contender that finds a text by its key. Names are row/contender.
///
/// @tparam Texts  made from the size of a catalogue; Find(const char*) answers
///                something that may be null
/// @param largest  of the catalogues for the growth curve; 0 for those who are not in it
template <typename Texts>
void RegisterLookups(const std::string& contender, int largest = 0) {
  benchmark::RegisterBenchmark(("hit/" + contender).c_str(), [](benchmark::State& state) {
    AskFor(state, TextsOf<Texts>(10000), Hits(10000));
  });
  benchmark::RegisterBenchmark(("hit64/" + contender).c_str(), [](benchmark::State& state) {
    AskFor(state, TextsOf<Texts>(10000), HotHits());
  });
  benchmark::RegisterBenchmark(("miss/" + contender).c_str(), [](benchmark::State& state) {
    // The first miss of a key is another thing: it is logged.
    for (std::size_t turn = 0; turn < Requests::kCount; ++turn) {
      benchmark::DoNotOptimize(TextsOf<Texts>(10000).Find(Misses().At(turn)) != nullptr);
    }
    AskFor(state, TextsOf<Texts>(10000), Misses());
  });
  for (int size = 1000; size <= largest; size *= 10) {
    const std::string row = "growth/hit/" + std::to_string(size) + "/" + contender;
    benchmark::RegisterBenchmark(row.c_str(), [size](benchmark::State& state) {
      AskFor(state, TextsOf<Texts>(size), Hits(size));
    });
  }
}

}  // namespace bench

#endif  // KX_BENCH_LOOKUP_ROWS_H
