#include <absl/container/flat_hash_map.h>
#include <absl/strings/str_format.h>
#include <absl/strings/substitute.h>

#include <cstring>
#include <string>

#include "catalogue/messages.h"
#include "support/insertion_rows.h"
#include "support/insertions.h"
#include "support/lookup_rows.h"

namespace bench {

namespace {

/// Finds keys in their exact case only.
class AbslTexts {
 public:
  explicit AbslTexts(int size) {
    for (int number = 0; number < size; ++number) {
      Message message = MakeMessage(number);
      texts_.emplace(std::move(message.key), std::move(message.text));
    }
  }

  const char* Find(const char* key) const {
    const auto found = texts_.find(absl::string_view(key));
    return found == texts_.end() ? nullptr : found->second.c_str();
  }

 private:
  absl::flat_hash_map<std::string, std::string> texts_;
};

// The text is known at run time only, as a translation is, so it is cut into pieces each time.
void Substitute(char* buffer, KxSize size) {
  const std::string text = absl::Substitute(
      "The task $0 on the server $1 has ended, without any errors.", kFirst, kSecond);
  std::memcpy(buffer, text.c_str(), std::min<std::size_t>(text.size() + 1, size));
}

void PrintTexts(char* buffer, KxSize size) {
  absl::SNPrintF(buffer, size, "The task %s on the server %s has ended, without any errors.",
                 kFirst, kSecond);
}

void PrintF(char* buffer, KxSize size) {
  absl::SNPrintF(buffer, size, "It took %f seconds.", kSeconds);
}

void Print2F(char* buffer, KxSize size) {
  absl::SNPrintF(buffer, size, "It took %.2f seconds.", kSeconds);
}

void PrintNumberAndText(char* buffer, KxSize size) {
  absl::SNPrintF(buffer, size, "After %d minutes the task %s has ended.", kMinutes, kFirst);
}

[[maybe_unused]] const bool kRegistered = [] {
  RegisterLookups<AbslTexts>("absl", 1000000);
  RegisterInsertion<Substitute>("insert/absl_substitute");
  RegisterInsertion<PrintTexts>("insert/absl");
  RegisterInsertion<PrintF>("variable_f/absl");
  RegisterInsertion<Print2F>("va_2f/absl");
  RegisterInsertion<PrintNumberAndText>("va_texts/absl");
  return true;
}();

}  // namespace

}  // namespace bench
