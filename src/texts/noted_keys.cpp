#include "texts/noted_keys.h"

#include <cstring>

namespace kx {
namespace {

constexpr std::size_t kFewestSlots = 16;

}  // namespace

NotedKeys::~NotedKeys() {
  for (Table* table = newest_.load(std::memory_order_relaxed); table != nullptr;) {
    const std::unique_ptr<Table> last(table);
    table = last->before;
  }
}

const char* NotedKeys::Prepare(std::string_view key) {
  const Table* const table = newest_.load(std::memory_order_relaxed);
  // Half of the slots stay empty, so that a search ends soon.
  if (table == nullptr || size_ * 2 > table->mask) Grow();
  // The padding is the key's own: what lies behind it may be written while others read the key.
  char* const place = texts_.Take(key.size() + 1 + kKeyPadding);
  std::memset(PutText(place, key), 0, kKeyPadding);
  return place;
}

void NotedKeys::Note(const char* prepared, std::uint64_t hash) noexcept {
  Put(*newest_.load(std::memory_order_relaxed), prepared, hash);
  ++size_;
}

void NotedKeys::Put(Table& table, const char* stored, std::uint64_t hash) noexcept {
  std::size_t at = hash & table.mask;
  while (table.slots[at].key.load(std::memory_order_relaxed) != nullptr) at = (at + 1) & table.mask;
  table.slots[at].hash.store(hash, std::memory_order_relaxed);
  // Whoever sees the place sees the hash and the text, too.
  table.slots[at].key.store(stored, std::memory_order_release);
}

void NotedKeys::Grow() {
  Table* const old = newest_.load(std::memory_order_relaxed);
  const std::size_t slots = old == nullptr ? kFewestSlots : (old->mask + 1) * 2;
  std::unique_ptr<Table> table(new Table{slots - 1, old, std::make_unique<Slot[]>(slots)});
  for (std::size_t at = 0; old != nullptr && at <= old->mask; ++at) {
    const Slot& slot = old->slots[at];
    const char* const stored = slot.key.load(std::memory_order_relaxed);
    if (stored != nullptr) Put(*table, stored, slot.hash.load(std::memory_order_relaxed));
  }
  newest_.store(table.release(), std::memory_order_release);
}

}  // namespace kx
