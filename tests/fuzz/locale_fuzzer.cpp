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
  bnd::ListedFile files[] = {{"/fuzz", 5, 0}, {"/fuzz_fr_CAfr_CA", 11, 5}};
  for (bnd::ListedFile& file : files) bundle.AddFile(file);
  auto* first = bundle.Resolve(locale, true);
  auto* second = bundle.Resolve(locale, true);
  Require(first != nullptr && first->GetFile() == second->GetFile());
  Require(first->IsDefault() == second->IsDefault());
  return 0;
}
