#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cstdarg>
#include <cstring>
#include <utility>

#include "support/file_questions.h"

namespace {

std::string& Beginning() {
  static std::string beginning;
  return beginning;
}

FileQuestions g_counted;

void Count(const char* path, int& questions) {
  const std::string& beginning = Beginning();
  if (!beginning.empty() && std::strncmp(path, beginning.c_str(), beginning.size()) == 0) {
    ++questions;
  }
}

}  // namespace

void CountFileQuestions(const std::string& beginning) {
  g_counted = {};
  Beginning() = beginning;
}

FileQuestions CountedFileQuestions() {
  Beginning().clear();
  return std::exchange(g_counted, {});
}

int stat(const char* path, struct stat* status) noexcept {
  using Function = int(const char*, struct stat*);
  static auto* const next = reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, "stat"));
  Count(path, g_counted.statuses);
  return next(path, status);
}

int open(const char* path, int flags, ...) {
  using Function = int(const char*, int, ...);
  static auto* const next = reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, "open"));
  Count(path, g_counted.opens);
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return next(path, flags, mode);
}
