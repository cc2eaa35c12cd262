// Compares pieces with printf itself, on conversions whose meaning C defines and that every
// system's printf gets right.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <ostream>
#include <random>
#include <string>

#include "format/printf_piece.h"
#include "format/result_text.h"

namespace {

template <class Value>
std::string Printed(const std::string& format, Value value) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
  char text[1024];
  const int length = std::snprintf(text, sizeof text, format.c_str(), value);
#pragma GCC diagnostic pop
  EXPECT_GE(length, 0) << format;
  EXPECT_LT(length, 1024) << format;
  return std::string(text, static_cast<std::size_t>(length));
}

std::string Formatted(const std::string& piece, std::uint64_t word) {
  kx::ResultText result;
  kx::PrintfPiece(piece).AppendTo(result, word);
  return std::string(result.View());
}

class RandomPieces {
 public:
  std::size_t Below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
  }

  template <class List>
  auto OneOf(const List& list) {
    return list[Below(std::size(list))];
  }

  /// Up to five flags, a width and a precision, each of them often absent.
  std::string Beginning(const std::string& flags, bool withPrecision) {
    std::string piece = "%";
    for (std::size_t count = Below(6); count > 0 && !flags.empty(); --count) piece += OneOf(flags);
    if (Below(2) == 0) piece += std::to_string(1 + Below(40));
    if (withPrecision && Below(2) == 0) piece += ".";
    if (piece.back() == '.' && Below(5) != 0) piece += std::to_string(Below(21));
    return piece;
  }

  std::uint64_t Bits() {
    static constexpr std::uint64_t kExtremes[] = {0,
                                                  1,
                                                  UINT64_MAX,
                                                  0x7F,
                                                  0x80,
                                                  0x7FFF,
                                                  0x8000,
                                                  0x7FFFFFFF,
                                                  0x80000000,
                                                  0xFFFFFFFF,
                                                  0x100000000,
                                                  0x7FFFFFFFFFFFFFFF,
                                                  0x8000000000000000};
    if (Below(2) == 0) return OneOf(kExtremes);
    return std::uniform_int_distribution<std::uint64_t>()(random_) >> Below(64);
  }

  double Fraction() {
    using Limits = std::numeric_limits<double>;
    static const double kExtremes[] = {0.0,
                                       -0.0,
                                       0.5,
                                       -2.5,
                                       0.1,
                                       1e22,
                                       -1e300,
                                       Limits::max(),
                                       Limits::lowest(),
                                       Limits::min(),
                                       Limits::denorm_min(),
                                       -Limits::denorm_min(),
                                       Limits::infinity(),
                                       -Limits::infinity(),
                                       Limits::quiet_NaN()};
    if (Below(2) == 0) return OneOf(kExtremes);
    const auto any = std::bit_cast<double>(std::uniform_int_distribution<std::uint64_t>()(random_));
    // Not every printf has the sign of what is no number.
    return std::isnan(any) ? std::abs(any) : any;
  }

  std::string Text() {
    std::string text(Below(60), ' ');
    for (char& c : text) c = static_cast<char>(1 + Below(255));
    return text;
  }

 private:
  std::mt19937 random_{20240422};
};

constexpr int kRounds = 10000;

/// Compares a conversion with a length.
///
/// @tparam Promoted  the type that such a value has in an argument list
template <class Promoted>
void CompareIntegers(const std::string& length) {
  RandomPieces random;
  for (int i = 0; i < kRounds; ++i) {
    const char letter = random.OneOf(std::string("dioux"));
    const bool isSigned = letter == 'd' || letter == 'i';
    const char* const flags = isSigned ? "-+ 0" : letter == 'u' ? "-0" : "-#0";
    const std::string piece = random.Beginning(flags, true) + length + letter;
    auto value = static_cast<Promoted>(random.Bits());
    // Not every printf has the 0 of "%#.0o".
    if (letter == 'o' && static_cast<unsigned char>(value) == 0) value = 1;
    // The bytes of an int are extended by its sign.
    const auto word = static_cast<std::uint64_t>(std::int64_t{value});
    ASSERT_EQ(Printed(piece, value), Formatted(piece, word)) << piece << " of " << value;
  }
}

static_assert(sizeof(std::intmax_t) == 8 && sizeof(long long) == 8);

struct LengthCase {
  const char* name;
  const char* length;
  void (*compare)(const std::string& length);
};

void PrintTo(const LengthCase& c, std::ostream* os) { *os << '"' << c.length << '"'; }

class PieceOfAnInteger : public testing::TestWithParam<LengthCase> {};

TEST_P(PieceOfAnInteger, IsWhatPrintfPrints) { GetParam().compare(GetParam().length); }

const LengthCase kLengths[] = {
    {"None", "", CompareIntegers<int>},
    {"Char", "hh", CompareIntegers<int>},
    {"Short", "h", CompareIntegers<int>},
    {"Long", "l", CompareIntegers<long>},
    {"LongLong", "ll", CompareIntegers<long long>},
    {"Size", "z", CompareIntegers<std::ptrdiff_t>},
    {"Maximum", "j", CompareIntegers<std::intmax_t>},
    {"Difference", "t", CompareIntegers<std::ptrdiff_t>},
};

INSTANTIATE_TEST_SUITE_P(Lengths, PieceOfAnInteger, testing::ValuesIn(kLengths),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(PieceOfAFraction, IsWhatPrintfPrints) {
  RandomPieces random;
  for (int i = 0; i < kRounds; ++i) {
    const std::string piece = random.Beginning("-+ #0", true) + (random.Below(4) == 0 ? "lf" : "f");
    const double value = random.Fraction();
    ASSERT_EQ(Printed(piece, value), Formatted(piece, std::bit_cast<std::uint64_t>(value)))
        << piece << " of " << value;
  }
}

TEST(PieceOfACharacter, IsWhatPrintfPrints) {
  RandomPieces random;
  for (int i = 0; i < kRounds; ++i) {
    const std::string piece = random.Beginning("-+ ", false) + "c";
    const int value = 1 + static_cast<int>(random.Below(255));
    ASSERT_EQ(Printed(piece, value), Formatted(piece, static_cast<std::uint64_t>(value))) << piece;
  }
}

TEST(PieceOfAText, IsWhatPrintfPrints) {
  RandomPieces random;
  for (int i = 0; i < kRounds; ++i) {
    const std::string piece = random.Beginning("-+ ", true) + "s";
    const std::string value = random.Text();
    const char* const text = value.c_str();
    ASSERT_EQ(Printed(piece, text), Formatted(piece, reinterpret_cast<std::uintptr_t>(text)))
        << piece << " of " << value;
  }
}

TEST(PieceOfAPointer, IsWhatPrintfPrints) {
  RandomPieces random;
  for (int i = 0; i < kRounds; ++i) {
    const std::string piece = random.Beginning("-+ ", false) + "p";
    const std::uint64_t bits = random.Bits();
    const void* const value = reinterpret_cast<const void*>(static_cast<std::uintptr_t>(bits));
    ASSERT_EQ(Printed(piece, value), Formatted(piece, bits)) << piece << " of " << value;
  }
}

}  // namespace
