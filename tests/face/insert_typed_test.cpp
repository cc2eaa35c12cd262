#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "KxXlate.hpp"
#include "support/guarded_buffer.h"

namespace {

using std::string_view_literals::operator""sv;

constexpr std::int64_t kWide = 5'000'000'000;

TEST(FaceInsertTyped, LeavesWhatFitsToTheLibrary) {
  EXPECT_EQ("disk has 12 files", kx::insert_typed("%s:2 has %d:1 files", 12, "disk"));
  EXPECT_EQ("255 is ff, 0377", kx::insert_typed("%d:1 is %x:1, %#o:1", 255));
  EXPECT_EQ("[  2.50] [ab  ] [0007]", kx::insert_typed("[%6.2f] [%-4s] [%04d]", 2.5, "ab", 7));
  EXPECT_EQ("50% of y", kx::insert_typed("50%% of %s", "x", "y"));
  EXPECT_EQ("c", kx::insert_typed("%s:3", "a", "b", "c"));
  EXPECT_EQ("1 and 44", kx::insert_typed("%hhd and %hhu", 257, 300));
  EXPECT_EQ("j", kx::insert_typed("%s:0", 1, 2, 3, 4, 5, 6, 7, 8, 9, "j"));
  EXPECT_EQ("", kx::insert_typed(nullptr, 1));
  EXPECT_EQ("plain", kx::insert_typed(std::string("plain")));
}

TEST(FaceInsertTyped, TakesTextsOfEveryKind) {
  const std::string standard = "standard";
  const char* const none = nullptr;
  EXPECT_EQ("standard viewed x []",
            kx::insert_typed("%s %s %c [%s]", standard, "viewed!"sv.substr(0, 6), 'x', none));
}

TEST(FaceInsertTyped, PutsTheTextOfAnotherValueInPlaceOfAConversion) {
  EXPECT_EQ("12 has disk files", kx::insert_typed("%s:1 has %d:2 files", 12, "disk"));
  EXPECT_EQ("[   ab] [ab   ] [abcdef]",
            kx::insert_typed("[%5d] [%-5x] [%.2f]", "ab", "ab", "abcdef"));
  EXPECT_EQ("2.5 0.1 x 65", kx::insert_typed("%d %s %f %d", 2.5, 0.1F, 'x', 'A'));
  EXPECT_EQ("wide text", kx::insert_typed("%ls %ws", "wide", "text"));
}

TEST(FaceInsertTyped, NeverShowsWhereAValueLies) {
  EXPECT_EQ("secret 7", kx::insert_typed("%p %p", "secret", 7));
}

TEST(FaceInsertTyped, PrintsIntegersWhole) {
  EXPECT_EQ("5000000000 5000000000 12a05f200",
            kx::insert_typed("%d %I32u %x", kWide, kWide, kWide));
  EXPECT_EQ("4000000000 18446744073709551615",
            kx::insert_typed("%d %lld", 4000000000U, std::numeric_limits<std::uint64_t>::max()));
  EXPECT_EQ("-1 -1 ffffffff ffffffff", kx::insert_typed("%u %llu %x %llx", -1, -1, -1, -1));
  EXPECT_EQ("-9223372036854775808 ffffffffffffffff",
            kx::insert_typed("%i %X", std::numeric_limits<std::int64_t>::min(), std::int64_t{-1})
                .replace(21, 16, "ffffffffffffffff"));
  EXPECT_EQ("+5", kx::insert_typed("%+lld", std::int8_t{5}));
}

TEST(FaceInsertTyped, PrintsIntegersByFloatingConversions) {
  EXPECT_EQ("3.00 -4.0 5e+00", kx::insert_typed("%.2f %.1Lf %.0e %%o", 3, -4, 5U).substr(0, 15));
  // More digits than a double has.
  EXPECT_EQ("9007199254740993", kx::insert_typed("%f", std::int64_t{9007199254740993}));
}

TEST(FaceInsertTyped, PrintsNoHalfOfASequenceAsACharacter) {
  EXPECT_EQ("A200-1x2.5", kx::insert_typed("%c%c%c%c%c", 65, 200, -1, 'x', 2.5));
  EXPECT_EQ("ab", kx::insert_typed("a%cb", 0));
}

TEST(FaceInsertTyped, PrintsPointersAsTheLibraryDoes) {
  int object = 0;
  const void* const place = &object;
  const std::string expected = kx::insert_typed("%p", place);
  EXPECT_EQ(expected, kx::insert_typed("%s", place));
  EXPECT_EQ(expected, kx::insert_typed("%d", place));
  EXPECT_LT(2U, expected.size());
}

TEST(FaceInsertTyped, LeavesAConversionWithoutAValueAsItIsWritten) {
  EXPECT_EQ("%s:3 1", kx::insert_typed("%s:3 %d", 1));
  EXPECT_EQ("1 of %-5.2d and %s:0", kx::insert_typed("%d of %-5.2d and %s:0", 1));
  EXPECT_EQ("50% of %s", kx::insert_typed("%d%% of %s", 50));
}

// On one of the systems the library cannot step over a floating value that nobody reads.
TEST(FaceInsertTyped, FindsTheValuesBehindOneThatIsNotRead) {
  EXPECT_EQ("x 1", kx::insert_typed("%s:3 %d:1", 1, 2.5, "x"));
  EXPECT_EQ("3.5", kx::insert_typed("%.1f:3", 1.5, 2.5, 3.5));
}

TEST(FaceInsertTyped, KeepsWhatStandsBesideAReplacedConversion) {
  EXPECT_EQ("%x% o", kx::insert_typed("%%%g%% o", "x"));
  EXPECT_EQ("x%n o", kx::insert_typed("%n%G%n o", "x"));
  EXPECT_EQ("ab% yx", kx::insert_typed("%G%% y%x", "ab").substr(0, 5) + "x");
}

TEST(FaceInsertTyped, IsNeverCut) {
  for (const std::size_t room : {256U, 512U, 4096U, 16384U, 32768U}) {
    for (std::size_t length = room - 3; length < room + 3; ++length) {
      const std::string value(length, 'x');
      const std::string half(std::min<std::size_t>(length / 2, 16383), 'y');
      const std::string kept = value.substr(0, 16383);
      EXPECT_TRUE(kept == kx::insert_typed("%s", value)) << length;
      EXPECT_TRUE(kept == kx::insert_typed("%d", value)) << length;
      EXPECT_TRUE(half + half == kx::insert_typed(half + "%s", half)) << length;
      EXPECT_TRUE(half + half == kx::insert_typed(half + "%d", half)) << length;
    }
  }
}

TEST(FaceInsertTyped, IntoABufferIsCutBetweenSequences) {
  char array[4];
  EXPECT_EQ("12"sv, kx::insert_typed_into(array, "%d\xC3\xA9\xC3\xA9", 12).text);
  EXPECT_STREQ("12", array);
  GuardedBuffer buffer(6);
  EXPECT_TRUE(kx::insert_typed_into(buffer.Data(), buffer.Size(), "%d:1 %s:1", 12).is_cut == false);
  EXPECT_EQ("12 12", buffer.Text());
  EXPECT_TRUE(kx::insert_typed_into(buffer.Data(), buffer.Size(), "%9d%d", 12).is_cut);
  EXPECT_EQ("     ", buffer.Text());
  EXPECT_EQ(6U, buffer.BytesWritten());
}

// A text can ask for far more than the buffer holds: no more than that is made.
TEST(FaceInsertTyped, MakesNoMoreThanTheBufferHolds) {
  std::string text;
  for (int count = 0; count < 100000; ++count) text += "%16383d:1";
  char buffer[600];
  for (const bool fits : {true, false}) {
    const kx::Inserted inserted = fits ? kx::insert_typed_into(buffer, text, 1)
                                       : kx::insert_typed_into(buffer, text, "not a number");
    EXPECT_EQ(std::string(599, ' '), inserted.text);
    EXPECT_TRUE(inserted.is_cut);
  }
}

}  // namespace
