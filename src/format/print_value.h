#ifndef KX_FORMAT_PRINT_VALUE_H
#define KX_FORMAT_PRINT_VALUE_H

#include "format/argument_value.h"
#include "format/conversion.h"
#include "format/result_text.h"

namespace kx {

/// Appends a value as the conversion prints it, up to its first NUL: the same bytes on every
/// system, but for "l" before integers, "%p", "%La", and what the host's locale decides (the
/// decimal point, wide characters beyond ASCII).
///
/// @param value  for %s a pointer to a terminated text, of which null is the empty one
///
/// Throws std::bad_alloc only.
void AppendValue(ResultText& result, const Conversion& conversion, const ArgumentValue& value);

}  // namespace kx

#endif  // KX_FORMAT_PRINT_VALUE_H
