#ifndef KX_TEXTS_NOTED_KEYS_H
#define KX_TEXTS_NOTED_KEYS_H

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "texts/folded_key.h"
#include "texts/text_arena.h"

namespace kx {

/// Keys that were asked for in vain, so that each is logged once. Has() takes no lock, because
/// hosts that probe for texts ask for absent keys as often as for those that are there.
///
/// A table that only grows: a slot is written once, under the owner's lock, its hash before its
/// place; when it fills, a larger one is published, and the old one is kept, since somebody may
/// still read it. All of them together are smaller than twice the last.
class NotedKeys {
 public:
  NotedKeys() = default;
  ~NotedKeys();
  NotedKeys(const NotedKeys&) = delete;
  NotedKeys& operator=(const NotedKeys&) = delete;

  /// Whether `key` was noted. From any thread, also while another notes one.
  ///
  /// @param hash  by the same seed for all keys of this object
  bool Has(std::string_view key, std::uint64_t hash) const noexcept {
    const Table* const table = newest_.load(std::memory_order_acquire);
    if (table == nullptr) return false;
    for (std::size_t at = hash & table->mask;; at = (at + 1) & table->mask) {
      const Slot& slot = table->slots[at];
      const char* const stored = slot.key.load(std::memory_order_acquire);
      if (stored == nullptr) return false;
      if (slot.hash.load(std::memory_order_relaxed) == hash && EqualKey<AnyCase>(stored, key))
        return true;
    }
  }

  /// Gets all that noting one more key needs: Note() then cannot fail. Under the owner's lock, as
  /// is Note. Throws std::bad_alloc.
  const char* Prepare(std::string_view key);

  /// Notes the key that was prepared last.
  void Note(const char* prepared, std::uint64_t hash) noexcept;

 private:
  struct Slot {
    std::atomic<std::uint64_t> hash;
    std::atomic<const char*> key;
  };
  struct Table {
    std::size_t mask;
    Table* before;
    std::unique_ptr<Slot[]> slots;
  };

  static void Put(Table& table, const char* stored, std::uint64_t hash) noexcept;
  void Grow();

  std::atomic<Table*> newest_ = nullptr;
  std::size_t size_ = 0;
  TextArena texts_;
};

}  // namespace kx

#endif  // KX_TEXTS_NOTED_KEYS_H
