#include "bundles/property_table.h"

namespace kx {

void PropertyTable::Set(std::string_view key, std::string_view text) {
  const std::uint64_t hash = keys_.Hash(key);
  const char* const stored = keys_.Find(key, hash);
  char* const place = texts_.Take(key.size() + 1 + MeasuredBytes(text.size()));
  char* const behindKey =
      PutText(place, stored == nullptr ? key : std::string_view(stored, key.size()));
  PutMeasuredText(behindKey, text);
  if (stored == nullptr) {
    keys_.Add(place, hash);
  } else {
    keys_.Move(stored, hash, place);
  }
}

}  // namespace kx
