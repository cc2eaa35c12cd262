// What becomes of wide texts here. docs/windows.md tells hosts.

#include <gtest/gtest.h>

#include <cstdarg>
#include <cwchar>
#include <string>

#include "CKxXlate.h"

namespace {

std::string Formatted(const char* format, ...) {
  char buffer[64];
  std::va_list arguments;
  va_start(arguments, format);
  CKxXlate::InsertVariableVA(buffer, sizeof buffer, format, arguments);
  va_end(arguments);
  return buffer;
}

TEST(WideTextOnWindows, OfAsciiIsInserted) {
  EXPECT_EQ("<abc> <a>", Formatted("<%ls:1> <%lc:2>", L"abc", std::wint_t{L'a'}));
}

TEST(WideTextOnWindows, LettersOfLatin1BecomeOneByteEach) {
  EXPECT_EQ("<a\xE9\xFF> <\xE9>",
            Formatted("<%ls:1> <%lc:2>", L"a\u00E9\u00FF", std::wint_t{0xE9}));
}

TEST(WideTextOnWindows, EndsBeforeTheFirstOtherLetter) {
  EXPECT_EQ("<a> <>", Formatted("<%ls:1> <%lc:2>", L"a\u65E5b", std::wint_t{0x65E5}));
  EXPECT_EQ("<a>", Formatted("<%ls:1>", L"a\U0001F600"));
}

}  // namespace
