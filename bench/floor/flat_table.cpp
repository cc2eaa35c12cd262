#include "floor/flat_table.h"

#include <bit>
#include <cstring>

#include "floor/scan_files.h"
#include "support/tree.h"

namespace bench {

namespace {

using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Words = std::uint64_t __attribute__((vector_size(16)));
__extension__ using Product = unsigned __int128;

/// Sixteen bytes with their capitals made small; bytes outside ASCII stay.
Bytes Fold(Bytes bytes) {
  const auto capitals = static_cast<Bytes>((bytes - std::uint8_t{'A'}) < std::uint8_t{26});
  return bytes | (capitals & std::uint8_t{0x20});
}

Bytes FoldedAt(const char* from) {
  Bytes bytes;
  std::memcpy(&bytes, from, sizeof bytes);
  return Fold(bytes);
}

/// The first and the last bytes of a short key; they overlap when it has less than twice `kHalf`.
/// Put together in registers: a load of what two stores wrote would wait for both.
template <std::size_t kHalf>
Bytes FoldedEnds(std::string_view key) {
  std::uint64_t first = 0;
  std::uint64_t last = 0;
  std::memcpy(&first, key.data(), kHalf);
  std::memcpy(&last, key.data() + key.size() - kHalf, kHalf);
  return Fold(reinterpret_cast<Bytes>(Words{first, last}));
}

/// A key of less than sixteen bytes, behind which nothing may be read. Two keys of one length give
/// the same only if they are the same.
Bytes FoldedShort(std::string_view key) {
  if (key.size() >= 8) return FoldedEnds<8>(key);
  if (key.size() >= 4) return FoldedEnds<4>(key);
  if (key.size() >= 2) return FoldedEnds<2>(key);
  return key.empty() ? Bytes{} : FoldedEnds<1>(key);
}

std::uint64_t Multiply(std::uint64_t hash, Bytes bytes) {
  const auto words = reinterpret_cast<Words>(bytes);
  const Product product = static_cast<Product>(words[0] ^ hash) * (words[1] ^ 0x9E3779B97F4A7C15U);
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

std::uint64_t FoldedHash(std::string_view key) {
  std::uint64_t hash = key.size() * 0xBF58476D1CE4E5B9U;
  if (key.size() < 16) return Multiply(hash, FoldedShort(key));
  // Each product stands alone, so that they are computed at once.
  std::uint64_t all = 0;
  for (std::size_t at = 0; at + 16 < key.size(); at += 16) {
    all += Multiply(hash, FoldedAt(key.data() + at));
    hash += 0x94D049BB133111EBU;
  }
  // The last sixteen overlap those before them.
  all += Multiply(~hash, FoldedAt(key.data() + key.size() - 16));
  return all;
}

bool Differ(Bytes one, Bytes other) {
  const auto words = reinterpret_cast<Words>(one ^ other);
  return (words[0] | words[1]) != 0;
}

/// Has no branch between the words of a key: nearly every key that is looked at is the right one.
///
/// @param stored  a key of the table, with as many bytes as the other
bool IsKey(const char* stored, std::string_view key) {
  if (key.size() < 16) return !Differ(FoldedShort({stored, key.size()}), FoldedShort(key));
  const std::size_t last = key.size() - 16;
  Bytes differences = FoldedAt(stored + last) ^ FoldedAt(key.data() + last);
  for (std::size_t at = 0; at < last; at += 16) {
    differences |= FoldedAt(stored + at) ^ FoldedAt(key.data() + at);
  }
  return !Differ(differences, Bytes{});
}

// A group is eight tags, one for each of its slots: 0 when the slot is free, else seven bits of the
// hash below a set bit. A look at a word thus tells which of eight slots may hold a key.
constexpr std::uint64_t kOnes = 0x0101010101010101U;
constexpr std::uint64_t kTops = kOnes << 7;

std::uint64_t TagOf(std::uint64_t hash) { return hash >> 57 | 0x80; }

/// The tops of the bytes that are the tag; rarely one too many, which the key then tells.
std::uint64_t Matches(std::uint64_t group, std::uint64_t tag) {
  const std::uint64_t different = group ^ (kOnes * tag);
  return (different - kOnes) & ~different & kTops;
}

std::uint64_t FreeSlots(std::uint64_t group) { return ~group & kTops; }

std::size_t FirstOf(std::uint64_t tops) {
  return static_cast<std::size_t>(std::countr_zero(tops)) / 8;
}

}  // namespace

FlatTable::FlatTable(std::unique_ptr<char[]> block, std::size_t most)
    : block_(std::move(block)),
      groups_(std::bit_ceil(most / 7 + 1)),
      slots_(groups_.size() * 8),
      mask_(groups_.size() - 1) {}

void FlatTable::Add(std::uint32_t key, std::uint32_t keyLength, std::uint32_t text) {
  const std::string_view name(block_.get() + key, keyLength);
  const std::uint64_t hash = FoldedHash(name);
  if (const Slot* same = FindSlot(name, hash)) {
    slots_[static_cast<std::size_t>(same - slots_.data())].text = text;
    return;
  }
  std::size_t group = hash & mask_;
  while (FreeSlots(groups_[group]) == 0) group = (group + 1) & mask_;
  const std::size_t place = FirstOf(FreeSlots(groups_[group]));
  groups_[group] |= TagOf(hash) << (place * 8);
  slots_[group * 8 + place] = {key, keyLength, text};
}

const char* FlatTable::Find(const char* given) const {
  const std::string_view key(given);
  const Slot* slot = FindSlot(key, FoldedHash(key));
  return slot == nullptr ? nullptr : block_.get() + slot->text;
}

const FlatTable::Slot* FlatTable::FindSlot(std::string_view key, std::uint64_t hash) const {
  for (std::size_t group = hash & mask_;; group = (group + 1) & mask_) {
    const std::uint64_t tags = groups_[group];
    for (std::uint64_t found = Matches(tags, TagOf(hash)); found != 0; found &= found - 1) {
      const Slot& slot = slots_[group * 8 + FirstOf(found)];
      if (slot.keyLength == key.size() && IsKey(block_.get() + slot.key, key)) return &slot;
    }
    if (FreeSlots(tags) != 0) return nullptr;
  }
}

FloorTexts::FloorTexts(int size)
    : table_(ScanProperties(TreePath("resources/texts" + std::to_string(size) + ".properties"))) {}

}  // namespace bench
