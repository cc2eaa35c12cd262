#include "platform/wide_path_win32.h"

#include <windows.h>

namespace kx {
namespace {

// The limit of CreateDirectoryW, the tightest of the calls in use. It binds the whole path, with
// the working directory that stands in front of a relative one.
constexpr std::size_t kPlainPathLength = 247;

constexpr std::wstring_view kDevicePrefix = LR"(\\.\)";
constexpr std::wstring_view kLongPrefix = LR"(\\?\)";
constexpr std::wstring_view kLongNetworkPrefix = LR"(\\?\UNC\)";
constexpr std::wstring_view kNetworkPrefix = LR"(\\)";

/// The path from its drive or machine on, with backslashes and without "." and ".."; empty when the
/// system tells none.
std::wstring AbsolutePath(const std::wstring& path) {
  std::wstring absolute(kPlainPathLength + 1, L'\0');
  for (;;) {
    const DWORD length = ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(absolute.size()),
                                            absolute.data(), nullptr);
    // Else it is the room that is needed, as long as the working directory does not change.
    const bool isWhole = length < absolute.size();
    absolute.resize(length);
    if (isWhole) return absolute;
  }
}

bool BeginsWithADrive(std::wstring_view path) {
  if (path.size() < 3 || path[1] != L':' || path[2] != L'\\') return false;
  return (path[0] >= L'A' && path[0] <= L'Z') || (path[0] >= L'a' && path[0] <= L'z');
}

}  // namespace

std::wstring ToWide(std::string_view utf8) {
  if (utf8.empty()) return {};
  const int size = static_cast<int>(utf8.size());
  constexpr DWORD kStrict = MB_ERR_INVALID_CHARS;
  const int length = ::MultiByteToWideChar(CP_UTF8, kStrict, utf8.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(CP_UTF8, kStrict, utf8.data(), size, wide.data(), length);
  return wide;
}

std::string ToUtf8(std::wstring_view wide) {
  if (wide.empty()) return {};
  const int size = static_cast<int>(wide.size());
  constexpr DWORD kStrict = WC_ERR_INVALID_CHARS;
  const int length =
      ::WideCharToMultiByte(CP_UTF8, kStrict, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(length), '\0');
  ::WideCharToMultiByte(CP_UTF8, kStrict, wide.data(), size, utf8.data(), length, nullptr, nullptr);
  return utf8;
}

std::wstring WidePath(const char* path) {
  std::wstring absolute = AbsolutePath(ToWide(path));
  // Opening alone has effects on a device, and may wait.
  if (absolute.starts_with(kDevicePrefix)) return {};
  if (absolute.size() <= kPlainPathLength || absolute.starts_with(kLongPrefix)) return absolute;
  if (absolute.starts_with(kNetworkPrefix))
    return absolute.replace(0, kNetworkPrefix.size(), kLongNetworkPrefix);
  return absolute.insert(0, kLongPrefix);
}

std::wstring WithoutLongPrefix(std::wstring path) {
  if (path.starts_with(kLongNetworkPrefix))
    return path.replace(0, kLongNetworkPrefix.size(), kNetworkPrefix);
  if (!path.starts_with(kLongPrefix)) return path;
  std::wstring rest = path.substr(kLongPrefix.size());
  return BeginsWithADrive(rest) ? rest : path;
}

}  // namespace kx
