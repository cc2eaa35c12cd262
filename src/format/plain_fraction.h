#ifndef KX_FORMAT_PLAIN_FRACTION_H
#define KX_FORMAT_PLAIN_FRACTION_H

#include "format/conversion.h"
#include "format/result_text.h"

namespace kx {

/// Appends a value as "%f" prints it, if it is one of those that most messages have: zero, or from
/// 2^-11 to 2^52, either sign, with up to 18 decimals, and a decimal point of one byte.
///
/// The digits come from one multiplication, which is exact. Printf has the same bytes, but takes
/// five times as long for a message of one number; the standard library's std::to_chars, half as
/// long again.
///
/// @return false, with nothing appended, if it is not
///
/// Throws std::bad_alloc only.
bool AppendPlainFraction(ResultText& result, const Conversion& conversion, double value);

}  // namespace kx

#endif  // KX_FORMAT_PLAIN_FRACTION_H
