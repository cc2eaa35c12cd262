#ifndef KX_CORE_CACHED_TRANSLATORS_H
#define KX_CORE_CACHED_TRANSLATORS_H

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "lang/real_kx_xlate.h"
#include "platform/critical_section.h"
#include "platform/thread_annotations.h"
#include "texts/key_table.h"
#include "texts/text_arena.h"

namespace kx {

/// What a language is cached under: "agent|fr|CA". Needs no memory but its own unless it is long,
/// since every request makes one.
class LanguageKey {
 public:
  /// @param name, language  not null
  /// @param region          null or "" for none
  LanguageKey(const char* name, const char* language, const char* region);
  LanguageKey(const LanguageKey&) = delete;
  LanguageKey& operator=(const LanguageKey&) = delete;

  std::string_view Text() const noexcept { return text_; }

 private:
  std::array<char, 128> short_;
  std::string long_;
  std::string_view text_;
};

/// Translators by key, in any ASCII case, and one reference on each. Any thread: its lock is held
/// for a look at the table and no longer, so no request waits for another's file system.
class CachedTranslators {
 public:
  CachedTranslators() = default;
  CachedTranslators(const CachedTranslators&) = delete;
  CachedTranslators& operator=(const CachedTranslators&) = delete;

  /// With a reference for the caller; null when there is none.
  CRealKxXlate* Find(std::string_view key) const noexcept KX_EXCLUDES(lock_);

  /// Takes over one reference, and gives back the one on the translator that has had the key.
  /// Throws std::bad_alloc, with everything as it was.
  void Put(std::string_view key, CRealKxXlate* translator) KX_EXCLUDES(lock_);

  /// Gives the references back, in the order of the keys, and forgets all. Allocates nothing.
  void Clear() noexcept KX_EXCLUDES(lock_);

 private:
  /// A translator stands before its key.
  struct Entries {
    TextArena texts;
    KeyTable keys;
    std::vector<const char*> all;  ///< the keys, so that they can be sorted without memory
  };

  static CRealKxXlate* Exchange(Entries& entries, std::string_view key, CRealKxXlate* translator);

  mutable CriticalSection lock_;
  std::unique_ptr<Entries> entries_ KX_GUARDED_BY(lock_);
};

}  // namespace kx

#endif  // KX_CORE_CACHED_TRANSLATORS_H
