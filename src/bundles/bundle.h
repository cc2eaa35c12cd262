#ifndef KX_BUNDLES_BUNDLE_H
#define KX_BUNDLES_BUNDLE_H

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "bundles/bundle_entries.h"
#include "bundles/bundle_file_name.h"
#include "bundles/parent_locale.h"
#include "platform/critical_section.h"
#include "platform/key_hash.h"
#include "platform/thread_annotations.h"

namespace bnd {

/// Locales longer than this, in bytes, are resolved anew each time. Locales come from strangers'
/// requests; what is remembered of them must be bounded. The answer is the same either way.
constexpr std::size_t kMaxRememberedLocaleBytes = 64;

/// A bundle remembers at most so many fallback answers.
constexpr std::size_t kMaxRememberedLocales = 4096;

/// One bundle: its locales and what serves each.
///
/// Files are added while the directory is read, by one thread; lookups come from any thread
/// afterwards. Entries are never removed, so a pointer to one is valid for the bundle's life.
template <class T>
class Bundle {
 public:
  explicit Bundle(std::string name) : name_(std::move(name)) {}
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;

  const std::string& Name() const noexcept { return name_; }

  /// Registers the file at `path` for `locale` and, where the locale has one, its alias with
  /// hyphens. Does nothing when the locale is taken: the first file wins.
  void AddFile(const std::string& locale, std::string path) KX_EXCLUDES(lock_) {
    const kx::CriticalSectionGuard guard(lock_);
    if (Find(locale) != nullptr) return;
    auto owned = std::make_unique<BundleFile<T>>(name_, locale, std::move(path));
    BundleFile<T>& file = *owned;
    Add(std::move(owned));
    const std::string alias = kx::HyphenAlias(locale);
    if (alias.empty() || Find(alias) != nullptr) return;
    Add(std::make_unique<BundleRef<T>>(name_, alias, file, file.IsDefault()));
  }

  /// Makes the English file the default of a bundle that has no file without a locale. To be called
  /// once, when all files are there.
  void CompleteDefault() KX_EXCLUDES(lock_) {
    const kx::CriticalSectionGuard guard(lock_);
    if (Find("") != nullptr) return;
    BundleBase<T>* english = Find("en");
    if (english == nullptr) return;
    Add(std::make_unique<BundleRef<T>>(name_, std::string(), *english->GetFile(), true));
  }

  /// The entry for `locale`, in any case.
  ///
  /// @param fallBack  whether shorter locales, and last the default, may answer. Each locale tried
  ///                  on the way is then remembered, spelled as asked, for the next request; a
  ///                  locale that nothing answers is not.
  /// @return null when nothing serves the locale
  ///
  /// Allocates only to remember.
  BundleBase<T>* Resolve(std::string_view locale, bool fallBack) KX_EXCLUDES(lock_) {
    const kx::CriticalSectionGuard guard(lock_);
    kx::ParentLocales walk(locale);
    BundleBase<T>* found = Find(walk.Current());
    while (found == nullptr && fallBack && walk.Next()) found = Find(walk.Current());
    return found == nullptr ? nullptr : Remember(locale, walk.Current().size(), *found);
  }

 private:
  BundleBase<T>* Find(std::string_view locale) const KX_REQUIRES(lock_) {
    // Not worth the hash: a long locale has many parents, and none of them can be here.
    if (locale.size() > longestLocale_) return nullptr;
    const auto entry = entries_.find(locale);
    return entry == entries_.end() ? nullptr : entry->second.get();
  }

  void Add(std::unique_ptr<BundleBase<T>> entry) KX_REQUIRES(lock_) {
    const std::string_view locale = entry->Locale();
    entries_.emplace(locale, std::move(entry));
    longestLocale_ = std::max(longestLocale_, locale.size());
  }

  /// Adds what `found` answered for `locale` and those of its parents that are longer than
  /// `foundLength` bytes; answers the entry for `locale`, or `found` where that is not remembered.
  BundleBase<T>* Remember(std::string_view locale, std::size_t foundLength, BundleBase<T>& found)
      KX_REQUIRES(lock_) {
    BundleBase<T>* answer = &found;
    for (kx::ParentLocales walk(locale); walk.Current().size() > foundLength; walk.Next()) {
      if (walk.Current().size() > kMaxRememberedLocaleBytes) continue;
      if (remembered_ == kMaxRememberedLocales) break;
      auto entry = std::make_unique<BundleRef<T>>(name_, std::string(walk.Current()),
                                                  *found.GetFile(), found.IsDefault());
      if (walk.Current().size() == locale.size()) answer = entry.get();
      Add(std::move(entry));
      ++remembered_;
    }
    return answer;
  }

  const std::string name_;

  kx::CriticalSection lock_;
  // The keys are the entries' own locales.
  std::unordered_map<std::string_view, std::unique_ptr<BundleBase<T>>, kx::KeyHash, kx::KeyEqual>
      entries_ KX_GUARDED_BY(lock_);
  std::size_t longestLocale_ KX_GUARDED_BY(lock_) = 0;
  std::size_t remembered_ KX_GUARDED_BY(lock_) = 0;
};

}  // namespace bnd

#endif  // KX_BUNDLES_BUNDLE_H
