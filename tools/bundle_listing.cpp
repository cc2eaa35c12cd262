#include "bundle_listing.h"

#include "bundles/bundle_file_name.h"
#include "bundles/resource_directory.h"
#include "platform/directories.h"
#include "platform/file_status.h"

namespace {

class Lister final : public CKxTraverseCallback {
 public:
  explicit Lister(BundleListing& listing) : listing_(listing) {}

  bool OnEntry(const char* name, bool isDirectory) override {
    if (isDirectory) return true;
    if (const auto parts = kx::SplitBundleFileName(name)) {
      listing_[parts->bundle].insert(parts->locale);
    }
    return true;
  }

 private:
  BundleListing& listing_;
};

}  // namespace

BundleListing ListBundles(const std::string& directory) {
  BundleListing listing;
  Lister lister(listing);
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
