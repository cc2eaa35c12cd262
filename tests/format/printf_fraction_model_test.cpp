// Compares fractions with a model that knows no printf: the standard library's own digits, with
// sign and padding by hand.

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <random>
#include <string>

#include "format/inserted.h"

namespace {

struct Flags {
  bool left = false;
  bool plus = false;
  bool blank = false;
  bool zeros = false;
};

/// The digits of a value that is not negative; a negative precision is none.
std::string Digits(double value, std::chars_format format, int precision) {
  char text[2000];
  const std::to_chars_result end =
      precision < 0 ? std::to_chars(text, text + sizeof text, value, format)
                    : std::to_chars(text, text + sizeof text, value, format, precision);
  EXPECT_EQ(std::errc{}, end.ec);
  return {text, end.ptr};
}

std::string Padded(const Flags& flags, std::size_t width, double value, const std::string& prefix,
                   const std::string& digits) {
  std::string sign = flags.plus ? "+" : flags.blank ? " " : "";
  if (std::signbit(value)) sign = "-";
  const std::size_t size = sign.size() + prefix.size() + digits.size();
  const std::string padding(width > size ? width - size : 0,
                            flags.zeros && !flags.left ? '0' : ' ');
  if (flags.left) return sign + prefix + digits + padding;
  return flags.zeros ? sign + prefix + padding + digits : padding + sign + prefix + digits;
}

class RandomFractions {
 public:
  std::size_t Below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
  }

  Flags AnyFlags() { return {Below(3) == 0, Below(3) == 0, Below(3) == 0, Below(3) == 0}; }

  /// Of all sizes, and many with few digits.
  double Value() {
    const double sign = Below(2) == 0 ? -1 : 1;
    const auto small = static_cast<double>(Below(2000));
    switch (Below(4)) {
      case 0: return sign * small;
      case 1: return sign * small / std::exp2(Below(12));
      case 2: return sign * small * std::pow(10.0, static_cast<double>(Below(40)) - 20);
      default: break;
    }
    const auto any = std::bit_cast<double>(std::uniform_int_distribution<std::uint64_t>()(random_));
    return std::isnormal(any) ? any : 1;
  }

 private:
  std::mt19937_64 random_{20250301};
};

struct FormCase {
  const char* name;
  char letter;
  std::chars_format format;
};

void PrintTo(const FormCase& c, std::ostream* os) { *os << c.letter; }

class FractionModel : public testing::TestWithParam<FormCase> {};

TEST_P(FractionModel, HasTheDigitsOfTheStandardLibrary) {
  RandomFractions random;
  const bool isHexadecimal = GetParam().letter == 'a';
  for (int i = 0; i < 20000; ++i) {
    const Flags flags = random.AnyFlags();
    const std::size_t width = random.Below(2) == 0 ? 1 + random.Below(30) : 0;
    const bool hasPrecision = !isHexadecimal && random.Below(3) != 0;
    const int precision = hasPrecision ? static_cast<int>(random.Below(25)) : -1;
    std::string piece = "%";
    if (flags.zeros) piece += '0';
    if (flags.blank) piece += ' ';
    if (flags.plus) piece += '+';
    if (flags.left) piece += '-';
    if (width > 0) piece += std::to_string(width);
    if (hasPrecision) piece += '.' + std::to_string(precision);
    // Not all of these letters end a piece; an "o" does.
    piece += std::string(1, GetParam().letter) + " o";
    const double value = random.Value();
    const std::string digits =
        Digits(std::abs(value), GetParam().format, hasPrecision || isHexadecimal ? precision : 6);
    ASSERT_EQ(Padded(flags, width, value, isHexadecimal ? "0x" : "", digits) + " o",
              Inserted(piece, value))
        << piece << " of " << value;
  }
}

const FormCase kForms[] = {
    {"Plain", 'f', std::chars_format::fixed},
    {"Exponential", 'e', std::chars_format::scientific},
    {"General", 'g', std::chars_format::general},
    {"Hexadecimal", 'a', std::chars_format::hex},
};

INSTANTIATE_TEST_SUITE_P(Forms, FractionModel, testing::ValuesIn(kForms),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
