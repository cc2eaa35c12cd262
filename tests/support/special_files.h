#ifndef KX_TESTS_SUPPORT_SPECIAL_FILES_H
#define KX_TESTS_SUPPORT_SPECIAL_FILES_H

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "support/temp_tree.h"

// What std::filesystem cannot make or tell.

/// Makes a pipe with a name. Whoever opens it in the ordinary way waits for the other end.
inline void MakeNamedPipe(const std::string& path) {
  if (::mkfifo(path.c_str(), 0666) != 0) throw std::runtime_error("cannot make " + path);
}

/// Whether this process may do anything, whatever the permissions of a file say.
inline bool IsSuperUser() { return ::geteuid() == 0; }

/// While it lives, a file or directory has permissions (the same for all users) that bind this
/// process, too: the super-user becomes another user meanwhile.
class Restricted {
 public:
  Restricted(const std::string& path, std::filesystem::perms permissions)
      : path_(PathFromUtf8(path)), isSuperUser_(IsSuperUser()) {
    std::filesystem::permissions(path_, permissions);
    constexpr uid_t kNobody = 65534;
    if (isSuperUser_ && ::seteuid(kNobody) != 0) throw std::runtime_error("cannot change the user");
  }
  ~Restricted() {
    std::error_code ignored;  // the test has seen what it wanted
    if (isSuperUser_ && ::seteuid(0) != 0) return;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
  }
  Restricted(const Restricted&) = delete;
  Restricted& operator=(const Restricted&) = delete;

 private:
  const std::filesystem::path path_;
  const bool isSuperUser_;
};

#endif  // KX_TESTS_SUPPORT_SPECIAL_FILES_H
