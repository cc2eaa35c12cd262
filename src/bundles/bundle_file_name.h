#ifndef KX_BUNDLES_BUNDLE_FILE_NAME_H
#define KX_BUNDLES_BUNDLE_FILE_NAME_H

#include <optional>
#include <string>
#include <string_view>

namespace kx {

/// What the name of a bundle file says. Points into that name.
struct BundleFileName {
  std::string_view bundle;  ///< everything before the first "_"; so a bundle's name never holds one
  std::string_view locale;  ///< everything behind it; empty for the bundle's default file
};

/// Splits a file name such as "agent_fr_CA.properties" (the suffix in any case); nothing when it
/// does not name a bundle file.
std::optional<BundleFileName> SplitBundleFileName(std::string_view fileName);

/// The spelling with hyphens by which a locale is found as well: "fr-CA" for "fr_CA". Empty for a
/// locale without a "_" as its third character.
std::string HyphenAlias(std::string_view locale);

}  // namespace kx

#endif  // KX_BUNDLES_BUNDLE_FILE_NAME_H
