#include <string>

#include "CKxXlate.h"
#include "bundles/install_manager.h"
#include "bundles/properties_xlate.h"
#include "bundles/split_locale.h"
#include "core/language_cache.h"
#include "platform/given_text.h"

namespace {

constexpr char kEnglish[] = "en";

// Apart from GetBundle, so that a request which was answered before needs none of it.
[[gnu::noinline]] CKxXlate* Resolve(const char* name, const char* locale) {
  if (CKxXlate* translator = kx::GetPropertiesBundle(name, locale)) return translator;
  std::string language;
  std::string region;
  if (kx::SplitLocale(locale, language, region) == 0) language = kEnglish;
  return kx::FindOrLoadLanguage(name, language.c_str(), region.c_str());
}

}  // namespace

CKxXlate* CKxXlate::GetBundle(const char* name, const char* locale) {
  if (!kx::IsGiven(name)) return nullptr;
  const char* asked = locale == nullptr ? "" : locale;
  if (const XlateManager* manager = kx::ProcessManagers().Current()) {
    // Here and not three calls below: that takes a tenth from a request.
    if (CKxXlate* known = kx::FindResolvedBundle(*manager, name, asked)) return known;
  }
  return Resolve(name, asked);
}

CKxXlate* CKxXlate::GetLanguage(const char* name, const char* language, const char* region) {
  if (!kx::IsGiven(name)) return nullptr;
  const char* asked = kx::IsGiven(language) ? language : kEnglish;
  std::string locale = asked;
  if (kx::IsGiven(region)) locale.append("-").append(region);
  if (CKxXlate* translator = kx::GetPropertiesBundle(name, locale.c_str())) return translator;
  return kx::FindOrLoadLanguage(name, asked, region);
}

void CKxXlate::FreeCache() { kx::ClearLanguages(); }
