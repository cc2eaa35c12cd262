#ifndef KX_BUNDLES_BUNDLE_H
#define KX_BUNDLES_BUNDLE_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bundles/bundle_entries.h"
#include "bundles/bundle_file_name.h"
#include "bundles/parent_locale.h"
#include "platform/ascii_case.h"
#include "platform/critical_section.h"
#include "platform/thread_annotations.h"

namespace bnd {

/// Locales longer than this, in bytes, are resolved anew each time. Locales come from strangers'
/// requests; what is remembered of them must be bounded. The answer is the same either way.
constexpr std::size_t kMaxRememberedLocaleBytes = 64;

/// A bundle remembers at most so many fallback answers.
constexpr std::size_t kMaxRememberedLocales = 4096;

/// A file as it was listed. Belongs to whoever listed it, until the bundle is destroyed.
struct ListedFile {
  std::string_view Path() const noexcept { return {texts, pathSize}; }
  std::string_view Locale() const noexcept { return {texts + pathSize, localeSize}; }

  /// The path, without what those of all files of the bundle begin with; behind it the locale.
  const char* texts;
  std::uint32_t pathSize;
  std::uint32_t localeSize;
  ListedFile* next = nullptr;
};

/// One bundle: its locales and what serves each.
///
/// Files are added while the directory is read, by one thread; lookups come from any thread
/// afterwards. The first one makes the entries. They are never removed, so a pointer to one is
/// valid for the bundle's life.
template <class T>
class Bundle {
 public:
  /// @param name       must outlive the bundle
  /// @param pathStart  what the paths of all its files begin with; must outlive the bundle
  explicit Bundle(std::string_view name, std::string_view pathStart = {})
      : name_(name), pathStart_(pathStart) {}
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;

  std::string_view Name() const noexcept { return name_; }

  /// Registers a file for its locale and, where the locale has one, its alias with hyphens. Does
  /// nothing when the locale is taken: the first file wins.
  void AddFile(ListedFile& file) noexcept {
    (lastFile_ == nullptr ? firstFile_ : lastFile_->next) = &file;
    lastFile_ = &file;
  }

  /// Says that the files have been added in no order, and that the first by byte comparison of
  /// their paths wins, so that every machine answers alike. To be called once, when all files are
  /// there and before the first request, which does the work.
  void SortFiles() noexcept { sortsFiles_ = true; }

  /// Makes the English file the default of a bundle that has no file without a locale. To be called
  /// once, when all files are there.
  void CompleteDefault() noexcept { completesDefault_ = true; }

  /// The entry for `locale`, in any case.
  ///
  /// @param fallBack  whether shorter locales, and last the default, may answer. Each locale tried
  ///                  on the way is then remembered, spelled as asked, for the next request; a
  ///                  locale that nothing answers is not.
  /// @return null when nothing serves the locale
  ///
  /// Allocates only to remember, and in the first request.
  BundleBase<T>* Resolve(std::string_view locale, bool fallBack) KX_EXCLUDES(lock_) {
    const kx::CriticalSectionGuard guard(lock_);
    MakeEntries();
    kx::ParentLocales walk(locale);
    BundleBase<T>* found = Find(walk.Current());
    while (found == nullptr && fallBack && walk.Next()) found = Find(walk.Current());
    return found == nullptr ? nullptr : Remember(locale, walk.Current().size(), *found);
  }

 private:
  // The keys are the entries' own locales.
  using Entries =
      std::map<std::string_view, std::unique_ptr<BundleBase<T>>, kx::LessIgnoringAsciiCase>;

  /// Makes the entries of the files that have none yet. When it throws, the next call goes on.
  void MakeEntries() KX_REQUIRES(lock_) {
    if (sortsFiles_) PutFilesInOrder();
    while (lastDone_ != lastFile_) {
      const ListedFile* const next = lastDone_ == nullptr ? firstFile_ : lastDone_->next;
      MakeEntriesOf(*next);
      lastDone_ = next;
    }
    if (!completesDefault_) return;
    BundleBase<T>* const english = Find("") == nullptr ? Find("en") : nullptr;
    if (english != nullptr) {
      Add(entries_, std::make_unique<BundleRef<T>>(std::string(name_), std::string(),
                                                   *english->GetFile(), true));
    }
    completesDefault_ = false;
  }

