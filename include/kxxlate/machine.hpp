#ifndef KX_KXXLATE_MACHINE_HPP
#define KX_KXXLATE_MACHINE_HPP

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <new>
#include <string>
#include <string_view>
#include <system_error>

// The one place of the face that asks the operating system, as the library itself does.
#if defined(_WIN32)
// As <windows.h> declares them, so that a host may include that as well, before or after.
extern "C" {
struct HINSTANCE__;
__declspec(dllimport) unsigned long __stdcall GetModuleFileNameW(HINSTANCE__*, wchar_t*,
                                                                 unsigned long);
__declspec(dllimport) unsigned long __stdcall GetEnvironmentVariableW(const wchar_t*, wchar_t*,
                                                                      unsigned long);
}
#else
#include <sys/auxv.h>
#endif

namespace kx::detail {

/// A path from UTF-8 text.
inline std::filesystem::path PathOf(std::string_view text) {
#if defined(__cpp_char8_t)
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
#else
  return std::filesystem::u8path(text);
#endif
}

/// In UTF-8; empty when no UTF-8 text can name it.
inline std::string TextOfPath(const std::filesystem::path& path) {
  try {
    const auto text = path.u8string();
    return std::string(text.begin(), text.end());
  } catch (const std::filesystem::filesystem_error&) {
    return {};
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    return {};
  }
}

#if defined(_WIN32)

/// Calls a function of the system that fills a buffer and answers the length, or 0, or, when the
/// buffer is too short, no less than its size.
template <class Fill>
std::wstring Filled(const Fill& fill) {
  for (unsigned long room = 512; room <= 64UL * 1024; room *= 2) {
    std::wstring text(room, L'\0');
    const unsigned long length = fill(text.data(), room);
    if (length >= room) continue;
    text.resize(length);
    return text;
  }
  return {};
}

/// In UTF-8; empty when the system tells none.
inline std::string ExecutablePath() {
  std::wstring path = Filled([](wchar_t* place, unsigned long room) {
    return ::GetModuleFileNameW(nullptr, place, room);
  });
  if (path.rfind(L"\\\\?\\UNC\\", 0) == 0) return TextOfPath(path.replace(0, 8, L"\\\\"));
  if (path.rfind(L"\\\\?\\", 0) == 0 && path.substr(5, 2) == L":\\") path.erase(0, 4);
  return TextOfPath(path);
}

/// In UTF-8; empty when it is not set.
inline std::string EnvironmentVariable(const char* name) {
  const std::wstring wideName(name, name + std::char_traits<char>::length(name));
  return TextOfPath(Filled([&wideName](wchar_t* place, unsigned long room) {
    return ::GetEnvironmentVariableW(wideName.c_str(), place, room);
  }));
}

/// Programs of this system have the rights of whoever starts them.
inline bool TrustsCaller() { return true; }

/// Whether a part of a path names what it says: see the library's document of language files.
inline bool IsPlainComponent(std::string_view part) {
  if (part.empty()) return true;
  return part.find(':') == std::string_view::npos && part.back() != '.' && part.back() != ' ';
}

/// Two separators at the beginning name another machine.
inline bool LeavesTheMachine(std::string_view directory, std::string_view path) {
  const auto begins = [](std::string_view text) {
    return text.find_first_not_of("/\\") >= 2 && text.size() > 1;
  };
  return begins(path) && !begins(directory);
}

#else

inline std::string ExecutablePath() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).string();
}

/// Whether the environment and the working directory are not the choice of somebody with less
/// rights than the program has.
inline bool TrustsCaller() { return ::getauxval(AT_SECURE) == 0; }

inline std::string EnvironmentVariable(const char* name) {
  const char* const value = TrustsCaller() ? std::getenv(name) : nullptr;
  return value == nullptr ? "" : value;
}

inline bool IsPlainComponent(std::string_view part) { return part != ".."; }

inline bool LeavesTheMachine(std::string_view /*directory*/, std::string_view /*path*/) {
  return false;
}

#endif

}  // namespace kx::detail

#endif  // KX_KXXLATE_MACHINE_HPP
