#include "support/modified_time.h"

#include <windows.h>

#include <stdexcept>

#include "support/temp_tree.h"

void SetModifiedTime(const std::string& path, std::chrono::nanoseconds since1970) {
  constexpr std::int64_t kUnitsFrom1601To1970 = 116'444'736'000'000'000;
  constexpr std::int64_t kNanosecondsOfAUnit = 100;
  const std::int64_t units = kUnitsFrom1601To1970 + since1970.count() / kNanosecondsOfAUnit;
  FILETIME time;
  time.dwLowDateTime = static_cast<DWORD>(units);
  time.dwHighDateTime = static_cast<DWORD>(units >> 32);
  const HANDLE file = ::CreateFileW(PathFromUtf8(path).c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
  const bool isSet = ::SetFileTime(file, nullptr, nullptr, &time) != 0;
  ::CloseHandle(file);
  if (!isSet) throw std::runtime_error("cannot set the time of " + path);
}
