#ifndef KX_FORMAT_PRINTF_PIECE_H
#define KX_FORMAT_PRINTF_PIECE_H

#include <cstddef>
#include <string_view>

#include "format/argument_kind.h"
#include "format/argument_value.h"
#include "format/conversion.h"
#include "format/print_value.h"
#include "format/result_text.h"

namespace kx {

/// A conversion piece, parsed. A catalogue's text never reaches printf as it is: what is formatted
/// is at most one conversion of a known type, put together anew, with literal text around it.
///
///   %%             is a percent sign, before the conversion and behind it
///   %n             writes nothing, anywhere
///   *              as width or precision takes no argument and counts as not given
///   width, precision  above 16,383 act as 16,383
///   e g a, and E F G A X, are conversions like the letters that end a piece
///   anything else behind a "%" is literal text, and behind the conversion %n, * and further
///   conversions are, too
class PrintfPiece {
 public:
  /// @param piece  begins with "%" and ends with its letter; must outlive this
  explicit PrintfPiece(std::string_view piece) : piece_(piece), group_(ReadGroup(piece)) {
    if (!HasConversion()) FindConversion();
  }

  std::string_view Text() const { return piece_; }

  /// How the conversion reads its argument; kUnread when there is none.
  ArgumentKind Kind() const {
    return HasConversion() ? group_.conversion.Kind() : ArgumentKind::kUnread;
  }

  /// Appends the piece with its value, as printf gives it, cut to kMaxPieceBytes; the value ends at
  /// a NUL.
  ///
  /// @param value  for %s a pointer to a terminated text, of which null is the empty one
  void AppendTo(ResultText& result, const ArgumentValue& value) const {
    const std::size_t start = result.Size();
    // Most pieces are a conversion and nothing else.
    if (HasConversion() && group_.text.size() == piece_.size()) {
      AppendValue(result, group_.conversion, value);
    } else {
      AppendParts(result, value);
    }
    result.Cut(start + kMaxPieceBytes);
  }

 private:
  bool HasConversion() const { return group_.meaning == ConversionGroup::Meaning::kConversion; }

  void FindConversion();
  void AppendParts(ResultText& result, const ArgumentValue& value) const;

  std::string_view piece_;
  ConversionGroup group_;  ///< the first that is a conversion, if one is
};

}  // namespace kx

#endif  // KX_FORMAT_PRINTF_PIECE_H
