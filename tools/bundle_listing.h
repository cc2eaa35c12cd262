#ifndef KX_TOOLS_BUNDLE_LISTING_H
#define KX_TOOLS_BUNDLE_LISTING_H

#include <map>
#include <set>
#include <string>
#include <vector>

/// A bundle file whose texts nobody gets.
struct UnservedFile {
  std::string name;
  std::string
      servedBy;  ///< the file that its locale is served from; "" when its bundle has no name
};

/// The bundle files of one directory.
struct BundleListing {
  /// The locales of each bundle, as the names of the files that serve them spell them; "" is a
  /// bundle's default.
  std::map<std::string, std::set<std::string>> bundles;
  std::vector<UnservedFile> unserved;
};

/// Lists the bundle files of `directory` (UTF-8), by their names alone and by the library's rules.
BundleListing ListBundles(const std::string& directory);

/// The directory that the library finds by itself in this process; "" when there is none.
std::string FoundResourceDirectory();

/// Whether `path` (UTF-8) names a directory.
bool IsDirectory(const std::string& path);

#endif  // KX_TOOLS_BUNDLE_LISTING_H
