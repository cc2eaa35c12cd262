#ifndef KX_TEXTS_KEY_BUCKET_H
#define KX_TEXTS_KEY_BUCKET_H

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "texts/short_pointer.h"

namespace kx {

/// What a table keeps of a hash: enough to find the key's bucket again in a table of another size.
class KeyTag {
 public:
  static constexpr int kBits = 30;

  explicit KeyTag(std::uint64_t hash) noexcept : bits_(hash >> (64 - kBits)) {}
  KeyTag(std::uint16_t low, std::uint16_t high) noexcept
      : bits_(static_cast<std::uint64_t>(high & kLowMask) << kLowBits | (low & kLowMask)) {}

  std::uint64_t Bits() const noexcept { return bits_; }

  /// What is compared in a bucket; never 0, which stands for no key.
  std::uint16_t Low() const noexcept {
    return static_cast<std::uint16_t>(bits_ & kLowMask) | kInUse;
  }
  /// The rest, in as many bits.
  std::uint16_t High() const noexcept { return static_cast<std::uint16_t>(bits_ >> kLowBits); }

 private:
  static constexpr int kLowBits = 15;
  static constexpr std::uint16_t kInUse = 1 << kLowBits;
  static constexpr std::uint16_t kLowMask = kInUse - 1;

  std::uint64_t bits_;
};

/// Slots of a bucket, lowest first.
class KeySlots {
 public:
  explicit KeySlots(std::uint64_t bytes) noexcept : bytes_(bytes) {}

  bool IsEmpty() const noexcept { return bytes_ == 0; }
  std::size_t First() const noexcept { return static_cast<unsigned>(std::countr_zero(bytes_)) / 8; }
  void RemoveFirst() noexcept { bytes_ &= ~(std::uint64_t{0xFF} << First() * 8); }

 private:
  std::uint64_t bytes_;  ///< one for each slot, of no bits or of all
};

/// Up to six keys, in one line of the cache. Filled from the front.
class alignas(64) KeyBucket {
 public:
  static constexpr std::size_t kSlots = 6;

  bool IsFull() const noexcept { return low_[kSlots - 1] != 0; }

  /// Whether a key that belongs here is in a bucket behind: of five that are full, two have none.
  bool HasMore() const noexcept { return (high_[kSlots - 1] & kMore) != 0; }
  /// Says so of a full bucket.
  void SetHasMore() noexcept { high_[kSlots - 1] |= kMore; }

  std::size_t Size() const noexcept {
    std::size_t size = 0;
    while (size < kSlots && low_[size] != 0) ++size;
    return size;
  }

  /// The slots whose keys may have `tag`.
  KeySlots Matches(KeyTag tag) const noexcept {
    Tags tags;
    std::memcpy(&tags, low_.data(), sizeof tags);
    const Tags wanted = Tags{} + tag.Low();
    const auto narrow = __builtin_convertvector(tags == wanted, Narrow);
    return KeySlots(std::bit_cast<std::uint64_t>(narrow));
  }

  KeyTag Tag(std::size_t slot) const noexcept { return {low_[slot], high_[slot]}; }

  const char* Place(std::size_t slot) const noexcept {
    return LoadShortPointerAt(reinterpret_cast<const char*>(this) + slot * kShortPointerBytes);
  }

  void SetPlace(std::size_t slot, const char* place) noexcept {
    StoreShortPointer(places_.data() + slot * kShortPointerBytes, place);
  }

  void Set(std::size_t slot, KeyTag tag, const char* place) noexcept {
    low_[slot] = tag.Low();
    high_[slot] = tag.High();
    SetPlace(slot, place);
  }

 private:
  static constexpr std::uint16_t kMore = 1 << 15;  ///< the bit that a tag's half does not take
  static constexpr std::size_t kLanes = 8;
  using Tags = std::uint16_t __attribute__((vector_size(kLanes * 2)));
  using Narrow = std::uint8_t __attribute__((vector_size(kLanes)));

  std::array<char, kSlots * kShortPointerBytes> places_{};
  std::array<std::uint16_t, kLanes> low_{};
  std::array<std::uint16_t, kSlots> high_{};
};

static_assert(sizeof(KeyBucket) == 64);

}  // namespace kx

#endif  // KX_TEXTS_KEY_BUCKET_H
