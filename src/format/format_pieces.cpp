#include "format/format_pieces.h"

#include "format/letters.h"

namespace kx {
namespace {

constexpr Letters kLast("cdiopuxfs");

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// "0" is the tenth.
std::size_t IndexOf(char digit) { return digit == '0' ? 9 : static_cast<std::size_t>(digit - '1'); }

}  // namespace

bool FormatPieces::TakeConversion(FormatPiece& piece) {
  const char* const end = text_.End();
  if (next_ == end) return false;
  const char* next = next_ + 1;
  while (next != end && !kLast.Has(*next)) ++next;
  if (next == end) return false;
  ++next;
  piece.text = {next_, static_cast<std::size_t>(next - next_)};
  if (next[0] == ':' && IsDigit(next[1])) {
    piece.argIndex = IndexOf(next[1]);
    next_ = next + 2;
  } else {
    piece.argIndex = sequential_++;
    next_ = next;
  }
  return true;
}

}  // namespace kx
