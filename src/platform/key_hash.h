#ifndef KX_PLATFORM_KEY_HASH_H
#define KX_PLATFORM_KEY_HASH_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/ascii_case.h"

namespace kx {

constexpr std::uint64_t kHashFactor = 65599;

/// The polynomial of the bytes of `text`, each passed through `fold`, at kHashFactor.
template <class Fold>
constexpr std::uint64_t PolynomialHash(std::string_view text, Fold fold) noexcept {
  constexpr std::uint64_t kFactor2 = kHashFactor * kHashFactor;
  constexpr std::uint64_t kFactor3 = kFactor2 * kHashFactor;
  constexpr std::uint64_t kFactor4 = kFactor3 * kHashFactor;
  std::uint64_t hash = 0;
  // Four bytes a step, since their products do not wait for each other as those of single bytes do.
  for (; text.size() >= 4; text.remove_prefix(4)) {
    hash = hash * kFactor4 + fold(text[0]) * kFactor3 + fold(text[1]) * kFactor2 +
           fold(text[2]) * kHashFactor + fold(text[3]);
  }
  for (const char c : text) hash = hash * kHashFactor + fold(c);
  return hash;
}

/// Hash of keys and locales: ASCII case does not count.
struct KeyHash {
  using is_transparent = void;

  constexpr std::size_t operator()(std::string_view key) const noexcept {
    return PolynomialHash(key, FoldAscii);
  }
};

/// Equality that goes with KeyHash.
struct KeyEqual {
  using is_transparent = void;

  constexpr bool operator()(std::string_view a, std::string_view b) const noexcept {
    return EqualIgnoringAsciiCase(a, b);
  }
};

/// Hash of bundle names, whose case counts.
struct NameHash {
  constexpr std::size_t operator()(std::string_view name) const noexcept {
    return PolynomialHash(name, [](char c) { return static_cast<unsigned char>(c); });
  }
};

}  // namespace kx

#endif  // KX_PLATFORM_KEY_HASH_H
