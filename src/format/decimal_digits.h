#ifndef KX_FORMAT_DECIMAL_DIGITS_H
#define KX_FORMAT_DECIMAL_DIGITS_H

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kx {

// Decimal digits two at a time. std::to_chars counts them four at a time before it writes them, and
// writes them one by one, which took a tenth more of the time of a whole message.

constexpr int kMostDecimalDigits = 20;

constexpr auto kPowersOfTen = [] {
  std::array<std::uint64_t, kMostDecimalDigits> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = 10 * powers[i - 1];
  return powers;
}();

constexpr auto kDigitPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

/// How many digits a number has; 0 has one.
inline int CountDigits(std::uint64_t number) noexcept {
  number |= 1;  // one digit for 0, and as many as before for all others
  // By its bits it has one of two counts: 1233 / 4096 is the logarithm of 2.
  const int guess = (static_cast<int>(std::bit_width(number)) * 1233) >> 12;
  return guess + (number < kPowersOfTen[static_cast<std::size_t>(guess)] ? 0 : 1);
}

/// Writes the last two digits of a number so that they end at `end`, and takes them from it.
template <class Number>
void WritePair(char*& end, Number& number) noexcept {
  end -= 2;
  std::memcpy(end, &kDigitPairs[2 * (number % 100)], 2);
  number /= 100;
}

/// Writes a number in `count` digits, which must not be too few, so that they end at `end`.
inline void WriteDigits(char* end, std::uint64_t number, int count) noexcept {
  for (; count >= 2 && number > UINT32_MAX; count -= 2) WritePair(end, number);
  // Half the instructions of the wide division.
  auto low = static_cast<std::uint32_t>(number);
  for (; count >= 2; count -= 2) WritePair(end, low);
  if (count != 0) end[-1] = static_cast<char>('0' + low % 10);
}

}  // namespace kx

#endif  // KX_FORMAT_DECIMAL_DIGITS_H
