#include "platform/environment.h"

#include <cstdlib>

const char* CKxGetEnv::set(const char* name) {
  const char* value = ::secure_getenv(name);
  if (value == nullptr) return nullptr;
  value_ = value;
  return value_.c_str();
}
