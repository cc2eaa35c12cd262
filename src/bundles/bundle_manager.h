#ifndef KX_BUNDLES_BUNDLE_MANAGER_H
#define KX_BUNDLES_BUNDLE_MANAGER_H

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "bundles/bundle.h"
#include "bundles/bundle_entries.h"
#include "platform/directories.h"
#include "platform/file_status.h"
#include "platform/key_hash.h"

namespace bnd {

/// All bundles of one directory. T is the translator's class.
///
/// Filled by one thread, by a traversal of the directory and CompleteDefaults; afterwards the table
/// of bundles is only read, so that lookups from any thread need no lock for it.
template <class T>
class BundleManager : public CKxTraverseCallback {
 public:
  explicit BundleManager(std::string root) : root_(std::move(root)) {}
  BundleManager(const BundleManager&) = delete;
  BundleManager& operator=(const BundleManager&) = delete;

  /// The directory that is traversed, as it was given.
  const std::string& Root() const noexcept { return root_; }

  void AddBundleFile(const std::string& root, const std::string& fileName,
                     const std::string& bundle, const std::string& locale) {
    std::string path = root + '/' + fileName;
    if (KxLeavesTheMachine(root, path)) return;
    FindOrAddBundle(bundle).AddFile(locale, std::move(path));
  }

  /// Gives each bundle its default. To be called once, after the traversal.
  void CompleteDefaults() {
    for (const auto& [name, bundle] : bundles_) bundle->CompleteDefault();
  }

  /// What serves a bundle (in its exact case) in a locale (in any case), with fallback; null when
  /// nothing does. The entry lives as long as this manager. Any thread.
  BundleBase<T>* FindEntry(const char* bundle, const char* locale) const {
    const auto found = bundles_.find(bundle);
    return found == bundles_.end() ? nullptr : found->second->Resolve(locale, true);
  }

 protected:
  ~BundleManager() = default;

 private:
  Bundle<T>& FindOrAddBundle(const std::string& name) {
    const auto found = bundles_.find(name);
    if (found != bundles_.end()) return *found->second;
    auto bundle = std::make_unique<Bundle<T>>(name);
    const std::string_view key = bundle->Name();
    return *bundles_.emplace(key, std::move(bundle)).first->second;
  }

  const std::string root_;
  // The keys are the bundles' own names.
  std::unordered_map<std::string_view, std::unique_ptr<Bundle<T>>, kx::NameHash> bundles_;
};

}  // namespace bnd

#endif  // KX_BUNDLES_BUNDLE_MANAGER_H
