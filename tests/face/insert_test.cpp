#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "KxXlate.hpp"

namespace {

using std::string_view_literals::operator""sv;

TEST(FaceInsert, TakesTextsOfEveryKind) {
  const std::string standard = "standard";
  const std::string_view unterminated = "viewed!"sv.substr(0, 6);
  char array[] = "array";
  char* pointer = array;
  const std::string longText(1000, 'x');
  EXPECT_EQ("a standard viewed array array",
            kx::insert("%0 %1 %2 %3 %4", 'a', standard, unterminated, array, pointer));
  EXPECT_EQ("<" + longText + ">", kx::insert("<%0>", std::string_view(longText)));
  EXPECT_EQ("standard (1)", kx::insert(standard, 1));
  EXPECT_EQ("viewed (1)", kx::insert(unterminated, 1));
  EXPECT_EQ("array (1)", kx::insert(array, 1));
}

TEST(FaceInsert, WritesIntegersWhole) {
  EXPECT_EQ("-9223372036854775808 18446744073709551615 -5 200 -128 65535",
            kx::insert("%0 %1 %2 %3 %4 %5", std::numeric_limits<std::int64_t>::min(),
                       std::numeric_limits<std::uint64_t>::max(), -5, std::uint8_t{200},
                       std::int8_t{-128}, std::uint16_t{65535}));
}

TEST(FaceInsert, WritesFloatingValuesInTheFewestDigitsThatGiveThemBack) {
  EXPECT_EQ("0.1 1e+300 2.5 -0 inf nan 0.3",
            kx::insert("%0 %1 %2 %3 %4 %5 %6", 0.1, 1e300, 2.5F, -0.0,
                       std::numeric_limits<double>::infinity(),
                       std::numeric_limits<double>::quiet_NaN(), 0.3L));
  EXPECT_EQ("1.7976931348623157e+308", kx::insert("%0", std::numeric_limits<double>::max()));
}

TEST(FaceInsert, LeavesTheMarkerOfANullPointer) {
  const char* const absent = nullptr;
  EXPECT_EQ("%0 b %2", kx::insert("%0 %1 %2", absent, "b", nullptr));
}

TEST(FaceInsert, OfANullTextHasItsValuesAlone) {
  EXPECT_EQ("(a)", kx::insert(nullptr, "a"));
  EXPECT_EQ("", kx::insert(nullptr));
}

TEST(FaceInsert, FollowsTheRulesOfTheLibrary) {
  EXPECT_EQ("three of 10", kx::insert("%1 of %0", 10, "three"));
  EXPECT_EQ("Cannot open (a.txt, denied)", kx::insert("Cannot open", "a.txt", "denied"));
  EXPECT_EQ("Rate: 50% of {0} (v)", kx::insert("Rate: 50%% of {0}", "v"));
  EXPECT_EQ("o", kx::insert("%14", 'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 'i', 'j', 'k', 'l', 'm',
                            'n', 'o'));
}

TEST(FaceInsert, EndsAValueAtItsFirstNul) {
  EXPECT_EQ("<a> <b>", kx::insert("<%0> <%1>", std::string("a\0b", 3), "b\0c"sv));
}

// Around each length at which a first or a later attempt may have been cut.
TEST(FaceInsert, IsNeverCut) {
  for (const std::size_t room : {0U, 512U, 4096U, 32768U, 262144U}) {
    for (std::size_t length = room < 4 ? 0 : room - 4; length < room + 4; ++length) {
      const std::string value(length, 'x');
      EXPECT_EQ(value, kx::insert("%0", value)) << length;
      EXPECT_EQ(value + value, kx::insert("%0%0", value)) << length;
    }
  }
}

}  // namespace
