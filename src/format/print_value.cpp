#include "format/print_value.h"

#include <bit>

#include "format/call_printf.h"
#include "format/print_fraction.h"
#include "format/print_integer.h"
#include "format/print_text.h"

namespace kx {

void AppendValue(ResultText& result, const Conversion& conversion, const ArgumentValue& value) {
  switch (conversion.letter) {
    case 'd':
    case 'i':
    case 'o':
    case 'u':
    case 'x':
    case 'X': AppendInteger(result, conversion, value.Word()); break;
    case 'c': AppendCharacter(result, conversion, value.Word()); break;
    case 's': AppendString(result, conversion, value); break;
    case 'p':
      AppendPrinted(result, conversion, "", std::bit_cast<const void*>(value.Word()));
      break;
    default:
      if (value.IsLongDouble()) {
        AppendFraction(result, conversion, value.LongDouble());
      } else {
        AppendFraction(result, conversion, value.Double());
      }
      break;
  }
}

}  // namespace kx
