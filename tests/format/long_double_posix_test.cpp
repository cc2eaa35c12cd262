// What hosts of this system pass for "%Lf": a long double, which is longer than a double.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

#include "format/inserted.h"

namespace {

static_assert(LDBL_MANT_DIG > DBL_MANT_DIG && LDBL_MAX_10_EXP > DBL_MAX_10_EXP);

TEST(LongDouble, HasDigitsThatADoubleHasNot) {
  EXPECT_EQ("1.0000000000000000001 0.10000000000000000000",
            Inserted("%.19Lf %.20Lf", 1 + LDBL_EPSILON, 0.1L));
}

TEST(LongDouble, MayBeBeyondADouble) {
  EXPECT_EQ("1e+4000 of -1.500000E-4000 of inf",
            Inserted("%Lg of %LE of %Lf", 1e4000L, -1.5e-4000L, HUGE_VALL));
}

TEST(LongDouble, IsPrintedAsTheSystemDoes) {
  char expected[64];
  std::snprintf(expected, sizeof expected, "%La|o %.3LA|o", 12.5L, -0.1L);
  EXPECT_EQ(expected, Inserted("%La|o %.3LA|o", 12.5L, -0.1L));
}

TEST(LongDouble, IsFoundBehindOthersOfEachKind) {
  EXPECT_EQ("a 1 2.5 3.5 b 4 5.5 6.5 c", Inserted("%s %d %.1f %.1Lf %s %I64d %.1Lf %.1f %s", "a", 1,
                                                  2.5, 3.5L, "b", std::int64_t{4}, 5.5L, 6.5, "c"));
}

TEST(LongDouble, SeenAsADoubleKeepsItsOwnDigits) {
  EXPECT_EQ("0.10000000000000000000 0.10000000000000000000", Inserted("%.20Lf:1 %.20f:1", 0.1L));
}

TEST(LongDouble, IsWhatPrintfPrints) {
  std::mt19937_64 random(20250302);
  for (int i = 0; i < 5000; ++i) {
    const auto mantissa = static_cast<long double>(static_cast<std::int64_t>(random()));
    const long double value = std::ldexp(mantissa, static_cast<int>(random() % 32000) - 16064);
    const char letter = "feg"[random() % 3];
    std::string format = "%";
    for (const char* flags = "-+ 0"; *flags != '\0'; ++flags) {
      if (random() % 3 == 0) format += *flags;
    }
    format +=
        std::to_string(1 + random() % 40) + '.' + std::to_string(random() % 40) + 'L' + letter;
    format += " o";
    char expected[6000];
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(expected, sizeof expected, format.c_str(), value);
#pragma GCC diagnostic pop
    ASSERT_EQ(expected, Inserted(format, value)) << format;
  }
}

}  // namespace
