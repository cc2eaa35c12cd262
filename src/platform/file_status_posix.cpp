#include "platform/file_status_posix.h"

#include "platform/file_status.h"

namespace kx {
namespace {

constexpr std::int64_t kNanosecondsOfASecond = 1'000'000'000;

}  // namespace

void SetStatus(const struct stat& found, KxFileStatus& status) {
  status.modified = found.st_mtim.tv_sec;
  status.modifiedNanoseconds = static_cast<std::uint32_t>(found.st_mtim.tv_nsec);
  status.size = static_cast<std::uint64_t>(found.st_size);
  // Block devices carry the directory's bit too (they are 0x6000), hence the test of the kind.
  status.mode = S_ISDIR(found.st_mode) ? kKxModeDirectory : 0;
  status.device = static_cast<std::uint64_t>(found.st_dev);
  status.number = static_cast<std::uint64_t>(found.st_ino);
  status.changed = found.st_ctim.tv_sec * kNanosecondsOfASecond + found.st_ctim.tv_nsec;
}

}  // namespace kx

int KxStat(const char* path, KxFileStatus* status) {
  struct stat found;
  if (::stat(path, &found) != 0) return -1;
  kx::SetStatus(found, *status);
  return 0;
}

bool KxLeavesTheMachine(std::string_view /*directory*/, std::string_view /*path*/) { return false; }

bool KxIsPlainComponent(std::string_view component) { return component != ".."; }
