#include "texts/key_table.h"

#include <algorithm>
#include <new>
#include <utility>

namespace kx {
namespace {

// Two slots in three hold a key: fuller tables search longer for keys that they lack, emptier ones
// take more memory for each that they have.
constexpr std::size_t kKeysOfThreeSlots = 2;
constexpr std::size_t kFewestSlots = 4;

// A place in the table is a part of a hash of 32 bits.
constexpr std::size_t kMostSlots = std::size_t{1} << 32;

}  // namespace

void KeySlots::Move(const char* from, std::uint64_t hash, const char* to) noexcept {
  std::size_t at = Home(hash);
  while (slots_[at].key != from) at = Next(at);
  slots_[at].key = to;
}

void KeySlots::Add(const char* stored, std::uint64_t hash) {
  if (size_ == most_) Resize(size_ + size_ / 2 + 1);
  std::size_t at = Home(hash);
  while (slots_[at].key != nullptr) at = Next(at);
  slots_[at] = {stored, hash};
  ++size_;
}

void KeySlots::Resize(std::size_t count) {
  const std::size_t capacity = std::max(kFewestSlots, count * 3 / kKeysOfThreeSlots + 1);
  if (capacity > kMostSlots) throw std::bad_alloc();
  auto old = std::exchange(slots_, std::make_unique<Slot[]>(capacity));
  const std::size_t oldCapacity = std::exchange(capacity_, capacity);
  most_ = capacity * kKeysOfThreeSlots / 3;
  for (std::size_t from = 0; from < oldCapacity; ++from) {
    if (old[from].key == nullptr) continue;
    std::size_t at = Home(old[from].hash);
    while (slots_[at].key != nullptr) at = Next(at);
    slots_[at] = old[from];
  }
}

}  // namespace kx
