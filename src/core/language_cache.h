#ifndef KX_CORE_LANGUAGE_CACHE_H
#define KX_CORE_LANGUAGE_CACHE_H

#include "core/cached_translators.h"
#include "lang/language_paths.h"
#include "lang/real_kx_xlate.h"
#include "lang/shared_languages.h"

namespace kx {

/// The languages that were read, by component, language and region (in any ASCII case). Holds one
/// reference on each.
///
/// The cache of the process is used under CacheLock but for FindUnchanged, which any thread may
/// call at any time.
class CRealKxXlateCache {
 public:
  explicit CRealKxXlateCache(const LanguageContext& context);
  CRealKxXlateCache(const CRealKxXlateCache&) = delete;
  CRealKxXlateCache& operator=(const CRealKxXlateCache&) = delete;

  /// Frees the table alone. When a process ends, hosts may still use what they hold; one that wants
  /// the translators destroyed calls Clear before. Held by LanguageCache.EndingKeepsTranslators.
  virtual ~CRealKxXlateCache() = default;

  /// The translator of a component for a language, with a reference for the caller; read anew when
  /// one of its files changed, even if no file is left by then. A translator for which a file could
  /// not be read for a reason that passes is not kept, nor does it replace one that was.
  ///
  /// @param name, language  not null
  /// @param region          null or "" for none
  /// @return null when there are no files for a language other than English
  ///
  /// Throws std::bad_alloc only, with the cache as it was.
  CRealKxXlate* FindOrLoad(const char* name, const char* language, const char* region);

  /// What was read before, with a reference for the caller; null when nothing was or a file has
  /// changed. Asks the system for the status of the files and for nothing else, and holds no lock
  /// while it does.
  CRealKxXlate* FindUnchanged(const char* name, const char* language, const char* region) const;

  /// Gives back the reference on each translator, in the order of the keys, and forgets them.
  void Clear();

 private:
  SharedLanguages shared_;
  const LanguageContext context_;
  CachedTranslators translators_;
};

/// The translator of a component for a language or, when that has no files, for English, with a
/// reference for the caller. Never null. Takes CacheLock, unless what was read before is unchanged.
CKxXlate* FindOrLoadLanguage(const char* name, const char* language, const char* region);

/// Forgets all languages that were read. Takes CacheLock.
void ClearLanguages();

}  // namespace kx

#endif  // KX_CORE_LANGUAGE_CACHE_H
