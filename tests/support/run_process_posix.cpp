#include "support/run_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

namespace {

std::vector<std::string> Environment(const ProcessStart& start) {
  std::vector<std::string> result;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string variable(*entry);
    const std::string name = variable.substr(0, variable.find('='));
    const bool removed = std::find(start.withoutVariables.begin(), start.withoutVariables.end(),
                                   name) != start.withoutVariables.end();
    if (!removed && start.environment.count(name) == 0) result.push_back(variable);
  }
  for (const auto& [name, value] : start.environment) result.push_back(name + '=' + value);
  return result;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

int RunProcess(const ProcessStart& start) {
  std::vector<std::string> arguments = start.arguments;
  arguments.insert(arguments.begin(), start.program);
  std::vector<std::string> environment = Environment(start);

  constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, start.outputFile.c_str(), kFlags, 0600);
  posix_spawn_file_actions_addopen(&actions, 2, start.errorFile.c_str(), kFlags, 0600);
  posix_spawn_file_actions_addchdir_np(&actions, start.workingDirectory.c_str());
  pid_t process = 0;
  const int error = posix_spawn(&process, start.program.c_str(), &actions, nullptr,
                                Pointers(arguments).data(), Pointers(environment).data());
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw std::runtime_error("cannot start " + start.program);

  int status = 0;
  ::waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

std::string FromStandardStream(const std::string& bytes) { return bytes; }
