// What is left when memory runs out while values are inserted. That nothing stays allocated is seen
// by the leak checker.

#include <gtest/gtest.h>

#include <cstdarg>
#include <string>

#include "CKxXlate.h"
#include "Xlate.h"
#include "support/failing_new.h"
#include "support/guarded_buffer.h"

namespace {

const std::string kLong(500, 'x');

void Vary(char* buffer, KxSize size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  // The list ends here on every way, also when memory runs out.
  try {
    CKxXlate::InsertVariableVA(buffer, size, format, arguments);
  } catch (...) {
    va_end(arguments);
    throw;
  }
  va_end(arguments);
}

TEST(VariableMemory, ShortageIsThrownFromInsertVariableWhichHasWrittenNothing) {
  GuardedBuffer buffer(2000);
  const int failures = FailEachAllocation(
      [&] {
        CKxXlate::InsertVariable(buffer.Data(), buffer.Size(), "%f:2 %s:1 %s:3 %d:4", 1e100,
                                 kLong.c_str(), kLong.c_str(), 7);
      },
      [&] { EXPECT_EQ(0U, buffer.BytesWritten()); });
  EXPECT_GT(failures, 0);
  EXPECT_EQ(kLong + " 1", buffer.Text().substr(0, 502));
  EXPECT_EQ(kLong + " 7", buffer.Text().substr(buffer.Text().size() - 502));
}

TEST(VariableMemory, ShortageIsThrownFromInsertVariableVAWhichHasWrittenNothing) {
  GuardedBuffer buffer(2000);
  const int failures = FailEachAllocation(
      [&] {
        Vary(buffer.Data(), buffer.Size(), "%%, a part that is not short %-40s:2|%s:1%.3f:3|%ls:4",
             kLong.c_str(), "b", 0.5, L"a text that is not short");
      },
      [&] { EXPECT_EQ(0U, buffer.BytesWritten()); });
  EXPECT_GT(failures, 0);
  EXPECT_EQ("|a text that is not short", buffer.Text().substr(buffer.Text().rfind('|')));
}

TEST(VariableMemory, ShortageIsThrownFromFormatWhichWorksAgainLater) {
  Xlate message;
  message.resolved = true;
  message.showKeys = true;
  message.args = kLong + '\0';
  message.argCount = 1;
  const int failures = FailEachAllocation(
      [&] {
        message.output = CKxText();
        CKxXlate::Format(&message, "A key of some length with %0");
      },
      [] {});
  EXPECT_GT(failures, 0);
  EXPECT_EQ("[A key of some length with %0] A key of some length with " + kLong,
            message.output.text);
}

}  // namespace
