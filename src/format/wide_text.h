#ifndef KX_FORMAT_WIDE_TEXT_H
#define KX_FORMAT_WIDE_TEXT_H

#include "format/conversion.h"
#include "format/result_text.h"

namespace kx {

/// Appends a wide text as C says of %ls: in the encoding of the host's locale, cut at the
/// precision, which counts bytes, but within no character. Printf does it itself, but some count
/// characters, and some end at one that cannot be expressed. Here a text with such a character is
/// nothing.
///
/// @param text  null is the empty one
///
/// Throws std::bad_alloc only.
void AppendWideText(ResultText& result, const Conversion& conversion, const wchar_t* text);

/// Appends a wide character other than NUL in the same way; its precision counts for nothing.
void AppendWideCharacter(ResultText& result, const Conversion& conversion, wchar_t character);

}  // namespace kx

#endif  // KX_FORMAT_WIDE_TEXT_H
