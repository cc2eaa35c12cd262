#include "format/print_fraction.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "format/call_printf.h"
#include "format/field.h"

// The systems' printf agree on "%f" and "%e" of numbers. What they do not agree on is decided here.

namespace kx {
namespace {

constexpr std::string_view LengthOf(double /*value*/) { return ""; }
constexpr std::string_view LengthOf(long double /*value*/) { return "L"; }

/// Not every printf tells the sign of what is no number.
void AppendNonNumber(ResultText& result, const Conversion& conversion, bool isNegative,
                     bool isInfinite) {
  const bool isCapital = conversion.letter < 'a';
  const std::size_t start = result.Size();
  AppendSign(result, conversion, isNegative);
  if (isCapital) {
    result.Append(isInfinite ? "INF" : "NAN");
  } else {
    result.Append(isInfinite ? "inf" : "nan");
  }
  Pad(result, conversion, start);
}

/// How a value looks in "%e" with a number of digits.
struct Digits {
  int exponent;
  int significant;  ///< digits up to the last that is not 0; at least one
};

template <class Value>
Digits DigitsOf(Value value, int digits) {
  // Not so many that the exponent is cut off. Beyond this no value has digits to be rounded.
  constexpr int kMostDigits = 12000;
  Conversion exponential;
  exponential.precision = std::min(digits - 1, kMostDigits);
  exponential.letter = 'e';
  ResultText printed;
  AppendPrinted(printed, exponential, LengthOf(value), value);
  printed.Append('\0');
  const std::string_view text = printed.View();
  const std::size_t mark = text.rfind('e');
  Digits found{static_cast<int>(std::strtol(&text[mark + 1], nullptr, 10)), 1};
  int seen = 0;
  for (const char c : text.substr(0, mark)) {
    if (c < '0' || c > '9') continue;
    ++seen;
    if (c != '0') found.significant = seen;
  }
  return found;
}

/// The plain or exponential form that C's rule for "%g" chooses. Printf chooses itself, but with a
/// width or another form not everywhere right: "%4g" of 100 may lack its blank, and "%#g" of
/// 999999.5 its zeros.
template <class Value>
Conversion ChooseForm(Conversion conversion, Value value) {
  constexpr int kDigitsByDefault = 6;
  const int digits = conversion.precision == Conversion::kNotGiven
                         ? kDigitsByDefault
                         : std::max(conversion.precision, 1);
  const Digits found = DigitsOf(value, digits);
  const int shown = conversion.isOtherForm ? digits : found.significant;
  const bool isPlain = found.exponent >= -4 && found.exponent < digits;
  const bool isCapital = conversion.letter == 'G';
  if (isPlain) {
    conversion.letter = isCapital ? 'F' : 'f';
    conversion.precision = std::max(shown - 1 - found.exponent, 0);
  } else {
    conversion.letter = isCapital ? 'E' : 'e';
    conversion.precision = shown - 1;
  }
  return conversion;
}

/// A value half-way between two numbers of so many hexadecimal digits is moved towards the lower
/// one if that one's last digit is even. Not every printf would take that one.
double LeaveHexadecimalTie(double value, int digits) {
  constexpr int kMantissaBits = std::numeric_limits<double>::digits - 1;
  const int dropped = kMantissaBits - 4 * digits;
  if (dropped <= 0) return value;
  constexpr std::uint64_t kOne = 1;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const bool isNormal = std::abs(value) >= std::numeric_limits<double>::min();
  const std::uint64_t mantissa = bits % (kOne << kMantissaBits);
  const std::uint64_t kept = ((isNormal ? kOne << kMantissaBits : 0) | mantissa) >> dropped;
  const std::uint64_t rest = mantissa % (kOne << dropped);
  const bool becomesLower = rest == kOne << (dropped - 1) && kept % 2 == 0;
  return becomesLower ? std::bit_cast<double>(bits - 1) : value;
}

/// Such values come on one system alone.
long double LeaveHexadecimalTie(long double value, int /*digits*/) { return value; }

template <class Value>
void Append(ResultText& result, const Conversion& conversion, Value value) {
  const char letter = conversion.letter;
  if (!std::isfinite(value)) {
    AppendNonNumber(result, conversion, std::signbit(value), std::isinf(value));
    return;
  }
  const bool isGeneral = letter == 'g' || letter == 'G';
  if (isGeneral && (conversion.width > 0 || conversion.isOtherForm)) {
    AppendPrinted(result, ChooseForm(conversion, value), LengthOf(value), value);
    return;
  }
  const bool isHexadecimal = letter == 'a' || letter == 'A';
  if (isHexadecimal && conversion.precision != Conversion::kNotGiven) {
    value = LeaveHexadecimalTie(value, conversion.precision);
  }
  AppendPrinted(result, conversion, LengthOf(value), value);
}

}  // namespace

void AppendAnyFraction(ResultText& result, const Conversion& conversion, double value) {
  Append(result, conversion, value);
}

void AppendFraction(ResultText& result, const Conversion& conversion, long double value) {
  Append(result, conversion, value);
}

}  // namespace kx
