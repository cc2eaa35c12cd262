#include "format/print_integer.h"

#include <algorithm>
#include <bit>
#include <cstddef>

#include "format/decimal_digits.h"
#include "format/field.h"

namespace kx {
namespace {

/// @param bits  of one digit
void AppendDigitsOfBits(ResultText& result, std::uint64_t number, int bits, const char* digits) {
  const int width = static_cast<int>(std::bit_width(number));
  const int count = std::max((width + bits - 1) / bits, 1);
  char* const begin = result.Reserve(static_cast<std::size_t>(count));
  for (char* to = begin + count; to != begin; number >>= bits) {
    *--to = digits[number & ((1U << bits) - 1)];
  }
  result.EndAt(begin + count);
}

void AppendDecimalDigits(ResultText& result, std::uint64_t number) {
  const int count = CountDigits(number);
  char* const end = result.Reserve(static_cast<std::size_t>(count)) + count;
  WriteDigits(end, number, count);
  result.EndAt(end);
}

void AppendDigits(ResultText& result, char letter, std::uint64_t number) {
  switch (letter) {
    case 'o': AppendDigitsOfBits(result, number, 3, "01234567"); break;
    case 'x': AppendDigitsOfBits(result, number, 4, "0123456789abcdef"); break;
    case 'X': AppendDigitsOfBits(result, number, 4, "0123456789ABCDEF"); break;
    default: AppendDecimalDigits(result, number); break;
  }
}

/// Appends sign and prefix, then the digits with the zeros that precision and other form ask for.
/// Answers where the digits begin.
std::size_t AppendNumber(ResultText& result, const Conversion& conversion, bool isNegative,
                         std::uint64_t number) {
  const char letter = conversion.letter;
  AppendSign(result, conversion, isNegative);
  const bool isHexadecimal = letter == 'x' || letter == 'X';
  if (conversion.isOtherForm && isHexadecimal && number != 0) {
    result.Append('0');
    result.Append(letter);
  }
  const std::size_t start = result.Size();
  // By a precision of 0 a 0 is nothing.
  if (number != 0 || conversion.precision != 0) AppendDigits(result, letter, number);
  const std::size_t size = result.Size() - start;
  const auto wanted = static_cast<std::size_t>(std::max(conversion.precision, 0));
  if (wanted > size) {
    result.Insert(start, wanted - size, '0');
  } else if (conversion.isOtherForm && letter == 'o' && (number != 0 || size == 0)) {
    result.Insert(start, 1, '0');
  }
  return start;
}

}  // namespace

void AppendInteger(ResultText& result, const Conversion& conversion, std::uint64_t word) {
  const int unused = 64 - conversion.Bits();
  std::uint64_t number = (word << unused) >> unused;
  bool isNegative = false;
  if (conversion.IsSigned()) {
    const auto value = static_cast<std::int64_t>(word << unused) >> unused;
    isNegative = value < 0;
    number = static_cast<std::uint64_t>(value);
    if (isNegative) number = 0 - number;
  }
  const std::size_t start = result.Size();
  const std::size_t digits = AppendNumber(result, conversion, isNegative, number);
  const bool hasPrecision = conversion.precision != Conversion::kNotGiven;
  Pad(result, conversion, start, conversion.hasZeros && !hasPrecision ? digits : kNoZeros);
}

}  // namespace kx
