#ifndef KX_TESTS_SUPPORT_FAKE_MACHINE_H
#define KX_TESTS_SUPPORT_FAKE_MACHINE_H

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "bundles/resource_directory.h"

/// A machine made up by a test. Notes what it is asked.
class FakeMachine final : public kx::SearchSources {
 public:
  const char* ExecutablePath() override { return executable ? executable->c_str() : nullptr; }

  const char* Environment(const char* name) override {
    variablesAsked.emplace_back(name);
    const auto found = variables.find(name);
    if (found == variables.end()) return nullptr;
    value_ = found->second;  // the next call overwrites it, as it may on a real machine
    return value_.c_str();
  }

  bool IsDirectory(const char* path) override {
    pathsAsked.emplace_back(path);
    return directories.count(path) != 0;
  }

  bool TrustsWorkingDirectory() override { return trustsWorkingDirectory; }

  std::optional<std::string> executable;
  std::map<std::string, std::string> variables;
  std::set<std::string> directories;
  bool trustsWorkingDirectory = true;

  std::vector<std::string> pathsAsked;
  std::vector<std::string> variablesAsked;

 private:
  std::string value_;
};

#endif  // KX_TESTS_SUPPORT_FAKE_MACHINE_H
