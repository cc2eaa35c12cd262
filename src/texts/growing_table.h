#ifndef KX_TEXTS_GROWING_TABLE_H
#define KX_TEXTS_GROWING_TABLE_H

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace kx {

/// Entries by their hashes. Find() takes no lock, though others add meanwhile.
///
/// A slot is written once, under the owner's lock, its hash before its entry; when the table fills,
/// a larger one is published, and the old one is kept, since somebody may still read it. All of
/// them together are smaller than twice the last.
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
      const Slot& slot = table->slots[at];
      Entry* const entry = slot.entry.load(std::memory_order_acquire);
      if (entry == nullptr) return nullptr;
      if (slot.hash.load(std::memory_order_relaxed) == hash && isIt(entry)) return entry;
    }
  }

  /// Makes room for one more: Add() then cannot fail. Under the owner's lock, as is Add. Throws
  /// std::bad_alloc, with the table as it was.
  void Reserve();

  /// @param entry  not null; must outlive the table, and what is read of it no longer changes
  void Add(Entry* entry, std::uint64_t hash) noexcept {
    Put(*newest_.load(std::memory_order_relaxed), entry, hash);
    ++size_;
  }

 private:
  static constexpr std::size_t kFewestSlots = 16;

  struct Slot {
    std::atomic<std::uint64_t> hash;
    std::atomic<Entry*> entry;
  };
  struct Table {
    std::size_t mask;
    Table* before;
    std::unique_ptr<Slot[]> slots;
  };

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
  std::unique_ptr<Table> table(new Table{slots - 1, old, std::make_unique<Slot[]>(slots)});
  for (std::size_t at = 0; old != nullptr && at <= old->mask; ++at) {
    const Slot& slot = old->slots[at];
    Entry* const entry = slot.entry.load(std::memory_order_relaxed);
    if (entry != nullptr) Put(*table, entry, slot.hash.load(std::memory_order_relaxed));
  }
  newest_.store(table.release(), std::memory_order_release);
}

template <class Entry>
void GrowingTable<Entry>::Put(Table& table, Entry* entry, std::uint64_t hash) noexcept {
  std::size_t at = hash & table.mask;
  while (table.slots[at].entry.load(std::memory_order_relaxed) != nullptr)
    at = (at + 1) & table.mask;
  table.slots[at].hash.store(hash, std::memory_order_relaxed);
  // Whoever sees the entry sees its hash and what it points to, too.
  table.slots[at].entry.store(entry, std::memory_order_release);
}

}  // namespace kx

#endif  // KX_TEXTS_GROWING_TABLE_H
