// Holds each build to the same bytes: 100,000 random pieces, of which each letter's results have
// the digest that is written here. What may differ between systems is left out: "l" before
// integers,
// "%p", "%La", and wide characters beyond ASCII.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iomanip>
#include <iterator>
#include <limits>
#include <ostream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

#include "format/inserted.h"
#include "platform/long_double.h"

namespace {

bool IsOneOf(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }

/// Makes pieces and their values. The same everywhere: the distributions of the standard library
/// are not, so they have no part in it.
class RandomPieces {
 public:
  explicit RandomPieces(char letter)
      : letter_(letter), random_(static_cast<unsigned char>(letter)) {}

  std::string Piece() {
    std::string piece = Chance(8) ? "%%" : Chance(8) ? "%n" : Chance(8) ? "%q, " : "";
    piece += '%';
    for (std::size_t count = Below(5); count > 0; --count) piece += ByteOf("-+ #0");
    if (Chance(2)) piece += Chance(20) ? "*" : std::to_string(Below(30));
    if (Chance(2)) piece += Chance(20) ? ".*" : Precision();
    length_ = Length();
    piece += length_ + letter_;
    if (IsOneOf(letter_, "XFeEgGaA")) piece += Ending();
    return piece;
  }

  /// The piece with a value that suits its conversion.
  std::string Result(const std::string& piece) {
    if (letter_ == 's') {
      if (IsOneOf('w', length_) || length_ == "l") return Inserted(piece, WideText().c_str());
      return Inserted(piece, Text(255).c_str());
    }
    if (letter_ == 'c') {
      const bool isWide = length_ == "w" || length_ == "l";
      return Inserted(piece, static_cast<int>(Below(isWide ? 128 : 256)));
    }
    if (IsOneOf(letter_, "fFeEgGaA")) {
      if (length_ == "L") return Inserted(piece, static_cast<kx::HostLongDouble>(Fraction()));
      return Inserted(piece, Fraction());
    }
    const bool isInt = length_.empty() || length_ == "I32" || length_[0] == 'h';
    return isInt ? Inserted(piece, static_cast<std::int32_t>(Bits())) : Inserted(piece, Bits());
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  bool Chance(std::size_t oneOf) { return Below(oneOf) == 0; }

  template <class List>
  auto OneOf(const List& list) {
    return list[Below(std::size(list))];
  }
  char ByteOf(std::string_view list) { return list[Below(list.size())]; }

  std::string Precision() {
    return Chance(5) ? "." : '.' + std::to_string(Below(Chance(50) ? 1500 : 22));
  }

  std::string Length() {
    static const std::string kAny[] = {"",  "",  "",  "h",   "hh",  "ll",
                                       "j", "z", "t", "I64", "I32", "I"};
    if (IsOneOf(letter_, "sc") && Chance(3)) return Chance(2) ? "w" : "l";
    if (!IsOneOf(letter_, "scaA") && Chance(8)) return "L";
    return OneOf(kAny);
  }

  /// Letters that end no piece need another behind them.
  std::string Ending() {
    static const std::string kEndings[] = {" o",   "%% of", "%5.1% u", ", %d",
                                           "%n d", "%*d",   "%g%%s"};
    return OneOf(kEndings);
  }

  std::string Text(std::size_t limit) {
    std::string text(Below(40), ' ');
    for (char& c : text) c = static_cast<char>(1 + Below(limit));
    return text;
  }

  std::wstring WideText() {
    const std::string text = Text(127);
    return {text.begin(), text.end()};
  }

  std::uint64_t Bits() {
    static constexpr std::uint64_t kExtremes[] = {
        0,
        1,
        UINT64_MAX,
        0x7F,
        0x80,
        0x7FFF,
        0x8000,
        0x7FFFFFFF,
        0x80000000,
        0xFFFFFFFF,
        0x7FFFFFFFFFFFFFFF,
        0x8000000000000000,
    };
    return Chance(2) ? OneOf(kExtremes) : random_() >> Below(64);
  }

  /// Also halves of a digit, decimal and hexadecimal, and numbers that round up to another power.
  double Fraction() {
    using Limits = std::numeric_limits<double>;
    static constexpr double kExtremes[] = {
        0.0,
        0.5,
        1.5,
        2.5,
        0.125,
        0.375,
        0.1,
        100,
        9.5,
        99.5,
        999999.5,
        9.9999995,
        1e-4,
        0.00009999995,
        1e15,
        1e16,
        1e22,
        1e300,
        0x1.08p0,
        0x1.18p0,
        0x1.8p0,
        0x1.fffp-6,
        0x1.0008p100,
        0x3p-1074,
        Limits::max(),
        Limits::min(),
        Limits::denorm_min(),
        Limits::infinity(),
        Limits::quiet_NaN(),
    };
    const double sign = Chance(2) ? -1.0 : 1.0;
    if (Chance(3)) return std::copysign(OneOf(kExtremes), sign);
    if (Chance(2)) return std::bit_cast<double>(random_());
    const auto whole = static_cast<std::int64_t>(random_() >> (1 + Below(63)));
    return sign * static_cast<double>(whole) / static_cast<double>(std::int64_t{1} << Below(40));
  }

  const char letter_;
  std::string length_;
  std::mt19937_64 random_;
};

constexpr std::size_t kPiecesOfALetter = 6250;

struct Digest {
  char letter;
  std::uint64_t expected;
};

void PrintTo(const Digest& digest, std::ostream* os) { *os << digest.letter; }

class RandomPiecesOf : public testing::TestWithParam<Digest> {};

TEST_P(RandomPiecesOf, HaveTheSameBytesOnEverySystem) {
  RandomPieces random(GetParam().letter);
  std::string all;
  for (std::size_t i = 0; i < kPiecesOfALetter; ++i) {
    const std::string piece = random.Piece();
    all.append(piece).append(" gives ").append(random.Result(piece)) += '\n';
  }
  // FNV-1a.
  std::uint64_t digest = 0xCBF29CE484222325;
  for (const char c : all) digest = (digest ^ static_cast<unsigned char>(c)) * 0x100000001B3;
  // What differs is seen beside the same list of another system.
  EXPECT_EQ(GetParam().expected, digest) << std::hex << digest << '\n' << all;
}

const Digest kDigests[] = {
    {'c', 0xE37F4855B72B6C08}, {'d', 0xBFEDE4D69A7C31E3}, {'i', 0xDD19E2693B13F1E9},
    {'o', 0x90FD038B81C0C5C9}, {'u', 0x3B07AA00AF0CD2CF}, {'x', 0xBF11AAE3DBA9EA54},
    {'X', 0x16A0EC1873E915F1}, {'s', 0xEAE0C9877C3F6A76}, {'f', 0xD16A8FAAEC1F63E5},
    {'F', 0x9C066128A3E62454}, {'e', 0x0259041592473AB5}, {'E', 0x4DEC78AC1A6D3BD7},
    {'g', 0x55109572CF9C4DA0}, {'G', 0xC5D370E175E4DA87}, {'a', 0xB227A93E33CE83FD},
    {'A', 0x81ED8D4B5BFCEF68},
};
static_assert(std::size(kDigests) * kPiecesOfALetter == 100000);

INSTANTIATE_TEST_SUITE_P(Letters, RandomPiecesOf, testing::ValuesIn(kDigests), [](const auto& row) {
  const char letter = row.param.letter;
  return (letter < 'a' ? "Capital" : "Small") + std::string(1, letter);
});

}  // namespace
