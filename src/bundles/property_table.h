#ifndef KX_BUNDLES_PROPERTY_TABLE_H
#define KX_BUNDLES_PROPERTY_TABLE_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "texts/key_table.h"
#include "texts/measured_text.h"
#include "texts/text_arena.h"

namespace kx {

/// The texts of one file by key; keys are found in any ASCII case. Each text lies behind its key,
/// so that a table finds both by one place.
///
/// Only changed while the file is read; looked up from any thread afterwards.
class PropertyTable {
 public:
  std::uint64_t Hash(std::string_view key) const noexcept { return keys_.Hash(key); }

  /// The text of `key`, which holds no NUL, or null; valid as long as the table. A measured text.
  /// Allocates nothing.
  const char* Find(std::string_view key, std::uint64_t hash) const noexcept {
    const char* const stored = keys_.Find(key, hash);
    return stored == nullptr ? nullptr : TextBehind(stored, key.size());
  }

  /// Adds a key with its text, or replaces the text of the key, whose first spelling stays. Neither
  /// holds a NUL. Throws std::bad_alloc, with the table as it was.
  void Set(std::string_view key, std::string_view text);

  std::size_t Size() const noexcept { return keys_.Size(); }

  /// As KeyBuckets::Expect.
  void Expect(std::size_t count) noexcept { keys_.Expect(count); }

  /// Calls `action(key, text)` for each entry, in no particular order.
  template <class Action>
  void ForEach(const Action& action) const {
    keys_.ForEach([&action](const char* key) { action(key, TextBehind(key, std::strlen(key))); });
  }

 private:
  static const char* TextBehind(const char* key, std::size_t keySize) noexcept {
    return key + keySize + 1 + sizeof(TextMeasure);
  }

  TextArena texts_;
  KeyTable keys_;
};

}  // namespace kx

#endif  // KX_BUNDLES_PROPERTY_TABLE_H
