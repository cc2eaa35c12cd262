#include "texts/key_table.h"

#include <algorithm>
#include <new>
#include <utility>

namespace kx {
namespace {

constexpr std::size_t kMostBuckets = std::size_t{1} << KeyTag::kBits;

}  // namespace

void KeyBuckets::Move(const char* from, std::uint64_t hash, const char* to) noexcept {
  for (std::size_t at = Home(KeyTag(hash));; at = Next(at)) {
    KeyBucket& bucket = buckets_[at];
    for (std::size_t slot = 0; slot < bucket.Size(); ++slot) {
      if (bucket.Place(slot) == from) return bucket.SetPlace(slot, to);
    }
  }
}

void KeyBuckets::Add(const char* stored, std::uint64_t hash) {
  if (!IsShortPointer(stored)) throw std::bad_alloc();
  if (size_ == most_) Resize(NextSize());
  Put(stored, KeyTag(hash));
  ++size_;
}

std::size_t KeyBuckets::NextSize() const noexcept {
  constexpr std::size_t kMostTimes = 8;
  if (expected_ <= size_) return size_ + size_ / 2;
  // One in 16 more, or a table would grow for the few keys that were not foreseen.
  return std::min(expected_ + expected_ / 16, size_ * kMostTimes);
}

void KeyBuckets::Put(const char* stored, KeyTag tag) noexcept {
  std::size_t at = Home(tag);
  for (; buckets_[at].IsFull(); at = Next(at)) buckets_[at].SetHasMore();
  buckets_[at].Set(buckets_[at].Size(), tag, stored);
}

void KeyBuckets::Resize(std::size_t keys) {
  const std::size_t count = keys / keysOfBucket_ + 1;
  if (count > kMostBuckets) throw std::bad_alloc();
  const std::size_t bytes = count * sizeof(KeyBucket);
  std::size_t room = bytes + alignof(KeyBucket);
  auto memory = std::make_unique_for_overwrite<char[]>(room);
  void* place = memory.get();
  auto* const buckets = static_cast<KeyBucket*>(std::align(alignof(KeyBucket), bytes, place, room));
  std::uninitialized_value_construct_n(buckets, count);

  const auto oldMemory = std::exchange(memory_, std::move(memory));
  const KeyBucket* const old = std::exchange(buckets_, buckets);
  const std::size_t oldCount = std::exchange(count_, count);
  most_ = count * keysOfBucket_;
  for (std::size_t from = 0; from < oldCount; ++from) {
    const KeyBucket& bucket = old[from];
    for (std::size_t slot = 0; slot < bucket.Size(); ++slot) {
      Put(bucket.Place(slot), bucket.Tag(slot));
    }
  }
}

}  // namespace kx
