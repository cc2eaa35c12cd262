#include "platform/console_win32.h"

#include <windows.h>

#include <string>

namespace kx {
namespace {

/// Unlike ToWide, which serves names, this keeps what it can of a broken text.
std::wstring ShownAs(std::string_view utf8) {
  if (utf8.empty()) return {};
  const int size = static_cast<int>(utf8.size());
  const int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
  return wide;
}

}  // namespace

bool IsConsole(void* handle) {
  DWORD mode = 0;
  return ::GetConsoleMode(handle, &mode) != 0;
}

bool WriteToConsole(void* console, std::string_view utf8) {
  const std::wstring text = ShownAs(utf8);
  std::wstring_view rest = text;
  while (!rest.empty()) {
    const auto length = static_cast<DWORD>(ConsolePieceLength(rest));
    DWORD written = 0;
    if (::WriteConsoleW(console, rest.data(), length, &written, nullptr) == 0) return false;
    if (written == 0) return false;
    rest.remove_prefix(written);
  }
  return true;
}

std::size_t ConsolePieceLength(std::wstring_view text) {
  // Consoles before Windows 8 share 64 KiB among all calls that are under way.
  constexpr std::size_t kMostUnits = std::size_t{8} * 1024;
  if (text.size() <= kMostUnits) return text.size();
  return IS_HIGH_SURROGATE(text[kMostUnits - 1]) ? kMostUnits - 1 : kMostUnits;
}

}  // namespace kx
