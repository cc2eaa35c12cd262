#ifndef KX_TOOLS_BUNDLE_LISTING_H
#define KX_TOOLS_BUNDLE_LISTING_H

#include <map>
#include <set>
#include <string>

/// The locales of each bundle of one directory; "" is a bundle's default file.
using BundleListing = std::map<std::string, std::set<std::string>>;

/// Lists the bundle files of `directory` (UTF-8), by their names alone.
BundleListing ListBundles(const std::string& directory);

/// The directory that the library finds by itself in this process; "" when there is none.
std::string FoundResourceDirectory();

/// Whether `path` (UTF-8) names a directory.
bool IsDirectory(const std::string& path);

#endif  // KX_TOOLS_BUNDLE_LISTING_H
