#include "platform/file_status.h"

#include <windows.h>

#include "platform/wide_path_win32.h"

namespace {

// The system counts in units of 100 ns since 1601.
constexpr std::int64_t kUnitsOfASecond = 10'000'000;
constexpr std::int64_t kUnitsFrom1601To1970 = 116'444'736'000'000'000;

constexpr std::uint32_t kNanosecondsOfAUnit = 100;

std::uint64_t Join(DWORD high, DWORD low) { return static_cast<std::uint64_t>(high) << 32 | low; }

void SetModified(KxFileStatus& status, const FILETIME& time) {
  const auto units = static_cast<std::int64_t>(Join(time.dwHighDateTime, time.dwLowDateTime));
  const std::int64_t since1970 = units - kUnitsFrom1601To1970;
  // Down to the whole second, before 1970 as well.
  status.modified = since1970 / kUnitsOfASecond - (since1970 % kUnitsOfASecond < 0 ? 1 : 0);
  const std::int64_t rest = since1970 - status.modified * kUnitsOfASecond;
  status.modifiedNanoseconds = static_cast<std::uint32_t>(rest) * kNanosecondsOfAUnit;
}

bool IsNetworkPath(std::string_view path) {
  const auto isSeparator = [](char c) { return c == '/' || c == '\\'; };
  return path.size() > 1 && isSeparator(path[0]) && isSeparator(path[1]);
}

}  // namespace

int KxStat(const char* path, KxFileStatus* status) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  // Opened rather than asked by name, so that symbolic links are followed; the flag lets
  // directories be opened, too.
  const HANDLE file = ::CreateFileW(kx::WidePath(path).c_str(), FILE_READ_ATTRIBUTES, kShareAll,
                                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return -1;
  BY_HANDLE_FILE_INFORMATION found;
  const bool known = ::GetFileInformationByHandle(file, &found) != 0;
  ::CloseHandle(file);
  if (!known) return -1;
  SetModified(*status, found.ftLastWriteTime);
  status->size = Join(found.nFileSizeHigh, found.nFileSizeLow);
  const bool isDirectory = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  status->mode = isDirectory ? kKxModeDirectory : 0;
  status->device = found.dwVolumeSerialNumber;
  status->number = Join(found.nFileIndexHigh, found.nFileIndexLow);
  status->changed = static_cast<std::int64_t>(
      Join(found.ftCreationTime.dwHighDateTime, found.ftCreationTime.dwLowDateTime));
  return 0;
}

bool KxLeavesTheMachine(std::string_view directory, std::string_view path) {
  return IsNetworkPath(path) && !IsNetworkPath(directory);
}

bool KxIsPlainComponent(std::string_view component) {
  if (component.empty()) return true;
  if (component.find(':') != std::string_view::npos) return false;
  return component.back() != '.' && component.back() != ' ';
}
