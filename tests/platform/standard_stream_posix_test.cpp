#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "platform/standard_stream.h"

namespace {

using kx::StandardStream;
using kx::WriteToStandardStream;

TEST(StandardStream, TextStandsBehindWhatTheHostHasPrinted) {
  testing::internal::CaptureStdout();
  std::fputs("before, ", stdout);
  EXPECT_TRUE(WriteToStandardStream(StandardStream::kOutput, "a text, "));
  std::fputs("behind\n", stdout);
  EXPECT_EQ("before, a text, behind\n", testing::internal::GetCapturedStdout());
}

TEST(StandardStream, ToAClosedStreamATextIsLost) {
  EXPECT_EXIT(
      {
        ::close(STDOUT_FILENO);
        const bool isWritten = WriteToStandardStream(StandardStream::kOutput, "a line\n");
        std::_Exit(isWritten ? 1 : 0);
      },
      testing::ExitedWithCode(0), "^$");
}

}  // namespace
