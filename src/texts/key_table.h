#ifndef KX_TEXTS_KEY_TABLE_H
#define KX_TEXTS_KEY_TABLE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "texts/folded_key.h"

namespace kx {

/// The slots of a flat table, whatever equality means there.
class KeySlots {
 public:
  KeySlots() = default;
  KeySlots(const KeySlots&) = delete;
  KeySlots& operator=(const KeySlots&) = delete;

  /// Replaces the place of a key that was found.
  void Move(const char* from, std::uint64_t hash, const char* to) noexcept;

  /// Adds a key that is not in the table.
  ///
  /// @param stored  as EqualKey wants it; must outlive the table
  ///
  /// Throws std::bad_alloc, with the table as it was.
  void Add(const char* stored, std::uint64_t hash);

  std::size_t Size() const noexcept { return size_; }

  /// Calls `action` with the place of each key, in no particular order.
  template <class Action>
  void ForEach(const Action& action) const {
    for (std::size_t at = 0; at < capacity_; ++at) {
      if (slots_[at].key != nullptr) action(slots_[at].key);
    }
  }

 protected:
  ~KeySlots() = default;

  struct Slot {
    const char* key;  ///< null: the slot is empty
    std::uint64_t hash;
  };

  /// The first slot that has `hash` and satisfies `isKey(place)`: its place; null when there is
  /// none.
  template <class IsKey>
  const char* FindSlot(std::uint64_t hash, const IsKey& isKey) const noexcept {
    if (capacity_ == 0) return nullptr;
    for (std::size_t at = Home(hash);; at = Next(at)) {
      const Slot& slot = slots_[at];
      if (slot.key == nullptr) return nullptr;
      if (slot.hash == hash && isKey(slot.key)) return slot.key;
    }
  }

 private:
  /// The slot at which the search for a hash begins: the hash as a fraction of the capacity, so
  /// that any capacity will do and none is twice as large as it need be.
  std::size_t Home(std::uint64_t hash) const noexcept {
    return static_cast<std::size_t>((hash >> 32) * capacity_ >> 32);
  }
  std::size_t Next(std::size_t at) const noexcept { return at + 1 == capacity_ ? 0 : at + 1; }
  void Resize(std::size_t count);

  std::unique_ptr<Slot[]> slots_;
  std::size_t capacity_ = 0;
  std::size_t size_ = 0;
  std::size_t most_ = 0;  ///< keys that the capacity is enough for
};

/// Where stored keys lie, by key. What belongs to a key lies beside it, by an arrangement of its
/// owner's, so that one look at memory finds both.
///
/// A flat table: a slot holds a hash and a place, and a search that begins at the hash's slot reads
/// on until it meets an empty one, mostly in the same line of the cache. The hash beside the place
/// is compared first, so that a key that is not there costs no look at any text; and when the table
/// grows no key is hashed anew.
///
/// Keys are never removed. Finding from any thread while nobody adds.
///
/// @tparam Case  AnyCase or ExactCase
template <class Case>
class BasicKeyTable : public KeySlots {
 public:
  explicit BasicKeyTable(const HashSeed& seed = ProcessHashSeed()) noexcept : seed_(seed) {}

  /// The hash by which this table finds `key`.
  std::uint64_t Hash(std::string_view key) const noexcept { return HashKey<Case>(key, seed_); }

  /// Where the key that equals `key` (no NUL in it) is stored; null when there is none.
  const char* Find(std::string_view key, std::uint64_t hash) const noexcept {
    return FindSlot(hash, [key](const char* stored) { return EqualKey<Case>(stored, key); });
  }

 private:
  const HashSeed seed_;
};

using KeyTable = BasicKeyTable<AnyCase>;
using ExactKeyTable = BasicKeyTable<ExactCase>;

}  // namespace kx

#endif  // KX_TEXTS_KEY_TABLE_H
