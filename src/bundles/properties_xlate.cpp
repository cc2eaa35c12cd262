#include "bundles/properties_xlate.h"

#include <cstring>
#include <ctime>
#include <ostream>

#include "bundles/install_manager.h"
#include "bundles/resource_directory.h"
#include "bundles/split_locale.h"
#include "bundles/xlate_manager.h"
#include "format/caller_buffer.h"
#include "log/standard_ostream.h"
#include "log/translation_log.h"

PropertiesXlate::PropertiesXlate(const bnd::BundleFile<CKxXlate>* owner) : owner_(owner) {
  kx::SplitLocale(owner->Locale(), language_, country_);
  kx::ReadPropertiesFile(owner->Path().c_str(), texts_, &isSettled_);
  loadTime_ = std::time(nullptr);
}

void PropertiesXlate::Release() {
  if (!lasts_ && references_.Drop()) delete this;
}

const char* PropertiesXlate::GetName() { return owner_->BundleName().c_str(); }

const char* PropertiesXlate::GetLanguageCode() { return language_.c_str(); }

const char* PropertiesXlate::GetCountryCode() { return country_.c_str(); }

const char* PropertiesXlate::GetLongName() { return nullptr; }

const char* PropertiesXlate::GetCharset() { return nullptr; }

std::uint32_t PropertiesXlate::GetId() { return 0; }

const char* PropertiesXlate::GetImageDirectory() { return nullptr; }

const char* PropertiesXlate::GetDirection() { return nullptr; }

const char* PropertiesXlate::GetPromptSuffix() { return nullptr; }

const char* PropertiesXlate::GetDirectory(const char* /*name*/) { return nullptr; }

bool PropertiesXlate::GetDirectory(char* dst, KxSize size, const char* /*name*/) {
  return kx::AnswerLookup(dst, size, nullptr, nullptr);
}

const char* PropertiesXlate::GetText(const char* key) {
  if (key == nullptr) return nullptr;
  const std::string_view wanted = key;
  const std::uint64_t hash = texts_.Hash(wanted);
  const char* const found = texts_.Find(wanted, hash);
  if (found == nullptr && !missingKeys_.Has(wanted, hash)) NoteMissingKey(wanted, hash);
  return found;
}

bool PropertiesXlate::GetText(char* dst, KxSize size, const char* key, const char* dflt) {
  const char* const found = GetText(key);
  if (found == nullptr || dst == nullptr || size == 0) {
    return kx::AnswerLookup(dst, size, found, dflt);
  }
  kx::CopyMeasuredText(dst, size, found);
  return true;
}

const char* PropertiesXlate::GetLabel(const char* /*key*/) { return nullptr; }

bool PropertiesXlate::GetLabel(char* dst, KxSize size, const char* /*key*/) {
  return kx::AnswerLookup(dst, size, nullptr, nullptr);
}

bool PropertiesXlate::GetPrompt(char* dst, KxSize size, const char* /*key*/, const char* /*dflt*/) {
  return kx::AnswerLookup(dst, size, nullptr, nullptr);
}

void PropertiesXlate::DumpTable() const {
  kx::StandardOstream output(kx::StandardStream::kOutput);
  output << "Xlate " << owner_->BundleName() << '/' << owner_->Locale() << '\n';
  texts_.ForEach([&output](const char* key, const char* text) {
    output << "   " << key << "=>" << text << '\n';
  });
  output << std::endl;
}

void PropertiesXlate::NoteMissingKey(std::string_view key, std::uint64_t hash) {
  const kx::CriticalSectionGuard guard(lock_);
  if (missingKeys_.Has(key, hash)) return;
  // Noted when it has been logged, or a failure in between would keep it out of the log for good.
  const char* const prepared = missingKeys_.Prepare(key);
  kx::ProcessLog().WriteLine(kx::ProcessResources().Root(),
                             {owner_->Path(), " key not found: ", key});
  missingKeys_.Note(prepared, hash);
}

namespace kx {
namespace {

/// Answers a request that is not remembered; remembers it when it can be answered the same way for
/// ever.
[[gnu::noinline]] CKxXlate* Resolve(const XlateManager& manager, const char* bundle,
                                    const char* locale) {
  bnd::BundleBase<CKxXlate>* entry = manager.FindEntry(bundle, locale);
  if (entry == nullptr) return nullptr;
  // Made of a file that could not be read for a reason that passes: for this caller alone, who gets
  // its first reference. The next request reads the file again.
  PropertiesXlate* unsettled = nullptr;
  const auto make = [&](const bnd::BundleFile<CKxXlate>& file) -> CKxXlate* {
    auto* made = new PropertiesXlate(&file);
    if (!made->IsSettled()) {
      unsettled = made;
      return nullptr;
    }
    if (manager.LastsForEver()) made->LastForEver();
    return made;
  };
  auto* translator = static_cast<PropertiesXlate*>(entry->GetFile()->Translator(make));
  if (translator == nullptr) return unsettled;
  // Not what the bundle has no entry of: so the bundle's bounds are those of the requests as well.
  if (entry->Locale().size() == std::strlen(locale)) {
    manager.Resolved().Remember(bundle, locale, *translator);
  }
  translator->AddRef();  // for the caller
  return translator;
}

}  // namespace

CKxXlate* GetPropertiesBundle(const XlateManager* manager, const char* bundle, const char* locale) {
  if (manager == nullptr) return nullptr;
  CKxXlate* const resolved = FindResolvedBundle(*manager, bundle, locale);
  return resolved == nullptr ? Resolve(*manager, bundle, locale) : resolved;
}

CKxXlate* GetPropertiesBundle(const char* bundle, const char* locale) {
  return GetPropertiesBundle(ProcessManagers().Current(), bundle, locale);
}

}  // namespace kx
