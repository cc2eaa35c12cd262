#ifndef KX_TOOLS_COMMANDS_H
#define KX_TOOLS_COMMANDS_H

#include <string>
#include <vector>

enum ExitCode { kFound = 0, kNotFound = 1, kCouldNotRun = 2 };

/// What the command line asks for. All texts are UTF-8.
struct Request {
  std::string resources;
  std::string bundle;
  std::string locale;
  std::string key;
  std::vector<std::string> arguments;
  bool showKey = false;
  bool adminLocale = false;
};

/// Writes one line to standard error and answers the code.
ExitCode Fail(ExitCode code, const std::string& reason);

// One function for each command; they print to standard output.
ExitCode Get(const Request& request);
ExitCode Format(const Request& request);
ExitCode Label(const Request& request);
ExitCode Prompt(const Request& request);
ExitCode Directory(const Request& request);
ExitCode Info(const Request& request);
ExitCode Bundles(const Request& request);

#endif  // KX_TOOLS_COMMANDS_H
