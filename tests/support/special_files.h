#ifndef KX_TESTS_SUPPORT_SPECIAL_FILES_H
#define KX_TESTS_SUPPORT_SPECIAL_FILES_H

#include <filesystem>
#include <string>

// What std::filesystem cannot make or tell. On Windows there is none of it.

/// Makes a pipe with a name. Whoever opens it in the ordinary way waits for the other end.
void MakeNamedPipe(const std::string& path);

/// Whether this process may do anything, whatever the permissions of a file say.
bool IsSuperUser();

/// While it lives, a file or directory has permissions that bind this thread, too: the super-user
/// gives up meanwhile what lifts them. The same for all users, they bind whoever owns the file.
class Restricted {
 public:
  Restricted(const std::string& path, std::filesystem::perms permissions);
  ~Restricted();
  Restricted(const Restricted&) = delete;
  Restricted& operator=(const Restricted&) = delete;

 private:
  const std::filesystem::path path_;
};

#endif  // KX_TESTS_SUPPORT_SPECIAL_FILES_H
