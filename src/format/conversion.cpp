#include "format/conversion.h"

#include <algorithm>

namespace kx {
namespace {

bool IsOneOf(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }

/// Takes the parts of a group from its text, one by one.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  std::string_view Rest() const { return rest_; }

  bool Take(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    return true;
  }

  /// The next byte if it is one of `set`, else '\0'.
  char TakeOneOf(std::string_view set) {
    return !rest_.empty() && IsOneOf(rest_.front(), set) ? TakeByte() : '\0';
  }

  /// The next byte; '\0' at the end.
  char TakeByte() {
    if (rest_.empty()) return '\0';
    const char byte = rest_.front();
    rest_.remove_prefix(1);
    return byte;
  }

  /// `none` when there are no digits.
  int TakeNumber(int none) {
    constexpr std::string_view kDigits = "0123456789";
    if (rest_.empty() || !IsOneOf(rest_.front(), kDigits)) return none;
    int number = 0;
    while (const char digit = TakeOneOf(kDigits)) {
      number = std::min(number * 10 + (digit - '0'), static_cast<int>(kMaxPieceBytes));
    }
    return number;
  }

 private:
  std::string_view rest_;
};

void TakeFlags(Reader& reader, Conversion& conversion) {
  while (const char flag = reader.TakeOneOf("-+ #0")) {
    switch (flag) {
      case '-': conversion.isLeft = true; break;
      case '+': conversion.hasPlus = true; break;
      case ' ': conversion.hasBlank = true; break;
      case '#': conversion.isOtherForm = true; break;
      default: conversion.hasZeros = true; break;
    }
  }
}

Length TakeLength(Reader& reader) {
  // A word stands before those that it begins with.
  static constexpr struct {
    std::string_view word;
    Length length;
  } kLengths[] = {
      {"hh", Length::kChar},    {"h", Length::kShort},    {"ll", Length::kBits64},
      {"l", Length::kLong},     {"j", Length::kBits64},   {"z", Length::kBits64},
      {"t", Length::kBits64},   {"L", Length::kExtended}, {"I64", Length::kBits64},
      {"I32", Length::kBits32}, {"I", Length::kBits64},   {"w", Length::kWide},
  };
  for (const auto& [word, length] : kLengths) {
    if (reader.Take(word)) return length;
  }
  return Length::kNone;
}

ConversionGroup::Meaning MeaningOf(char letter, Length length) {
  using Meaning = ConversionGroup::Meaning;
  if (letter == '%') return Meaning::kPercentSign;
  if (letter == 'n') return Meaning::kCount;
  if (length == Length::kWide) return IsOneOf(letter, "sc") ? Meaning::kConversion : Meaning::kText;
  return IsOneOf(letter, "diouxXcspfFeEgGaA") ? Meaning::kConversion : Meaning::kText;
}

void DropIdleFlags(Conversion& conversion) {
  // A pointer is printed as the system does it, flags included.
  if (conversion.letter == 'p') return;
  const bool isNumber = conversion.IsInteger() || conversion.IsFloating();
  const bool hasOtherForm = conversion.IsFloating() || IsOneOf(conversion.letter, "oxX");
  conversion.hasPlus = conversion.hasPlus && conversion.IsSigned();
  conversion.hasBlank = conversion.hasBlank && conversion.IsSigned() && !conversion.hasPlus;
  conversion.isOtherForm = conversion.isOtherForm && hasOtherForm;
  conversion.hasZeros = conversion.hasZeros && isNumber && !conversion.isLeft;
}

}  // namespace

bool Conversion::IsSigned() const { return IsFloating() || letter == 'd' || letter == 'i'; }
bool Conversion::IsInteger() const { return letter != '\0' && IsOneOf(letter, "diouxX"); }
bool Conversion::IsFloating() const { return letter != '\0' && IsOneOf(letter, "fFeEgGaA"); }

bool Conversion::IsWide() const { return length == Length::kLong || length == Length::kWide; }

ArgumentKind Conversion::Kind() const {
  if (IsFloating()) {
    return length == Length::kExtended ? ArgumentKind::kLongDouble : ArgumentKind::kDouble;
  }
  if (letter == 's' || letter == 'p') return ArgumentKind::kWord;
  if (letter == 'c') return ArgumentKind::kInt;
  return Bits() > 32 ? ArgumentKind::kWord : ArgumentKind::kInt;
}

int Conversion::Bits() const {
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

ConversionGroup ReadGroup(std::string_view text) {
  ConversionGroup group;
  Conversion& conversion = group.conversion;
  Reader reader(text.substr(1));
  TakeFlags(reader, conversion);
  if (reader.Take("*")) {
    group.hasStar = true;
  } else {
    conversion.width = reader.TakeNumber(0);
  }
  if (reader.Take(".")) {
    if (reader.Take("*")) {
      group.hasStar = true;
    } else {
      conversion.precision = reader.TakeNumber(0);
    }
  }
  conversion.length = TakeLength(reader);
  conversion.letter = reader.TakeByte();
  group.meaning = MeaningOf(conversion.letter, conversion.length);
  group.text = text.substr(0, text.size() - reader.Rest().size());
  DropIdleFlags(conversion);
  return group;
}

}  // namespace kx
