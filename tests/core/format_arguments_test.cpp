// How many arguments a message takes, and from where.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "Xlate.h"
#include "core/format_fixture.h"

namespace {

std::vector<std::string> Letters(std::size_t count) {
  std::vector<std::string> letters;
  for (std::size_t i = 0; i < count; ++i) letters.emplace_back(1, static_cast<char>('a' + i));
  return letters;
}

TEST_F(Format, UsesSixteenArguments) {
  Xlate message = MessageOf(translator_, Letters(16));
  EXPECT_STREQ("p a", CKxXlate::Format(&message, "%15 %0"));
  EXPECT_STREQ("o (p)", CKxXlate::Format(&message, "{14}"));
}

TEST_F(Format, UsesNoMoreThanSixteenArguments) {
  Xlate message = MessageOf(translator_, Letters(20));
  EXPECT_STREQ("%6 p", CKxXlate::Format(&message, "%16 %15"));
  EXPECT_STREQ("o (p)", CKxXlate::Format(&message, "%14"));
  EXPECT_STREQ("(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p)",
               CKxXlate::Format(&message, nullptr));
}

TEST_F(Format, UsesNoMoreArgumentsThanAreCounted) {
  Xlate message = MessageOf(translator_, {"a", "b", "c"});
  message.argCount = 2;
  EXPECT_STREQ("Hello (a, b)", CKxXlate::Format(&message, "K1"));
  message.argCount = 0;
  EXPECT_STREQ("Hello", CKxXlate::Format(&message, "K1"));
}

// A count that says more than the string holds: the texts that are there count.
TEST_F(Format, TheStringsOwnTerminatorIsOneMoreArgument) {
  Xlate message = MessageOf(translator_, {"Ann"});
  message.argCount = 2;
  EXPECT_STREQ("Ann,", CKxXlate::Format(&message, "%0,%1"));
  EXPECT_STREQ("Hello (Ann, )", CKxXlate::Format(&message, "K1"));
  message.args = "Ann";  // where it ends the only one
  EXPECT_STREQ("Ann,%1", CKxXlate::Format(&message, "%0,%1"));
}

TEST_F(Format, ReadsNoArgumentBehindThoseThereAre) {
  const std::string longText(100, 'a');  // on the heap, where a sanitizer sees what reads too far
  for (const std::uint64_t count : {3ULL, 16ULL, 17ULL, 1ULL << 32U, ~0ULL}) {
    Xlate message = MessageOf(translator_, {longText, "b"});
    message.argCount = count;
    EXPECT_EQ("Hello (" + longText + ", b, )", CKxXlate::Format(&message, "K1")) << count;
    EXPECT_STREQ("%3 b", CKxXlate::Format(&message, "%3 %1")) << count;
  }
}

TEST_F(Format, ReadsNoArgumentBehindAnEmptyString) {
  Xlate message = MessageOf(translator_);
  message.argCount = 5;
  EXPECT_STREQ("Hello ()", CKxXlate::Format(&message, "K1"));
  EXPECT_STREQ(" %1", CKxXlate::Format(&message, "%0 %1"));
}

TEST_F(Format, LastArgumentMayLackItsNul) {
  Xlate message = MessageOf(translator_);
  message.args = "first" + std::string(1, '\0') + std::string(100, 'x');
  message.argCount = 2;
  EXPECT_EQ("Hello (first, " + std::string(100, 'x') + ")", CKxXlate::Format(&message, "K1"));
}

}  // namespace
