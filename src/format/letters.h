#ifndef KX_FORMAT_LETTERS_H
#define KX_FORMAT_LETTERS_H

#include <cstdint>
#include <string_view>

namespace kx {

/// Letters, as a bit for each: a look costs next to nothing, where a search in a text is a call.
class Letters {
 public:
  constexpr explicit Letters(std::string_view letters) : bits_(0) {
    for (const char letter : letters) bits_ |= BitOf(letter);
  }

  constexpr bool Has(char c) const { return (bits_ & BitOf(c)) != 0; }

 private:
  /// None for what is no letter.
  static constexpr std::uint64_t BitOf(char c) {
    const auto number = static_cast<unsigned char>(c - 'A');
    return number < 64 ? std::uint64_t{1} << number : 0;
  }

  std::uint64_t bits_;
};

}  // namespace kx

#endif  // KX_FORMAT_LETTERS_H