  void PutFilesInOrder() KX_REQUIRES(lock_) {
    std::vector<ListedFile*> files;
    for (ListedFile* file = firstFile_; file != nullptr; file = file->next) files.push_back(file);
    std::sort(files.begin(), files.end(),
              [](const ListedFile* a, const ListedFile* b) { return a->Path() < b->Path(); });
    firstFile_ = lastFile_ = nullptr;
    for (ListedFile* file : files) {
      file->next = nullptr;
      AddFile(*file);
    }
    sortsFiles_ = false;
  }

  void MakeEntriesOf(const ListedFile& listed) KX_REQUIRES(lock_) {
    if (Find(listed.Locale()) != nullptr) return;
    Entries made;  // both or none
    const std::string locale(listed.Locale());
    auto owned = std::make_unique<BundleFile<T>>(std::string(name_), locale,
                                                 std::string(pathStart_).append(listed.Path()));
    BundleFile<T>& file = *owned;
    Add(made, std::move(owned));
    const std::string alias = kx::HyphenAlias(locale);
    if (!alias.empty()) {
      Add(made, std::make_unique<BundleRef<T>>(std::string(name_), alias, file, file.IsDefault()));
    }
    entries_.merge(made);  // an alias that is taken stays behind
    longestLocale_ = std::max(longestLocale_, locale.size());
  }

  BundleBase<T>* Find(std::string_view locale) const KX_REQUIRES(lock_) {
    // Not worth the search: a long locale has many parents, and none of them can be here.
    if (locale.size() > longestLocale_) return nullptr;
    const auto entry = entries_.find(locale);
    return entry == entries_.end() ? nullptr : entry->second.get();
  }

  static void Add(Entries& entries, std::unique_ptr<BundleBase<T>> entry) {
    const std::string_view locale = entry->Locale();
    entries.emplace(locale, std::move(entry));
  }

  /// Adds what `found` answered for `locale` and those of its parents that are longer than
  /// `foundLength` bytes; answers the entry for `locale`, or `found` where that is not remembered.
  BundleBase<T>* Remember(std::string_view locale, std::size_t foundLength, BundleBase<T>& found)
      KX_REQUIRES(lock_) {
    BundleBase<T>* answer = &found;
    for (kx::ParentLocales walk(locale); walk.Current().size() > foundLength; walk.Next()) {
      if (walk.Current().size() > kMaxRememberedLocaleBytes) continue;
      if (remembered_ == kMaxRememberedLocales) break;
      auto entry = std::make_unique<BundleRef<T>>(std::string(name_), std::string(walk.Current()),
                                                  *found.GetFile(), found.IsDefault());
      if (walk.Current().size() == locale.size()) answer = entry.get();
      Add(entries_, std::move(entry));
      longestLocale_ = std::max(longestLocale_, walk.Current().size());
      ++remembered_;
    }
    return answer;
  }

  const std::string_view name_;
  const std::string_view pathStart_;

  // Written by one thread while the directory is read, and afterwards under the lock.
  ListedFile* firstFile_ = nullptr;
  ListedFile* lastFile_ = nullptr;
  bool sortsFiles_ = false;
  bool completesDefault_ = false;

  kx::CriticalSection lock_;
  Entries entries_ KX_GUARDED_BY(lock_);
  const ListedFile* lastDone_ KX_GUARDED_BY(lock_) = nullptr;  ///< the last that has its entries
  std::size_t longestLocale_ KX_GUARDED_BY(lock_) = 0;
  std::size_t remembered_ KX_GUARDED_BY(lock_) = 0;
};

}  // namespace bnd

#endif  // KX_BUNDLES_BUNDLE_H
