#include "platform/directories.h"

#include <windows.h>

#include <string_view>

#include "platform/directory_entries.h"
#include "platform/wide_path_win32.h"

namespace {

class Search {
 public:
  explicit Search(const std::wstring& pattern)
      : handle_(::FindFirstFileW(pattern.c_str(), &entry_)) {}
  ~Search() {
    if (IsOpen()) ::FindClose(handle_);
  }
  Search(const Search&) = delete;
  Search& operator=(const Search&) = delete;

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  const WIN32_FIND_DATAW& Entry() const { return entry_; }
  bool Next() { return ::FindNextFileW(handle_, &entry_) != 0; }

 private:
  WIN32_FIND_DATAW entry_;
  HANDLE handle_;
};

bool IsDotName(std::wstring_view name) { return name == L"." || name == L".."; }

}  // namespace

namespace kx {

bool ListDirectory(const char* directory, std::vector<DirectoryEntry>& entries) {
  if (*directory == '\0') return false;  // or the pattern would name the root of the drive
  Search search(WidePath((std::string(directory) + "\\*").c_str()));
  if (!search.IsOpen()) return false;
  do {
    const std::wstring_view name = search.Entry().cFileName;
    if (IsDotName(name)) continue;
    const bool isDirectory = (search.Entry().dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    entries.push_back({ToUtf8(name), isDirectory});
  } while (search.Next());
  return true;
}

}  // namespace kx

int KxMakeDir(const char* path, unsigned /*mode*/) {
  return ::CreateDirectoryW(kx::WidePath(path).c_str(), nullptr) != 0 ? 0 : -1;
}
