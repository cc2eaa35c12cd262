#ifndef KX_TESTS_SUPPORT_HOST_TREE_H
#define KX_TESTS_SUPPORT_HOST_TREE_H

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/temp_tree.h"

/// What a host did.
struct HostRun {
  int exitCode;
  std::string output;
  std::string errors;
};

/// A directory tree in which hosts of the library run, each as a process of its own, because the
/// library looks at its executable's place, the environment and the working directory while it is
/// loaded.
///
/// None of the variables that the library reads is set, and the working directory is an empty one
/// ("work"), unless a test says otherwise.
class HostTree : public TempTree {
 public:
  HostTree();

  /// Directly in `directory`.
  explicit HostTree(const std::filesystem::path& directory);

  void SetEnvironment(const std::string& name, const std::string& value);

  /// @param relative  a directory of the tree, made when missing
  void SetWorkingDirectory(const std::string& relative);

  /// Copies the host program into a directory of the tree and runs the copy there.
  ///
  /// @param arguments  steps for the host: see process/xlate_host.cpp
  HostRun RunHostIn(const std::string& directory, const std::vector<std::string>& arguments) const;

  /// The same for another program, given by its full path.
  HostRun RunCopyIn(const std::string& directory, const std::string& program,
                    const std::vector<std::string>& arguments) const;

  /// Copies a program into a directory of the tree and answers the copy's full path.
  std::string CopyProgram(const std::string& directory, const std::string& program) const;

  /// Runs a program where it lies.
  HostRun Run(const std::string& program, const std::vector<std::string>& arguments) const;

 private:
  std::map<std::string, std::string> environment_;
  std::string workingDirectory_ = "work";
  TempTree streams_;
};

/// The full path of the host program that the build made.
std::string HostProgram();

#endif  // KX_TESTS_SUPPORT_HOST_TREE_H
