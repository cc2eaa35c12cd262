#include <string>

#include "CKxXlate.h"
#include "bundles/properties_xlate.h"

namespace {

constexpr char kEnglish[] = "en";

bool IsNullOrEmpty(const char* text) { return text == nullptr || *text == '\0'; }

}  // namespace

CKxXlate* CKxXlate::GetBundle(const char* name, const char* locale) {
  if (IsNullOrEmpty(name)) return nullptr;
  return kx::GetPropertiesBundle(name, locale == nullptr ? "" : locale);
}

CKxXlate* CKxXlate::GetLanguage(const char* name, const char* language, const char* region) {
  if (IsNullOrEmpty(name)) return nullptr;
  std::string locale = IsNullOrEmpty(language) ? kEnglish : language;
  if (!IsNullOrEmpty(region)) locale.append("-").append(region);
  return kx::GetPropertiesBundle(name, locale.c_str());
}
