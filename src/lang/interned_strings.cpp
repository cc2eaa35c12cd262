#include "lang/interned_strings.h"

namespace kx {

const char* InternTable::InternString(std::string_view text) {
  if (text.empty()) return "";
  const std::uint64_t hash = strings_.Hash(text);
  if (const char* const known = strings_.Find(text, hash)) return known;
  char* const place = texts_.Take(text.size() + 1);
  PutText(place, text);
  strings_.Add(place, hash);
  return place;
}

}  // namespace kx
