#include "bundle_listing.h"

#include "bundles/bundle_file_name.h"
#include "bundles/bundle_manager.h"
#include "bundles/resource_directory.h"
#include "platform/directories.h"
#include "platform/file_status.h"

namespace {

/// Stands for a translator: the registry is asked for files alone.
struct NoTranslator {
  void Release() {}
};

/// Registers files as the library does, and notes which of them serve their locales.
class Lister final : public bnd::BundleManager<NoTranslator> {
 public:
  Lister(const std::string& directory, BundleListing& listing)
      : BundleManager(directory), listing_(listing) {}

  bool OnEntry(const char* name, bool isDirectory) override {
    if (isDirectory) return true;
    const auto parts = kx::SplitBundleFileName(name);
    if (!parts) return true;
    if (parts->bundle.empty()) {
      listing_.unserved.push_back({name, ""});
      return true;
    }
    const std::string bundle(parts->bundle);
    const std::string locale(parts->locale);
    AddBundleFile(name, bundle, locale);
    auto* entry = FindEntry(bundle, locale);
    const std::string server = entry == nullptr ? "" : NameOf(*entry);
    if (server == name) {
      listing_.bundles[bundle].insert(locale);
    } else {
      listing_.unserved.push_back({name, server});
    }
    return true;
  }

 private:
  /// The name of the file behind an entry.
  std::string NameOf(bnd::BundleBase<NoTranslator>& entry) const {
    return entry.GetFile()->Path().substr(Root().size() + 1);
  }

  BundleListing& listing_;
};

}  // namespace

BundleListing ListBundles(const std::string& directory) {
  BundleListing listing;
  Lister lister(directory, listing);
  KxTraverseDirectory(directory.c_str(), &lister);
  return listing;
}

std::string FoundResourceDirectory() {
  std::string directory;
  std::string root;
  kx::FindResourceDirectory("resources", directory, root);
  return directory;
}

bool IsDirectory(const std::string& path) { return KxIsDirectory(path.c_str()); }
