#ifndef KX_TESTS_SUPPORT_RUN_PROCESS_H
#define KX_TESTS_SUPPORT_RUN_PROCESS_H

#include <map>
#include <string>
#include <vector>

/// What a process is started with. All texts are UTF-8.
struct ProcessStart {
  std::string program;  ///< full path
  std::vector<std::string> arguments;
  std::string workingDirectory;
  /// Added to this process's environment; an empty value is set, too.
  std::map<std::string, std::string> environment;
  std::vector<std::string> withoutVariables;  ///< removed from it first
  std::string outputFile;                     ///< receives standard output
  std::string errorFile;                      ///< receives standard error
};

/// Runs a process to its end.
///
/// @return its exit code; minus the signal's number when a signal ended it. Throws when it cannot
///         be started.
int RunProcess(const ProcessStart& start);

/// What a process wrote to a standard stream, from the bytes that arrived: on Windows its runtime
/// puts a carriage return in front of each line feed.
std::string FromStandardStream(const std::string& bytes);

#endif  // KX_TESTS_SUPPORT_RUN_PROCESS_H
