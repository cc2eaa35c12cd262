#ifndef KX_TEXTS_KEY_TABLE_H
#define KX_TEXTS_KEY_TABLE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "texts/folded_key.h"
#include "texts/key_bucket.h"

namespace kx {

/// How many keys a bucket of six slots holds on average. In a fuller table more keys find no room
/// in their bucket, and searches go on to the next one.
enum class TableFill : std::size_t {
  kForSearches = 4,  ///< for what hosts wait for
  kForMemory = 5,    ///< for tables that are searched only while files are read
};

/// The buckets of a flat table, whatever equality means there.
class KeyBuckets {
 public:
  explicit KeyBuckets(TableFill fill) noexcept : keysOfBucket_(static_cast<std::size_t>(fill)) {}
  KeyBuckets(const KeyBuckets&) = delete;
  KeyBuckets& operator=(const KeyBuckets&) = delete;

  /// Replaces the place of a key that was found.
  void Move(const char* from, std::uint64_t hash, const char* to) noexcept;

  /// Adds a key that is not in the table.
  ///
  /// @param stored  as EqualKey wants it; must outlive the table
  ///
  /// Throws std::bad_alloc, with the table as it was.
  void Add(const char* stored, std::uint64_t hash);

  /// Says that the table will have about so many keys, so that it grows to that at once: half of
  /// the work of a table that grows step by step, and no room for keys that never come. What a file
  /// promises may be wrong, and is believed up to eight times what is there.
  void Expect(std::size_t count) noexcept { expected_ = count; }

  std::size_t Size() const noexcept { return size_; }

  /// Calls `action` with the place of each key, in no particular order.
  template <class Action>
  void ForEach(const Action& action) const {
    for (std::size_t at = 0; at < count_; ++at) {
      const KeyBucket& bucket = buckets_[at];
      for (std::size_t slot = 0; slot < bucket.Size(); ++slot) action(bucket.Place(slot));
    }
  }

 protected:
  ~KeyBuckets() = default;

  /// The first place of `hash` that satisfies `isKey(place)`; null when there is none.
  template <class IsKey>
  const char* FindPlace(std::uint64_t hash, const IsKey& isKey) const noexcept {
    if (count_ == 0) return nullptr;
    const KeyTag tag(hash);
    const KeyBucket& bucket = buckets_[Home(tag)];
    const KeySlots slots = bucket.Matches(tag);
    if (!slots.IsEmpty()) {
      const char* const place = bucket.Place(slots.First());
      if (isKey(place)) [[likely]]
        return place;
    } else if (!bucket.HasMore()) {
      return nullptr;
    }
    return FindFurther(tag, isKey);
  }

 private:
  /// The bucket at which the search for a hash begins: the hash as a fraction of their count, so
  /// that any count will do and none is twice as large as it need be.
  std::size_t Home(KeyTag tag) const noexcept {
    return static_cast<std::size_t>(tag.Bits() * count_ >> KeyTag::kBits);
  }
  std::size_t Next(std::size_t at) const noexcept { return at + 1 == count_ ? 0 : at + 1; }

  /// The whole search. A call, so that what nearly every search does is short.
  template <class IsKey>
  [[gnu::noinline]] const char* FindFurther(KeyTag tag, const IsKey& isKey) const noexcept {
    for (std::size_t at = Home(tag);; at = Next(at)) {
      const KeyBucket& bucket = buckets_[at];
      for (auto slots = bucket.Matches(tag); !slots.IsEmpty(); slots.RemoveFirst()) {
        const char* const place = bucket.Place(slots.First());
        if (isKey(place)) return place;
      }
      if (!bucket.HasMore()) return nullptr;
    }
  }

  void Put(const char* stored, KeyTag tag) noexcept;
  std::size_t NextSize() const noexcept;
  void Resize(std::size_t keys);

  const std::size_t keysOfBucket_;
  std::unique_ptr<char[]> memory_;
  KeyBucket* buckets_ = nullptr;  ///< in the memory, from a line of the cache on
  std::size_t count_ = 0;         ///< buckets
  std::size_t size_ = 0;          ///< keys
  std::size_t most_ = 0;          ///< keys that the buckets are enough for
  std::size_t expected_ = 0;
};

/// Where stored keys lie, by key. What belongs to a key lies beside it, by an arrangement of its
/// owner's, so that one look at memory finds both.
///
/// A flat table of buckets of one line of the cache each: a search looks at one bucket, compares
/// all tags in it at once, and nearly always looks at the right key alone, or at none. So there is
/// little for the processor to guess wrong, which is what a search in a table of single slots
/// spends most of its time on.
///
/// Keys are never removed. Finding from any thread while nobody adds.
///
/// @tparam Case  AnyCase or ExactCase
template <class Case>
class BasicKeyTable : public KeyBuckets {
 public:
  explicit BasicKeyTable(TableFill fill = TableFill::kForSearches,
                         const HashSeed& seed = ProcessHashSeed()) noexcept
      : KeyBuckets(fill), seed_(seed) {}

  /// The hash by which this table finds `key`.
  std::uint64_t Hash(std::string_view key) const noexcept { return HashKey<Case>(key, seed_); }

  /// Where the key that equals `key` (no NUL in it) is stored; null when there is none.
  const char* Find(std::string_view key, std::uint64_t hash) const noexcept {
    return FindPlace(hash, [key](const char* stored) { return EqualKey<Case>(stored, key); });
  }

 private:
  const HashSeed seed_;
};

using KeyTable = BasicKeyTable<AnyCase>;
using ExactKeyTable = BasicKeyTable<ExactCase>;

}  // namespace kx

#endif  // KX_TEXTS_KEY_TABLE_H
