#include "lang/interned_strings.h"

#include "texts/measured_text.h"

namespace kx {

const char* InternTable::InternString(std::string_view text) {
  // One for all tables, with its size.
  static constexpr char kEmpty[MeasuredBytes(0)] = {};
  if (text.empty()) return kEmpty + sizeof(TextMeasure);
  const std::uint64_t hash = strings_.Hash(text);
  if (const char* const known = strings_.Find(text, hash)) return known;
  const char* const copy = PutMeasuredText(texts_.Take(MeasuredBytes(text.size())), text);
  strings_.Add(copy, hash);
  return copy;
}

}  // namespace kx
