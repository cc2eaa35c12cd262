#include <langinfo.h>

#include "platform/decimal_point.h"

namespace kx {

// Not localeconv, which fills in an object that all threads share.
char DecimalPoint() noexcept {
  const char* const point = nl_langinfo(RADIXCHAR);
  return point[0] != '\0' && point[1] == '\0' ? point[0] : '\0';
}

}  // namespace kx
