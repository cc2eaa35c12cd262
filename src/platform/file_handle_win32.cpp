#include "platform/file_handle.h"

#include <windows.h>

#include <algorithm>

#include "platform/wide_path_win32.h"

namespace kx {
namespace {

// Others may write, rename and remove a catalogue or the log while it is open here.
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

constexpr std::size_t kMostBytes = 1U << 30;  // one call counts in 32 bits

HANDLE Handle(FileHandle file) { return reinterpret_cast<HANDLE>(file); }

FileHandle Open(const char* path, DWORD access, DWORD disposition) {
  const HANDLE file = ::CreateFileW(WidePath(path).c_str(), access, kShareAll, nullptr, disposition,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  return reinterpret_cast<FileHandle>(file);
}

}  // namespace

FileHandle OpenRegularFile(const char* path) {
  const FileHandle file = Open(path, GENERIC_READ, OPEN_EXISTING);
  if (file == kNoFile) return kNoFile;
  // A device or a pipe can still be reached, by a name that only the system uses.
  if (::GetFileType(Handle(file)) == FILE_TYPE_DISK) return file;
  ::CloseHandle(Handle(file));
  return kNoFile;
}

FileHandle OpenForAppending(const char* path) {
  const FileHandle file = Open(path, FILE_APPEND_DATA, OPEN_ALWAYS);
  if (file == kNoFile || ::GetFileType(Handle(file)) != FILE_TYPE_PIPE) return file;
  ::CloseHandle(Handle(file));
  return kNoFile;
}

std::size_t ReadFileBlock(FileHandle file, char* block, std::size_t size) {
  DWORD count = 0;
  const auto most = static_cast<DWORD>(std::min(size, kMostBytes));
  return ::ReadFile(Handle(file), block, most, &count, nullptr) != 0 ? count : 0;
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
