#ifndef KX_PLATFORM_ASCII_CASE_H
#define KX_PLATFORM_ASCII_CASE_H

#include <algorithm>
#include <string_view>

namespace kx {

// The character functions of the C library depend on the host's locale and are undefined for
// negative values; catalogues and keys need neither.

/// `c` as an unsigned value, with ASCII capitals turned into small letters.
constexpr unsigned char FoldAscii(char c) noexcept {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

constexpr bool EqualIgnoringAsciiCase(std::string_view a, std::string_view b) noexcept {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return FoldAscii(x) == FoldAscii(y);
         });
}

/// Order by folded bytes, compared as unsigned values.
struct LessIgnoringAsciiCase {
  using is_transparent = void;

  constexpr bool operator()(std::string_view a, std::string_view b) const noexcept {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return FoldAscii(x) < FoldAscii(y); });
  }
};

/// Whether `text` begins with `prefix`, ASCII case apart.
constexpr bool StartsWithIgnoringAsciiCase(std::string_view text,
                                           std::string_view prefix) noexcept {
  return EqualIgnoringAsciiCase(text.substr(0, prefix.size()), prefix);
}

/// Whether `text` ends with `suffix`, ASCII case apart.
constexpr bool EndsWithIgnoringAsciiCase(std::string_view text, std::string_view suffix) noexcept {
  return text.size() >= suffix.size() &&
         EqualIgnoringAsciiCase(text.substr(text.size() - suffix.size()), suffix);
}

}  // namespace kx

#endif  // KX_PLATFORM_ASCII_CASE_H
