#ifndef KX_KXXLATE_BUFFER_HPP
#define KX_KXXLATE_BUFFER_HPP

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <type_traits>

#include "terminated.hpp"

namespace kx {

/// What insertion into a buffer of the host's tells of it.
struct [[nodiscard]] Inserted {
  std::string_view text;  ///< what stands in the buffer, where a NUL follows it
  bool is_cut;            ///< the result was longer, and its end is missing
};

namespace detail {

/// The number of bytes that the UTF-8 sequence has which begins so; 1 for all else. Catalogues may
/// have sequences of the early definition, with up to six bytes.
constexpr std::size_t SequenceBytes(unsigned char lead) noexcept {
  if (lead < 0xC0 || lead >= 0xFE) return 1;
  if (lead < 0xE0) return 2;
  if (lead < 0xF0) return 3;
  if (lead < 0xF8) return 4;
  return lead < 0xFC ? 5 : 6;
}

/// The longest beginning of `text` with at most `most` bytes that ends inside no UTF-8 sequence.
/// What is not UTF-8 is cut at any byte.
inline std::string_view CutBetweenSequences(std::string_view text, std::size_t most) noexcept {
  if (text.size() <= most) return text;
  const auto at = [text](std::size_t place) { return static_cast<unsigned char>(text[place]); };
  constexpr std::size_t kMostBehindLead = 5;
  std::size_t lead = most;
  while (lead > 0 && most - lead < kMostBehindLead && (at(lead) & 0xC0U) == 0x80U) --lead;
  return text.substr(0, lead + SequenceBytes(at(lead)) > most ? lead : most);
}

inline Inserted CopyInto(char* buffer, std::size_t size, std::string_view text) noexcept {
  if (buffer == nullptr || size == 0) return {"", !text.empty()};
  const std::string_view kept = CutBetweenSequences(text, size - 1);
  kept.copy(buffer, kept.size());
  buffer[kept.size()] = '\0';
  return {{buffer, kept.size()}, kept.size() != text.size()};
}

template <class T>
struct IsCharacterArray : std::false_type {};
template <std::size_t kBytes>
struct IsCharacterArray<char[kBytes]> : std::bool_constant<(kBytes > 1)> {};
template <std::size_t kBytes>
struct IsCharacterArray<std::array<char, kBytes>> : std::bool_constant<(kBytes > 1)> {};

template <class Engine, class Size, class... Rest>
Inserted InsertIntoPlace(char* buffer, Size size, const Rest&... rest) {
  static_assert(std::is_integral_v<Size> && sizeof...(Rest) > 0,
                "kx: a pointer does not tell how long the buffer is: pass its size behind it");
  const std::size_t bytes = size > 0 ? static_cast<std::size_t>(size) : 0;
  return CopyInto(buffer, bytes, Engine::Run(bytes, rest...).View());
}

/// The forms of a buffer: an array, which has its size, or a pointer and the size behind it.
template <class Engine, class Buffer, class... Rest>
Inserted InsertInto(Buffer&& buffer, const Rest&... rest) {
  using Whole = std::remove_reference_t<Buffer>;
  using Plain = std::remove_cv_t<Whole>;
  if constexpr (std::is_pointer_v<Plain>) {
    static_assert(std::is_same_v<Plain, char*>, "kx: a buffer must be of char, and writable");
    static_assert(sizeof...(Rest) > 0,
                  "kx: a pointer does not tell how long the buffer is: pass its size behind it");
    return InsertIntoPlace<Engine>(buffer, rest...);
  } else {
    static_assert(IsCharacterArray<Whole>::value,
                  "kx: a buffer must be an array of char, writable and of more than one byte, or a "
                  "char* with its size behind it");
    static_assert(std::is_lvalue_reference_v<Buffer>,
                  "kx: this buffer is dropped at the end of the statement, and the text with it. "
                  "Keep it in a variable");
    const std::size_t bytes = std::size(buffer);
    return CopyInto(std::data(buffer), bytes, Engine::Run(bytes, rest...).View());
  }
}

}  // namespace detail
}  // namespace kx

#endif  // KX_KXXLATE_BUFFER_HPP
