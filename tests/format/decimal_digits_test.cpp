#include "format/decimal_digits.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

namespace {

/// As many digits as are counted, and the byte before them.
std::string Written(std::uint64_t number, std::size_t count) {
  std::string text(count + 1, '#');
  kx::WriteDigits(text.data() + text.size(), number, static_cast<int>(count));
  return text;
}

void Compare(std::uint64_t number) {
  const std::string expected = std::to_string(number);
  ASSERT_EQ(expected.size(), static_cast<std::size_t>(kx::CountDigits(number))) << number;
  for (std::size_t count = expected.size(); count <= 20; ++count) {
    ASSERT_EQ('#' + std::string(count - expected.size(), '0') + expected, Written(number, count));
  }
}

TEST(DecimalDigits, AreThoseOfNumbersBesideEachPower) {
  for (const std::uint64_t power : kx::kPowersOfTen) {
    Compare(power - 1);
    Compare(power);
    Compare(power + 1);
  }
  for (int bits = 0; bits < 64; ++bits) {
    const std::uint64_t power = std::uint64_t{1} << bits;
    Compare(power - 1);
    Compare(power);
    Compare(power + 1);
  }
  Compare(UINT64_MAX);
}

TEST(DecimalDigits, AreThoseOfRandomNumbersOfAllSizes) {
  std::mt19937_64 random(20260101);
  for (int i = 0; i < 20000; ++i) Compare(random() >> (i % 64));
}

}  // namespace
