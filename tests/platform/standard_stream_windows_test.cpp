// What arrives on the streams of this system, byte for byte. What a console shows:
// check_console.py.

#include <gtest/gtest.h>
#include <windows.h>

#include <ostream>
#include <string>
#include <string_view>

#include "platform/console_win32.h"
#include "platform/standard_stream.h"
#include "support/temp_tree.h"

namespace {

using kx::StandardStream;
using kx::WriteToStandardStream;

/// Another standard output for as long as it lives.
class OutputTo {
 public:
  explicit OutputTo(HANDLE handle) { ::SetStdHandle(STD_OUTPUT_HANDLE, handle); }
  ~OutputTo() { ::SetStdHandle(STD_OUTPUT_HANDLE, before_); }
  OutputTo(const OutputTo&) = delete;
  OutputTo& operator=(const OutputTo&) = delete;

 private:
  HANDLE before_ = ::GetStdHandle(STD_OUTPUT_HANDLE);
};

/// A pipe that keeps each write apart.
class MessagePipe {
 public:
  MessagePipe()
      : reader_(::CreateNamedPipeW(Name().c_str(), PIPE_ACCESS_INBOUND,
                                   PIPE_TYPE_MESSAGE | PIPE_READMODE_MESSAGE, 1, kRoom, kRoom, 0,
                                   nullptr)),
        writer_(
            ::CreateFileW(Name().c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {}
  ~MessagePipe() {
    ::CloseHandle(writer_);
    ::CloseHandle(reader_);
  }
  MessagePipe(const MessagePipe&) = delete;
  MessagePipe& operator=(const MessagePipe&) = delete;

  HANDLE Writer() const { return writer_; }

  std::string NextMessage() const {
    std::string message(kRoom, '\0');
    DWORD size = 0;
    if (::ReadFile(reader_, message.data(), kRoom, &size, nullptr) == 0) return "no whole message";
    message.resize(size);
    return message;
  }

 private:
  static constexpr DWORD kRoom = 1U << 16U;

  static std::wstring Name() {
    return L"\\\\.\\pipe\\kxxlate-test-" + std::to_wstring(::GetCurrentProcessId());
  }

  HANDLE reader_;
  HANDLE writer_;
};

TEST(StandardStreamOnWindows, TextArrivesInOneWriteWithTheLineEndsOfTheSystem) {
  const MessagePipe pipe;
  const OutputTo output(pipe.Writer());
  const std::string longLine(20000, 'x');
  EXPECT_TRUE(WriteToStandardStream(StandardStream::kOutput, "one\ntwo\xFF\n"));
  EXPECT_TRUE(WriteToStandardStream(StandardStream::kOutput, longLine + '\n'));
  EXPECT_EQ("one\r\ntwo\xFF\r\n", pipe.NextMessage());
  EXPECT_EQ(longLine + "\r\n", pipe.NextMessage());
}

TEST(StandardStreamOnWindows, IsTheOneOfTheMoment) {
  const TempTree tree;
  const auto written = [&tree](const char* name, const char* text) {
    const HANDLE file = ::CreateFileW(PathFromUtf8(tree.Path(name)).make_preferred().c_str(),
                                      GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    const OutputTo output(file);
    EXPECT_TRUE(WriteToStandardStream(StandardStream::kOutput, text));
    ::CloseHandle(file);
  };
  written("first", "one\n");
  written("second", "two\n");
  EXPECT_EQ("one\r\n", tree.Read("first"));
  EXPECT_EQ("two\r\n", tree.Read("second"));
}

TEST(StandardStreamOnWindows, WithoutAStreamATextIsLost) {
  for (const HANDLE none : {HANDLE{nullptr}, INVALID_HANDLE_VALUE}) {
    const OutputTo output(none);
    EXPECT_FALSE(WriteToStandardStream(StandardStream::kOutput, "a line\n"));
  }
}

TEST(StandardStreamOnWindows, ToAPipeThatNobodyReadsATextIsLost) {
  HANDLE reader = nullptr;
  HANDLE writer = nullptr;
  ASSERT_NE(0, ::CreatePipe(&reader, &writer, nullptr, 0));
  ::CloseHandle(reader);
  {
    const OutputTo output(writer);
    EXPECT_FALSE(WriteToStandardStream(StandardStream::kOutput, "a line\n"));
  }
  ::CloseHandle(writer);
}

struct PieceCase {
  const char* name;
  std::wstring text;
  std::size_t expected;
};

void PrintTo(const PieceCase& c, std::ostream* os) { *os << c.text.size() << " units"; }

class ConsolePiece : public testing::TestWithParam<PieceCase> {};

TEST_P(ConsolePiece, IsWhatAConsoleTakesInOneCall) {
  EXPECT_EQ(GetParam().expected, kx::ConsolePieceLength(GetParam().text));
}

/// So many units, and behind them a character of two units and a letter.
std::wstring BeforeAPair(std::size_t units) { return std::wstring(units, L'x') + L"\U0001F600y"; }

INSTANTIATE_TEST_SUITE_P(Pieces, ConsolePiece,
                         testing::Values(PieceCase{"Nothing", L"", 0},
                                         PieceCase{"Short", L"abc", 3},
                                         PieceCase{"OneCall", std::wstring(8192, L'x'), 8192},
                                         PieceCase{"OneMore", std::wstring(8193, L'x'), 8192},
                                         PieceCase{"PairAtTheEnd", BeforeAPair(8190), 8192},
                                         PieceCase{"PairAcrossTheEnd", BeforeAPair(8191), 8191},
                                         PieceCase{"PairBehindTheEnd", BeforeAPair(8192), 8192}),
                         [](const testing::TestParamInfo<PieceCase>& row) {
                           return std::string(row.param.name);
                         });

}  // namespace
