#include "platform/key_hash.h"

#include <cstring>

#include "platform/hash_seed.h"

namespace kx {
namespace {

constexpr std::size_t kWordBytes = sizeof(std::uint64_t);
constexpr std::uint64_t kEveryByte = 0x0101010101010101;

/// Turns the ASCII capitals among the eight bytes of a word into small letters.
std::uint64_t FoldWord(std::uint64_t word) noexcept {
  const std::uint64_t low = word & 0x7F * kEveryByte;
  const std::uint64_t fromA = low + (0x80 - 'A') * kEveryByte;   // top bit: 'A' or above
  const std::uint64_t aboveZ = low + (0x7F - 'Z') * kEveryByte;  // top bit: above 'Z'
  const std::uint64_t capitals = (fromA ^ aboveZ) & ~word & 0x80 * kEveryByte;
  return word | capitals >> 2;  // the bit by which small letters differ
}

std::uint64_t Load(const char* bytes, std::size_t size) noexcept {
  std::uint64_t word = 0;
  if (size > 0) std::memcpy(&word, bytes, size);  // an empty text may have no place at all
  return word;
}

}  // namespace

std::size_t SeededHash(std::string_view key) noexcept {
  std::uint64_t hash = ProcessHashSeed().first ^ key.size() * kOtherOddFactor;
  for (; key.size() > kWordBytes; key.remove_prefix(kWordBytes)) {
    hash = Mix(hash ^ FoldWord(Load(key.data(), kWordBytes)), kOddFactor);
  }
  return Mix(hash ^ FoldWord(Load(key.data(), key.size())), kOtherOddFactor);
}

}  // namespace kx
