#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>
#include <system_error>

#include "support/special_files.h"
#include "support/temp_tree.h"

void MakeNamedPipe(const std::string& path) {
  if (::mkfifo(path.c_str(), 0666) != 0) throw std::runtime_error("cannot make " + path);
}

bool IsSuperUser() { return ::geteuid() == 0; }

Restricted::Restricted(const std::string& path, std::filesystem::perms permissions)
    : path_(PathFromUtf8(path)), isSuperUser_(IsSuperUser()) {
  std::filesystem::permissions(path_, permissions);
  constexpr uid_t kNobody = 65534;
  if (isSuperUser_ && ::seteuid(kNobody) != 0) throw std::runtime_error("cannot change the user");
}

Restricted::~Restricted() {
  std::error_code ignored;  // the test has seen what it wanted
  if (isSuperUser_ && ::seteuid(0) != 0) return;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
}
