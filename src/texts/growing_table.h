#ifndef KX_TEXTS_GROWING_TABLE_H
#define KX_TEXTS_GROWING_TABLE_H

#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace kx {

/// Entries by their hashes. Find() takes no lock, though others add meanwhile.
///
/// A slot is written once, under the owner's lock; when the table fills, a larger one is published,
/// and the old one is kept, since somebody may still read it. All of them together are smaller than
/// twice the last.
template <class Entry>
class GrowingTable {
 public:
  GrowingTable() = default;
  ~GrowingTable();
  GrowingTable(const GrowingTable&) = delete;
  GrowingTable& operator=(const GrowingTable&) = delete;

  /// An entry that was added with `hash` and satisfies `isIt(entry)`; null when there is none. Any
  /// thread, also while another adds.
  template <class IsIt>
  Entry* Find(std::uint64_t hash, const IsIt& isIt) const noexcept {
    const Table* const table = newest_.load(std::memory_order_acquire);
    if (table == nullptr) return nullptr;
    for (std::size_t at = hash & table->mask;; at = (at + 1) & table->mask) {
      const std::uint64_t slot = table->slots[at].load(std::memory_order_acquire);
      if (slot == 0) return nullptr;
      if (slot >> kEntryBits != hash >> kEntryBits) continue;
      Entry* const entry = EntryOf(slot);
      if (isIt(entry)) return entry;
    }
  }

  /// Makes room for one more: Add() then cannot fail. Under the owner's lock, as is Add. Throws
  /// std::bad_alloc, with the table as it was.
  void Reserve();

  /// Leaves out an entry whose address is longer than a slot has room for.
  ///
  /// @param entry  not null; must outlive the table, and what is read of it no longer changes
  void Add(Entry* entry, std::uint64_t hash) noexcept {
    if (std::bit_cast<std::uint64_t>(entry) >> kEntryBits != 0) return;
    Put(*newest_.load(std::memory_order_relaxed), entry, hash);
    ++size_;
  }

 private:
  static constexpr std::size_t kFewestSlots = 16;

  // A slot is an address and the top of the hash above it, so that half as many lines of the cache
  // are looked at. The addresses of a process have no more bits on the systems that this is for,
  // unless it asks for larger ones.
  static constexpr int kEntryBits = 48;
  using Slot = std::atomic<std::uint64_t>;

  struct Table {
    std::size_t mask;
    Table* before;
    std::unique_ptr<Slot[]> slots;
    std::unique_ptr<std::uint64_t[]> hashes;  ///< whole; under the owner's lock
  };

  static Entry* EntryOf(std::uint64_t slot) noexcept {
    constexpr int kTagBits = 64 - kEntryBits;
    return std::bit_cast<Entry*>(slot << kTagBits >> kTagBits);
  }

  static void Put(Table& table, Entry* entry, std::uint64_t hash) noexcept;

  std::atomic<Table*> newest_ = nullptr;
  std::size_t size_ = 0;
};

template <class Entry>
GrowingTable<Entry>::~GrowingTable() {
  for (Table* table = newest_.load(std::memory_order_relaxed); table != nullptr;) {
    const std::unique_ptr<Table> last(table);
    table = last->before;
  }
}

template <class Entry>
void GrowingTable<Entry>::Reserve() {
  Table* const old = newest_.load(std::memory_order_relaxed);
  // Half of the slots stay empty, so that a search ends soon.
  if (old != nullptr && size_ * 2 <= old->mask) return;
  const std::size_t slots = old == nullptr ? kFewestSlots : (old->mask + 1) * 2;
  std::unique_ptr<Table> table(new Table{slots - 1, old, std::make_unique<Slot[]>(slots),
                                         std::make_unique<std::uint64_t[]>(slots)});
  for (std::size_t at = 0; old != nullptr && at <= old->mask; ++at) {
    const std::uint64_t slot = old->slots[at].load(std::memory_order_relaxed);
    if (slot != 0) Put(*table, EntryOf(slot), old->hashes[at]);
  }
  newest_.store(table.release(), std::memory_order_release);
}

template <class Entry>
void GrowingTable<Entry>::Put(Table& table, Entry* entry, std::uint64_t hash) noexcept {
  std::size_t at = hash & table.mask;
  while (table.slots[at].load(std::memory_order_relaxed) != 0) at = (at + 1) & table.mask;
  table.hashes[at] = hash;
  // Whoever sees the slot sees what it points to, too.
  const std::uint64_t tag = hash >> kEntryBits << kEntryBits;
  table.slots[at].store(tag | std::bit_cast<std::uint64_t>(entry), std::memory_order_release);
}

}  // namespace kx

#endif  // KX_TEXTS_GROWING_TABLE_H
