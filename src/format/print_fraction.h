#ifndef KX_FORMAT_PRINT_FRACTION_H
#define KX_FORMAT_PRINT_FRACTION_H

#include <string>

#include "format/conversion.h"

namespace kx {

// Append a floating value as the conversion prints it. All is the same on every system but the
// decimal point, which is that of the host's locale. Throw std::bad_alloc only.
void AppendFraction(std::string& result, const Conversion& conversion, double value);
void AppendFraction(std::string& result, const Conversion& conversion, long double value);

}  // namespace kx

#endif  // KX_FORMAT_PRINT_FRACTION_H
