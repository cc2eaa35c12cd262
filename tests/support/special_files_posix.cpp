#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <stdexcept>
#include <system_error>

#include "support/special_files.h"
#include "support/temp_tree.h"

namespace {

/// Lets permissions be lifted or not for this thread, as far as it ever had the right. Becoming
/// another user would do as well, were it not for directories above that let no other user in.
bool LiftPermissions(bool lift) {
  constexpr __u32 kLifting = 1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH;
  __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct sets[_LINUX_CAPABILITY_U32S_3];
  if (::syscall(SYS_capget, &header, sets) != 0) return false;
  sets[0].effective &= ~kLifting;
  if (lift) sets[0].effective |= sets[0].permitted & kLifting;
  return ::syscall(SYS_capset, &header, sets) == 0;
}

}  // namespace

void MakeNamedPipe(const std::string& path) {
  if (::mkfifo(path.c_str(), 0666) != 0) throw std::runtime_error("cannot make " + path);
}

bool IsSuperUser() { return ::geteuid() == 0; }

Restricted::Restricted(const std::string& path, std::filesystem::perms permissions)
    : path_(PathFromUtf8(path)) {
  std::filesystem::permissions(path_, permissions);
  if (!LiftPermissions(false)) throw std::runtime_error("cannot give up what lifts permissions");
}

Restricted::~Restricted() {
  std::error_code ignored;  // the test has seen what it wanted
  LiftPermissions(true);
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
}
