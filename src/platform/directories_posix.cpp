#include "platform/directories.h"

#include <dirent.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <memory>

namespace {

struct CloseDirectory {
  void operator()(DIR* directory) const { ::closedir(directory); }
};

bool IsDirectory(DIR* directory, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return entry.d_type == DT_DIR;
  struct stat found;
  return ::fstatat(::dirfd(directory), entry.d_name, &found, 0) == 0 && S_ISDIR(found.st_mode);
}

bool IsDotName(const char* name) {
  return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

}  // namespace

int KxTraverseUnsorted(const char* directory, CKxTraverseCallback* callback) {
  const std::unique_ptr<DIR, CloseDirectory> open(::opendir(directory));
  if (open == nullptr) return -1;
  for (;;) {
    errno = 0;  // the end of the directory and an error answer alike
    const dirent* entry = ::readdir(open.get());
    if (entry == nullptr) return errno == 0 ? 0 : -1;
    if (IsDotName(entry->d_name)) continue;
    if (!callback->OnEntry(entry->d_name, IsDirectory(open.get(), *entry))) return 0;
  }
}

int KxMakeDir(const char* path, unsigned mode) { return ::mkdir(path, static_cast<mode_t>(mode)); }
