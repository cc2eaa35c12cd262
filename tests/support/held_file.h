#ifndef KX_TESTS_SUPPORT_HELD_FILE_H
#define KX_TESTS_SUPPORT_HELD_FILE_H

#include <cstdint>
#include <string>

/// While it lives, the file `path` is there but cannot be opened, for a reason that passes: on
/// Windows another holder keeps it to itself; on Linux, where nobody can, this process may open no
/// more files at all.
class HeldFile {
 public:
  explicit HeldFile(const std::string& path);
  ~HeldFile();
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

 private:
  std::intptr_t state_;
};

#endif  // KX_TESTS_SUPPORT_HELD_FILE_H
