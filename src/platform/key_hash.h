#ifndef KX_PLATFORM_KEY_HASH_H
#define KX_PLATFORM_KEY_HASH_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/ascii_case.h"

namespace kx {

constexpr std::uint64_t kHashFactor = 65599;

/// Hash of keys and locales: ASCII case does not count.
struct KeyHash {
  using is_transparent = void;

  std::size_t operator()(std::string_view key) const noexcept {
    std::uint64_t hash = 0;
    for (const char c : key) hash = hash * kHashFactor + FoldAscii(c);
    return hash;
  }
};

/// Equality that goes with KeyHash.
struct KeyEqual {
  using is_transparent = void;

  bool operator()(std::string_view a, std::string_view b) const noexcept {
    return EqualIgnoringAsciiCase(a, b);
  }
};

/// Hash of bundle names, whose case counts.
struct NameHash {
  std::size_t operator()(std::string_view name) const noexcept {
    std::uint64_t hash = 0;
    for (const char c : name) hash = hash * kHashFactor + static_cast<unsigned char>(c);
    return hash;
  }
};

}  // namespace kx

#endif  // KX_PLATFORM_KEY_HASH_H
