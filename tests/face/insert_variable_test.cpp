#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "KxXlate.hpp"

namespace {

TEST(FaceInsertVariable, LeavesWhatFitsToTheLibrary) {
  EXPECT_EQ("disk has 12 files", kx::insert_variable("%s:1 has %d:2 files", "disk", 12));
  EXPECT_EQ("cart items in 7", kx::insert_variable("%d:2 items in %s:1", 7, std::string("cart")));
  EXPECT_EQ("ff 377 1.500000", kx::insert_variable("%x:1 %o:2 %f:3", 255, 255U, 1.5F));
  EXPECT_EQ("100 done", kx::insert_variable("100%% done"));
  EXPECT_EQ("", kx::insert_variable("%s.", "a"));
  EXPECT_EQ("", kx::insert_variable(nullptr, "a"));
}

TEST(FaceInsertVariable, PutsTheTextOfAnotherValueInPlaceOfAConversion) {
  EXPECT_EQ("12 has disk files", kx::insert_variable("%s:1 has %d:2 files", 12, "disk"));
  EXPECT_EQ("2.5 x 0.1", kx::insert_variable("%d:1 %x:2 %s:3", 2.5, "x", 0.1));
  EXPECT_EQ("3.000000 A 65", kx::insert_variable("%f:1 %s:2 %d:3", 3, 'A', 'A'));
}

TEST(FaceInsertVariable, PrintsIntegersWhole) {
  constexpr std::int64_t kWide = 5'000'000'000;
  EXPECT_EQ("5000000000 12a05f200 45201371000",
            kx::insert_variable("%d:1 %x:2 %o:3", kWide, kWide, kWide));
  EXPECT_EQ("4000000000 -1 ffffffff", kx::insert_variable("%i:1 %d:2 %x:3", 4000000000U, -1, -1));
  EXPECT_EQ("-7 7", kx::insert_variable("%d:1 %x:2", std::int64_t{-7}, std::int64_t{7}));
}

TEST(FaceInsertVariable, LeavesTheMarkerOfAMissingValue) {
  EXPECT_EQ("1 of %s:2", kx::insert_variable("%d:1 of %s:2", 1));
  EXPECT_EQ("%s:2 of 1", kx::insert_variable("%d:2 of %s:1", 1));
}

TEST(FaceInsertVariable, FollowsTheRulesOfTheLibraryWhereValuesDoNotFit) {
  // The marker of the second conversion is eaten, and what looks like a third is none.
  EXPECT_EQ("d:1", kx::insert_variable("%s%d:1", 1, "b"));
  EXPECT_EQ("1", kx::insert_variable("%s%%d:1", 1));
  EXPECT_EQ("1%", kx::insert_variable("%s:1%s:2", 1, "%"));
  EXPECT_EQ("123456789", kx::insert_variable("%s:1%s:2%s:3%s:4%s:5%s:6%s:7%s:8%s:9%s", 1, 2, 3, 4,
                                             5, 6, 7, 8, 9, 10));
}

TEST(FaceInsertVariable, IsNeverCut) {
  for (std::size_t length = 4090; length < 4100; ++length) {
    const std::string value(length, 'x');
    EXPECT_EQ(value, kx::insert_variable("%s:1", value));
    EXPECT_EQ(value + value + "7", kx::insert_variable("%s:1%d:1%s:3", value, "not a number", 7));
  }
}

TEST(FaceInsertVariable, IntoABufferTellsWhetherItIsCut) {
  char buffer[4];
  EXPECT_FALSE(kx::insert_variable_into(buffer, "%d:1", 123).is_cut);
  EXPECT_TRUE(kx::insert_variable_into(buffer, "%s:1", 1234).is_cut);
  EXPECT_STREQ("123", buffer);
}

}  // namespace
