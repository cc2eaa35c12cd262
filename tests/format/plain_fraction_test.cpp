// Compares the fractions that are printed without printf with printf itself, and each limit of
// their range from both sides.

#include <gtest/gtest.h>

#include <bit>
#include <cfenv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

#include "format/inserted.h"
#include "format/plain_fraction.h"

namespace {

std::string Printed(const std::string& format, double value) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  char text[600];
  std::snprintf(text, sizeof text, format.c_str(), value);
#pragma GCC diagnostic pop
  return text;
}

/// With each number of decimals that is printed without printf, and one more.
void CompareAllDecimals(double value) {
  for (int decimals = 0; decimals <= 19; ++decimals) {
    const std::string format = "%." + std::to_string(decimals) + "f";
    ASSERT_EQ(Printed(format, value), Inserted(format, value)) << decimals;
    ASSERT_EQ(Printed(format, -value), Inserted(format, -value)) << decimals;
  }
}

bool IsPlain(double value, int decimals = kx::Conversion::kNotGiven) {
  kx::Conversion conversion;
  conversion.letter = 'f';
  conversion.precision = decimals;
  kx::ResultText result;
  const bool isPlain = kx::AppendPlainFraction(result, conversion, value);
  EXPECT_EQ(isPlain, result.Size() != 0) << value;
  return isPlain;
}

TEST(PlainFraction, HasItsRange) {
  const double highest = std::nextafter(0x1p52, 0);
  for (const double value : {0.0, 0x1p-11, 0.5, 1.0, 1234.5, highest}) {
    EXPECT_TRUE(IsPlain(value)) << value;
    EXPECT_TRUE(IsPlain(-value)) << value;
    EXPECT_TRUE(IsPlain(value, 18)) << value;
    EXPECT_FALSE(IsPlain(value, 19)) << value;
  }
  const double tooSmall = std::nextafter(0x1p-11, 0);
  const double infinite = std::numeric_limits<double>::infinity();
  const double none = std::numeric_limits<double>::quiet_NaN();
  for (const double value : {tooSmall, 0x1p-1074, 0x1p52, 0x1p64, 1e300, infinite, none}) {
    EXPECT_FALSE(IsPlain(value)) << value;
    EXPECT_FALSE(IsPlain(-value)) << value;
  }
}

TEST(PlainFraction, IsWhatPrintfPrintsBesideEachPowerOfTwo) {
  for (int exponent = -80; exponent <= 70; ++exponent) {
    const double power = std::ldexp(1.0, exponent);
    CompareAllDecimals(power);
    CompareAllDecimals(std::nextafter(power, 0));
    CompareAllDecimals(std::nextafter(power, 1e300));
    CompareAllDecimals(1.5 * power);
  }
  CompareAllDecimals(0);
}

TEST(PlainFraction, IsWhatPrintfPrintsWhereNinesAreRoundedUp) {
  double power = 1;
  for (int digits = 0; digits < 16; ++digits, power *= 10) {
    CompareAllDecimals(power);
    CompareAllDecimals(std::nextafter(power, 0));
    CompareAllDecimals(power - 0.5);
    CompareAllDecimals(power - 1 / power);
  }
}

TEST(PlainFraction, IsWhatPrintfPrintsOfHalves) {
  for (int whole = 0; whole < 4; ++whole) {
    for (int places = 1; places <= 18; ++places) {
      for (int odd = 1; odd < 16; odd += 2) CompareAllDecimals(whole + std::ldexp(odd, -places));
    }
  }
}

TEST(PlainFraction, IsWhatPrintfPrintsOfRandomValues) {
  std::mt19937_64 random(20260102);
  for (int i = 0; i < 4000; ++i) {
    const double fraction = static_cast<double>(random() >> 11) * 0x1p-53;
    CompareAllDecimals(std::ldexp(0.5 + fraction / 2, i % 70 - 14));
  }
}

TEST(PlainFraction, IsRoundedAsTheThreadRounds) {
  const int before = std::fegetround();
  for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO, FE_TONEAREST}) {
    ASSERT_EQ(0, std::fesetround(mode));
    const bool isPlain = IsPlain(0.125);
    std::string printed;
    std::string inserted;
    for (const double value : {0.125, -0.125, 2.5, 1.005, 1e-3 * 2}) {
      for (const char* format : {"%.2f", "%.0f", "%f"}) {
        printed += Printed(format, value) + ' ';
        inserted += Inserted(format, value) + ' ';
      }
    }
    std::fesetround(before);
    EXPECT_EQ(mode == FE_TONEAREST, isPlain);
    EXPECT_EQ(printed, inserted) << mode;
  }
}

}  // namespace
