#ifndef KX_FORMAT_CALL_PRINTF_H
#define KX_FORMAT_CALL_PRINTF_H

#include <array>
#include <cstdio>
#include <new>
#include <string>
#include <string_view>

#include "format/conversion.h"

namespace kx {

/// Room for one printed value and its NUL.
using Printed = std::array<char, kMaxPieceBytes + 1>;

/// The conversion in printf's own spelling, with another length.
std::array<char, 24> PrintfFormat(const Conversion& conversion, std::string_view length);

/// Prints a value by the system's printf, cut to the room. A catalogue's text never gets there: the
/// format is put together of known parts.
///
/// @param length  that of the value's type, "" or "ll" or "L"
template <class Value>
void Print(Printed& printed, const Conversion& conversion, std::string_view length, Value value) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  const auto format = PrintfFormat(conversion, length);
  const int count = std::snprintf(printed.data(), printed.size(), format.data(), value);
#pragma GCC diagnostic pop
  // Nothing else can fail: widths and precisions are limited, and wide texts do not come here.
  if (count < 0) throw std::bad_alloc();
}

template <class Value>
void AppendPrinted(std::string& result, const Conversion& conversion, std::string_view length,
                   Value value) {
  Printed printed;
  Print(printed, conversion, length, value);
  result += printed.data();
}

}  // namespace kx

#endif  // KX_FORMAT_CALL_PRINTF_H
