#ifndef KX_PLATFORM_ENVIRONMENT_H
#define KX_PLATFORM_ENVIRONMENT_H

#include <string>

/// Reads environment variables and keeps the last value read.
class CKxGetEnv {
 public:
  /// The value of the variable `name` (not null), in UTF-8; null when it is not set. Valid until
  /// the next call and for as long as this object lives.
  ///
  /// In a program that runs with more rights than its caller (set-user-ID, set-group-ID, file
  /// capabilities), no variable is set: it would be the caller who chooses.
  ///
  /// Must not run while another thread changes the environment.
  const char* set(const char* name);

 private:
  std::string value_;
};

#endif  // KX_PLATFORM_ENVIRONMENT_H
