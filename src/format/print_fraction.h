#ifndef KX_FORMAT_PRINT_FRACTION_H
#define KX_FORMAT_PRINT_FRACTION_H

#include "format/conversion.h"
#include "format/plain_fraction.h"
#include "format/result_text.h"

namespace kx {

// Append a floating value as the conversion prints it. All is the same on every system but the
// decimal point, which is that of the host's locale. Throw std::bad_alloc only.
void AppendAnyFraction(ResultText& result, const Conversion& conversion, double value);
inline void AppendFraction(ResultText& result, const Conversion& conversion, double value) {
  const bool isPlain = conversion.letter == 'f' || conversion.letter == 'F';
  if (!isPlain || !AppendPlainFraction(result, conversion, value)) {
    AppendAnyFraction(result, conversion, value);
  }
}
void AppendFraction(ResultText& result, const Conversion& conversion, long double value);

}  // namespace kx

#endif  // KX_FORMAT_PRINT_FRACTION_H
