#include <unicode/msgfmt.h>

#include <algorithm>
#include <cstring>

#include "peers/icu_texts.h"
#include "support/insertion_rows.h"
#include "support/insertions.h"
#include "support/lookup_rows.h"

namespace bench {

namespace {

// Opening one that is open counts a reference.
void Acquire(benchmark::State& state) {
  static const IcuTexts open(100);
  static const std::string package = TreePath("peers/texts100");
  for (auto _ : state) {
    UErrorCode status = U_ZERO_ERROR;
    ures_close(ures_openDirect(package.c_str(), "fr", &status));
  }
}

// The text is taken apart once, which the others do each time.
void Format(char* buffer, KxSize size) {
  static UErrorCode made = U_ZERO_ERROR;
  static const icu::MessageFormat format(
      "The task {0} on the server {1} has ended, without any errors.", made);
  UErrorCode status = U_ZERO_ERROR;
  const icu::Formattable values[] = {icu::Formattable(kFirst), icu::Formattable(kSecond)};
  icu::UnicodeString text;
  icu::FieldPosition where;
  format.format(values, 2, text, where, status);
  text.extract(0, text.length(), buffer, size, "UTF-8");
}

[[maybe_unused]] const bool kRegistered = [] {
  RegisterLookups<IcuTexts>("icu");
  RegisterInsertion<Format>("insert/icu");
  benchmark::RegisterBenchmark("acquire/icu", Acquire)->UseRealTime();
  benchmark::RegisterBenchmark("acquire_two_threads/icu", Acquire)->Threads(2)->UseRealTime();
  return true;
}();

}  // namespace

}  // namespace bench
