#ifndef KX_KXXLATE_LOCALES_HPP
#define KX_KXXLATE_LOCALES_HPP

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "locale_text.hpp"
#include "machine.hpp"
#include "resource_places.hpp"
#include "terminated.hpp"

namespace kx {
namespace detail {

/// The names of a directory's entries, sorted; of those that are directories, or of all others.
/// None when it cannot be read.
inline std::vector<std::string> EntriesOf(const std::string& directory, bool areDirectories) {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(PathOf(directory), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    std::error_code unknown;
    if (entry->is_directory(unknown) != areDirectories) continue;
    std::string name = TextOfPath(entry->path().filename());
    if (!name.empty()) names.push_back(std::move(name));
  }
  if (error) names.clear();
  std::sort(names.begin(), names.end());
  return names;
}

/// The locales of one bundle, found as the library finds them.
class InstalledLocales {
 public:
  InstalledLocales(std::string_view bundle, const ResourcePlaces& places) : bundle_(bundle) {
    if (bundle.empty()) return;
    if (places.hasBundles) AddPropertyFiles(places.bundles);
    // A bundle with a default answers everything, and no language file is read.
    if (!HasDefault()) AddLanguages(places.languages + '/');
  }

  std::vector<std::string> Take() {
    std::sort(found_.begin(), found_.end());
    return std::move(found_);
  }

 private:
  void AddPropertyFiles(const std::string& directory) {
    constexpr std::string_view kSuffix = ".properties";
    if (LeavesTheMachine(directory, directory + "/name")) return;
    for (const std::string& name : EntriesOf(directory, false)) {
      if (name.size() < kSuffix.size()) continue;
      const std::size_t size = name.size() - kSuffix.size();
      if (Lowered(std::string_view(name).substr(size)) != kSuffix) continue;
      const std::string_view base = std::string_view(name).substr(0, size);
      const std::size_t end = base.find('_');
      if (base.substr(0, end) != bundle_) continue;
      AddPropertyLocale(end == std::string_view::npos ? "" : base.substr(end + 1));
    }
  }

  /// The first file of a locale wins; which one that is the library's order tells, and here none
  /// asks.
  void AddPropertyLocale(std::string_view locale) {
    std::string lowered = Lowered(locale);
    std::string alias = lowered;
    if (alias.size() > 2 && alias[2] == '_') {
      std::replace(alias.begin() + 2, alias.end(), '_', '-');
    }
    if (!properties_.insert(std::move(lowered)).second) return;
    aliases_.insert(std::move(alias));
    if (!locale.empty()) found_.emplace_back(locale);
  }

  bool HasDefault() const { return IsProperty("") || IsProperty("en"); }

  bool IsProperty(const std::string& lowered) const {
    return properties_.count(lowered) != 0 || aliases_.count(lowered) != 0;
  }

  /// Whether a property file answers for the locale, by itself or by fallback.
  bool IsShadowed(const std::string& locale) const {
    const std::string lowered = Lowered(locale);
    for (std::string_view each = lowered; !each.empty(); each = ParentLocale(each)) {
      if (IsProperty(std::string(each))) return true;
    }
    return false;
  }

  void AddLanguages(const std::string& top) {
    for (const std::string& name : EntriesOf(top, true)) {
      const bool isAscii = std::none_of(name.begin(), name.end(),
                                        [](char c) { return static_cast<signed char>(c) < 0; });
      if (!isAscii || LanguageDirectoryOf(name) != Uppered(name) || IsShadowed(name)) continue;
      const std::string directory = top + Uppered(name) + '/';
      const bool isThere = IsReadable(directory + "(Common).lang") ||
                           (IsPlain(bundle_) && IsReadable(directory + bundle_ + ".lang"));
      const bool isNew = std::find(found_.begin(), found_.end(), name) == found_.end();
      if (isThere && isNew && !LeavesTheMachine(top.substr(0, top.size() - 1), directory)) {
        found_.push_back(name);
      }
    }
  }

  static bool IsPlain(std::string_view name) {
    for (;;) {
      const std::size_t end = name.find_first_of("/\\");
      // The suffix belongs to the last part.
      if (end == std::string_view::npos) return IsPlainComponent(std::string(name) + ".lang");
      if (!IsPlainComponent(name.substr(0, end))) return false;
      name.remove_prefix(end + 1);
    }
  }

  static bool IsReadable(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(PathOf(path), error) &&
           std::ifstream(PathOf(path)).is_open();
  }

  const std::string bundle_;
  std::set<std::string> properties_;  ///< the locales of the bundle's files, in small letters
  std::set<std::string> aliases_;     ///< the spellings with hyphens by which these are found, too
  std::vector<std::string> found_;
};

}  // namespace detail

/// The locales in which a bundle is installed, sorted, each as its file or directory spells it and
/// as CKxXlate::GetBundle finds it: "fr_CA" of agent_fr_CA.properties, "FR-CA" of
/// FR-CA/agent.lang. For kx::negotiate, and so that no stranger's locale reaches the library.
///
/// A bundle's default, which has no locale, is not among them: the empty locale asks for it. Where
/// it has one (or an "en" file), language files are not read for it and are not listed.
///
/// Looks at the disk in each call, where the library looked when it was loaded: above the
/// executable, in the environment, in the working directory. A host keeps the answer, and lists
/// anew when it has rolled out languages. Property files that came later are listed, but not
/// served by a library that is loaded. Throws std::bad_alloc only.
///
/// @param bundle  in its exact case
///
///     const std::vector<std::string> installed = kx::locales("agent");
template <class Bundle>
[[nodiscard]] std::vector<std::string> locales(const Bundle& bundle) {
  const detail::GivenText<Bundle> name(bundle);
  return detail::InstalledLocales(name.Get() == nullptr ? "" : name.Get(),
                                  detail::ResourcePlaces::Searched())
      .Take();
}

/// The same for a host that has named its own directory, both kinds of catalogue in it.
///
/// @param directory  UTF-8: what was passed to CKxXlate::SetResourceDirectory before the first
///                   language was looked up; docs/lang-files.md tells where languages lie else
template <class Bundle, class Directory>
[[nodiscard]] std::vector<std::string> locales(const Bundle& bundle, const Directory& directory) {
  const detail::GivenText<Bundle> name(bundle);
  const detail::GivenText<Directory> place(directory);
  if (name.Get() == nullptr || place.Get() == nullptr) return {};
  return detail::InstalledLocales(name.Get(), detail::ResourcePlaces::Given(place.Get())).Take();
}

}  // namespace kx

#endif  // KX_KXXLATE_LOCALES_HPP
