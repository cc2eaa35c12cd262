#include "lang/language_contents.h"

namespace kx {

// The table is only changed before anybody reads it, and all of its memory is its own.
void LanguageTable::Set(std::string_view key, const char* value) {
  const std::uint64_t hash = keys_.Hash(key);
  const char* const stored = keys_.Find(key, hash);
  if (stored != nullptr) {
    std::memcpy(const_cast<char*>(stored) - sizeof value, &value, sizeof value);
    return;
  }
  char* const place = texts_.Take(sizeof value + key.size() + 1);
  std::memcpy(place, &value, sizeof value);
  PutText(place + sizeof value, key);
  keys_.Add(place + sizeof value, hash);
}

}  // namespace kx
