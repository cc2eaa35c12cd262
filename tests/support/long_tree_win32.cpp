#include <windows.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "support/long_tree.h"

namespace {

void RemoveTree(const std::wstring& directory) {
  WIN32_FIND_DATAW entry;
  const HANDLE search = ::FindFirstFileW((directory + L"\\*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring name = entry.cFileName;
    if (name == L"." || name == L"..") continue;
    const std::wstring path = directory + L'\\' + name;
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
      RemoveTree(path);
    } else {
      ::DeleteFileW(path.c_str());
    }
  } while (::FindNextFileW(search, &entry) != 0);
  ::FindClose(search);
  ::RemoveDirectoryW(directory.c_str());
}

}  // namespace

LongTree::LongTree() {
  for (int level = 0; level < 8; ++level) {
    below_ += (level == 0 ? "" : "/") + std::string(50, static_cast<char>('a' + level));
    MakeDirectory("");
  }
}

LongTree::~LongTree() { RemoveTree(LR"(\\?\)" + PathFromUtf8(tree_.SystemPath()).native()); }

std::string LongTree::Path(std::string_view relative) const {
  std::string path = tree_.Path(below_);
  if (!relative.empty()) path.append("/").append(relative);
  return path;
}

void LongTree::MakeDirectory(std::string_view relative) const {
  if (::CreateDirectoryW(Prefixed(relative).c_str(), nullptr) == 0) {
    throw std::runtime_error("cannot make " + Path(relative));
  }
}

void LongTree::Write(std::string_view relative, std::string_view bytes) const {
  std::ofstream file(std::filesystem::path(Prefixed(relative)), std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("cannot write " + Path(relative));
}

std::string LongTree::Read(std::string_view relative) const {
  std::ifstream file(std::filesystem::path(Prefixed(relative)), std::ios::binary);
  if (!file) return "(no file)";
  return {std::istreambuf_iterator<char>(file), {}};
}

std::wstring LongTree::Prefixed(std::string_view relative) const {
  return LR"(\\?\)" + PathFromUtf8(Path(relative)).make_preferred().native();
}
