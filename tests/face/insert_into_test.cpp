#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "KxXlate.hpp"
#include "support/guarded_buffer.h"

namespace {

using std::string_view_literals::operator""sv;

struct CutCase {
  const char* name;
  KxSize size;
  std::string_view value;
  std::string_view text;
  bool isCut;
};

void PrintTo(const CutCase& c, std::ostream* os) { *os << c.value << " into " << c.size; }

class FaceCut : public testing::TestWithParam<CutCase> {};

TEST_P(FaceCut, CutsBetweenSequencesAndSaysSo) {
  const CutCase& c = GetParam();
  GuardedBuffer buffer(c.size);
  const kx::Inserted inserted = kx::insert_into(buffer.Data(), c.size, "%0", c.value);
  EXPECT_EQ(c.text, inserted.text);
  EXPECT_EQ(c.isCut, inserted.is_cut);
  EXPECT_EQ(c.text, buffer.Text());
  EXPECT_EQ(c.text.size() + 1, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

// \xC3\xA9 is an e with an acute, \xE2\x82\xAC the sign of the euro, \xF0\x9F\x98\x80 a face.
INSTANTIATE_TEST_SUITE_P(
    , FaceCut,
    testing::Values(
        CutCase{"Fits", 8, "abc", "abc", false}, CutCase{"FitsExactly", 4, "abc", "abc", false},
        CutCase{"AsLongAsTheBuffer", 3, "abc", "ab", true},
        CutCase{"LongerByOne", 2, "abc", "a", true}, CutCase{"OnlyTheNul", 1, "abc", "", true},
        CutCase{"NothingIntoOneByte", 1, "", "", false},
        CutCase{"BehindTwoBytes", 4, "a\xC3\xA9z", "a\xC3\xA9", true},
        CutCase{"WithinTwoBytes", 3, "a\xC3\xA9", "a", true},
        CutCase{"WithinThreeBytesFirst", 2, "\xE2\x82\xAC", "", true},
        CutCase{"WithinThreeBytesSecond", 3, "\xE2\x82\xAC", "", true},
        CutCase{"ThreeBytesFit", 4, "\xE2\x82\xAC", "\xE2\x82\xAC", false},
        CutCase{"WithinFourBytes", 5, "a\xF0\x9F\x98\x80", "a", true},
        CutCase{"WithinSixBytes", 7, "a\xFC\x84\x80\x80\x80\x80", "a", true},
        CutCase{"WithinFiveBytes", 5, "\xF8\x88\x80\x80\x80", "", true},
        CutCase{"LatinLetters", 3, "\xE9\xE8\xE7", "\xE9\xE8", true},
        CutCase{"FollowingBytesAlone", 3, "\x80\x80\x80", "\x80\x80", true},
        CutCase{"ManyFollowingBytes", 9, "\xC3\x80\x80\x80\x80\x80\x80\x80\x80\x80",
                "\xC3\x80\x80\x80\x80\x80\x80\x80", true},
        CutCase{"BehindASequenceThatIsWhole", 4, "\xC3\xA9\xA9\xA9", "\xC3\xA9\xA9", true}),
    [](const auto& test) { return test.param.name; });

TEST(FaceInsertInto, TakesArraysWithTheirSize) {
  char plain[4];
  std::array<char, 4> standard{};
  EXPECT_EQ("abc"sv, kx::insert_into(plain, "%0", "abcdef").text);
  EXPECT_STREQ("abc", plain);
  EXPECT_TRUE(kx::insert_into(standard, "%0", "abcdef").is_cut);
  EXPECT_STREQ("abc", standard.data());
  EXPECT_FALSE(kx::insert_into(standard, "%0", "abc").is_cut);
}

TEST(FaceInsertInto, TakesSizesOfEveryIntegerType) {
  char buffer[8];
  char* const place = buffer;
  EXPECT_EQ("a"sv, kx::insert_into(place, std::uint8_t{8}, "a").text);
  EXPECT_EQ("a"sv, kx::insert_into(place, 8, "a").text);
  EXPECT_EQ("a"sv, kx::insert_into(place, KxSize{8}, "a").text);
  EXPECT_EQ("a"sv, kx::insert_into(buffer + 1, sizeof buffer - 1, "a").text);
}

TEST(FaceInsertInto, WritesNothingWhereThereIsNoBuffer) {
  char untouched[] = "untouched";
  char* const place = untouched;
  char* const none = nullptr;
  for (const int size : {0, -1}) {
    const kx::Inserted inserted = kx::insert_into(place, size, "abc");
    EXPECT_EQ(""sv, inserted.text);
    EXPECT_TRUE(inserted.is_cut);
  }
  EXPECT_STREQ("untouched", untouched);
  EXPECT_TRUE(kx::insert_into(none, 10, "abc").is_cut);
  EXPECT_FALSE(kx::insert_into(none, 10, "").is_cut);
}

TEST(FaceInsertInto, TheBufferMayBeTextAndValue) {
  for (const std::size_t size : {8U, 64U, 5000U}) {
    const std::unique_ptr<char[]> buffer(new char[size]{'<', '%', '0', '>'});
    const kx::Inserted inserted = kx::insert_into(buffer.get(), size, buffer.get(), buffer.get());
    EXPECT_EQ("<<%0>>"sv, inserted.text);
  }
  char text[6] = "%0%0%";
  EXPECT_TRUE(kx::insert_into(text, text, text).is_cut);
  EXPECT_STREQ("%0%0%", text);
}

// The same whether the result is made in one attempt or in several.
TEST(FaceInsertInto, CutsResultsOfEveryLengthAlike) {
  for (std::size_t length = 500; length < 530; ++length) {
    const std::string value(length, 'x');
    for (std::size_t size = 500; size < 530; ++size) {
      const std::unique_ptr<char[]> exact(new char[size]);
      const kx::Inserted inserted = kx::insert_into(exact.get(), size, "%0", value);
      EXPECT_EQ(std::string_view(value).substr(0, size - 1), inserted.text);
      EXPECT_EQ(length >= size, inserted.is_cut);
    }
  }
}

}  // namespace
