#ifndef KX_FORMAT_PRINT_INTEGER_H
#define KX_FORMAT_PRINT_INTEGER_H

#include <cstdint>

#include "format/conversion.h"
#include "format/result_text.h"

namespace kx {

/// Appends an integer as the conversion prints it.
///
/// @param word  of which the conversion looks at its lowest bits
///
/// Throws std::bad_alloc only.
void AppendInteger(ResultText& result, const Conversion& conversion, std::uint64_t word);

}  // namespace kx

#endif  // KX_FORMAT_PRINT_INTEGER_H
