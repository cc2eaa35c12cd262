#include "platform/file_handle.h"

#include <windows.h>

#include <algorithm>
#include <string>

#include "platform/file_status.h"
#include "platform/wide_path_win32.h"

namespace kx {
namespace {

// Others may write, rename and remove a catalogue or the log while it is open here.
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

constexpr std::size_t kMostBytes = 1U << 30;  // one call counts in 32 bits

HANDLE Handle(FileHandle file) { return reinterpret_cast<HANDLE>(file); }

constexpr DWORD kPauseMilliseconds = 5;
constexpr ULONGLONG kMostMilliseconds = 100;

/// Whether another program keeps a file, or a part of it, to itself.
bool IsHeldByAnother(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

/// Whether what failed for the reason `error` may succeed a moment later.
bool IsPassing(DWORD error) {
  switch (error) {
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
    case ERROR_NO_SYSTEM_RESOURCES:
    case ERROR_COMMITMENT_LIMIT: return true;
    default: return IsHeldByAnother(error);
  }
}

/// Makes `attempt`, which answers whether it succeeded, and makes it again for a while when another
/// program was in the way.
template <class Attempt>
bool TryForAWhile(const Attempt& attempt) {
  const ULONGLONG begin = ::GetTickCount64();
  while (!attempt()) {
    const DWORD error = ::GetLastError();
    if (!IsHeldByAnother(error) || ::GetTickCount64() - begin >= kMostMilliseconds) {
      ::SetLastError(error);
      return false;
    }
    ::Sleep(kPauseMilliseconds);
  }
  return true;
}

OpenedFile Open(const char* path, DWORD access, DWORD disposition) {
  const std::wstring widePath = WidePath(path);
  HANDLE file = INVALID_HANDLE_VALUE;
  const bool opened = TryForAWhile([&] {
    file = ::CreateFileW(widePath.c_str(), access, kShareAll, nullptr, disposition,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
    return file != INVALID_HANDLE_VALUE;
  });
  if (!opened) return {kNoFile, IsPassing(::GetLastError())};
  return {reinterpret_cast<FileHandle>(file), false};
}

}  // namespace

OpenedFile OpenRegularFile(const char* path, KxFileStatus* status) {
  const bool isKnown = status == nullptr || KxStat(path, status) == 0;
  const OpenedFile opened = Open(path, GENERIC_READ, OPEN_EXISTING);
  if (opened.file == kNoFile) return opened;
  try {
    if (!isKnown) KxStat(path, status);
  } catch (...) {  // no memory for the path
    CloseFile(opened.file);
    throw;
  }
  // A device or a pipe can still be reached, by a name that only the system uses.
  if (::GetFileType(Handle(opened.file)) == FILE_TYPE_DISK) return opened;
  ::CloseHandle(Handle(opened.file));
  return {};
}

OpenedFile OpenForAppending(const char* path) {
  const OpenedFile opened = Open(path, FILE_APPEND_DATA, OPEN_ALWAYS);
  if (opened.file == kNoFile) return opened;
  if (::GetFileType(Handle(opened.file)) != FILE_TYPE_PIPE) return opened;
  ::CloseHandle(Handle(opened.file));
  return {};
}

FileBlock ReadFileBlock(FileHandle file, char* block, std::size_t size) {
  DWORD count = 0;
  const auto most = static_cast<DWORD>(std::min(size, kMostBytes));
  const bool read =
      TryForAWhile([&] { return ::ReadFile(Handle(file), block, most, &count, nullptr) != 0; });
  return read ? FileBlock{count, false} : FileBlock{0, true};
}

std::size_t WriteFileBlock(FileHandle file, const char* block, std::size_t size) {
  std::size_t written = 0;
  while (written < size) {
    DWORD count = 0;
    const auto most = static_cast<DWORD>(std::min(size - written, kMostBytes));
    if (::WriteFile(Handle(file), block + written, most, &count, nullptr) == 0) break;
    if (count == 0) break;
    written += count;
  }
  return written;
}

void CloseFile(FileHandle file) { ::CloseHandle(Handle(file)); }

}  // namespace kx
