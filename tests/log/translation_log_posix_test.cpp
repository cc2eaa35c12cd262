// What a log does on a system that does not let it write: nothing that a host would notice.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "log/translation_log.h"
#include "support/lasting_log.h"
#include "support/special_files.h"
#include "support/temp_tree.h"

namespace {

void Link(const std::string& target, const std::string& link) {
  std::filesystem::create_symlink(PathFromUtf8(target), PathFromUtf8(link));
}

/// While it lives, no file of this process grows beyond a size.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    ::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_;
};

/// What has reached standard output since its capture began, without flushing it as the end of the
/// capture does.
std::string OnStandardOutputByNow() {
  std::string bytes(1000, '\0');
  const ssize_t size = ::pread(STDOUT_FILENO, bytes.data(), bytes.size(), 0);
  bytes.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
  return bytes;
}

/// What a log under `root` writes to standard output.
std::string OutputOfLog(const std::string& root) {
  testing::internal::CaptureStdout();
  LastingLog().WriteLine(root, {"a line"});
  return testing::internal::GetCapturedStdout();
}

TEST(TranslationLogFailure, ARootThatMayNotBeWrittenLeavesStandardOutput) {
  const TempTree tree;
  tree.MakeDirectory("r");
  {
    const Restricted readOnly(tree.Path("r"), std::filesystem::perms{0555});
    EXPECT_EQ("a line\n", OutputOfLog(tree.Path("r")));
  }
  EXPECT_FALSE(tree.Exists("r/log"));
  EXPECT_FALSE(tree.Exists("r/translate.log"));
}

TEST(TranslationLogFailure, ADirectoryThatMayNotBeWrittenLeavesStandardOutput) {
  const TempTree tree;
  tree.MakeDirectory("r/log");
  std::filesystem::permissions(PathFromUtf8(tree.Path("r")), std::filesystem::perms{0777});
  {
    const Restricted readOnly(tree.Path("r/log"), std::filesystem::perms{0555});
    EXPECT_EQ("a line\n", OutputOfLog(tree.Path("r")));
  }
  EXPECT_FALSE(tree.Exists("r/log/translate.log"));
  EXPECT_FALSE(tree.Exists("r/translate.log"));
}

TEST(TranslationLogFailure, ALogThatMayNotBeWrittenLeavesStandardOutput) {
  const TempTree tree;
  tree.Write("r/log/translate.log", "old\n");
  {
    const Restricted readOnly(tree.Path("r/log/translate.log"), std::filesystem::perms{0444});
    EXPECT_EQ("a line\n", OutputOfLog(tree.Path("r")));
  }
  EXPECT_EQ("old\n", tree.Read("r/log/translate.log"));
}

TEST(TranslationLogFailure, LinesForAFullDiskAreLostSilently) {
  const TempTree tree;
  tree.MakeDirectory("log");
  Link("/dev/full", tree.Path("log/translate.log"));
  kx::TranslationLog& log = LastingLog();
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  for (int line = 0; line < 3; ++line) log.WriteLine(tree.Path(), {"a line"});
  EXPECT_EQ("", testing::internal::GetCapturedStdout());
  EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

TEST(TranslationLogFailure, OneLostLineDoesNotTakeTheNextWithIt) {
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(tree.Path(), {"first"});
  {
    const FileSizeLimit full(std::string("first\n").size());
    log.WriteLine(tree.Path(), {"lost"});
  }
  log.WriteLine(tree.Path(), {"last"});
  EXPECT_EQ("first\nlast\n", tree.Read("log/translate.log"));
}

TEST(TranslationLogFailure, APipeWithoutReaderIsNotWaitedFor) {
  const TempTree tree;
  tree.MakeDirectory("log");
  MakeNamedPipe(tree.Path("log/translate.log"));
  kx::TranslationLog& log = LastingLog();
  testing::internal::CaptureStdout();
  log.WriteLine(tree.Path(), {"first"});
  log.WriteLine(tree.Path(), {"second"});
  EXPECT_EQ("first\nsecond\n", testing::internal::GetCapturedStdout());
}

TEST(TranslationLogFailure, APipeWhoseReaderWentAwayDoesNotEndTheHost) {
  const TempTree tree;
  tree.MakeDirectory("log");
  MakeNamedPipe(tree.Path("log/translate.log"));
  EXPECT_EXIT(
      {
        kx::TranslationLog& log = LastingLog();
        const int reader = ::open(tree.Path("log/translate.log").c_str(), O_RDONLY | O_NONBLOCK);
        log.WriteLine(tree.Path(), {"first"});
        ::close(reader);
        log.WriteLine(tree.Path(), {"second"});
        std::_Exit(0);
      },
      testing::ExitedWithCode(0), "");
}

TEST(TranslationLogFailure, APipeThatNobodyEmptiesIsNotWaitedFor) {
  const TempTree tree;
  tree.MakeDirectory("log");
  MakeNamedPipe(tree.Path("log/translate.log"));
  const int reader = ::open(tree.Path("log/translate.log").c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(reader, 0);
  const std::string kilobyte(1024, 'x');
  kx::TranslationLog& log = LastingLog();
  testing::internal::CaptureStdout();
  for (int line = 0; line < 2000; ++line) log.WriteLine(tree.Path(), {kilobyte});
  testing::internal::GetCapturedStdout();
  EXPECT_EQ(0, ::close(reader));
}

TEST(TranslationLogFailure, StandardOutputIsFlushedAtOnce) {
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  testing::internal::CaptureStdout();
  log.WriteLine(tree.Path("missing"), {"first"});
  const std::string afterFirst = OnStandardOutputByNow();
  log.WriteLine(tree.Path("missing"), {"second"});
  const std::string afterSecond = OnStandardOutputByNow();
  testing::internal::GetCapturedStdout();
  EXPECT_EQ("first\n", afterFirst);
  EXPECT_EQ("first\nsecond\n", afterSecond);
}

TEST(TranslationLogFailure, ADanglingLinkNamedLogIsInTheWay) {
  const TempTree tree;
  Link("missing", tree.Path("log"));
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(tree.Path(), {"a line"});
  EXPECT_EQ("a line\n", tree.Read("translate.log"));
}

TEST(TranslationLogFailure, ALinkToADirectoryIsUsed) {
  const TempTree tree;
  tree.MakeDirectory("elsewhere");
  Link("elsewhere", tree.Path("log"));
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(tree.Path(), {"a line"});
  EXPECT_EQ("a line\n", tree.Read("elsewhere/translate.log"));
}

TEST(TranslationLogFailure, ALogTakenAwayIsNotOpenedAgain) {
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(tree.Path(), {"first"});
  std::filesystem::rename(PathFromUtf8(tree.Path("log")), PathFromUtf8(tree.Path("old")));
  log.WriteLine(tree.Path(), {"second"});
  EXPECT_EQ("first\nsecond\n", tree.Read("old/translate.log"));
  EXPECT_FALSE(tree.Exists("log"));
}

TEST(TranslationLogFailure, DirectoryIsOpenToAllTheMaskLets) {
  const TempTree tree;
  const mode_t before = ::umask(0);
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(tree.Path(), {"a line"});
  ::umask(before);
  const auto status = std::filesystem::status(PathFromUtf8(tree.Path("log")));
  EXPECT_EQ(std::filesystem::perms{0777}, status.permissions());
}

}  // namespace
