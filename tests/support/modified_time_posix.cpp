#include "support/modified_time.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <stdexcept>

void SetModifiedTime(const std::string& path, std::chrono::nanoseconds since1970) {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(since1970);
  const timespec modified = {seconds.count(), (since1970 - seconds).count()};
  const timespec times[] = {modified, modified};
  if (::utimensat(AT_FDCWD, path.c_str(), times, 0) != 0) {
    throw std::runtime_error("cannot set the time of " + path);
  }
}
