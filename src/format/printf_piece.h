#ifndef KX_FORMAT_PRINTF_PIECE_H
#define KX_FORMAT_PRINTF_PIECE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "format/argument_walker.h"

namespace kx {

/// The most bytes that one piece can become.
constexpr std::size_t kMaxPieceBytes = 16383;

/// A conversion piece, parsed. A catalogue's text never reaches printf as it is: what is formatted
/// is at most one conversion of a known type, put together anew, with literal text around it.
///
///   %n             writes nothing, anywhere
///   *              as width or precision takes no argument and counts as not given
///   width, precision  above 16,383 act as 16,383
///   %%             is a percent sign
///   e g a, and E F G A X, are conversions like the letters that end a piece
///   anything else behind a "%", and every "%" behind the first conversion, is literal text
class PrintfPiece {
 public:
  /// @param piece  as CutIntoPieces made it
  explicit PrintfPiece(std::string_view piece);

  /// How the conversion reads its argument; kUnread when there is none.
  ArgumentKind Kind() const noexcept { return kind_; }

  /// Appends the piece with its value, as printf gives it, cut to kMaxPieceBytes and before a NUL.
  ///
  /// @param word  the argument's bytes, as TakeArguments reads them; for %s a pointer to a
  ///              terminated text, of which null is the empty one
  void AppendTo(std::string& result, std::uint64_t word) const;

 private:
  std::string_view TakeGroup(std::string_view group);
  ArgumentKind KindOfLetter() const;
  /// The conversion in printf's own spelling, with another length.
  std::string FormatOf(std::string_view length) const;
  int Bits() const;
  std::string FormatInteger(std::uint64_t word) const;
  std::string FormatText(std::uint64_t word) const;
  std::string FormatValue(std::uint64_t word) const;

  std::string before_;
  std::string after_;
  ArgumentKind kind_ = ArgumentKind::kUnread;

  // The conversion.
  std::string flags_;
  int width_ = kNotGiven;
  int precision_ = kNotGiven;
  enum class Length { kNone, kChar, kShort, kLong, kLongLong } length_ = Length::kNone;
  char letter_ = '\0';

  static constexpr int kNotGiven = -1;
};

}  // namespace kx

#endif  // KX_FORMAT_PRINTF_PIECE_H
