#include <string>

#include "CKxXlate.h"
#include "bundles/properties_xlate.h"
#include "bundles/split_locale.h"
#include "core/language_cache.h"

namespace {

constexpr char kEnglish[] = "en";

bool IsNullOrEmpty(const char* text) { return text == nullptr || *text == '\0'; }

}  // namespace

CKxXlate* CKxXlate::GetBundle(const char* name, const char* locale) {
  if (IsNullOrEmpty(name)) return nullptr;
  const char* asked = locale == nullptr ? "" : locale;
  if (CKxXlate* translator = kx::GetPropertiesBundle(name, asked)) return translator;
  std::string language;
  std::string region;
  if (kx::SplitLocale(asked, language, region) == 0) language = kEnglish;
  return kx::FindOrLoadLanguage(name, language.c_str(), region.c_str());
}

CKxXlate* CKxXlate::GetLanguage(const char* name, const char* language, const char* region) {
  if (IsNullOrEmpty(name)) return nullptr;
  const char* asked = IsNullOrEmpty(language) ? kEnglish : language;
  std::string locale = asked;
  if (!IsNullOrEmpty(region)) locale.append("-").append(region);
  if (CKxXlate* translator = kx::GetPropertiesBundle(name, locale.c_str())) return translator;
  return kx::FindOrLoadLanguage(name, asked, region);
}

void CKxXlate::FreeCache() { kx::ClearLanguages(); }
