#ifndef KX_TESTS_FORMAT_VARIABLE_CASES_H
#define KX_TESTS_FORMAT_VARIABLE_CASES_H

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

#include "CKxXlate.h"
#include "support/guarded_buffer.h"

// What the tests of both ways of variable insertion share: a call with its values, and what it
// leaves in a buffer.

constexpr KxSize kAmple = 512;

using Call = std::function<void(char* buffer, KxSize size, const char* format)>;

inline std::string ZeroFilled(std::string text, KxSize size) {
  text.resize(size, '\0');
  return text;
}

/// Checks every byte in and around a buffer of `size` bytes that receives `expected`.
inline void ExpectInserts(const Call& call, const char* format, KxSize size,
                          const std::string& expected) {
  GuardedBuffer buffer(size);
  call(buffer.Data(), buffer.Size(), format);
  EXPECT_EQ(expected, buffer.Text());
  EXPECT_EQ(ZeroFilled(expected, size), std::string(buffer.Data(), size));
  EXPECT_EQ(size, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

struct VariableCase {
  const char* name;
  const char* text;
  Call call;
  const char* expected;
};

inline void PrintTo(const VariableCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

inline std::string NameOf(const testing::TestParamInfo<VariableCase>& row) {
  return row.param.name;
}

#endif  // KX_TESTS_FORMAT_VARIABLE_CASES_H
