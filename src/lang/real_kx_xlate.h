#ifndef KX_LANG_REAL_KX_XLATE_H
#define KX_LANG_REAL_KX_XLATE_H

#include <cstdint>
#include <string>
#include <string_view>

#include "CKxXlate.h"
#include "lang/lang_loader.h"
#include "lang/language_contents.h"
#include "lang/language_paths.h"
#include "platform/critical_section.h"
#include "platform/reference_count.h"
#include "platform/thread_annotations.h"
#include "texts/noted_keys.h"

namespace kx {
struct LanguageNames;
struct LoadedLanguage;
}  // namespace kx

/// The texts of one component in one language, merged from up to four language files. A region that
/// has no files shares those of its language.
///
/// Made by the language cache, which takes one reference for itself and one for each caller that it
/// hands the object to; a new object carries none. When a file changes on disk the cache replaces
/// the object by a new one, with a new identifier, and this one lives on until its last holder
/// releases it.
class CRealKxXlate final : public CKxXlate {
 public:
  /// Reads the files. To be called under the cache lock. Problems in them, and the lack of any file
  /// for a language other than English, are written to the log.
  ///
  /// @param context   its objects must outlive this one
  /// @param name      of the component, not null; "" reads the common files alone
  /// @param language  code, in any case; not null
  /// @param country   code, in any case; null or "" for none
  ///
  /// Throws std::bad_alloc only.
  CRealKxXlate(const kx::LanguageContext& context, const char* name, const char* language,
               const char* country);

  /// The same of what has been loaded.
  CRealKxXlate(const kx::LanguageContext& context, kx::LoadedLanguage&& loaded,
               kx::LanguageNames&& names);

  /// Also destroys an object that nobody holds.
  void Release() override;
  void AddRef() override;
  const char* GetName() override;
  const char* GetLanguageCode() override;  ///< upper case
  const char* GetCountryCode() override;   ///< upper case
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
  bool GetPrompt(char* dst, KxSize size, const char* key, const char* dflt) override;

  /// The language for people who read the log, such as "FR-ca (agent)". Comes behind the destructor
  /// in the table of operations.
  virtual const char* GetDisplayName();

  /// Whether any language file was found.
  bool AnyFileFound() const noexcept { return anyFileFound_; }

  /// Whether a file that was read has changed or vanished since. A file that was not there is not
  /// looked for: it is noticed only when the language is read again for another reason.
  bool IsStale() const;

  /// Whether each file was read whole or is not there. Otherwise one could not be opened or read to
  /// its end for a reason that passes, and reading the language again may give more.
  bool IsSettled() const;

 private:
  CRealKxXlate(const kx::LanguageContext& context, kx::LanguageNames&& names);
  ~CRealKxXlate() override = default;

  /// Which table a key was asked for in vain.
  enum Table { kTexts, kLabels, kDirectories, kTables };

  const char* FindKey(const kx::LanguageTable& contents, Table table, const char* key);
  void NoteMissingKey(kx::NotedKeys& missing, std::string_view key, std::uint64_t hash)
      KX_EXCLUDES(lock_);

  // Constant after construction.
  std::string name_;
  std::string languageCode_;
  std::string countryCode_;
  std::string displayName_;
  bool anyFileFound_ = false;
  kx::LangCandidates candidates_;
  kx::SharedContents contents_;
  std::uint32_t id_ = 0;

  // The keys that were asked for in vain, apart for each table, so that a key is logged once for
  // each that lacks it. Written under the lock, read without.
  kx::CriticalSection lock_;
  kx::NotedKeys missing_[kTables];
  kx::ReferenceCount references_{0};

  // Owned by the process.
  const std::string& logRoot_;
  kx::TranslationLog& log_;
};

#endif  // KX_LANG_REAL_KX_XLATE_H
