#ifndef KX_FORMAT_CONVERSION_H
#define KX_FORMAT_CONVERSION_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "format/argument_kind.h"
#include "format/letters.h"

namespace kx {

/// The most bytes that one piece can become; a width or precision above it acts as it.
constexpr std::size_t kMaxPieceBytes = 16383;

/// How long the value of a conversion is. One that means nothing before its letter (as in "%hs")
/// counts as not given.
enum class Length : std::uint8_t {
  kNone,
  kChar,      ///< "hh"
  kShort,     ///< "h"
  kLong,      ///< "l": before integers what the system's long is; before texts wide
  kBits32,    ///< "I32"
  kBits64,    ///< "ll", "j", "z", "t", "I64" and "I"
  kExtended,  ///< "L": a long double, or an integer of 64 bits
  kWide,      ///< "w": a wide text or character
};

/// A conversion of printf: one of d i o u x X c s p f F e E g G a A, and what stands before it.
struct Conversion {
  static constexpr int kNotGiven = -1;

  // The flags that mean something for the letter, and beside each other. What C leaves open is not
  // asked of the systems' printf, whose answers differ.
  bool isLeft = false;       ///< "-"
  bool hasPlus = false;      ///< "+"
  bool hasBlank = false;     ///< " "
  bool isOtherForm = false;  ///< "#"
  bool hasZeros = false;     ///< "0"

  int width = 0;
  int precision = kNotGiven;
  Length length = Length::kNone;
  char letter = '\0';

  bool IsSigned() const { return Letters("difFeEgGaA").Has(letter); }
  bool IsInteger() const { return Letters("diouxX").Has(letter); }
  bool IsFloating() const { return Letters("fFeEgGaA").Has(letter); }
  bool IsWide() const { return length == Length::kLong || length == Length::kWide; }

  /// How the conversion reads its argument.
  ArgumentKind Kind() const {
    if (IsFloating()) {
      return length == Length::kExtended ? ArgumentKind::kLongDouble : ArgumentKind::kDouble;
    }
    return ArgumentKind::kWord;
  }

  /// How many bits of its argument an integer conversion looks at.
  int Bits() const {
    switch (length) {
      case Length::kChar: return 8;
      case Length::kShort: return 16;
      case Length::kNone:
      case Length::kWide:
      case Length::kBits32: return 32;
      case Length::kLong: return 8 * static_cast<int>(sizeof(long));
      case Length::kBits64:
      case Length::kExtended: break;
    }
    return 64;
  }
};

/// What begins with a "%" within a piece.
struct ConversionGroup {
  enum class Meaning : std::uint8_t {
    kConversion,
    kPercentSign,  ///< "%%", whatever stands between
    kCount,        ///< "%n"
    kText,         ///< anything else
  };

  std::string_view text;
  Meaning meaning = Meaning::kText;
  bool hasStar = false;   ///< "*" as width or precision, which then counts as not given
  Conversion conversion;  ///< if that is the meaning
};

/// Reads the group at the start of `text`, which begins with "%".
ConversionGroup ReadGroup(std::string_view text);

}  // namespace kx

#endif  // KX_FORMAT_CONVERSION_H
