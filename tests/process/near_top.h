#ifndef KX_TESTS_PROCESS_NEAR_TOP_H
#define KX_TESTS_PROCESS_NEAR_TOP_H

#include <filesystem>
#include <stdexcept>

#include "support/special_files.h"

/// Whether a host near the top finds nothing in `directory`, which is above it.
inline bool IsEmptyToHosts(const std::filesystem::path& directory) {
  return !std::filesystem::exists(directory / "resources") &&
         !std::filesystem::exists(directory / "Language");
}

/// Where trees are made that have but one directory above them. The top itself is no directory to
/// the search, but nobody except the super-user makes trees there.
inline std::filesystem::path PlaceNearTheTop() {
  if (IsEmptyToHosts("/tmp")) return "/tmp";
  if (IsSuperUser()) return "/";
  throw std::runtime_error(
      "hosts near the top of the file system find the \"resources\" or \"Language\" in /tmp: "
      "rename it, "
      "or run this test as the super-user");
}

#endif  // KX_TESTS_PROCESS_NEAR_TOP_H
