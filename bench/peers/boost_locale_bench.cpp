#include <algorithm>
#include <cstring>
#include <memory>

#include "peers/boost_locale_texts.h"
#include "support/insertion_rows.h"
#include "support/insertions.h"
#include "support/lookup_rows.h"

namespace bench {

namespace {

// A generator keeps the locales that it made.
void Acquire(benchmark::State& state) {
  static const auto generator = [] {
    auto made = std::make_unique<boost::locale::generator>();
    made->add_messages_path(TreePath("peers/locale"));
    made->add_messages_domain("texts100");
    made->locale_cache_enabled(true);
    return made;
  }();
  for (auto _ : state) {
    const std::locale locale = (*generator)("fr.UTF-8");
    benchmark::DoNotOptimize(&locale);
  }
}

void Format(char* buffer, KxSize size) {
  static const std::locale locale = boost::locale::generator()("fr.UTF-8");
  const std::string text =
      (boost::locale::format("The task {1} on the server {2} has ended, without any errors.") %
       kFirst % kSecond)
          .str(locale);
  std::memcpy(buffer, text.c_str(), std::min<std::size_t>(text.size() + 1, size));
}

[[maybe_unused]] const bool kRegistered = [] {
  RegisterLookups<BoostLocaleTexts>("boost_locale");
  RegisterInsertion<Format>("insert/boost_locale");
  benchmark::RegisterBenchmark("acquire/boost_locale", Acquire)->UseRealTime();
  benchmark::RegisterBenchmark("acquire_two_threads/boost_locale", Acquire)
      ->Threads(2)
      ->UseRealTime();
  return true;
}();

}  // namespace

}  // namespace bench
