// Results around the length up to which they stay on the stack: up to it nothing is allocated, and
// the result is whole on both sides.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "CKxXlate.h"
#include "format/result_text.h"
#include "format/varied_calls.h"
#include "support/failing_new.h"
#include "support/guarded_buffer.h"

namespace {

constexpr std::size_t kLimit = kx::ResultText::kBytesInPlace;

struct Form {
  const char* name;
  const char* text;    ///< of one text value and the number 2.5 or its text
  const char* ending;  ///< what is behind the text value in the result
  void (*insert)(char* buffer, KxSize size, const char* text, const char* value);
};

void PrintTo(const Form& form, std::ostream* os) { *os << form.name; }

const Form kForms[] = {
    {"Insert", "%0 of %1.", " of 2.5.",
     [](char* buffer, KxSize size, const char* text, const char* value) {
       CKxXlate::Insert(buffer, size, text, value, "2.5");
     }},
    {"FormatMessage", "{0}", " (2.5)",
     [](char* buffer, KxSize size, const char* text, const char* value) {
       const char* arguments[] = {value, "2.5"};
       CKxXlate::FormatMessageA(buffer, size, text, 2, arguments);
     }},
    {"InsertVariable", "%s:1 of %f:2", " of 2.500000",
     [](char* buffer, KxSize size, const char* text, const char* value) {
       CKxXlate::InsertVariable(buffer, size, text, value, 2.5);
     }},
    {"InsertVariableVA", "%s of %-8.2f", " of 2.50    ",
     [](char* buffer, KxSize size, const char* text, const char* value) {
       Vary(buffer, size, text, value, 2.5);
     }},
};

class InsertionAround : public testing::TestWithParam<Form> {
 protected:
  /// The result of a call whose first `allowed` allocations succeed, which makes `size` bytes.
  static std::string ResultOfSize(std::size_t size, int allowed) {
    const std::string value(size - std::string(GetParam().ending).size(), 'v');
    GuardedBuffer buffer(2000);
    Call(buffer, value, allowed);
    return buffer.Text();
  }

  static void Call(GuardedBuffer& buffer, const std::string& value, int allowed) {
    const FailingNew failing(allowed);
    GetParam().insert(buffer.Data(), buffer.Size(), GetParam().text, value.c_str());
  }

  static std::string Expected(std::size_t size) {
    const std::string ending = GetParam().ending;
    return std::string(size - ending.size(), 'v') + ending;
  }
};

TEST_P(InsertionAround, TheLimitIsWhole) {
  constexpr int kMany = 100;
  for (std::size_t size = kLimit - 40; size <= kLimit + 40; ++size) {
    ASSERT_EQ(Expected(size), ResultOfSize(size, kMany)) << size;
  }
  ASSERT_EQ(Expected(1990), ResultOfSize(1990, kMany));
}

TEST_P(InsertionAround, TheLimitAllocatesNothingBelow) {
  // A number is reserved with more than it takes.
  for (std::size_t size = 40; size <= kLimit - 20; ++size) {
    ASSERT_EQ(Expected(size), ResultOfSize(size, 0)) << size;
  }
}

TEST_P(InsertionAround, AUsualLengthAllocatesNothing) {
  EXPECT_EQ(Expected(255), ResultOfSize(255, 0));
}

TEST_P(InsertionAround, TheLimitAllocatesBeyond) {
  EXPECT_THROW(ResultOfSize(kLimit + 1, 0), std::bad_alloc);
}

INSTANTIATE_TEST_SUITE_P(Forms, InsertionAround, testing::ValuesIn(kForms),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
