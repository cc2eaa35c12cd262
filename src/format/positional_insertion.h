#ifndef KX_FORMAT_POSITIONAL_INSERTION_H
#define KX_FORMAT_POSITIONAL_INSERTION_H

#include <cstddef>
#include <string>

#include "format/result_text.h"

namespace kx {

/// Replaces the markers of a text (%N or {N}, N counted from 0) by arguments.
///
/// The first '%' or '{' of the text decides which of the two marks places. Nothing is refused: a
/// malformed marker, and one whose argument is absent, stay in the text, and arguments behind the
/// highest one that a marker named are appended in brackets. docs/markers.md has all the rules.
///
/// @param result     empty; gets the text with its values
/// @param text       null is the empty text
/// @param arguments  `count` pointers to terminated texts, of which any may be null (absent); a
///                   null array is an empty one
///
/// Reentrant. Throws std::bad_alloc only.
void InsertArguments(ResultText& result, const char* text, std::size_t count,
                     const char* const* arguments);

/// The same into a string, which is replaced. `text` and the arguments may lie in it.
void InsertArguments(std::string& result, const char* text, std::size_t count,
                     const char* const* arguments);

}  // namespace kx

#endif  // KX_FORMAT_POSITIONAL_INSERTION_H
