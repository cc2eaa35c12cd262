// The decimal point of a host that has set a locale. Elsewhere no locale with another is sure to be
// installed.

#include <gtest/gtest.h>

#include <clocale>

#include "CKxXlate.h"
#include "format/inserted.h"

namespace {

class DecimalPoint : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(nullptr, std::setlocale(LC_NUMERIC, "German")); }
  void TearDown() override { std::setlocale(LC_NUMERIC, "C"); }
};

TEST_F(DecimalPoint, IsThatOfTheHostsLocale) {
  EXPECT_EQ("2,5", Inserted("%.1f", 2.5));
  EXPECT_EQ("2,500e+00 o", Inserted("%.3e o", 2.5));
  EXPECT_EQ("2,5 o 0,0001 o 1e-05 o", Inserted("%g o %g o %g o", 2.5, 0.0001, 0.00001));
  EXPECT_EQ("1,00000e+06 o", Inserted("%#g o", 999999.5));
  EXPECT_EQ("0x1,4p+1 o", Inserted("%a o", 2.5));
  char line[32];
  CKxXlate::InsertVariable(line, sizeof line, "%f:1", 2.5);
  EXPECT_STREQ("2,500000", line);
}

}  // namespace
