#ifndef KX_FORMAT_FORMAT_PIECES_H
#define KX_FORMAT_FORMAT_PIECES_H

#include <cstddef>
#include <string_view>
#include <vector>

namespace kx {

/// A part of a text for InsertVariableVA: literal bytes, or a conversion that takes a value.
struct FormatPiece {
  bool isLiteral;
  /// A conversion's begins with "%" and ends with its letter; it is only parsed, never handed to
  /// printf as it stands: see printf_piece.h. Lies in the text that was cut.
  std::string_view text;
  std::size_t argIndex;  ///< 0-based number of the value that a conversion takes
};

/// Cuts a text into its pieces. A conversion begins with "%" and ends with the first of the letters
/// c d i o p u x f s behind it, whatever stands between; ":" and a digit behind it number its value
/// from 1 (0 is the tenth), and one without a number takes the value behind that of the last one
/// without. A conversion that the end of the text cuts off is dropped.
///
/// The pieces point into `text`. Throws std::bad_alloc only.
std::vector<FormatPiece> CutIntoPieces(std::string_view text);

}  // namespace kx

#endif  // KX_FORMAT_FORMAT_PIECES_H
