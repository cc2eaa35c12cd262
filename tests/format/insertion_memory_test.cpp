// What is left when memory runs out during an insertion.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CKxXlate.h"
#include "format/positional_insertion.h"
#include "support/failing_new.h"
#include "support/guarded_buffer.h"

namespace {

const std::string kLong(500, 'x');

TEST(InsertionMemory, ShortageIsThrownFromTheEngine) {
  const char* arguments[] = {kLong.c_str(), "b"};
  const std::string expected = kLong + kLong + " (b)";
  const int failures = FailEachAllocation(
      [&] {
        std::string result;
        kx::InsertArguments(result, "%0%0", 2, arguments);
        EXPECT_EQ(expected.size(), result.size());
        EXPECT_TRUE(expected == result);
      },
      [] {});
  EXPECT_GT(failures, 0);
}

TEST(InsertionMemory, ShortageIsThrownFromInsertWhichHasWrittenNothing) {
  GuardedBuffer buffer(2000);
  const int failures = FailEachAllocation(
      [&] { CKxXlate::Insert(buffer.Data(), buffer.Size(), "{0}{0}", kLong.c_str()); },
      [&] { EXPECT_EQ(0U, buffer.BytesWritten()); });
  EXPECT_GT(failures, 0);
  EXPECT_EQ(kLong + kLong, buffer.Text());
}

TEST(InsertionMemory, ShortageIsThrownFromFormatMessageOfPointersWhichHasWrittenNothing) {
  GuardedBuffer buffer(2000);
  const char* arguments[] = {kLong.c_str(), kLong.c_str()};
  const int failures = FailEachAllocation(
      [&] { CKxXlate::FormatMessageA(buffer.Data(), buffer.Size(), "%0%1", 2, arguments); },
      [&] { EXPECT_EQ(0U, buffer.BytesWritten()); });
  EXPECT_GT(failures, 0);
  EXPECT_EQ(kLong + kLong, buffer.Text());
}

TEST(InsertionMemory, ShortageIsThrownFromFormatMessageOfStringsWhichHasWrittenNothing) {
  GuardedBuffer buffer(2000);
  const std::vector<std::string> arguments(13, kLong);
  const int failures = FailEachAllocation(
      [&] { CKxXlate::FormatMessageA(buffer.Data(), buffer.Size(), "%12", 13, arguments.data()); },
      [&] { EXPECT_EQ(0U, buffer.BytesWritten()); });
  EXPECT_GT(failures, 0);
  EXPECT_EQ(kLong, buffer.Text());
}

}  // namespace
