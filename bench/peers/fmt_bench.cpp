#include <fmt/format.h>

#include "support/insertion_rows.h"
#include "support/insertions.h"

namespace bench {

namespace {

/// Formats a text that is known at run time only, as a translation is.
template <typename... Values>
void FormatInto(char* buffer, KxSize size, fmt::string_view text, const Values&... values) {
  const auto result = fmt::vformat_to_n(buffer, size - 1, text, fmt::make_format_args(values...));
  *result.out = '\0';
}

void FormatTexts(char* buffer, KxSize size) {
  FormatInto(buffer, size, "The task {0} on the server {1} has ended, without any errors.", kFirst,
             kSecond);
}

// As fast as it gets: without a look at the buffer's size.
void FormatTextsUnbounded(char* buffer, KxSize) {
  *fmt::vformat_to(buffer, "The task {0} on the server {1} has ended, without any errors.",
                   fmt::make_format_args(kFirst, kSecond)) = '\0';
}

void FormatF(char* buffer, KxSize size) {
  FormatInto(buffer, size, "It took {:f} seconds.", kSeconds);
}

void Format2F(char* buffer, KxSize size) {
  FormatInto(buffer, size, "It took {:.2f} seconds.", kSeconds);
}

void FormatNumberAndText(char* buffer, KxSize size) {
  FormatInto(buffer, size, "After {} minutes the task {} has ended.", kMinutes, kFirst);
}

[[maybe_unused]] const bool kRegistered = [] {
  RegisterInsertion<FormatTextsUnbounded>("insert/fmt");
  RegisterInsertion<FormatTexts>("insert/fmt_bounded");
  RegisterInsertion<FormatF>("variable_f/fmt");
  RegisterInsertion<Format2F>("va_2f/fmt");
  RegisterInsertion<FormatNumberAndText>("va_texts/fmt");
  return true;
}();

}  // namespace

}  // namespace bench
