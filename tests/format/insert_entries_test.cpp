// What the three exported forms make of their argument lists.

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "support/guarded_buffer.h"

namespace {

constexpr KxSize kAmple = 256;

template <class... Arguments>
std::string Inserted(const char* format, Arguments... arguments) {
  GuardedBuffer buffer(kAmple);
  CKxXlate::Insert(buffer.Data(), buffer.Size(), format, arguments...);
  EXPECT_EQ(buffer.Text().size() + 1, buffer.BytesWritten());
  return buffer.Text();
}

std::string FormattedPointers(const char* format, std::vector<const char*> arguments) {
  GuardedBuffer buffer(kAmple);
  CKxXlate::FormatMessageA(buffer.Data(), buffer.Size(), format, arguments.size(),
                           arguments.data());
  EXPECT_EQ(buffer.Text().size() + 1, buffer.BytesWritten());
  return buffer.Text();
}

std::string FormattedStrings(const char* format, const std::vector<std::string>& arguments) {
  GuardedBuffer buffer(kAmple);
  CKxXlate::FormatMessageA(buffer.Data(), buffer.Size(), format, arguments.size(),
                           arguments.data());
  EXPECT_EQ(buffer.Text().size() + 1, buffer.BytesWritten());
  return buffer.Text();
}

const std::vector<const char*> kTwenty = {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j",
                                          "k", "l", "m", "n", "o", "p", "q", "r", "s", "t"};

TEST(Insert, WithoutArgumentsLeavesTheText) {
  EXPECT_EQ("text", Inserted("text"));
  EXPECT_EQ("%0 %2 100% sure", Inserted("%0 %12 100% sure"));
}

TEST(Insert, TakesThirteenArguments) {
  EXPECT_EQ("m l a", Inserted("{12} {11} {0}", "a", "b", "c", "d", "e", "f", "g", "h", "i", "j",
                              "k", "l", "m"));
  EXPECT_EQ("(a, b, c, d, e, f, g, h, i, j, k, l, m)",
            Inserted("", "a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m"));
}

TEST(Insert, AllArgumentsNullIsNoArgument) {
  EXPECT_EQ("text", Inserted("text", nullptr, nullptr, nullptr));
  EXPECT_EQ("", Inserted("", nullptr));
  EXPECT_EQ("%0", Inserted("%0", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                           nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
}

TEST(Insert, NullBeforeTheLastArgumentIsAbsent) {
  EXPECT_EQ("a %1 c", Inserted("%0 %1 %2", "a", nullptr, "c"));
  EXPECT_EQ("a {1} c", Inserted("{0} {1} {2}", "a", nullptr, "c"));
}

TEST(Insert, NullBeforeTheLastArgumentCounts) {
  EXPECT_EQ("a (, c)", Inserted("%0", "a", nullptr, "c"));
  EXPECT_EQ("text (, b)", Inserted("text", nullptr, "b"));
}

TEST(Insert, NullsBehindTheLastArgumentDoNotCount) {
  EXPECT_EQ("text (a)", Inserted("text", "a", nullptr, nullptr, nullptr));
}

TEST(Insert, EmptyArgumentCountsAsGiven) {
  EXPECT_EQ("text (a, )", Inserted("text", "a", ""));
  EXPECT_EQ("[]", Inserted("[%0]", ""));
}

TEST(Insert, OnlyTheLastOfThirteenGivenCountsThirteen) {
  EXPECT_EQ("(, , , , , , , , , , , , m)",
            Inserted("", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                     nullptr, nullptr, nullptr, nullptr, "m"));
}

TEST(Insert, EachPositionIsCounted) {
  for (std::size_t given = 0; given < 13; ++given) {
    std::vector<const char*> a(13, nullptr);
    a[given] = "x";
    std::string expected = "(";
    for (std::size_t i = 0; i < given; ++i) expected += ", ";
    EXPECT_EQ(expected + "x)", Inserted("", a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8],
                                        a[9], a[10], a[11], a[12]));
  }
}

TEST(FormatMessageOfPointers, UsesAllOfTwentyArguments) {
  EXPECT_EQ("t n m", FormattedPointers("{19} {13} {12}", kTwenty));
  EXPECT_EQ("m (n, o, p, q, r, s, t)", FormattedPointers("%12", kTwenty));
}

TEST(FormatMessageOfPointers, UsesAHundredArguments) {
  std::vector<const char*> arguments(100, "x");
  arguments[99] = "last";
  EXPECT_EQ("last", FormattedPointers("%99", arguments));
}

TEST(FormatMessageOfPointers, CountsNullsAtTheEnd) {
  EXPECT_EQ("text (a, , )", FormattedPointers("text", {"a", nullptr, nullptr}));
  EXPECT_EQ("text ()", FormattedPointers("text", {nullptr}));
}

TEST(FormatMessageOfPointers, NullArgumentIsAbsent) {
  EXPECT_EQ("%0 b", FormattedPointers("%0 %1", {nullptr, "b"}));
  EXPECT_EQ("a {1}", FormattedPointers("{0} {1}", {"a", nullptr}));
}

TEST(FormatMessageOfPointers, ReadsNoMoreThanTheCount) {
  const char* arguments[] = {"a", "b", "c"};
  GuardedBuffer buffer(kAmple);
  CKxXlate::FormatMessageA(buffer.Data(), buffer.Size(), "%0 %1 %2", 2, arguments);
  EXPECT_EQ("a b %2", buffer.Text());
  EXPECT_EQ(7U, buffer.BytesWritten());
}

TEST(FormatMessageOfPointers, NullArrayIsAnEmptyOne) {
  GuardedBuffer buffer(kAmple);
  const char** none = nullptr;
  CKxXlate::FormatMessageA(buffer.Data(), buffer.Size(), "%0 x", 0, none);
  EXPECT_EQ("%0 x", buffer.Text());
  EXPECT_EQ(5U, buffer.BytesWritten());
}

TEST(FormatMessageOfPointers, LeavesTheArrayAsItWas) {
  const char* first = "a";
  const char* arguments[] = {first, nullptr};
  GuardedBuffer buffer(kAmple);
  CKxXlate::FormatMessageA(buffer.Data(), buffer.Size(), "%0 %1 %2", 2, arguments);
  EXPECT_EQ(first, arguments[0]);
  EXPECT_EQ(nullptr, arguments[1]);
}

TEST(FormatMessageOfStrings, UsesTheFirstThirteenOfTwenty) {
  const std::vector<std::string> twenty(kTwenty.begin(), kTwenty.end());
  EXPECT_EQ("m {3} {9}", FormattedStrings("{12} {13} {19}", twenty));
  EXPECT_EQ("a (b, c, d, e, f, g, h, i, j, k, l, m)", FormattedStrings("%0", twenty));
}

TEST(FormatMessageOfStrings, ThirteenAreAllUsed) {
  const std::vector<std::string> thirteen(kTwenty.begin(), std::next(kTwenty.begin(), 13));
  EXPECT_EQ("m", FormattedStrings("%12", thirteen));
  EXPECT_EQ("l (m)", FormattedStrings("%11", thirteen));
}

TEST(FormatMessageOfStrings, LooksAtNoStringBehindTheThirteenth) {
  const std::vector<std::string> thirteen(13, "x");
  GuardedBuffer buffer(kAmple);
  CKxXlate::FormatMessageA(buffer.Data(), buffer.Size(), "%12 %13 %14", 1000000, thirteen.data());
  EXPECT_EQ("x %3 %4", buffer.Text());
  EXPECT_EQ(8U, buffer.BytesWritten());
}

TEST(FormatMessageOfStrings, EmptyStringIsPresent) {
  EXPECT_EQ("[]", FormattedStrings("[%0]", {""}));
  EXPECT_EQ("x (, b)", FormattedStrings("x", {"", "b"}));
}

TEST(FormatMessageOfStrings, StringEndsAtItsFirstNul) {
  EXPECT_EQ("[ab]", FormattedStrings("[%0]", {std::string("ab\0cd", 5)}));
  EXPECT_EQ("[]", FormattedStrings("[%0]", {std::string("\0cd", 3)}));
  EXPECT_EQ("x (ab, e)", FormattedStrings("x", {std::string("ab\0cd", 5), "e"}));
}

TEST(FormatMessageOfStrings, NullArrayWithoutCountIsAnEmptyOne) {
  GuardedBuffer buffer(kAmple);
  const std::string* none = nullptr;
  CKxXlate::FormatMessageA(buffer.Data(), buffer.Size(), "%0 x", 0, none);
  EXPECT_EQ("%0 x", buffer.Text());
  EXPECT_EQ(5U, buffer.BytesWritten());
}

TEST(FormatMessageOfStrings, BufferMayBeAStringOfTheArray) {
  std::string arguments[] = {"a string with much room for the result", "b"};
  CKxXlate::FormatMessageA(arguments[0].data(), 20, "<%1> ", 2, arguments);
  EXPECT_STREQ("<b> ", arguments[0].c_str());

  CKxXlate::FormatMessageA(arguments[0].data(), 20, "%1%0%1", 2, arguments);
  EXPECT_STREQ("b<b> b", arguments[0].c_str());
}

}  // namespace
