#ifndef KX_TESTS_PROCESS_LANGUAGE_DIRECTORY_H
#define KX_TESTS_PROCESS_LANGUAGE_DIRECTORY_H

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/host_tree.h"

/// A file with one text, whose key is K.
inline std::string File(const std::string& text) { return "Name n\n\nKey K\nValue " + text + "\n"; }

inline const std::string kNoFrench = "No \"FR (agent)\" files found, trying EN.\n";
inline const std::vector<std::string> kLookUp = {"text", "agent", "fr", "K"};

inline std::vector<std::string> Steps(const std::vector<std::vector<std::string>>& parts) {
  std::vector<std::string> steps;
  for (const auto& part : parts) steps.insert(steps.end(), part.begin(), part.end());
  return steps;
}

/// Lets hosts look for language files in a tree.
class LanguageDirectory : public testing::Test {
 protected:
  LanguageDirectory() = default;

  /// With its tree directly in `directory`.
  explicit LanguageDirectory(const std::filesystem::path& directory) : tree_(directory) {}

  void Provide(const std::string& directory) {
    tree_.Write(directory + "/FR/agent.lang", File(directory));
  }

  void ExpectOutput(const std::string& hostDirectory, const std::vector<std::string>& steps,
                    const std::string& output) {
    const HostRun run = tree_.RunHostIn(hostDirectory, steps);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(output, run.output);
    EXPECT_EQ("", run.errors);
  }

  std::vector<std::string> Use(const std::string& directory) const {
    return {"use", tree_.Path(directory)};
  }

  HostTree tree_;
};

#endif  // KX_TESTS_PROCESS_LANGUAGE_DIRECTORY_H
