#include "lang/language_contents.h"

#include <new>

namespace kx {

// The table is only changed before anybody reads it, and all of its memory is its own.
void LanguageTable::Set(std::string_view key, const char* value) {
  if (!IsShortPointer(value)) throw std::bad_alloc();
  const std::uint64_t hash = keys_.Hash(key);
  const char* const stored = keys_.Find(key, hash);
  if (stored != nullptr) {
    StoreShortPointer(const_cast<char*>(stored) - kShortPointerBytes, value);
    return;
  }
  char* const place = texts_.Take(kShortPointerBytes + key.size() + 1);
  StoreShortPointer(place, value);
  PutText(place + kShortPointerBytes, key);
  keys_.Add(place + kShortPointerBytes, hash);
}

}  // namespace kx
