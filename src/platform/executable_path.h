#ifndef KX_PLATFORM_EXECUTABLE_PATH_H
#define KX_PLATFORM_EXECUTABLE_PATH_H

#include <string>

/// The path of the running executable.
class CKxExecutablePath {
 public:
  CKxExecutablePath();

  /// UTF-8, absolute; "" when the system does not tell.
  const char* Path() const { return path_.c_str(); }

 private:
  std::string path_;
};

#endif  // KX_PLATFORM_EXECUTABLE_PATH_H
