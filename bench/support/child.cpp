#include "support/child.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "support/tree.h"

namespace bench {

namespace {

const char kRootVariable[] = "TAVI_XLATE_ROOT=";

/// This process's environment, with another root for the child.
std::vector<std::string> EnvironmentOf(const Child& child) {
  std::vector<std::string> environment;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    if (std::strncmp(*entry, kRootVariable, sizeof kRootVariable - 1) != 0) {
      environment.emplace_back(*entry);
    }
  }
  const std::string root = TreePath(child.root);
  environment.push_back(kRootVariable + root);
  return environment;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

/// Starts a child whose standard output goes to `output`.
pid_t Start(const Child& child, int output) {
  const std::filesystem::path beside = std::filesystem::read_symlink("/proc/self/exe");
  std::vector<std::string> arguments = {(beside.parent_path() / child.program).string()};
  arguments.insert(arguments.end(), child.arguments.begin(), child.arguments.end());
  std::vector<std::string> environment = EnvironmentOf(child);
  const std::vector<char*> argumentPointers = Pointers(arguments);
  const std::vector<char*> environmentPointers = Pointers(environment);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  pid_t process = 0;
  const int failure = posix_spawn(&process, argumentPointers[0], &actions, nullptr,
                                  argumentPointers.data(), environmentPointers.data());
  posix_spawn_file_actions_destroy(&actions);
  if (failure != 0) throw std::runtime_error("cannot start " + arguments[0]);
  return process;
}

void WaitFor(pid_t process, const Child& child) {
  int status = 0;
  waitpid(process, &status, 0);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    throw std::runtime_error(child.program + " failed");
  }
}

std::string ReadToEnd(int pipe) {
  std::string written;
  char part[256];
  for (ssize_t got = 0; (got = read(pipe, part, sizeof part)) > 0;) {
    written.append(part, static_cast<std::size_t>(got));
  }
  close(pipe);
  return written;
}

/// Runs `measure` each iteration; what it answers is the iteration's time.
template <typename Measure>
void EachIteration(benchmark::State& state, Measure measure) {
  try {
    for (auto _ : state) state.SetIterationTime(measure());
  } catch (const std::runtime_error& error) {
    state.SkipWithError(error.what());
  }
}

}  // namespace

double NumberFrom(const Child& child) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("cannot make a pipe");
  const pid_t process = Start(child, ends[1]);
  close(ends[1]);
  const std::string written = ReadToEnd(ends[0]);
  WaitFor(process, child);
  return std::strtod(written.c_str(), nullptr);
}

void MeasureTold(benchmark::State& state, const Child& child) {
  EachIteration(state, [&] { return NumberFrom(child); });
}

void MeasureWhole(benchmark::State& state, const Child& child) {
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  EachIteration(state, [&] {
    const auto begin = std::chrono::steady_clock::now();
    WaitFor(Start(child, nowhere), child);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  });
  close(nowhere);
}

void MeasureCount(benchmark::State& state, const Child& child) {
  EachIteration(state, [&] {
    state.counters["count"] = NumberFrom(child);
    return 1e-9;
  });
}

}  // namespace bench
