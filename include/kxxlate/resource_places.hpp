#ifndef KX_KXXLATE_RESOURCE_PLACES_HPP
#define KX_KXXLATE_RESOURCE_PLACES_HPP

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "machine.hpp"

namespace kx::detail {

/// Where the library looks for catalogues. Found anew by the same search that the library made
/// when it was loaded, since nothing tells its outcome: for a host that has changed neither its
/// environment nor its working directory they are the same.
class ResourceSearch {
 public:
  std::string directory;  ///< UTF-8; empty when there is none
  std::string root;       ///< the directory that it lies in

  /// Answers whether the directory is there.
  bool Find(std::string_view name) {
    if (FindAboveExecutable(name) || FindInEnvironment(name) || FindInWorkingDirectory(name)) {
      return true;
    }
    directory.clear();
    return false;
  }

 private:
  static bool IsDirectory(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_directory(PathOf(path), error);
  }

  static bool IsAbsolute(std::string_view path) {
    if (path.empty()) return false;
    return path[0] == '/' || path[0] == '\\' || (path.size() > 1 && path[1] == ':');
  }

  bool IsUnder(std::string_view base, std::string_view name) {
    if (base.empty()) return false;
    if (base.back() == '/' || base.back() == '\\') base.remove_suffix(1);
    directory = std::string(base).append("/").append(name);
    return IsDirectory(directory);
  }

  bool FindAboveExecutable(std::string_view name) {
    const std::string executable = ExecutablePath();
    if (!IsAbsolute(executable)) return false;
    root = executable;
    for (int level = 0; level < 4; ++level) {
      const std::size_t cut = root.find_last_of("/\\");
      if (cut == std::string::npos) return false;
      root.resize(cut);
      if (IsUnder(root, name)) return true;
    }
    return false;
  }

  bool FindInEnvironment(std::string_view name) {
    for (const char* const variable : {"TAVI_XLATE_ROOT", "TAVI_AGENT_ROOT", "PWSVC_HOME",
                                       "TAVI_PROXY_ROOT", "TAVI_POLSRV_ROOT"}) {
      std::string value = EnvironmentVariable(variable);
      if (!IsUnder(value, name)) continue;
      root = std::move(value);
      return true;
    }
    return false;
  }

  bool FindInWorkingDirectory(std::string_view name) {
    if (!TrustsCaller()) return false;
    directory = std::string("./").append(name);
    if (!IsDirectory(directory)) return false;
    root = ".";
    return true;
  }
};

/// The directories of both kinds of catalogue.
struct ResourcePlaces {
  bool hasBundles = false;
  std::string bundles;
  std::string languages;  ///< joined to names by "/"

  static ResourcePlaces Searched() {
    ResourceSearch search;
    const bool isFound = search.Find("resources");
    ResourcePlaces places = {isFound, search.directory, search.directory};
    // Only when the search left no root at all is there one for languages alone.
    if (search.root.empty()) {
      search.Find("Language");
      places.languages = search.directory;
    }
    return places;
  }

  /// What a host passed to CKxXlate::SetResourceDirectory.
  static ResourcePlaces Given(std::string_view directory) {
    return {true, std::string(directory), std::string(directory)};
  }
};

}  // namespace kx::detail

#endif  // KX_KXXLATE_RESOURCE_PLACES_HPP
