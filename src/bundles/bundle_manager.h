#ifndef KX_BUNDLES_BUNDLE_MANAGER_H
#define KX_BUNDLES_BUNDLE_MANAGER_H

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>

#include "bundles/bundle.h"
#include "bundles/bundle_entries.h"
#include "platform/directories.h"
#include "platform/file_status.h"
#include "platform/hash_seed.h"
#include "texts/folded_key.h"
#include "texts/growing_table.h"
#include "texts/text_arena.h"

namespace bnd {

/// All bundles of one directory. T is the translator's class.
///
/// Filled by one thread, by a traversal of the directory and CompleteDefaults; afterwards the table
/// of bundles is only read, so that lookups from any thread need no lock for it.
template <class T>
class BundleManager : public CKxTraverseCallback {
 public:
  explicit BundleManager(std::string root)
      : root_(std::move(root)),
        pathStart_(root_ + '/'),
        leavesTheMachine_(KxLeavesTheMachine(root_, pathStart_ + "name")) {}
  BundleManager(const BundleManager&) = delete;
  BundleManager& operator=(const BundleManager&) = delete;

  /// The directory that is traversed, as it was given.
  const std::string& Root() const noexcept { return root_; }

  /// Registers a file of the directory for a bundle and locale. Copies the names, and leaves all
  /// the rest to the first request for the bundle: nearly all files of a large directory are never
  /// asked for.
  void AddBundleFile(std::string_view fileName, std::string_view bundle, std::string_view locale) {
    if (leavesTheMachine_) return;
    const auto size = [](std::string_view text) { return static_cast<std::uint32_t>(text.size()); };
    FindOrAddBundle(bundle).AddFile(files_.emplace_back(
        ListedFile{Keep(fileName, locale).data(), size(fileName), size(locale)}));
  }

  /// Lets the order of the names tell which file comes first, rather than that in which they were
  /// added. To be called once, after a traversal in no order and before the first request.
  void SortFiles() {
    for (Bundle<T>& bundle : bundles_) bundle.SortFiles();
  }

  /// Gives each bundle its default. To be called once, after the traversal.
  void CompleteDefaults() {
    for (Bundle<T>& bundle : bundles_) bundle.CompleteDefault();
  }

  /// What serves a bundle (in its exact case) in a locale (in any case), with fallback; null when
  /// nothing does. The entry lives as long as this manager. Any thread.
  BundleBase<T>* FindEntry(std::string_view bundle, std::string_view locale) const {
    Bundle<T>* const found = FindBundle(bundle, Hash(bundle));
    return found == nullptr ? nullptr : found->Resolve(locale, true);
  }

 protected:
  ~BundleManager() = default;

 private:
  std::uint64_t Hash(std::string_view bundle) const {
    return kx::HashKey<kx::ExactCase>(bundle, seed_);
  }

  Bundle<T>* FindBundle(std::string_view name, std::uint64_t hash) const {
    return byName_.Find(hash, [name](const Bundle<T>* bundle) { return bundle->Name() == name; });
  }

  Bundle<T>& FindOrAddBundle(std::string_view name) {
    const std::uint64_t hash = Hash(name);
    if (Bundle<T>* const found = FindBundle(name, hash)) return *found;
    byName_.Reserve();
    Bundle<T>& bundle = bundles_.emplace_back(Keep(name, {}), pathStart_);
    byName_.Add(&bundle, hash);
    return bundle;
  }

  /// Both texts, in one copy that lives as long as this manager.
  std::string_view Keep(std::string_view text, std::string_view other) {
    const std::size_t size = text.size() + other.size();
    if (size == 0) return "";  // for which no memory is taken
    char* const place = names_.Take(size);
    text.copy(place, text.size());
    other.copy(place + text.size(), other.size());
    return {place, size};
  }

  const std::string root_;
  const std::string pathStart_;
  const bool leavesTheMachine_;
  const kx::HashSeed seed_ = kx::ProcessHashSeed();

  kx::TextArena names_;
  std::deque<ListedFile> files_;
  std::deque<Bundle<T>> bundles_;
  kx::GrowingTable<Bundle<T>> byName_;
};

}  // namespace bnd

#endif  // KX_BUNDLES_BUNDLE_MANAGER_H
