#include "platform/directories.h"

#include <windows.h>

#include <string_view>

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

int KxTraverseUnsorted(const char* directory, CKxTraverseCallback* callback) {
  std::string pattern = directory;
  if (pattern.empty()) return -1;  // or the pattern would name the root of the drive
  // Two separators at the beginning would name another machine.
  if (pattern.find_last_of("/\\") != pattern.size() - 1) pattern += '\\';
  Search search(kx::WidePath(pattern.append("*").c_str()));
  if (!search.IsOpen()) {
    return ::GetLastError() == ERROR_FILE_NOT_FOUND ? 0 : -1;  // the root of an empty drive
  }
  do {
    const std::wstring_view name = search.Entry().cFileName;
    if (IsDotName(name)) continue;
    const std::string utf8Name = kx::ToUtf8(name);
    if (utf8Name.empty()) continue;  // half a surrogate pair: no UTF-8 text can name it
    const bool isDirectory = (search.Entry().dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!callback->OnEntry(utf8Name.c_str(), isDirectory)) return 0;
  } while (search.Next());
  return ::GetLastError() == ERROR_NO_MORE_FILES ? 0 : -1;
}

int KxMakeDir(const char* path, unsigned /*mode*/) {
  return ::CreateDirectoryW(kx::WidePath(path).c_str(), nullptr) != 0 ? 0 : -1;
}
