#include <clocale>

#include "platform/decimal_point.h"

namespace kx {

// What localeconv answers is kept by the locale here, and written by no call of it.
char DecimalPoint() noexcept {
  const char* const point = std::localeconv()->decimal_point;
  return point[0] != '\0' && point[1] == '\0' ? point[0] : '\0';
}

}  // namespace kx
