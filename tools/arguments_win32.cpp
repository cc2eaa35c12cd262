#include "arguments.h"

// Before the one that needs its types.
#include <windows.h>

#include <shellapi.h>

#include <cstddef>
#include <memory>
#include <new>

namespace {

struct FreeLocal {
  void operator()(LPWSTR* block) const { ::LocalFree(block); }
};

/// A surrogate without its other half has no UTF-8 form and becomes U+FFFD.
std::string ToUtf8(const wchar_t* wide) {
  const int room = ::WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(room), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), room, nullptr, nullptr);
  text.resize(text.size() - 1);  // its NUL
  return text;
}

}  // namespace

std::vector<std::string> Utf8Arguments(int /*count*/, char** /*values*/) {
  int count = 0;
  const std::unique_ptr<LPWSTR, FreeLocal> words(::CommandLineToArgvW(::GetCommandLineW(), &count));
  if (words == nullptr) throw std::bad_alloc();
  std::vector<std::string> arguments;
  for (int at = 1; at < count; ++at) arguments.push_back(ToUtf8(words.get()[at]));
  return arguments;
}
