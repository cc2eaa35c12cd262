#include "format/conversion.h"

#include <algorithm>

namespace kx {
namespace {

constexpr Letters kLengths("hlIjztLw");
constexpr Letters kTexts("sc");
constexpr Letters kConversions("diouxXcspfFeEgGaA");
constexpr Letters kWithOtherForm("oxXfFeEgGaA");

/// Takes the parts of a group from its text, one by one.
class Reader {
 public:
  explicit Reader(std::string_view text) : next_(text.data()), end_(next_ + text.size()) {}

  const char* Place() const { return next_; }

  /// The next byte, which stays; '\0' at the end.
  char Peek() const { return next_ == end_ ? '\0' : *next_; }
  void Skip(std::size_t bytes) { next_ += bytes; }

  bool Take(std::string_view word) {
    if (!std::string_view(next_, static_cast<std::size_t>(end_ - next_)).starts_with(word)) {
      return false;
    }
    next_ += word.size();
    return true;
  }

  /// The next byte; '\0' at the end.
  char TakeByte() { return next_ == end_ ? '\0' : *next_++; }

  /// `none` when there are no digits.
  int TakeNumber(int none) {
    if (!IsDigit(Peek())) return none;
    int number = 0;
    for (; IsDigit(Peek()); ++next_) {
      number = std::min(number * 10 + (*next_ - '0'), static_cast<int>(kMaxPieceBytes));
    }
    return number;
  }

 private:
  static bool IsDigit(char c) { return c >= '0' && c <= '9'; }

  const char* next_;
  const char* const end_;
};

/// Answers whether there are any.
bool TakeFlags(Reader& reader, Conversion& conversion) {
  for (bool hasFlags = false;; hasFlags = true, reader.Skip(1)) {
    switch (reader.Peek()) {
      case '-': conversion.isLeft = true; break;
      case '+': conversion.hasPlus = true; break;
      case ' ': conversion.hasBlank = true; break;
      case '#': conversion.isOtherForm = true; break;
      case '0': conversion.hasZeros = true; break;
      default: return hasFlags;
    }
  }
}

/// Takes flags, width and precision; answers whether there are flags.
bool TakeField(Reader& reader, ConversionGroup& group) {
  const bool hasFlags = TakeFlags(reader, group.conversion);
  if (reader.Take("*")) {
    group.hasStar = true;
  } else {
    group.conversion.width = reader.TakeNumber(0);
  }
  if (!reader.Take(".")) return hasFlags;
  if (reader.Take("*")) {
    group.hasStar = true;
  } else {
    group.conversion.precision = reader.TakeNumber(0);
  }
  return hasFlags;
}

Length TakeLength(Reader& reader) {
  if (!kLengths.Has(reader.Peek())) return Length::kNone;
  switch (reader.Peek()) {
    case 'h': reader.Skip(1); return reader.Take("h") ? Length::kChar : Length::kShort;
    case 'l': reader.Skip(1); return reader.Take("l") ? Length::kBits64 : Length::kLong;
    case 'I':
      reader.Skip(1);
      if (reader.Take("32")) return Length::kBits32;
      reader.Take("64");
      return Length::kBits64;
    case 'j':
    case 'z':
    case 't': reader.Skip(1); return Length::kBits64;
    case 'L': reader.Skip(1); return Length::kExtended;
    default: reader.Skip(1); return Length::kWide;
  }
}

ConversionGroup::Meaning MeaningOf(char letter, Length length) {
  using Meaning = ConversionGroup::Meaning;
  const Letters allowed = length == Length::kWide ? kTexts : kConversions;
  if (allowed.Has(letter)) return Meaning::kConversion;
  if (letter == '%') return Meaning::kPercentSign;
  return letter == 'n' ? Meaning::kCount : Meaning::kText;
}

void DropIdleFlags(Conversion& conversion) {
  // A pointer is printed as the system does it, flags included.
  if (conversion.letter == 'p') return;
  const bool isNumber = conversion.IsInteger() || conversion.IsFloating();
  conversion.hasPlus = conversion.hasPlus && conversion.IsSigned();
  conversion.hasBlank = conversion.hasBlank && conversion.IsSigned() && !conversion.hasPlus;
  conversion.isOtherForm = conversion.isOtherForm && kWithOtherForm.Has(conversion.letter);
  conversion.hasZeros = conversion.hasZeros && isNumber && !conversion.isLeft;
}

}  // namespace

ConversionGroup ReadGroup(std::string_view text) {
  ConversionGroup group;
  Conversion& conversion = group.conversion;
  Reader reader(text.substr(1));
  // All that may stand before a length sorts before the letters, and most conversions have none.
  const bool hasFlags = reader.Peek() <= '9' && TakeField(reader, group);
  conversion.length = TakeLength(reader);
  conversion.letter = reader.TakeByte();
  group.meaning = MeaningOf(conversion.letter, conversion.length);
  group.text = {text.data(), static_cast<std::size_t>(reader.Place() - text.data())};
  if (hasFlags) DropIdleFlags(conversion);
  return group;
}

}  // namespace kx
