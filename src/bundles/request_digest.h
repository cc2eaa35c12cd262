#ifndef KX_BUNDLES_REQUEST_DIGEST_H
#define KX_BUNDLES_REQUEST_DIGEST_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "platform/hash_seed.h"
#include "texts/folded_key.h"

namespace kx {

/// What is hashed and compared first of a request for a bundle (in its exact case) and a locale (in
/// any case): both texts when they are short, as they nearly always are, else a hash of what is
/// not.
///
/// They are taken from memory once, and in words rather than in blocks, which the processor would
/// have to wait for when it had put them together: that halves the time of a request.
class RequestDigest {
 public:
  RequestDigest() = default;

  /// @param seed  the same for all that are compared
  RequestDigest(std::string_view bundle, std::string_view locale, const HashSeed& seed) noexcept
      : sizes_(static_cast<std::uint64_t>(bundle.size()) << 32 ^ locale.size()),
        bundle_(IsShort(bundle) ? LoadShort<ExactCase>(bundle) : HashLong<ExactCase>(bundle, seed)),
        locale_(IsShort(locale) ? LoadShort<AnyCase>(locale) : HashLong<AnyCase>(locale, seed)) {}

  /// Whether equal digests are those of equal requests.
  static bool Holds(std::string_view bundle, std::string_view locale) noexcept {
    return IsShort(bundle) && IsShort(locale);
  }

  /// Of another kind in each process, since strangers send locales.
  std::uint64_t Hash(const HashSeed& seed) const noexcept {
    const std::uint64_t bundle =
        Mix(bundle_.first ^ seed.first, bundle_.second ^ (seed.second + sizes_ * kOddFactor));
    return Mix(locale_.first ^ seed.first, locale_.second ^ bundle);
  }

  /// Without a branch for each word: nearly always all are equal.
  bool operator==(const RequestDigest& other) const noexcept {
    return ((sizes_ ^ other.sizes_) | Difference(bundle_, other.bundle_) |
            Difference(locale_, other.locale_)) == 0;
  }

 private:
  struct Pair {
    std::uint64_t first;
    std::uint64_t second;
  };

  static constexpr std::size_t kWordBytes = sizeof(std::uint64_t);

  static bool IsShort(std::string_view text) noexcept { return text.size() < 2 * kWordBytes; }

  // Apart from the rest, so that the short road needs few registers.
  template <class Case>
  [[gnu::noinline]] static Pair HashLong(std::string_view text, const HashSeed& seed) noexcept {
    return {HashKey<Case>(text, seed), 0};
  }

  /// A short text as words that no other text of its size gives. Reads nothing but the text.
  template <class Case>
  static Pair LoadShort(std::string_view text) noexcept {
    const char* const bytes = text.data();
    const std::size_t size = text.size();
    if (size < 2) return {size == 0 ? 0 : Fold<Case>(folded::LoadWord<unsigned char>(bytes)), 0};
    if (size < 4) return {Fold<Case>(LoadEnds<std::uint16_t>(bytes, size)), 0};
    if (size < 8) return {Fold<Case>(LoadEnds<std::uint32_t>(bytes, size)), 0};
    return {Fold<Case>(folded::LoadWord<std::uint64_t>(bytes)),
            Fold<Case>(folded::LoadWord<std::uint64_t>(bytes + size - kWordBytes))};
  }

  /// The first and the last bytes, which may overlap.
  template <class Half>
  static std::uint64_t LoadEnds(const char* bytes, std::size_t size) noexcept {
    return folded::LoadWord<Half>(bytes) | folded::LoadWord<Half>(bytes + size - sizeof(Half))
                                               << 32;
  }

  /// Turns the ASCII capitals among the eight bytes of a word into small letters, where case does
  /// not count.
  template <class Case>
  static std::uint64_t Fold(std::uint64_t word) noexcept {
    if constexpr (std::is_same_v<Case, ExactCase>) return word;
    constexpr std::uint64_t kEveryByte = 0x0101010101010101;
    const std::uint64_t low = word & 0x7F * kEveryByte;
    const std::uint64_t fromA = low + (0x80 - 'A') * kEveryByte;   // top bit: 'A' or above
    const std::uint64_t aboveZ = low + (0x7F - 'Z') * kEveryByte;  // top bit: above 'Z'
    const std::uint64_t capitals = (fromA ^ aboveZ) & ~word & 0x80 * kEveryByte;
    return word | capitals >> 2;  // the bit by which small letters differ
  }

  static std::uint64_t Difference(const Pair& a, const Pair& b) noexcept {
    return (a.first ^ b.first) | (a.second ^ b.second);
  }

  std::uint64_t sizes_;
  Pair bundle_;
  Pair locale_;
};

}  // namespace kx

#endif  // KX_BUNDLES_REQUEST_DIGEST_H
