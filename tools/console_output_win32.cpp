#include "console_output.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstddef>
#include <cstdio>
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
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t size = SizeOfPiece(text, at);
      DWORD written = 0;
      ::WriteConsoleW(console_, text.data() + at, static_cast<DWORD>(size), &written, nullptr);
      if (written == 0) return -1;
      at += written;
    }
    return 0;
  }

 private:
  /// How much of the text goes into one call. A character of two units is not torn.
  static std::size_t SizeOfPiece(const std::wstring& text, std::size_t at) {
    // Older consoles refuse much more than this.
    constexpr std::size_t kMostUnits = 8 * 1024;
    if (text.size() - at <= kMostUnits) return text.size() - at;
    return IS_HIGH_SURROGATE(text[at + kMostUnits - 1]) ? kMostUnits - 1 : kMostUnits;
  }

  HANDLE console_;
};

/// Puts a console's buffer into a stream that goes to a console. Of any other the runtime leaves
/// the bytes as they are, instead of ending lines in its own way.
class Redirection {
 public:
  Redirection(std::ostream& stream, std::FILE* file, DWORD standardHandle) : stream_(stream) {
    const HANDLE handle = ::GetStdHandle(standardHandle);
    const int descriptor = ::_fileno(file);
    if (IsConsole(handle)) {
      before_ = stream.rdbuf(&buffer_.emplace(handle));
    } else if (descriptor >= 0) {
      ::_setmode(descriptor, _O_BINARY);
    }
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

/// For what the library itself writes to standard error, by way of the runtime. Left alone when
/// that is no console, since programs that run at the same time share the setting.
class ConsoleCodePage {
 public:
  ConsoleCodePage() {
    if (!IsConsole(::GetStdHandle(STD_ERROR_HANDLE))) return;
    before_ = ::GetConsoleOutputCP();
    ::SetConsoleOutputCP(CP_UTF8);
  }
  ~ConsoleCodePage() {
    // The console outlives this process, and the next program has not asked for UTF-8.
    if (before_ != 0) ::SetConsoleOutputCP(before_);
  }
  ConsoleCodePage(const ConsoleCodePage&) = delete;
  ConsoleCodePage& operator=(const ConsoleCodePage&) = delete;

 private:
  UINT before_ = 0;
};

}  // namespace

struct ConsoleOutput::State {
  ConsoleCodePage codePage;
  Redirection output{std::cout, stdout, STD_OUTPUT_HANDLE};
  Redirection errors{std::cerr, stderr, STD_ERROR_HANDLE};
};

ConsoleOutput::ConsoleOutput() : state_(std::make_unique<State>()) {}
ConsoleOutput::~ConsoleOutput() = default;
