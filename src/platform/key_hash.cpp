#include "platform/key_hash.h"

#include <chrono>
#include <cstring>

#include "platform/hash_seed.h"

namespace kx {
namespace {

constexpr std::size_t kWordBytes = sizeof(std::uint64_t);
constexpr std::uint64_t kEveryByte = 0x0101010101010101;
constexpr std::uint64_t kOdd1 = 0x9E3779B97F4A7C15;
constexpr std::uint64_t kOdd2 = 0xD6E8FEB86659FD93;

/// Both halves of the whole product, which depend on every bit of both factors.
std::uint64_t Mix(std::uint64_t a, std::uint64_t b) noexcept {
  __extension__ using Wide = unsigned __int128;
  const Wide product = static_cast<Wide>(a) * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

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

/// Where the process and its stack lie, and when it came here, are not to be known from outside.
HashSeed MakeSeed() noexcept {
  const auto now =
      static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  const auto place = reinterpret_cast<std::uintptr_t>(&now);
  const std::uint64_t first = Mix(now ^ kOdd1, place ^ kOdd2);
  return {first, Mix(first ^ kOdd2, now ^ kOdd1)};
}

}  // namespace

HashSeed ProcessHashSeed() noexcept {
  static const HashSeed seed = MakeSeed();
  return seed;
}

std::size_t SeededHash(std::string_view key) noexcept {
  std::uint64_t hash = ProcessHashSeed().first ^ key.size() * kOdd2;
  for (; key.size() > kWordBytes; key.remove_prefix(kWordBytes)) {
    hash = Mix(hash ^ FoldWord(Load(key.data(), kWordBytes)), kOdd1);
  }
  return Mix(hash ^ FoldWord(Load(key.data(), key.size())), kOdd2);
}

}  // namespace kx
