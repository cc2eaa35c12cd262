#include "console_output.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

namespace {

bool IsConsole(HANDLE handle) {
  DWORD mode = 0;
  return ::GetConsoleMode(handle, &mode) != 0;
}

std::wstring ToWide(const std::string& text) {
  const int size = static_cast<int>(text.size());
  const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
  return wide;
}

/// Hands texts to a console in UTF-16. The runtime would hand over single bytes, and consoles do
/// not put a character together from several calls.
class ConsoleBuffer final : public std::stringbuf {
 public:
  explicit ConsoleBuffer(HANDLE console) : console_(console) {}

 protected:
  int sync() override {
    const std::wstring text = ToWide(str());
    str("");
    // Older consoles refuse much more than this in one call.
    constexpr std::size_t kMostCharacters = 8 * 1024;
    for (std::size_t at = 0; at < text.size();) {
      const auto size = static_cast<DWORD>(std::min(text.size() - at, kMostCharacters));
      DWORD written = 0;
      if (::WriteConsoleW(console_, text.data() + at, size, &written, nullptr) == 0) return -1;
      at += written;
    }
    return 0;
  }

 private:
  HANDLE console_;
};

/// Puts a console's buffer into a stream, if that goes to a console.
class Redirection {
 public:
  Redirection(std::ostream& stream, DWORD standardHandle) : stream_(stream) {
    const HANDLE handle = ::GetStdHandle(standardHandle);
    if (IsConsole(handle)) before_ = stream.rdbuf(&buffer_.emplace(handle));
  }
  ~Redirection() {
    if (before_ == nullptr) return;
    stream_.flush();
    stream_.rdbuf(before_);
  }
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;

 private:
  std::ostream& stream_;
  std::optional<ConsoleBuffer> buffer_;
  std::streambuf* before_ = nullptr;
};

/// For what the library itself writes to standard error, by way of the runtime.
class ConsoleCodePage {
 public:
  ConsoleCodePage() : before_(::GetConsoleOutputCP()) { ::SetConsoleOutputCP(CP_UTF8); }
  ~ConsoleCodePage() {
    // The console outlives this process, and the next program has not asked for UTF-8.
    if (before_ != 0) ::SetConsoleOutputCP(before_);
  }
  ConsoleCodePage(const ConsoleCodePage&) = delete;
  ConsoleCodePage& operator=(const ConsoleCodePage&) = delete;

 private:
  UINT before_;
};

}  // namespace

struct ConsoleOutput::State {
  ConsoleCodePage codePage;
  Redirection output{std::cout, STD_OUTPUT_HANDLE};
  Redirection errors{std::cerr, STD_ERROR_HANDLE};
};

ConsoleOutput::ConsoleOutput() : state_(std::make_unique<State>()) {}
ConsoleOutput::~ConsoleOutput() = default;
