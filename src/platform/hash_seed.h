#ifndef KX_PLATFORM_HASH_SEED_H
#define KX_PLATFORM_HASH_SEED_H

#include <cstdint>

namespace kx {

/// Odd numbers without a pattern in their bits.
constexpr std::uint64_t kOddFactor = 0x9E3779B97F4A7C15;
constexpr std::uint64_t kOtherOddFactor = 0xD6E8FEB86659FD93;

/// Both halves of the whole product, which depend on every bit of both factors.
inline std::uint64_t Mix(std::uint64_t a, std::uint64_t b) noexcept {
  __extension__ using Wide = unsigned __int128;
  const Wide product = static_cast<Wide>(a) * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

/// What makes the hashes of one process differ from those of any other.
struct HashSeed {
  std::uint64_t first;
  std::uint64_t second;
};

/// The seed of this process, made by the first call. Any thread.
HashSeed ProcessHashSeed() noexcept;

}  // namespace kx

#endif  // KX_PLATFORM_HASH_SEED_H
