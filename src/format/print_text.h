#ifndef KX_FORMAT_PRINT_TEXT_H
#define KX_FORMAT_PRINT_TEXT_H

#include <cstdint>

#include "format/argument_value.h"
#include "format/conversion.h"
#include "format/result_text.h"

namespace kx {

// Append what "%c" and "%s" print, up to the first NUL. Throw std::bad_alloc only.
void AppendCharacter(ResultText& result, const Conversion& conversion, std::uint64_t word);
void AppendString(ResultText& result, const Conversion& conversion, const ArgumentValue& value);

}  // namespace kx

#endif  // KX_FORMAT_PRINT_TEXT_H
