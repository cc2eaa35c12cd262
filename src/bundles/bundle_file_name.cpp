#include "bundles/bundle_file_name.h"

#include <algorithm>

#include "platform/ascii_case.h"

namespace kx {
namespace {

constexpr std::string_view kSuffix = ".properties";
constexpr std::size_t kLanguageLength = 2;

}  // namespace

std::optional<BundleFileName> SplitBundleFileName(std::string_view fileName) {
  // Nearly all names are spelled so, and are compared at once: directories of many files are read
  // while a process starts.
  if (!fileName.ends_with(kSuffix) && !EndsWithIgnoringAsciiCase(fileName, kSuffix)) {
    return std::nullopt;
  }
  const std::string_view base = fileName.substr(0, fileName.size() - kSuffix.size());
  const std::size_t end = base.find('_');
  if (end == std::string_view::npos) return BundleFileName{base, {}};
  return BundleFileName{base.substr(0, end), base.substr(end + 1)};
}

std::string HyphenAlias(std::string_view locale) {
  if (locale.size() <= kLanguageLength || locale[kLanguageLength] != '_') return {};
  std::string alias(locale);
  std::replace(alias.begin() + kLanguageLength, alias.end(), '_', '-');
  return alias;
}

}  // namespace kx
