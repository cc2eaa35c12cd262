#include "format/call_printf.h"

#include <charconv>

namespace kx {

std::array<char, 24> PrintfFormat(const Conversion& conversion, std::string_view length) {
  std::array<char, 24> format{};
  char* end = format.data();
  char* const last = end + format.size() - 1;
  *end++ = '%';
  if (conversion.isLeft) *end++ = '-';
  if (conversion.hasPlus) *end++ = '+';
  if (conversion.hasBlank) *end++ = ' ';
  if (conversion.isOtherForm) *end++ = '#';
  if (conversion.hasZeros) *end++ = '0';
  if (conversion.width > 0) end = std::to_chars(end, last, conversion.width).ptr;
  if (conversion.precision != Conversion::kNotGiven) {
    *end++ = '.';
    end = std::to_chars(end, last, conversion.precision).ptr;
  }
  end += length.copy(end, length.size());
  *end = conversion.letter;
  return format;
}

}  // namespace kx
