#ifndef KX_TEXTS_NOTED_KEYS_H
#define KX_TEXTS_NOTED_KEYS_H

#include <cstdint>
#include <string_view>

#include "texts/folded_key.h"
#include "texts/growing_table.h"
#include "texts/text_arena.h"

namespace kx {

/// Keys that were asked for in vain, so that each is logged once. Has() takes no lock, because
/// hosts that probe for texts ask for absent keys as often as for those that are there.
class NotedKeys {
 public:
  /// Whether `key` was noted. From any thread, also while another notes one.
  ///
  /// @param hash  by the same seed for all keys of this object
  bool Has(std::string_view key, std::uint64_t hash) const noexcept {
    const auto isKey = [key](const char* stored) { return EqualKey<AnyCase>(stored, key); };
    return keys_.Find(hash, isKey) != nullptr;
  }

  /// Gets all that noting one more key needs: Note() then cannot fail. Under the owner's lock, as
  /// is Note. Throws std::bad_alloc.
  const char* Prepare(std::string_view key);

  /// Notes the key that was prepared last.
  void Note(const char* prepared, std::uint64_t hash) noexcept { keys_.Add(prepared, hash); }

 private:
  GrowingTable<const char> keys_;
  TextArena texts_;
};

}  // namespace kx

#endif  // KX_TEXTS_NOTED_KEYS_H
