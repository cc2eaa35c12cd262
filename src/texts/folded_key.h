#ifndef KX_TEXTS_FOLDED_KEY_H
#define KX_TEXTS_FOLDED_KEY_H

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/hash_seed.h"

// Hash and equality of keys, 16 bytes at a time: a key is one or two such blocks, and a lookup
// spends a few nanoseconds on it whether or not its ASCII case counts.

namespace kx {

/// Bytes that may be read behind the end of a key that is stored; EqualKey does.
constexpr std::size_t kKeyPadding = 16;

namespace folded {

constexpr std::size_t kBlockBytes = 16;
using Words = std::array<std::uint64_t, 2>;
using Bytes = unsigned char __attribute__((vector_size(kBlockBytes)));

/// Turns the ASCII capitals of a block into small letters.
inline Bytes Fold(Bytes bytes) noexcept {
  constexpr unsigned char kFirst = 'A';
  constexpr unsigned char kLetters = 26;
  constexpr unsigned char kCaseBit = 'a' - 'A';
  const Bytes none = {};
  const auto isCapital = reinterpret_cast<Bytes>(bytes - (none + kFirst) < (none + kLetters));
  return bytes | (isCapital & (none + kCaseBit));
}

inline Bytes LoadBlock(const char* bytes) noexcept {
  Bytes block;
  std::memcpy(&block, bytes, kBlockBytes);
  return block;
}

template <class Word>
std::uint64_t LoadWord(const char* bytes) noexcept {
  Word word;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

/// A text of fewer than 16 bytes as a block that no other text of its length gives. Reads nothing
/// but the text.
inline Bytes LoadShort(const char* bytes, std::size_t size) noexcept {
  Words words = {0, 0};
  if (size >= 8) {
    words = {LoadWord<std::uint64_t>(bytes), LoadWord<std::uint64_t>(bytes + size - 8)};
  } else if (size >= 4) {
    words = {LoadWord<std::uint32_t>(bytes), LoadWord<std::uint32_t>(bytes + size - 4)};
  } else if (size > 0) {
    const auto byte = [bytes](std::size_t at) { return LoadWord<unsigned char>(bytes + at); };
    words[0] = byte(0) | byte(size / 2) << 8 | byte(size - 1) << 16;
  }
  return std::bit_cast<Bytes>(words);
}

inline std::uint64_t MixBlock(std::uint64_t hash, Bytes block, const HashSeed& seed) noexcept {
  const auto words = std::bit_cast<Words>(block);
  return Mix(words[0] ^ seed.first, words[1] ^ hash);
}

inline bool AreEqual(Bytes a, Bytes b) noexcept {
  const auto difference = std::bit_cast<Words>(a ^ b);
  return (difference[0] | difference[1]) == 0;
}

}  // namespace folded

/// Keys in which ASCII case does not count.
struct AnyCase {
  static folded::Bytes Prepare(folded::Bytes block) noexcept { return folded::Fold(block); }
};

/// Keys in which each byte counts.
struct ExactCase {
  static folded::Bytes Prepare(folded::Bytes block) noexcept { return block; }
};

/// A hash that is of another kind in each process: whoever writes catalogues, or asks for keys,
/// cannot make keys that collide.
template <class Case>
std::uint64_t HashKey(std::string_view key, const HashSeed& seed) noexcept {
  const char* bytes = key.data();
  std::size_t left = key.size();
  // Added, and by a factor, so that no change of a byte makes up for one of the size.
  std::uint64_t hash = seed.second + left * kOddFactor;
  if (left < folded::kBlockBytes) {
    return folded::MixBlock(hash, Case::Prepare(folded::LoadShort(bytes, left)), seed);
  }
  for (; left > folded::kBlockBytes; left -= folded::kBlockBytes) {
    hash = folded::MixBlock(hash, Case::Prepare(folded::LoadBlock(bytes)), seed);
    bytes += folded::kBlockBytes;
  }
  // The last block reaches back into the one before, rather than be filled up.
  const folded::Bytes last = folded::LoadBlock(bytes + left - folded::kBlockBytes);
  return folded::MixBlock(hash, Case::Prepare(last), seed);
}

/// Whether `stored`, which ends with NUL and has kKeyPadding readable bytes behind that, is `key`,
/// which holds no NUL.
template <class Case>
bool EqualKey(const char* stored, std::string_view key) noexcept {
  const auto areEqual = [](folded::Bytes a, folded::Bytes b) {
    return folded::AreEqual(Case::Prepare(a), Case::Prepare(b));
  };
  const char* const bytes = key.data();
  const std::size_t size = key.size();
  if (size < folded::kBlockBytes) {
    return areEqual(folded::LoadShort(stored, size), folded::LoadShort(bytes, size)) &&
           stored[size] == '\0';
  }
  // A stored key that is shorter differs by its NUL in the block in which it ends, and nothing
  // behind that block is read.
  const std::size_t last = size - folded::kBlockBytes;
  for (std::size_t at = 0; at < last; at += folded::kBlockBytes) {
    if (!areEqual(folded::LoadBlock(stored + at), folded::LoadBlock(bytes + at))) return false;
  }
  return areEqual(folded::LoadBlock(stored + last), folded::LoadBlock(bytes + last)) &&
         stored[size] == '\0';
}

}  // namespace kx

#endif  // KX_TEXTS_FOLDED_KEY_H
