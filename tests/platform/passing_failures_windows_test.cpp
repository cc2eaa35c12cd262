// Failures to open and to read as only this system has them.

#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string>
#include <thread>

#include "platform/file_streams.h"
#include "platform/stream_bytes.h"
#include "support/held_file.h"
#include "support/temp_tree.h"

namespace {

/// Holds a file, and lets it go soon.
class HeldForAMoment {
 public:
  explicit HeldForAMoment(const std::string& path)
      : held_(std::make_unique<HeldFile>(path)), holder_([this] {
          ::Sleep(15);
          held_.reset();
        }) {}

 private:
  std::unique_ptr<HeldFile> held_;
  std::jthread holder_;
};

TEST(PassingFailureOnWindows, IsOverWhenTheFileIsLetGoSoon) {
  const TempTree tree;
  tree.Write("file", "bytes");
  const HeldForAMoment held(tree.Path("file"));
  EXPECT_EQ("bytes", ReadThroughStream(tree.Path("file")));
}

TEST(PassingFailureOnWindows, IsOverForAWriterToo) {
  const TempTree tree;
  tree.Write("file", "bytes");
  {
    const HeldForAMoment held(tree.Path("file"));
    EXPECT_TRUE(Append(tree.Path("file"), "!"));
  }
  EXPECT_EQ("bytes!", tree.Read("file"));
}

// Wine's way to a file past its drives leads to one whose status is that of any other, but whose
// reading fails.
TEST(PassingFailureOnWindows, IsAReadThatFails) {
  CKxIfstream stream;
  KxIfstreamOpen(stream, "//?/unix/proc/self/mem");
  ASSERT_TRUE(stream.good());
  EXPECT_FALSE(stream.MayWorkLater());
  EXPECT_EQ(std::char_traits<char>::eof(), stream.get());
  EXPECT_TRUE(stream.MayWorkLater());
}

}  // namespace
