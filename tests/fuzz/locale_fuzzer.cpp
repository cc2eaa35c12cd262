// A locale, as a stranger may send it: split, walked, and resolved in a bundle.

#include <string>

#include "CKxXlate.h"
#include "bundles/bundle.h"
#include "bundles/split_locale.h"
#include "fuzz/fuzz_target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ExactText text(data, size);
  const std::string_view locale = text.Get();
  std::string language;
  std::string country;
  const int parts = kx::SplitLocale(locale, language, country);
  Require(language.size() + country.size() <= locale.size());
  Require((parts == 0) == locale.empty());

  bnd::Bundle<CKxXlate> bundle("fuzz");
  bundle.AddFile("", "/fuzz.properties");
  bundle.AddFile("fr_CA", "/fuzz_fr_CA.properties");
  auto* first = bundle.Resolve(locale, true);
  auto* second = bundle.Resolve(locale, true);
  Require(first != nullptr && first->GetFile() == second->GetFile());
  Require(first->IsDefault() == second->IsDefault());
  return 0;
}
