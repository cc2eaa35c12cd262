#include "platform/hash_seed.h"

#include <chrono>

namespace kx {
namespace {

/// Where the process and its stack lie, and when it came here, are not to be known from outside.
HashSeed MakeSeed() noexcept {
  const auto now =
      static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  const auto place = reinterpret_cast<std::uintptr_t>(&now);
  const std::uint64_t first = Mix(now ^ kOddFactor, place ^ kOtherOddFactor);
  return {first, Mix(first ^ kOtherOddFactor, now ^ kOddFactor)};
}

}  // namespace

HashSeed ProcessHashSeed() noexcept {
  static const HashSeed seed = MakeSeed();
  return seed;
}

}  // namespace kx
