#ifndef KX_TEXTS_FOLDED_KEY_H
#define KX_TEXTS_FOLDED_KEY_H

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include "platform/hash_seed.h"

// Hash and equality of keys, 16 bytes at a time: a key is one or two such blocks, and a lookup
// spends a few nanoseconds on it whether or not its ASCII case counts.

namespace kx {

/// Bytes that may be read behind the end of a key that is stored; EqualKey does.
constexpr std::size_t kKeyPadding = 32;

namespace folded {

constexpr std::size_t kBlockBytes = 16;
using Bytes = std::uint8_t __attribute__((vector_size(kBlockBytes)));
using Pair = std::uint64_t __attribute__((vector_size(kBlockBytes)));
using Words = std::array<std::uint64_t, 2>;

constexpr std::uint8_t kCaseBit = 'a' - 'A';

template <class Word>
std::uint64_t LoadWord(const char* bytes) noexcept {
  Word word;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

inline Bytes LoadBlock(const char* bytes) noexcept {
  Bytes block;
  std::memcpy(&block, bytes, kBlockBytes);
  return block;
}

/// A text of fewer than 16 bytes as a block that no other text of its length gives. Reads nothing
/// but the text.
inline Bytes LoadShort(const char* bytes, std::size_t size) noexcept {
  // Put together in registers: a load of what two stores wrote would wait for both.
  const auto block = [](std::uint64_t first, std::uint64_t last) {
    return reinterpret_cast<Bytes>(Pair{first, last});
  };
  if (size >= 8)
    return block(LoadWord<std::uint64_t>(bytes), LoadWord<std::uint64_t>(bytes + size - 8));
  if (size >= 4)
    return block(LoadWord<std::uint32_t>(bytes), LoadWord<std::uint32_t>(bytes + size - 4));
  if (size == 0) return block(0, 0);
  const auto byte = [bytes](std::size_t at) { return LoadWord<std::uint8_t>(bytes + at); };
  return block(byte(0) | byte(size / 2) << 8 | byte(size - 1) << 16, 0);
}

/// The case bit of each byte that is one of the 26 letters from `first` on.
inline Bytes CaseBits(Bytes bytes, std::uint8_t first) noexcept {
  constexpr std::uint8_t kLetters = 26;
  // Signed, with the first letter the least number, so that one comparison tells.
  using Signed = std::int8_t __attribute__((vector_size(kBlockBytes)));
  constexpr std::int8_t kLeast = std::numeric_limits<std::int8_t>::min();
  const Bytes fromLeast = bytes + static_cast<std::uint8_t>(kLeast - first);
  const auto isLetter =
      reinterpret_cast<Signed>(fromLeast) < Signed{} + std::int8_t{kLeast + kLetters};
  return reinterpret_cast<Bytes>(isLetter) & kCaseBit;
}

/// Words of a block for the multiplication, which the general registers do. Through memory: GCC's
/// other way makes each lookup wait for the one before.
inline Words WordsOf(Pair block) noexcept { return std::bit_cast<Words>(block); }

inline bool IsNothing(Bytes block) noexcept {
  const Words words = WordsOf(reinterpret_cast<Pair>(block));
  return (words[0] | words[1]) == 0;
}

}  // namespace folded

/// Keys in which ASCII case does not count.
struct AnyCase {
  /// With capitals as small letters.
  static folded::Bytes Fold(folded::Bytes bytes) noexcept {
    return bytes | folded::CaseBits(bytes, 'A');
  }
  /// The bits in which two blocks differ, but for the case of letters.
  static folded::Bytes Difference(folded::Bytes a, folded::Bytes b) noexcept {
    return (a ^ b) & ~folded::CaseBits(a | folded::kCaseBit, 'a');
  }
};

/// Keys in which each byte counts.
struct ExactCase {
  static folded::Bytes Fold(folded::Bytes bytes) noexcept { return bytes; }
  static folded::Bytes Difference(folded::Bytes a, folded::Bytes b) noexcept { return a ^ b; }
};

/// A hash that is of another kind in each process: whoever writes catalogues, or asks for keys,
/// cannot make keys that collide.
///
/// The sum of what each block gives, with numbers of its own for each place, so that the blocks are
/// multiplied at once. The last one reaches back into the one before, rather than be filled up.
///
/// Always inlined, as is EqualKey, since a lookup of which both are a part takes a sixth less.
template <class Case>
[[gnu::always_inline]] inline std::uint64_t HashKey(std::string_view key,
                                                    const HashSeed& seed) noexcept {
  const char* const bytes = key.data();
  const std::size_t size = key.size();
  folded::Pair numbers;
  static_assert(sizeof numbers == sizeof seed);
  std::memcpy(&numbers, &seed, sizeof numbers);
  // By value, since what a reference refers to is kept in memory.
  const auto mix = [](folded::Bytes block, folded::Pair by) {
    const auto folded = reinterpret_cast<folded::Pair>(Case::Fold(block));
    const folded::Words words = folded::WordsOf(folded ^ by);
    return Mix(words[0], words[1]);
  };
  // Keys of several sizes may have the same blocks.
  std::uint64_t hash = size * kOddFactor;
  if (size < folded::kBlockBytes) return hash + mix(folded::LoadShort(bytes, size), numbers);
  const std::size_t last = size - folded::kBlockBytes;
  for (std::size_t at = 0; at < last; at += folded::kBlockBytes) {
    hash += mix(folded::LoadBlock(bytes + at), numbers);
    numbers += folded::Pair{kOddFactor, kOtherOddFactor};
  }
  return hash + mix(folded::LoadBlock(bytes + last), numbers);
}

/// Whether `stored`, which ends with NUL and has kKeyPadding readable bytes behind that, is `key`,
/// which holds no NUL.
template <class Case>
[[gnu::always_inline]] inline bool EqualKey(const char* stored, std::string_view key) noexcept {
  const char* const bytes = key.data();
  const std::size_t size = key.size();
  if (size < folded::kBlockBytes) {
    return folded::IsNothing(
               Case::Difference(folded::LoadShort(stored, size), folded::LoadShort(bytes, size))) &&
           stored[size] == '\0';
  }
  const auto bitsAt = [stored, bytes](std::size_t at) {
    return folded::LoadBlock(stored + at) ^ folded::LoadBlock(bytes + at);
  };
  const auto differenceAt = [stored, bytes](std::size_t at) {
    return Case::Difference(folded::LoadBlock(stored + at), folded::LoadBlock(bytes + at));
  };
  // Nearly all keys end in their second block, and nearly every key that is looked at is the right
  // one: both blocks are one question.
  const std::size_t last = size - folded::kBlockBytes;
  const std::size_t second = std::min(last, folded::kBlockBytes);
  // And nearly every host spells its keys as the file does: to ask first whether there is any
  // difference at all takes a fifth from a hit, and adds nothing that could be measured to others.
  if (!folded::IsNothing(bitsAt(0) | bitsAt(second)) &&
      !folded::IsNothing(differenceAt(0) | differenceAt(second))) {
    return false;
  }
  // A stored key that is shorter differs by its NUL in the block in which it ends, and nothing
  // behind that block is read.
  for (std::size_t at = 2 * folded::kBlockBytes; at < size; at += folded::kBlockBytes) {
    if (!folded::IsNothing(differenceAt(std::min(at, last)))) return false;
  }
  return stored[size] == '\0';
}

}  // namespace kx

#endif  // KX_TEXTS_FOLDED_KEY_H
