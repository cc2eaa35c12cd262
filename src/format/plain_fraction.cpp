#include "format/plain_fraction.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "format/decimal_digits.h"
#include "format/field.h"
#include "platform/decimal_point.h"

namespace kx {
namespace {

constexpr int kMostDecimals = 18;
constexpr int kDecimalsByDefault = 6;

/// A value without its sign.
struct Parts {
  std::uint64_t whole;
  std::uint64_t fraction;  ///< in units of 2^-64
};

/// Whether the value splits without loss; its whole part is then below 2^52.
bool Split(double value, Parts& parts) {
  constexpr int kMantissaBits = std::numeric_limits<double>::digits - 1;
  constexpr std::uint64_t kHiddenBit = std::uint64_t{1} << kMantissaBits;
  const std::uint64_t bits = std::bit_cast<std::uint64_t>(value) << 1 >> 1;
  parts = {0, 0};
  if (bits == 0) return true;
  const std::uint64_t mantissa = bits % kHiddenBit | kHiddenBit;
  const int fractionBits = 1075 - static_cast<int>(bits >> kMantissaBits);
  if (fractionBits < 1 || fractionBits > 63) return false;
  parts = {mantissa >> fractionBits, mantissa << (64 - fractionBits)};
  return true;
}

/// Printf rounds as the host has told its thread by fesetround. Asked by adding, which each mode
/// but this does otherwise: fegetround took a twelfth of the time of a whole message.
bool RoundsToNearest() {
  static const volatile float kTiny = std::numeric_limits<float>::min();  // so that it is added now
  const float tiny = kTiny;
  return 1.0F + tiny == 1.0F - tiny;
}

/// Turns the fraction into so many decimals, rounded, of two equally near ones to the even one.
void Round(Parts& parts, std::uint64_t power) {
  __extension__ using Wide = unsigned __int128;
  constexpr std::uint64_t kHalf = std::uint64_t{1} << 63;
  const Wide product = static_cast<Wide>(parts.fraction) * power;
  const auto rest = static_cast<std::uint64_t>(product);
  parts.fraction = static_cast<std::uint64_t>(product >> 64);
  const bool isOdd = ((power == 1 ? parts.whole : parts.fraction) & 1) != 0;
  if (rest > kHalf || (rest == kHalf && isOdd)) ++parts.fraction;
  if (parts.fraction == power) {
    parts.fraction = 0;
    ++parts.whole;
  }
}

/// @param point  '\0' for none, and no decimals
void AppendDigits(ResultText& result, const Parts& parts, int decimals, char point) {
  const int digits = CountDigits(parts.whole);
  char* end =
      result.Reserve(static_cast<std::size_t>(digits) + 1 + static_cast<std::size_t>(decimals)) +
      digits;
  WriteDigits(end, parts.whole, digits);
  if (point != '\0') {
    *end = point;
    end += 1 + decimals;
    WriteDigits(end, parts.fraction, decimals);
  }
  result.EndAt(end);
}

}  // namespace

bool AppendPlainFraction(ResultText& result, const Conversion& conversion, double value) {
  const int decimals =
      conversion.precision == Conversion::kNotGiven ? kDecimalsByDefault : conversion.precision;
  Parts parts;
  if (decimals > kMostDecimals || !Split(value, parts) || !RoundsToNearest()) return false;
  const bool hasPoint = decimals > 0 || conversion.isOtherForm;
  const char point = hasPoint ? DecimalPoint() : '.';
  if (point == '\0') return false;
  Round(parts, kPowersOfTen[static_cast<std::size_t>(decimals)]);
  const std::size_t start = result.Size();
  AppendSign(result, conversion, std::signbit(value));
  const std::size_t digits = result.Size();
  AppendDigits(result, parts, decimals, hasPoint ? point : '\0');
  Pad(result, conversion, start, conversion.hasZeros ? digits : kNoZeros);
  return true;
}

}  // namespace kx
