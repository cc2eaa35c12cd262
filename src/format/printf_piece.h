#ifndef KX_FORMAT_PRINTF_PIECE_H
#define KX_FORMAT_PRINTF_PIECE_H

#include <string>
#include <string_view>

#include "format/argument_value.h"
#include "format/argument_walker.h"
#include "format/conversion.h"

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
  /// @param piece  as CutIntoPieces made it; must outlive this
  explicit PrintfPiece(std::string_view piece);

  /// How the conversion reads its argument; kUnread when there is none.
  ArgumentKind Kind() const;

  /// Appends the piece with its value, as printf gives it, cut to kMaxPieceBytes; the value ends at
  /// a NUL.
  ///
  /// @param value  for %s a pointer to a terminated text, of which null is the empty one
  void AppendTo(std::string& result, const ArgumentValue& value) const;

 private:
  std::string_view before_;
  Conversion conversion_;  // no letter when there is none
  std::string_view after_;
};

}  // namespace kx

#endif  // KX_FORMAT_PRINTF_PIECE_H
