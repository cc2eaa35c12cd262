#ifndef KX_FORMAT_MARKED_TEXT_H
#define KX_FORMAT_MARKED_TEXT_H

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "format/result_text.h"

namespace kx {

/// A terminated text in which markers are looked for, 16 bytes at a time and nothing read but the
/// text. For texts of a message's length, where markers are a few bytes apart, that is half of the
/// time of a search by the C library for each marker and a copy of what stands before it.
class MarkedText {
 public:
  explicit MarkedText(const char* text) noexcept
      : begin_(text), end_(text + std::strlen(text)), hasBlock_(end_ - text >= kBlockBytes) {}

  const char* Begin() const noexcept { return begin_; }
  const char* End() const noexcept { return end_; }

  /// The first place at `from` or behind it that holds `marker`, or the end.
  const char* Find(const char* from, char marker) const noexcept {
    for (; end_ - from >= kBlockBytes; from += kBlockBytes) {
      const std::ptrdiff_t place = FirstOf(Load(from), marker, marker);
      if (place != kBlockBytes) return from + place;
    }
    if (from == end_) return end_;
    const std::ptrdiff_t place = FirstOf(LoadLast(from), marker, marker);
    return place != kBlockBytes ? from + place : end_;
  }

  /// Appends the bytes at `from` up to the first of two markers, and answers its place or the end.
  const char* CopyUpTo(ResultText& result, const char* from, char marker, char other) const {
    char* to = result.Reserve(static_cast<std::size_t>(end_ - from));
    for (; end_ - from >= kBlockBytes; from += kBlockBytes, to += kBlockBytes) {
      const std::ptrdiff_t place = FirstOf(Copy(to, Load(from)), marker, other);
      if (place == kBlockBytes) continue;
      result.EndAt(to + place);
      return from + place;
    }
    std::ptrdiff_t size = end_ - from;
    if (size != 0) size = std::min(size, FirstOf(Copy(to, LoadLast(from)), marker, other));
    result.EndAt(to + size);
    return from + size;
  }

 private:
  static constexpr std::ptrdiff_t kBlockBytes = 16;
  using Block = unsigned char __attribute__((vector_size(kBlockBytes)));
  // The same as two words, which stay in registers.
  using Words = std::uint64_t __attribute__((vector_size(kBlockBytes)));

  static Block Load(const char* from) noexcept {
    Block block;
    std::memcpy(&block, from, sizeof block);
    return block;
  }

  /// Writes all of a block, into the slack if need be.
  static Block Copy(char* to, Block block) noexcept {
    std::memcpy(to, &block, sizeof block);
    return block;
  }

  /// The bytes up to the end, of which there are 1 to 15, with zeros behind them, which are no
  /// marker. Read as the end of the 16 bytes before the end, if the text has so many: byte by byte
  /// they would cost as much as all the rest.
  Block LoadLast(const char* from) const noexcept {
    static_assert(std::endian::native == std::endian::little);
    __extension__ using Number = unsigned __int128;
    const auto left = static_cast<std::size_t>(end_ - from);
    if (!hasBlock_) {
      Block block = {};
      std::memcpy(&block, from, left);
      return block;
    }
    Number number;
    std::memcpy(&number, end_ - kBlockBytes, sizeof number);
    number >>= 8 * (kBlockBytes - left);
    const Words words = {static_cast<std::uint64_t>(number),
                         static_cast<std::uint64_t>(number >> 64)};
    return reinterpret_cast<Block>(words);
  }

  /// The first place in the block that holds one of two bytes; kBlockBytes if none does.
  static std::ptrdiff_t FirstOf(Block block, char one, char other) noexcept {
    const Block none = {};
    const auto found = reinterpret_cast<Block>(block == none + static_cast<unsigned char>(one)) |
                       reinterpret_cast<Block>(block == none + static_cast<unsigned char>(other));
    const auto words = reinterpret_cast<Words>(found);
    if ((words[0] | words[1]) == 0) return kBlockBytes;
    const bool isFirst = words[0] != 0;
    // Not std::countr_zero, which would ask once more whether there is a bit.
    return (isFirst ? 0 : 8) + __builtin_ctzll(isFirst ? words[0] : words[1]) / 8;
  }

  const char* const begin_;
  const char* const end_;
  const bool hasBlock_;
};

}  // namespace kx

#endif  // KX_FORMAT_MARKED_TEXT_H
