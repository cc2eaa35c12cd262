#ifndef KX_PLATFORM_HASH_SEED_H
#define KX_PLATFORM_HASH_SEED_H

#include <cstdint>

namespace kx {

/// What makes the hashes of one process differ from those of any other.
struct HashSeed {
  std::uint64_t first;
  std::uint64_t second;
};

/// The seed of this process, made by the first call. Any thread.
HashSeed ProcessHashSeed() noexcept;

}  // namespace kx

#endif  // KX_PLATFORM_HASH_SEED_H
