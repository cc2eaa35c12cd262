#ifndef KX_PLATFORM_KEY_HASH_H
#define KX_PLATFORM_KEY_HASH_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/ascii_case.h"

namespace kx {

constexpr std::uint64_t kHashFactor = 65599;

/// A hash in which ASCII case does not count, of another kind in each process: whoever sends
/// locales cannot make any that collide.
std::size_t SeededHash(std::string_view key) noexcept;

/// Hash of locales.
struct KeyHash {
  using is_transparent = void;

  std::size_t operator()(std::string_view key) const noexcept { return SeededHash(key); }
};

/// Equality that goes with KeyHash.
struct KeyEqual {
  using is_transparent = void;

  constexpr bool operator()(std::string_view a, std::string_view b) const noexcept {
    return EqualIgnoringAsciiCase(a, b);
  }
};

/// Hash of bundle names, whose case counts and which only installed files make.
struct NameHash {
  constexpr std::size_t operator()(std::string_view name) const noexcept {
    std::uint64_t hash = 0;
    for (const char c : name) hash = hash * kHashFactor + static_cast<unsigned char>(c);
    return hash;
  }
};

}  // namespace kx

#endif  // KX_PLATFORM_KEY_HASH_H
