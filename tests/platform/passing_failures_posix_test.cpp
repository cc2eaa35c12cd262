// Failures to open and to read that this system alone has, and the numbers of open files.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "platform/file_handle.h"
#include "platform/file_streams.h"
#include "platform/stream_bytes.h"
#include "support/special_files.h"
#include "support/temp_tree.h"

namespace {

/// While it lives, a standard stream of this process is closed.
class ClosedStream {
 public:
  explicit ClosedStream(int descriptor) : descriptor_(descriptor), kept_(::dup(descriptor)) {
    ::close(descriptor_);
  }
  ~ClosedStream() {
    ::dup2(kept_, descriptor_);
    ::close(kept_);
  }
  ClosedStream(const ClosedStream&) = delete;
  ClosedStream& operator=(const ClosedStream&) = delete;

  bool IsStillClosed() const { return ::fcntl(descriptor_, F_GETFD) == -1; }

 private:
  const int descriptor_;
  const int kept_;
};

class PlaceOfAStandardStream : public testing::TestWithParam<int> {};

TEST_P(PlaceOfAStandardStream, IsNotTakenByAFile) {
  const TempTree tree;
  tree.Write("read", "bytes");
  CKxIfstream input;
  CKxOfstream output;
  bool isStillClosed;
  {
    const ClosedStream closed(GetParam());
    KxIfstreamOpen(input, tree.Path("read").c_str());
    KxOfstreamOpen(output, tree.Path("written").c_str());
    isStillClosed = closed.IsStillClosed();
  }
  EXPECT_TRUE(isStillClosed);
  std::string text;
  EXPECT_TRUE(input >> text);
  EXPECT_EQ("bytes", text);
  EXPECT_TRUE(output << "line" << std::flush);
  EXPECT_EQ("line", tree.Read("written"));
}

TEST_P(PlaceOfAStandardStream, IsNotLeftOpenWhenNoOtherIsFree) {
  const TempTree tree;
  tree.Write("read", "bytes");
  const std::string path = tree.Path("read");
  rlimit before;
  ::getrlimit(RLIMIT_NOFILE, &before);
  // Only the closed stream's own number is left.
  const rlimit few = {STDERR_FILENO + 1, before.rlim_max};
  kx::OpenedFile opened;
  bool isStillClosed;
  {
    const ClosedStream closed(GetParam());
    ::setrlimit(RLIMIT_NOFILE, &few);
    opened = kx::OpenRegularFile(path.c_str());
    ::setrlimit(RLIMIT_NOFILE, &before);
    isStillClosed = closed.IsStillClosed();
  }
  EXPECT_EQ(kx::kNoFile, opened.file);
  EXPECT_TRUE(opened.mayOpenLater);
  EXPECT_TRUE(isStillClosed);
}

INSTANTIATE_TEST_SUITE_P(Streams, PlaceOfAStandardStream,
                         testing::Values(STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO),
                         [](const auto& row) { return "Number" + std::to_string(row.param); });

TEST(FilesAreClosed, WhenAnotherProgramIsStarted) {
  const TempTree tree;
  CKxOfstream output;
  int descriptor;
  {
    const ClosedStream closed(STDERR_FILENO);
    KxOfstreamOpen(output, tree.Path("written").c_str());
    descriptor = ::dup(STDOUT_FILENO);  // may take the number of the closed stream
    ::close(descriptor);
  }
  // Whatever number the file has, and however it came by it.
  int kept = 0;
  for (int number = STDERR_FILENO + 1; number < 64; ++number) {
    const int flags = ::fcntl(number, F_GETFD);
    char target[256];
    const std::string link = "/proc/self/fd/" + std::to_string(number);
    const ssize_t length = ::readlink(link.c_str(), target, sizeof target);
    if (flags == -1 || length < 0) continue;
    if (std::string(target, static_cast<std::size_t>(length)) != tree.Path("written")) continue;
    ++kept;
    EXPECT_NE(0, flags & FD_CLOEXEC);
  }
  EXPECT_EQ(1, kept);
}

// A file of this system whose status is that of any other, but whose reading fails.
constexpr char kUnreadable[] = "/proc/self/mem";

TEST(PassingFailureOnPosix, IsAReadThatFails) {
  CKxIfstream stream;
  KxIfstreamOpen(stream, kUnreadable);
  ASSERT_TRUE(stream.good());
  EXPECT_FALSE(stream.MayWorkLater());
  EXPECT_EQ(std::char_traits<char>::eof(), stream.get());
  EXPECT_TRUE(stream.MayWorkLater());
}

TEST(PassingFailureOnPosix, IsNotThatOfAForbiddenFile) {
  const TempTree tree;
  tree.Write("file", "x");
  const Restricted closed(tree.Path("file"), std::filesystem::perms::none);
  CKxIfstream input;
  KxIfstreamOpen(input, tree.Path("file").c_str());
  EXPECT_TRUE(input.fail());
  EXPECT_FALSE(input.MayWorkLater());
  CKxOfstream output;
  KxOfstreamOpen(output, tree.Path("file").c_str());
  EXPECT_TRUE(output.fail());
  EXPECT_FALSE(output.MayWorkLater());
}

/// While it lives, this process has a lease on a file: who opens it is told to come again, and the
/// holder is told to give it back.
class Lease {
 public:
  explicit Lease(const std::string& path)
      : before_(::signal(SIGIO, SIG_IGN)), descriptor_(::open(path.c_str(), O_RDWR | O_CLOEXEC)) {
    EXPECT_EQ(0, ::fcntl(descriptor_, F_SETLEASE, F_WRLCK));
  }
  ~Lease() {
    ::close(descriptor_);
    ::signal(SIGIO, before_);
  }
  Lease(const Lease&) = delete;
  Lease& operator=(const Lease&) = delete;

  void GiveBack() const { ::fcntl(descriptor_, F_SETLEASE, F_UNLCK); }

 private:
  void (*const before_)(int);
  const int descriptor_;
};

TEST(PassingFailureOnPosix, IsAFileThatAnotherHasALeaseOn) {
  const TempTree tree;
  tree.Write("file", "bytes");
  const Lease lease(tree.Path("file"));
  CKxIfstream stream;
  KxIfstreamOpen(stream, tree.Path("file").c_str());
  EXPECT_TRUE(stream.fail());
  EXPECT_TRUE(stream.MayWorkLater());
}

TEST(PassingFailureOnPosix, IsOverWhenTheLeaseIsGivenBackSoon) {
  const TempTree tree;
  tree.Write("file", "bytes");
  const Lease lease(tree.Path("file"));
  std::jthread holder([&lease] {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    lease.GiveBack();
  });
  EXPECT_EQ("bytes", ReadThroughStream(tree.Path("file")));
}

}  // namespace
