#include "texts/noted_keys.h"

#include <cstring>

namespace kx {

const char* NotedKeys::Prepare(std::string_view key) {
  keys_.Reserve();
  // The padding is the key's own: what lies behind it may be written while others read the key.
  char* const place = texts_.Take(key.size() + 1 + kKeyPadding);
  std::memset(PutText(place, key), 0, kKeyPadding);
  return place;
}

}  // namespace kx
