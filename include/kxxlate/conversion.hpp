#ifndef KX_KXXLATE_CONVERSION_HPP
#define KX_KXXLATE_CONVERSION_HPP

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

// The conversions of texts for CKxXlate::InsertVariableVA, read as the library reads them.

namespace kx::detail {

constexpr bool IsOneOf(std::string_view letters, char c) noexcept {
  return letters.find(c) != std::string_view::npos;
}

constexpr bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }

/// What begins with a "%": a conversion of printf or something else.
struct ConversionGroup {
  enum class Meaning : std::uint8_t { kConversion, kPercentSign, kCount, kText };
  enum class Length : std::uint8_t {
    kNone,
    kChar,
    kShort,
    kLong,
    kBits32,
    kBits64,
    kExtended,
    kWide
  };

  std::string_view text;
  Meaning meaning = Meaning::kText;
  bool isLeft = false;
  bool hasStar = false;
  std::string_view width;  ///< its digits
  std::size_t lengthPlace = 0;
  Length length = Length::kNone;
  char letter = '\0';

  bool IsFloating() const { return IsOneOf("fFeEgGaA", letter); }
  bool IsInteger() const { return IsOneOf("diouxX", letter); }
  bool IsWide() const { return length == Length::kLong || length == Length::kWide; }

  /// How many bits of its value an integer conversion looks at.
  int Bits() const {
    switch (length) {
      case Length::kChar: return 8;
      case Length::kShort: return 16;
      case Length::kNone:
      case Length::kWide:
      case Length::kBits32: return 32;
      case Length::kLong: return std::numeric_limits<unsigned long>::digits;
      case Length::kBits64:
      case Length::kExtended: break;
    }
    return 64;
  }

  /// The same conversion with another length and letter.
  std::string With(std::string_view otherLength, char otherLetter) const {
    return std::string(text.substr(0, lengthPlace)).append(otherLength) + otherLetter;
  }

  /// A conversion of the same width, for a text that takes its place.
  std::string ForText(std::string_view conversion = "s") const {
    return std::string(isLeft ? "%-" : "%").append(width).append(conversion);
  }
};

/// Reads one group, part after part.
class GroupReader {
 public:
  /// @param text  begins with "%"
  explicit GroupReader(std::string_view text) : text_(text) {}

  ConversionGroup Read() {
    for (; IsOneOf("-+ #0", Peek()); ++place_) {
      if (Peek() == '-') group_.isLeft = true;
    }
    group_.width = TakeNumber();
    if (Take(".")) TakeNumber();
    group_.lengthPlace = place_;
    group_.length = TakeLength();
    group_.letter = Peek();
    if (place_ < text_.size()) ++place_;
    group_.text = text_.substr(0, place_);
    group_.meaning = Meaning();
    return group_;
  }

 private:
  using Length = ConversionGroup::Length;

  /// "\0" at the end.
  char Peek() const { return place_ < text_.size() ? text_[place_] : '\0'; }

  bool Take(std::string_view word) {
    if (text_.substr(place_, word.size()) != word) return false;
    place_ += word.size();
    return true;
  }

  std::string_view TakeNumber() {
    if (Take("*")) {
      group_.hasStar = true;
      return {};
    }
    const std::size_t begin = place_;
    while (IsDigit(Peek())) ++place_;
    return text_.substr(begin, place_ - begin);
  }

  Length TakeLength() {
    if (Take("hh")) return Length::kChar;
    if (Take("h")) return Length::kShort;
    if (Take("ll")) return Length::kBits64;
    if (Take("l")) return Length::kLong;
    if (Take("I32")) return Length::kBits32;
    if (Take("I64") || Take("I") || Take("j") || Take("z") || Take("t")) return Length::kBits64;
    if (Take("L")) return Length::kExtended;
    return Take("w") ? Length::kWide : Length::kNone;
  }

  ConversionGroup::Meaning Meaning() const {
    const char letter = group_.letter;
    const bool isWide = group_.length == Length::kWide;
    if (letter == '\0') return ConversionGroup::Meaning::kText;
    if (IsOneOf(isWide ? "sc" : "diouxXcspfFeEgGaA", letter)) {
      return ConversionGroup::Meaning::kConversion;
    }
    if (letter == '%') return ConversionGroup::Meaning::kPercentSign;
    return letter == 'n' ? ConversionGroup::Meaning::kCount : ConversionGroup::Meaning::kText;
  }

  const std::string_view text_;
  std::size_t place_ = 1;
  ConversionGroup group_;
};

/// A conversion piece: from "%" to the first of the letters that end one. The first conversion in
/// it, if there is any, takes a value; the rest is text.
struct ConversionPiece {
  std::string_view before;     ///< what stands before the conversion
  ConversionGroup group;       ///< means something else when there is none
  std::string_view after;      ///< what stands behind the conversion
  std::string_view text;       ///< all three
  std::string_view asWritten;  ///< and the number behind them
  std::size_t index = 0;       ///< of the value, from 0

  bool HasConversion() const { return group.meaning == ConversionGroup::Meaning::kConversion; }

  void FindConversion() {
    for (std::size_t place = 0; place != std::string_view::npos;) {
      group = GroupReader(text.substr(place)).Read();
      before = text.substr(0, place);
      const std::size_t behind = place + group.text.size();
      after = text.substr(behind);
      if (HasConversion()) return;
      place = text.find('%', behind);
    }
  }
};

/// Cuts a text into its pieces.
class ConversionPieces {
 public:
  explicit ConversionPieces(std::string_view text) : rest_(text) {}

  /// The literal bytes in front of the next piece or the end.
  std::string_view TakeLiteral() {
    const std::string_view literal = rest_.substr(0, rest_.find('%'));
    rest_.remove_prefix(literal.size());
    return literal;
  }

  /// False at the end; what begins there and has no letter is dropped, as the library drops it.
  bool TakePiece(ConversionPiece& piece) {
    if (rest_.empty()) return false;
    std::size_t end = rest_.find_first_of("cdiopuxfs", 1);
    if (end == std::string_view::npos) return false;
    piece.text = rest_.substr(0, ++end);
    if (end + 1 < rest_.size() && rest_[end] == ':' && IsDigit(rest_[end + 1])) {
      const char digit = rest_[end + 1];
      piece.index = digit == '0' ? 9 : static_cast<std::size_t>(digit - '1');
      end += 2;
    } else {
      piece.index = sequential_++;
    }
    piece.asWritten = rest_.substr(0, end);
    rest_.remove_prefix(end);
    piece.FindConversion();
    return true;
  }

 private:
  std::string_view rest_;
  std::size_t sequential_ = 0;
};

}  // namespace kx::detail

#endif  // KX_KXXLATE_CONVERSION_HPP
