#include "platform/environment.h"

#include <windows.h>

#include "platform/wide_path_win32.h"

const char* CKxGetEnv::set(const char* name) {
  const std::wstring wideName = kx::ToWide(name);
  std::wstring value;
  DWORD room = 0;
  for (;;) {
    value.resize(room);
    ::SetLastError(ERROR_SUCCESS);
    const DWORD length = ::GetEnvironmentVariableW(wideName.c_str(), value.data(), room);
    if (length == 0 && ::GetLastError() != ERROR_SUCCESS) return nullptr;
    if (length <= room) {
      value.resize(length);
      break;
    }
    room = length;
  }
  value_ = kx::ToUtf8(value);
  return value_.c_str();
}
