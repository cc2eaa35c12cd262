#ifndef KX_FORMAT_CALL_PRINTF_H
#define KX_FORMAT_CALL_PRINTF_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <new>
#include <string_view>

#include "format/conversion.h"
#include "format/result_text.h"

namespace kx {

/// The conversion in printf's own spelling, with another length.
std::array<char, 24> PrintfFormat(const Conversion& conversion, std::string_view length);

/// Appends a value as the system's printf prints it, cut to kMaxPieceBytes. A catalogue's text
/// never gets there: the format is put together of known parts.
///
/// @param length  that of the value's type, "" or "L"
template <class Value>
void AppendPrinted(ResultText& result, const Conversion& conversion, std::string_view length,
                   Value value) {
  constexpr std::size_t kUsualRoom = 64;
  const auto format = PrintfFormat(conversion, length);
  std::size_t room = kUsualRoom;
  for (;;) {
    char* const to = result.Reserve(room + 1);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int count = std::snprintf(to, room + 1, format.data(), value);
#pragma GCC diagnostic pop
    // Nothing else can fail: widths and precisions are limited, and wide texts do not come here.
    if (count < 0) throw std::bad_alloc();
    const std::size_t size = std::min(static_cast<std::size_t>(count), kMaxPieceBytes);
    if (size <= room) {
      result.EndAt(to + size);
      return;
    }
    room = size;
  }
}

}  // namespace kx

#endif  // KX_FORMAT_CALL_PRINTF_H
