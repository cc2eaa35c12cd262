#ifndef KX_TESTS_SUPPORT_SET_USER_ID_POSIX_H
#define KX_TESTS_SUPPORT_SET_USER_ID_POSIX_H

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "support/host_tree.h"

// Programs that run with the rights of another user than their caller. Only the super-user can make
// them, in a tree where other users come, wherever the directory for temporary files is: "/tmp".

inline void MakeProgramOfAnotherUser(const std::string& path, bool setUserId) {
  constexpr uid_t kNobody = 65534;
  constexpr gid_t kSameGroup = static_cast<gid_t>(-1);
  if (::chown(path.c_str(), kNobody, kSameGroup) != 0 ||
      ::chmod(path.c_str(), setUserId ? 04755 : 0755) != 0) {
    throw std::runtime_error("cannot give away " + path);
  }
}

/// Whether set-user-ID has an effect where the tree lies: mounts and containers can switch it off.
inline bool IsSetUserIdHonoured(const HostTree& tree) {
  const std::string probe = tree.CopyProgram("probe", "/usr/bin/id");
  MakeProgramOfAnotherUser(probe, true);
  return tree.Run(probe, {"-u"}).output == "65534\n";
}

/// Lets all users read what lies in a directory.
inline void OpenToAllUsers(const std::string& directory) {
  using std::filesystem::perms;
  const auto open = [](const std::filesystem::path& path) {
    std::filesystem::permissions(path, perms::others_read | perms::others_exec,
                                 std::filesystem::perm_options::add);
  };
  open(PathFromUtf8(directory));
  for (const auto& entry : std::filesystem::recursive_directory_iterator(PathFromUtf8(directory))) {
    open(entry.path());
  }
}

#endif  // KX_TESTS_SUPPORT_SET_USER_ID_POSIX_H
