#ifndef KX_BUNDLES_PROPERTIES_XLATE_H
#define KX_BUNDLES_PROPERTIES_XLATE_H

#include <cstdint>
#include <string>
#include <string_view>

#include "CKxXlate.h"
#include "bundles/bundle_entries.h"
#include "bundles/properties_reader.h"
#include "bundles/xlate_manager.h"
#include "platform/critical_section.h"
#include "platform/reference_count.h"
#include "platform/thread_annotations.h"
#include "texts/noted_keys.h"

/// The texts of one .properties file.
///
/// Only texts: a property file has no header, directories, labels or prompts, so those operations
/// answer null, or "" and false.
///
/// The first reference belongs to the bundle file that the translator was made for; each caller
/// gets one more. Since bundle files live as long as the process, so do their translators, and a
/// file that changes on disk is not read again. Only one that is not settled belongs to its caller
/// alone.
class PropertiesXlate final : public CKxXlate {
 public:
  /// Reads the owner's file; one that cannot be opened gives no texts. Problems go to standard
  /// error.
  ///
  /// @param owner  not null; must outlive this object
  explicit PropertiesXlate(const bnd::BundleFile<CKxXlate>* owner);

  void Release() override;
  void AddRef() override {
    if (!lasts_) references_.Add();
  }
  const char* GetName() override;
  const char* GetLanguageCode() override;  ///< as spelled in the file's name
  const char* GetCountryCode() override;   ///< as spelled in the file's name
  const char* GetLongName() override;
  const char* GetCharset() override;
  std::uint32_t GetId() override;
  const char* GetImageDirectory() override;
  const char* GetDirection() override;
  const char* GetPromptSuffix() override;
  const char* GetDirectory(const char* name) override;
  bool GetDirectory(char* dst, KxSize size, const char* name) override;
  const char* GetText(const char* key) override;
  bool GetText(char* dst, KxSize size, const char* key, const char* dflt) override;
  const char* GetLabel(const char* key) override;
  bool GetLabel(char* dst, KxSize size, const char* key) override;
  /// Answers "" and false and does not use the default, which hosts that mix both kinds of
  /// catalogue rely on.
  bool GetPrompt(char* dst, KxSize size, const char* key, const char* dflt) override;

  /// When the file was read, in seconds since 1970-01-01 00:00 UTC.
  std::int64_t LoadTime() const noexcept { return loadTime_; }

  /// Whether the file was read whole or cannot be read at all. Otherwise it could not be opened or
  /// read to its end for a reason that passes, and reading it again may give more.
  bool IsSettled() const noexcept { return isSettled_; }

  /// Says that the owner is never destroyed: its reference keeps this object for the life of the
  /// process, so no others need be counted, and threads that take and give them back share no
  /// memory that one of them writes. To be called while nobody else has the object.
  void LastForEver() noexcept { lasts_ = true; }

  /// Writes all texts to standard output, in no particular order; to be called from a debugger.
  void DumpTable() const;

 private:
  ~PropertiesXlate() override = default;

  void NoteMissingKey(std::string_view key, std::uint64_t hash) KX_EXCLUDES(lock_);

  // First, to lie in one line of the cache with what tells the operations: taking a reference and
  // giving it back look at no other.
  bool lasts_ = false;

  // Constant after construction, so that lookups that find their key need no lock.
  kx::PropertyTable texts_;
  std::string language_;
  std::string country_;
  bool isSettled_ = true;
  std::int64_t loadTime_;

  // The keys that were asked for in vain: written under the lock, read without.
  kx::CriticalSection lock_;
  kx::NotedKeys missingKeys_;
  kx::ReferenceCount references_{1};

  // Owned by the bundle.
  const bnd::BundleFile<CKxXlate>* const owner_;
};

namespace kx {

/// As GetPropertiesBundle, for a request that has been answered before; null for any other.
inline CKxXlate* FindResolvedBundle(const XlateManager& manager, const char* bundle,
                                    const char* locale) {
  PropertiesXlate* const translator = manager.Resolved().Find(bundle, locale);
  if (translator != nullptr) translator->AddRef();  // for the caller
  return translator;
}

/// The translator that `manager` (null: none) has for a bundle and locale, with a reference for the
/// caller; null when it has none. Reads the file on its first use.
CKxXlate* GetPropertiesBundle(const XlateManager* manager, const char* bundle, const char* locale);

/// The same from the manager in use.
CKxXlate* GetPropertiesBundle(const char* bundle, const char* locale);

}  // namespace kx

#endif  // KX_BUNDLES_PROPERTIES_XLATE_H
