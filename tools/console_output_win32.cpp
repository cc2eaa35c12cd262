#include "console_output.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

#include "platform/console_win32.h"

namespace {

/// Hands texts to a console whole, when they are flushed: it shows nothing right that comes in
/// pieces, as the runtime would hand them over.
class ConsoleBuffer final : public std::stringbuf {
 public:
  explicit ConsoleBuffer(HANDLE console) : console_(console) {}

 protected:
  int sync() override {
    const std::string text = str();
    str("");
    return kx::WriteToConsole(console_, text) ? 0 : -1;
  }

 private:
  HANDLE console_;
};

/// Puts a console's buffer into a stream that goes to a console. Of any other the runtime leaves
/// the bytes as they are, instead of ending lines in its own way.
class Redirection {
 public:
  Redirection(std::ostream& stream, std::FILE* file, DWORD standardHandle) : stream_(stream) {
    const HANDLE handle = ::GetStdHandle(standardHandle);
    const int descriptor = ::_fileno(file);
    if (kx::IsConsole(handle)) {
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

}  // namespace

struct ConsoleOutput::State {
  Redirection output{std::cout, stdout, STD_OUTPUT_HANDLE};
  Redirection errors{std::cerr, stderr, STD_ERROR_HANDLE};
};

ConsoleOutput::ConsoleOutput() : state_(std::make_unique<State>()) {}
ConsoleOutput::~ConsoleOutput() = default;
