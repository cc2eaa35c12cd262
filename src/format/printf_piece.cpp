#include "format/printf_piece.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdio>
#include <cwchar>
#include <new>

namespace kx {
namespace {

constexpr int kMaxFieldBytes = static_cast<int>(kMaxPieceBytes);

bool IsOneOf(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }

/// Reads the parts of one conversion from its text.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  std::string_view Rest() const { return rest_; }

  bool Take(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    return true;
  }

  /// The next byte, which is taken; '\0' at the end.
  char TakeByte() {
    if (rest_.empty()) return '\0';
    const char byte = rest_.front();
    rest_.remove_prefix(1);
    return byte;
  }

  /// Each flag counts once.
  std::string TakeFlags() {
    std::string flags;
    while (!rest_.empty() && IsOneOf(rest_.front(), "-+ #0")) {
      const char flag = TakeByte();
      if (flags.find(flag) == std::string::npos) flags += flag;
    }
    return flags;
  }

  /// A width or precision; `none` when its digits are missing.
  int TakeNumber(int none) {
    if (rest_.empty() || !IsOneOf(rest_.front(), "0123456789")) return none;
    int number = 0;
    while (!rest_.empty() && IsOneOf(rest_.front(), "0123456789")) {
      number = std::min(number * 10 + (TakeByte() - '0'), kMaxFieldBytes);
    }
    return number;
  }

 private:
  std::string_view rest_;
};

template <class Value>
std::string Print(const std::string& format, Value value) {
  char text[kMaxPieceBytes + 1];
  errno = 0;
// The format was put together here, of known parts.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  const int length = std::snprintf(text, sizeof text, format.c_str(), value);
#pragma GCC diagnostic pop
  if (length < 0 && errno == ENOMEM) throw std::bad_alloc();
  // Else wide characters that the host's locale cannot express.
  return length < 0 ? std::string() : std::string(text);
}

}  // namespace

PrintfPiece::PrintfPiece(std::string_view piece) {
  while (!piece.empty() && letter_ == '\0') {
    const std::string_view literal = piece.substr(0, piece.find('%'));
    before_ += literal;
    piece.remove_prefix(literal.size());
    if (!piece.empty()) piece = TakeGroup(piece);
  }
  after_ = piece;
}

/// Takes what begins with "%" at the start of `group`; answers what follows it.
std::string_view PrintfPiece::TakeGroup(std::string_view group) {
  Reader reader(group.substr(1));
  const std::string flags = reader.TakeFlags();
  const int width = reader.Take("*") ? kNotGiven : reader.TakeNumber(kNotGiven);
  int precision = kNotGiven;
  if (reader.Take(".")) precision = reader.Take("*") ? kNotGiven : reader.TakeNumber(0);
  const Length length =
      reader.Take("hh")  ? Length::kChar
      : reader.Take("h") ? Length::kShort
      : reader.Take("ll") || reader.Take("j") || reader.Take("z") || reader.Take("t")
          ? Length::kLongLong
      : reader.Take("l") ? Length::kLong
                         : Length::kNone;
  const char letter = reader.TakeByte();
  if (letter == '%') {
    before_ += '%';
  } else if (IsOneOf(letter, "diouxXcspfFeEgGaA")) {
    flags_ = flags;
    width_ = width;
    precision_ = precision;
    length_ = length;
    letter_ = letter;
    kind_ = KindOfLetter();
  } else if (letter != 'n') {
    before_ += group.substr(0, group.size() - reader.Rest().size());
  }
  return reader.Rest();
}

ArgumentKind PrintfPiece::KindOfLetter() const {
  if (IsOneOf(letter_, "fFeEgGaA")) return ArgumentKind::kDouble;
  if (IsOneOf(letter_, "sp")) return ArgumentKind::kWord;
  if (letter_ == 'c') return ArgumentKind::kInt;
  const bool isWide =
      length_ == Length::kLongLong || (length_ == Length::kLong && sizeof(long) > sizeof(int));
  return isWide ? ArgumentKind::kWord : ArgumentKind::kInt;
}

std::string PrintfPiece::FormatOf(std::string_view length) const {
  std::string format = '%' + flags_;
  if (width_ != kNotGiven) format += std::to_string(width_);
  // Without one, printf walks the whole of a text to count it, and refuses one of 2 GB.
  const bool isText = letter_ == 's' && length_ != Length::kLong;
  const int precision = precision_ == kNotGiven && isText ? kMaxFieldBytes : precision_;
  if (precision != kNotGiven) format.append(".").append(std::to_string(precision));
  return format.append(length) + letter_;
}

/// How many bits of the argument an integer conversion looks at.
int PrintfPiece::Bits() const {
  switch (length_) {
    case Length::kChar: return 8;
    case Length::kShort: return 16;
    case Length::kNone: return 32;
    case Length::kLong: return 8 * static_cast<int>(sizeof(long));
    case Length::kLongLong: break;
  }
  return 64;
}

std::string PrintfPiece::FormatInteger(std::uint64_t word) const {
  const int unused = 64 - Bits();
  const std::uint64_t top = word << unused;
  if (letter_ == 'd' || letter_ == 'i') {
    return Print(FormatOf("ll"), static_cast<long long>(top) >> unused);
  }
  return Print(FormatOf("ll"), static_cast<unsigned long long>(top >> unused));
}

std::string PrintfPiece::FormatText(std::uint64_t word) const {
  if (word == 0) return Print(FormatOf(""), "");
  if (length_ == Length::kLong) return Print(FormatOf("l"), std::bit_cast<const wchar_t*>(word));
  return Print(FormatOf(""), std::bit_cast<const char*>(word));
}

std::string PrintfPiece::FormatValue(std::uint64_t word) const {
  switch (letter_) {
    case '\0': return {};
    case 'd':
    case 'i':
    case 'o':
    case 'u':
    case 'x':
    case 'X': return FormatInteger(word);
    case 's': return FormatText(word);
    case 'p': return Print(FormatOf(""), std::bit_cast<const void*>(word));
    case 'c':
      if (length_ == Length::kLong) return Print(FormatOf("l"), static_cast<std::wint_t>(word));
      return Print(FormatOf(""), static_cast<int>(word));
    default: return Print(FormatOf(""), std::bit_cast<double>(word));
  }
}

void PrintfPiece::AppendTo(std::string& result, std::uint64_t word) const {
  std::string text = before_ + FormatValue(word) + after_;
  text.resize(std::min(text.size(), kMaxPieceBytes));
  result += text;
}

}  // namespace kx
