#include "support/held_file.h"

#include <sys/resource.h>

#include <stdexcept>

namespace {

rlim_t SetMostFiles(rlim_t most) {
  rlimit limit;
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) throw std::runtime_error("no limit of files");
  const rlim_t before = limit.rlim_cur;
  limit.rlim_cur = most;
  if (::setrlimit(RLIMIT_NOFILE, &limit) != 0) throw std::runtime_error("cannot limit files");
  return before;
}

}  // namespace

HeldFile::HeldFile(const std::string& /*path*/)
    : state_(static_cast<std::intptr_t>(SetMostFiles(0))) {}

HeldFile::~HeldFile() { SetMostFiles(static_cast<rlim_t>(state_)); }
