#ifndef KX_TESTS_PROCESS_RESOURCE_SEARCH_H
#define KX_TESTS_PROCESS_RESOURCE_SEARCH_H

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/host_tree.h"

/// So deep that all four directories that the search looks at above a host lie in the tree.
inline constexpr char kHostDirectory[] = "product/a/b/c/d";

/// Lets hosts find texts in a tree, and tells from where a host got its own.
class ResourceSearch : public testing::Test {
 protected:
  ResourceSearch() = default;

  /// With its tree directly in `directory`.
  explicit ResourceSearch(const std::filesystem::path& directory) : tree_(directory) {}

  /// Makes a "resources" in `directory`, whose bundle tells that it was this one.
  void Provide(const std::string& directory) {
    tree_.Write(directory + "/resources/agent_fr.properties", "Origin=" + directory + "\n");
  }

  void ExpectOrigin(const std::string& origin) {
    const HostRun run = tree_.RunHostIn(kHostDirectory, {"text", "agent", "fr", "Origin"});
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(origin + "\n", run.output);
    EXPECT_EQ("", run.errors);
  }

  HostTree tree_;
};

#endif  // KX_TESTS_PROCESS_RESOURCE_SEARCH_H
