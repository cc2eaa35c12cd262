#ifndef KX_FORMAT_FORMAT_PIECES_H
#define KX_FORMAT_FORMAT_PIECES_H

#include <cstddef>
#include <string_view>

#include "format/marked_text.h"
#include "format/result_text.h"

namespace kx {

/// A conversion in a text for InsertVariableVA.
struct FormatPiece {
  /// Begins with "%" and ends with its letter; it is only parsed, never handed to printf as it
  /// stands: see printf_piece.h. Lies in the text that was cut.
  std::string_view text;
  std::size_t argIndex;  ///< 0-based number of the value that it takes
};

/// Cuts a text into its conversions and the literal bytes between them. A conversion begins with
/// "%" and ends with the first of the letters c d i o p u x f s behind it, whatever stands between;
/// ":" and a digit behind it number its value from 1 (0 is the tenth), and one without a number
/// takes the value behind that of the last one without. A conversion that the end of the text cuts
/// off is dropped.
///
/// A copy goes on from the same place, on its own.
class FormatPieces {
 public:
  explicit FormatPieces(const char* text) : text_(text), next_(text_.Begin()) {}

  /// The literal bytes up to the next conversion or the end.
  void CopyLiteral(ResultText& result) { next_ = text_.CopyUpTo(result, next_, '%', '%'); }
  void SkipLiteral() { next_ = text_.Find(next_, '%'); }

  /// The conversion behind the literal bytes; false at the end.
  bool TakeConversion(FormatPiece& piece);

 private:
  MarkedText text_;
  const char* next_;
  std::size_t sequential_ = 0;
};

}  // namespace kx

#endif  // KX_FORMAT_FORMAT_PIECES_H
