// Closes one of its standard streams, opens files of its own until one gets the handle that the
// stream had, and has the library report a problem and log a missing key. Arguments: "output" or
// "errors", the file, and the file that is to be the stream from now on; "" for none. The bundle
// "agent" has the problem.

#include <windows.h>

#include <filesystem>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "tools/arguments.h"

namespace {

HANDLE NewFile(const std::string& path) {
  const std::filesystem::path wide(std::u8string(path.begin(), path.end()));
  return ::CreateFileW(wide.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                       OPEN_ALWAYS, 0, nullptr);
}

bool GetsTheHandle(const std::string& path, HANDLE wanted) {
  constexpr int kMostFiles = 100;
  for (int files = 0; files < kMostFiles; ++files) {
    if (NewFile(path) == wanted) return true;
  }
  return false;
}

}  // namespace

int main(int count, char** values) {
  const std::vector<std::string> words = Utf8Arguments(count, values);
  if (words.size() != 3) return 3;
  const DWORD stream = words[0] == "output" ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE;
  const HANDLE before = ::GetStdHandle(stream);
  NewFile(words[1]);  // with the first one the system may open others, which would take the handle
  ::SetStdHandle(stream, words[2].empty() ? nullptr : NewFile(words[2]));
  ::CloseHandle(before);
  if (!GetsTheHandle(words[1], before)) return 4;

  CKxXlate* const translator = CKxXlate::GetBundle("agent", "fr");
  translator->GetText("ABSENT");
  translator->Release();
  return 0;
}
