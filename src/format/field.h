#ifndef KX_FORMAT_FIELD_H
#define KX_FORMAT_FIELD_H

#include <cstddef>

#include "format/conversion.h"
#include "format/result_text.h"

namespace kx {

// A value is printed at the end of the result and padded there: most have no width, and the digits
// of those are written once and copied nowhere.

/// The most bytes of a text that are printed.
inline std::size_t LimitOf(const Conversion& conversion) {
  return conversion.precision == Conversion::kNotGiven
             ? kMaxPieceBytes
             : static_cast<std::size_t>(conversion.precision);
}

/// Appends the sign of a number, if the flags want one.
inline void AppendSign(ResultText& result, const Conversion& conversion, bool isNegative) {
  if (isNegative) {
    result.Append('-');
  } else if (conversion.hasPlus) {
    result.Append('+');
  } else if (conversion.hasBlank) {
    result.Append(' ');
  }
}

/// Brings what stands at `start` and behind it to the width of the conversion: on the left, on the
/// right, or behind zeros.
///
/// @param digits  where the zeros belong, behind the sign; kNoZeros if blanks take their place
///
/// Throws std::bad_alloc only.
constexpr std::size_t kNoZeros = static_cast<std::size_t>(-1);
inline void Pad(ResultText& result, const Conversion& conversion, std::size_t start,
                std::size_t digits = kNoZeros) {
  const auto width = static_cast<std::size_t>(conversion.width);
  const std::size_t size = result.Size() - start;
  if (size >= width) return;
  if (conversion.isLeft) {
    result.Append(width - size, ' ');
  } else if (digits != kNoZeros) {
    result.Insert(digits, width - size, '0');
  } else {
    result.Insert(start, width - size, ' ');
  }
}

}  // namespace kx

#endif  // KX_FORMAT_FIELD_H
