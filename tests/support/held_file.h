#ifndef KX_TESTS_SUPPORT_HELD_FILE_H
#define KX_TESTS_SUPPORT_HELD_FILE_H

#include <memory>
#include <string>

/// While it lives, the file `path` is there but cannot be opened, for a reason that passes: on
/// Windows another holder keeps it to itself; on Linux, where nobody can, the system says that too
/// many files are open. One at a time.
class HeldFile {
 public:
  explicit HeldFile(const std::string& path);
  ~HeldFile();
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

 private:
  struct State;
  const std::unique_ptr<State> state_;
};

#endif  // KX_TESTS_SUPPORT_HELD_FILE_H
