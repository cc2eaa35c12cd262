#include "lang/interned_strings.h"

#include <string_view>

namespace kx {

const char* InternTable::InternString(const char* text) {
  if (text == nullptr) return nullptr;
  if (*text == '\0') return "";
  const std::string_view content = text;
  const auto place = strings_.lower_bound(content);
  if (place != strings_.end() && *place == content) return place->c_str();
  return strings_.emplace_hint(place, content)->c_str();
}

}  // namespace kx
