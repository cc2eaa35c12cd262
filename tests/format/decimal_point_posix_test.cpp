// The decimal point of the host's locale. No locale with another than "." is sure to be installed,
// so the tests make their own: the numbers' part of one, as the C library keeps it in a file.

#include <gtest/gtest.h>
#include <locale.h>

#include <clocale>
#include <cstdint>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "CKxXlate.h"
#include "format/inserted.h"
#include "platform/decimal_point.h"
#include "support/set_environment.h"
#include "support/temp_tree.h"

namespace {

constexpr std::uint32_t kNumericMagic = 0x20031114;

std::string Word(std::uint32_t word) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(word >> shift & 0xFF);
  return bytes;
}

/// A file of the items: point, separator and grouping, point and separator as wide characters, and
/// the name of the character set.
std::string NumericFile(const std::string& point, std::uint32_t wide) {
  const std::vector<std::string> items = {
      point + '\0', std::string(1, '\0'),       "\xFF" + std::string(1, '\0'), Word(wide),
      Word(0),      std::string("UTF-8") + '\0'};
  std::string places;
  std::string data;
  const std::size_t begin = 4 * (2 + items.size());
  for (const std::string& item : items) {
    while (data.size() % 4 != 0) data += '\0';
    places += Word(static_cast<std::uint32_t>(begin + data.size()));
    data += item;
  }
  return Word(kNumericMagic) + Word(static_cast<std::uint32_t>(items.size())) + places + data;
}

class DecimalPoint : public testing::Test {
 protected:
  void SetUp() override {
    Make("comma", ",", ',');
    Make("arabic", "\xD9\xAB", 0x66B);
    SetVariable("LOCPATH", tree_.Path());
  }

  void TearDown() override {
    std::setlocale(LC_NUMERIC, "C");
    uselocale(LC_GLOBAL_LOCALE);
  }

  static std::string OfInsertVariable(double value) {
    char line[64];
    CKxXlate::InsertVariable(line, sizeof line, "%f:1", value);
    return line;
  }

 private:
  void Make(const std::string& name, const std::string& point, std::uint32_t wide) {
    tree_.Write(name + "/LC_NUMERIC", NumericFile(point, wide));
  }

  TempTree tree_;
};

TEST_F(DecimalPoint, IsThatOfTheHostsLocale) {
  ASSERT_NE(nullptr, std::setlocale(LC_NUMERIC, "comma"));
  EXPECT_EQ(',', kx::DecimalPoint());
  EXPECT_EQ("2,500000", OfInsertVariable(2.5));
  EXPECT_EQ("2,5", Inserted("%.1f", 2.5));
  EXPECT_EQ("3", Inserted("%.0f", 2.75));
  EXPECT_EQ("3,", Inserted("%#.0f", 2.75));
  EXPECT_EQ("[+002,50|2,50    ]", Inserted("[%+07.2f|%-8.2f:1]", 2.5));
  EXPECT_EQ("2,500e+00 o", Inserted("%.3e o", 2.5));
  EXPECT_EQ("2,5 o 0,0001 o 1e-05 o", Inserted("%g o %g o %g o", 2.5, 0.0001, 0.00001));
  EXPECT_EQ("0x1,4p+1 o", Inserted("%a o", 2.5));
}

// One that is no byte is left to printf, which knows of it.
TEST_F(DecimalPoint, MayBeMoreThanOneByte) {
  ASSERT_NE(nullptr, std::setlocale(LC_NUMERIC, "arabic"));
  EXPECT_EQ('\0', kx::DecimalPoint());
  EXPECT_EQ(
      "2\xD9\xAB"
      "500000",
      OfInsertVariable(2.5));
  EXPECT_EQ(
      "2\xD9\xAB"
      "5",
      Inserted("%.1f", 2.5));
  EXPECT_EQ("3", Inserted("%.0f", 2.75));
}

TEST_F(DecimalPoint, MayChangeBetweenTwoCalls) {
  EXPECT_EQ("2.500000", OfInsertVariable(2.5));
  EXPECT_EQ("2.50", Inserted("%.2f", 2.5));
  ASSERT_NE(nullptr, std::setlocale(LC_NUMERIC, "comma"));
  EXPECT_EQ("2,500000", OfInsertVariable(2.5));
  EXPECT_EQ("2,50", Inserted("%.2f", 2.5));
  ASSERT_NE(nullptr, std::setlocale(LC_NUMERIC, "C"));
  EXPECT_EQ("2.500000", OfInsertVariable(2.5));
  EXPECT_EQ("2.50", Inserted("%.2f", 2.5));
}

TEST_F(DecimalPoint, IsThatOfTheThread) {
  // Not by newlocale, which keeps for itself what it makes of LOCPATH.
  ASSERT_NE(nullptr, std::setlocale(LC_NUMERIC, "comma"));
  const locale_t comma = duplocale(LC_GLOBAL_LOCALE);
  ASSERT_NE(nullptr, std::setlocale(LC_NUMERIC, "C"));
  ASSERT_NE(locale_t{}, comma);
  uselocale(comma);
  EXPECT_EQ("2,500000", OfInsertVariable(2.5));
  std::string elsewhere;
  std::thread([&elsewhere] { elsewhere = OfInsertVariable(2.5); }).join();
  EXPECT_EQ("2.500000", elsewhere);
  uselocale(LC_GLOBAL_LOCALE);
  freelocale(comma);
  EXPECT_EQ("2.500000", OfInsertVariable(2.5));
}

}  // namespace
