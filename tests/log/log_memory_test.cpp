// What becomes of a line when memory runs out while it is written.

#include <gtest/gtest.h>

#include "support/failing_new.h"
#include "support/lasting_log.h"

namespace {

// Streams of the standard library turn what their buffer throws into a state, and the line would
// then be lost without a word.
TEST(TranslationLogMemory, ShortageIsThrownFromStandardOutputToo) {
  kx::TranslationLog& log = LastingLog(false);
  testing::internal::CaptureStdout();
  const int failures = FailEachAllocation(
      [&log] { log.WriteLine("", {"a line of more bytes than a string has room for"}); }, [] {});
  EXPECT_EQ("a line of more bytes than a string has room for\n",
            testing::internal::GetCapturedStdout());
  EXPECT_GT(failures, 2);
}

}  // namespace
