#include "platform/wide_path_win32.h"

#include <windows.h>

namespace kx {
namespace {

// The limit of CreateDirectoryW, the tightest of the calls in use.
constexpr std::size_t kPlainPathLength = 247;

std::wstring AbsolutePath(const std::wstring& path) {
  std::wstring absolute;
  DWORD length = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  absolute.resize(length);
  length = ::GetFullPathNameW(path.c_str(), length, absolute.data(), nullptr);
  absolute.resize(length);
  return absolute;
}

}  // namespace

std::wstring ToWide(std::string_view utf8) {
  if (utf8.empty()) return {};
  const int size = static_cast<int>(utf8.size());
  const int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
  return wide;
}

std::string ToUtf8(std::wstring_view wide) {
  if (wide.empty()) return {};
  const int size = static_cast<int>(wide.size());
  const int length =
      ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(length), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), length, nullptr, nullptr);
  return utf8;
}

std::wstring WidePath(const char* path) {
  std::wstring wide = ToWide(path);
  if (wide.size() <= kPlainPathLength || wide.starts_with(LR"(\\?\)")) return wide;
  const std::wstring absolute = AbsolutePath(wide);
  if (absolute.starts_with(LR"(\\)")) return LR"(\\?\UNC)" + absolute.substr(1);
  return LR"(\\?\)" + absolute;
}

}  // namespace kx
