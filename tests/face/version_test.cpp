#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "KxXlate.hpp"

namespace {

std::string Digits(int number, std::size_t atLeast) {
  const std::string digits = std::to_string(number);
  return std::string(atLeast - std::min(atLeast, digits.size()), '0') + digits;
}

TEST(Version, OfTheHeadersIsThatOfTheBanner) {
  const std::string version = std::to_string(KXXLATE_VERSION_MAJOR) + "." +
                              std::to_string(KXXLATE_VERSION_MINOR) + "." +
                              Digits(KXXLATE_VERSION_PATCH, 4) + ".";
  const std::string_view banner = getProductVersion();
  const std::string_view before = "Vantorel version ";
  EXPECT_EQ(version, banner.substr(before.size(), version.size())) << banner;
}

TEST(Version, OfTheHeadersIsThatOfTheProject) {
  EXPECT_STREQ(KXXLATE_PROJECT_VERSION, KXXLATE_VERSION_STRING);
  EXPECT_EQ(KXXLATE_PROJECT_VERSION, std::to_string(KXXLATE_VERSION_MAJOR) + "." +
                                         std::to_string(KXXLATE_VERSION_MINOR) + "." +
                                         std::to_string(KXXLATE_VERSION_PATCH));
}

TEST(Version, IsOneNumberForConditionals) {
#if KXXLATE_VERSION < 12080801
  FAIL() << "the number is too small";
#endif
  EXPECT_EQ(KXXLATE_VERSION, KXXLATE_VERSION_MAJOR * 1000000 + KXXLATE_VERSION_MINOR * 10000 +
                                 KXXLATE_VERSION_PATCH);
}

}  // namespace
