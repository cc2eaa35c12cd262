#include <string>

#include "CKxXlate.h"
#include "bundles/properties_xlate.h"
#include "bundles/split_locale.h"
#include "core/language_cache.h"
#include "platform/given_text.h"

namespace {

constexpr char kEnglish[] = "en";

}  // namespace

CKxXlate* CKxXlate::GetBundle(const char* name, const char* locale) {
  if (!kx::IsGiven(name)) return nullptr;
  const char* asked = locale == nullptr ? "" : locale;
  if (CKxXlate* translator = kx::GetPropertiesBundle(name, asked)) return translator;
  std::string language;
  std::string region;
  if (kx::SplitLocale(asked, language, region) == 0) language = kEnglish;
  return kx::FindOrLoadLanguage(name, language.c_str(), region.c_str());
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
