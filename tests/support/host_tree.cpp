#include "support/host_tree.h"

#include "support/run_process.h"

namespace {

const char* const kLibraryVariables[] = {"TAVI_XLATE_ROOT", "TAVI_AGENT_ROOT",  "PWSVC_HOME",
                                         "TAVI_PROXY_ROOT", "TAVI_POLSRV_ROOT", "KXXLATE_LOG"};

void Copy(const std::filesystem::path& source, const std::filesystem::path& target) {
  std::filesystem::copy_file(source, target, std::filesystem::copy_options::overwrite_existing);
}

}  // namespace

std::string HostProgram() { return KXXLATE_HOST_PROGRAM; }

HostTree::HostTree() { SetWorkingDirectory("work"); }

HostTree::HostTree(const std::filesystem::path& directory) : TempTree(directory) {
  SetWorkingDirectory("work");
}

void HostTree::SetEnvironment(const std::string& name, const std::string& value) {
  environment_[name] = value;
}

void HostTree::SetWorkingDirectory(const std::string& relative) {
  MakeDirectory(relative);
  workingDirectory_ = relative;
}

HostRun HostTree::RunHostIn(const std::string& directory,
                            const std::vector<std::string>& arguments) const {
  return RunCopyIn(directory, HostProgram(), arguments);
}

HostRun HostTree::RunCopyIn(const std::string& directory, const std::string& program,
                            const std::vector<std::string>& arguments) const {
  return Run(CopyProgram(directory, program), arguments);
}

std::string HostTree::CopyProgram(const std::string& directory, const std::string& program) const {
  MakeDirectory(directory);
  const std::filesystem::path source = PathFromUtf8(program);
  const std::filesystem::path target = PathFromUtf8(Path(directory)) / source.filename();
  Copy(source, target);
  // Where the system looks for libraries in the program's folder.
  const std::filesystem::path library = PathFromUtf8(KXXLATE_LIBRARY_BESIDE_PROGRAMS);
  if (!library.empty()) Copy(library, target.parent_path() / library.filename());
  const std::u8string path = target.generic_u8string();
  return std::string(path.begin(), path.end());
}

HostRun HostTree::Run(const std::string& program, const std::vector<std::string>& arguments) const {
  ProcessStart start;
  start.program = program;
  start.arguments = arguments;
  start.workingDirectory = Path(workingDirectory_);
  start.environment = environment_;
  start.withoutVariables.assign(std::begin(kLibraryVariables), std::end(kLibraryVariables));
  start.outputFile = streams_.Path("output");
  start.errorFile = streams_.Path("errors");
  const int exitCode = RunProcess(start);
  return {exitCode, FromStandardStream(streams_.Read("output")),
          FromStandardStream(streams_.Read("errors"))};
}
