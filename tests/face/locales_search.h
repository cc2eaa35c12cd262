#ifndef KX_TESTS_FACE_LOCALES_SEARCH_H
#define KX_TESTS_FACE_LOCALES_SEARCH_H

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "support/host_tree.h"

/// Trees in which each directory of catalogues has a locale of its own, so that the locales tell
/// where they were found: by the headers and, in the same process, by the library.
class LocalesSearch : public testing::Test {
 protected:
  LocalesSearch() = default;

  /// With its tree directly in `directory`.
  explicit LocalesSearch(const std::filesystem::path& directory) : tree_(directory) {}

  /// Makes a "resources" in `directory` with a property file of the locale.
  void Provide(const std::string& directory, const std::string& locale) {
    tree_.Write(directory + "/resources/agent_" + locale + ".properties",
                "Origin=" + locale + "\n");
    all_.insert(locale);
  }

  /// Makes a language file of the locale in `directory`.
  void ProvideLanguage(const std::string& directory, const std::string& locale) {
    tree_.Write(directory + "/" + locale + "/agent.lang",
                "Name x\n\nKey Origin\nValue " + locale + "\n");
    all_.insert(locale);
  }

  /// @param locales  each followed by a blank
  void ExpectFound(const std::string& directory, const std::string& locales) {
    std::vector<std::string> arguments = {"agent"};
    arguments.insert(arguments.end(), all_.begin(), all_.end());
    const HostRun run = tree_.RunCopyIn(directory, KXXLATE_FACE_HOST, arguments);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(locales + "\n" + locales + "\n", run.output);
    EXPECT_EQ("", run.errors);
  }

  HostTree tree_;
  std::set<std::string> all_;
};

#endif  // KX_TESTS_FACE_LOCALES_SEARCH_H
