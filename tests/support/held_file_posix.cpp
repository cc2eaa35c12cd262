#include "support/held_file.h"

#include <dlfcn.h>
#include <fcntl.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstring>

namespace {

std::atomic<const char*> g_heldPath = nullptr;

}  // namespace

// Stands in front of the system's. Were this process really to run out of files, the sanitizers
// would, too.
extern "C" int open(const char* path, int flags, ...) {
  std::va_list arguments;
  va_start(arguments, flags);
  const int mode = (flags & O_CREAT) != 0 ? va_arg(arguments, int) : 0;
  va_end(arguments);
  const char* const held = g_heldPath.load();
  if (held != nullptr && std::strcmp(held, path) == 0) {
    errno = EMFILE;
    return -1;
  }
  using Open = int (*)(const char*, int, ...);
  static const auto next = reinterpret_cast<Open>(::dlsym(RTLD_NEXT, "open"));
  return next(path, flags, mode);
}

struct HeldFile::State {
  std::string path;
};

HeldFile::HeldFile(const std::string& path) : state_(new State{path}) {
  g_heldPath.store(state_->path.c_str());
}

HeldFile::~HeldFile() { g_heldPath.store(nullptr); }
