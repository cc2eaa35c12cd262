// What opening and writing a file do to others, seen by the means of the system.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <string>

#include "platform/file_streams.h"
#include "support/temp_tree.h"

namespace {

/// How many times `path` was opened while `work` ran.
template <class Work>
int OpensDuring(const std::string& path, Work work) {
  const int watch = ::inotify_init1(IN_NONBLOCK);
  EXPECT_GE(::inotify_add_watch(watch, path.c_str(), IN_OPEN), 0);
  work();
  int opens = 0;
  char events[sizeof(inotify_event)];
  while (::read(watch, events, sizeof events) == static_cast<ssize_t>(sizeof events)) ++opens;
  ::close(watch);
  return opens;
}

void TryToRead(const std::string& path) {
  CKxIfstream stream;
  KxIfstreamOpen(stream, path.c_str());
}

// Opening it would let a writer go on that waits for a reader.
TEST(RefusedFile, IsNotEvenOpened) {
  TempTree tree;
  const std::string pipe = tree.Path("pipe");
  ASSERT_EQ(0, ::mkfifo(pipe.c_str(), 0600));
  EXPECT_EQ(0, OpensDuring(pipe, [&] { TryToRead(pipe); }));
}

TEST(RegularFile, IsOpenedOnce) {
  TempTree tree;
  tree.Write("file", "text");
  const std::string file = tree.Path("file");
  EXPECT_EQ(1, OpensDuring(file, [&] { TryToRead(file); }));
}

/// Lets no file grow beyond so many bytes.
void LimitFileSize(rlim_t bytes) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit;
  ASSERT_EQ(0, ::getrlimit(RLIMIT_FSIZE, &limit));
  limit.rlim_cur = bytes;
  ASSERT_EQ(0, ::setrlimit(RLIMIT_FSIZE, &limit));
}

TEST(CutLine, IsEndedBeforeTheNextBegins) {
  TempTree tree;
  CKxOfstream stream;
  KxOfstreamOpen(stream, tree.Path("log").c_str());
  stream << "first\n" << std::flush;
  LimitFileSize(9);
  stream << "second\n" << std::flush;
  EXPECT_FALSE(stream.good());
  stream.clear();
  LimitFileSize(RLIM_INFINITY);
  stream << "third\n" << std::flush;
  EXPECT_TRUE(stream.good());
  EXPECT_EQ("first\nsec\nthird\n", tree.Read("log"));
}

TEST(LostLine, LeavesNoTrace) {
  TempTree tree;
  CKxOfstream stream;
  KxOfstreamOpen(stream, tree.Path("log").c_str());
  stream << "first\n" << std::flush;
  LimitFileSize(6);
  stream << "second\n" << std::flush;
  stream.clear();
  LimitFileSize(RLIM_INFINITY);
  stream << "third\n" << std::flush;
  EXPECT_EQ("first\nthird\n", tree.Read("log"));
}

}  // namespace
