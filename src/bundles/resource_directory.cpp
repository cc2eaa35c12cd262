#include "bundles/resource_directory.h"

#include <utility>

#include "platform/caller_trust.h"
#include "platform/environment.h"
#include "platform/executable_path.h"
#include "platform/file_status.h"

namespace kx {
namespace {

constexpr int kExecutableLevels = 4;

constexpr const char* kVariables[] = {"TAVI_XLATE_ROOT", "TAVI_AGENT_ROOT", "PWSVC_HOME",
                                      "TAVI_PROXY_ROOT", "TAVI_POLSRV_ROOT"};

bool IsSeparator(char c) { return c == '/' || c == '\\'; }

bool IsAbsolute(const std::string& path) {
  return !path.empty() && (IsSeparator(path[0]) || (path.size() > 1 && path[1] == ':'));
}

bool SearchAboveExecutable(SearchSources& sources, const char* subdirectory, std::string& directory,
                           std::string& root) {
  const char* path = sources.ExecutablePath();
  if (path == nullptr || !IsAbsolute(path)) return false;
  root = path;
  for (int level = 0; level < kExecutableLevels; ++level) {
    const std::size_t cut = root.find_last_of("/\\");
    if (cut == std::string::npos) return false;
    root.resize(cut);
    if (IsDirectoryUnder(sources, root.c_str(), subdirectory, directory)) return true;
  }
  return false;
}

bool SearchEnvironment(SearchSources& sources, const char* subdirectory, std::string& directory,
                       std::string& root) {
  for (const char* variable : kVariables) {
    const char* value = sources.Environment(variable);
    if (IsDirectoryUnder(sources, value, subdirectory, directory)) {
      root = value;
      return true;
    }
  }
  return false;
}

bool SearchWorkingDirectory(SearchSources& sources, const char* subdirectory,
                            std::string& directory, std::string& root) {
  if (!sources.TrustsWorkingDirectory()) return false;
  directory.assign("./").append(subdirectory);
  if (!sources.IsDirectory(directory.c_str())) return false;
  root = ".";
  return true;
}

class ThisMachine final : public SearchSources {
 public:
  const char* ExecutablePath() override { return executable_.Path(); }
  const char* Environment(const char* name) override { return environment_.set(name); }
  bool IsDirectory(const char* path) override { return KxIsDirectory(path); }
  bool TrustsWorkingDirectory() override { return KxTrustsWorkingDirectory(); }

 private:
  CKxExecutablePath executable_;
  CKxGetEnv environment_;
};

}  // namespace

bool IsDirectoryUnder(SearchSources& sources, const char* base, const char* subdirectory,
                      std::string& joined) {
  if (base == nullptr || *base == '\0') return false;
  joined = base;
  if (IsSeparator(joined.back())) joined.pop_back();
  if (subdirectory != nullptr) joined.append("/").append(subdirectory);
  return sources.IsDirectory(joined.c_str());
}

bool FindResourceDirectory(SearchSources& sources, const char* subdirectory, std::string& directory,
                           std::string& root) {
  if (SearchAboveExecutable(sources, subdirectory, directory, root)) return true;
  const char* relative = IsSeparator(*subdirectory) ? subdirectory + 1 : subdirectory;
  if (SearchEnvironment(sources, relative, directory, root)) return true;
  if (SearchWorkingDirectory(sources, relative, directory, root)) return true;
  directory.clear();
  return false;
}

bool FindResourceDirectory(const char* subdirectory, std::string& directory, std::string& root) {
  ThisMachine machine;
  return FindResourceDirectory(machine, subdirectory, directory, root);
}

bool ResourceLocation::Locate() {
  std::string directory;
  const bool found = FindResourceDirectory("resources", directory, root_);
  SetDirectory(std::move(directory));
  return found;
}

std::string ResourceLocation::Directory() const {
  const CriticalSectionGuard guard(lock_);
  return directory_;
}

void ResourceLocation::SetDirectory(std::string directory) {
  const CriticalSectionGuard guard(lock_);
  directory_ = std::move(directory);
}

}  // namespace kx
