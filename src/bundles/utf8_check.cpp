#include "bundles/utf8_check.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kx {
namespace {

constexpr int kLongestSequence = 6;

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// Length of the sequence at the start of `text`; 0 when it is broken.
std::size_t SequenceLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const int length = std::countl_one(lead);
  if (length == 0) return 1;
  if (length == 1 || length > kLongestSequence) return 0;
  if (text.size() < static_cast<std::size_t>(length)) return 0;
  const std::string_view rest = text.substr(1, static_cast<std::size_t>(length) - 1);
  if (!std::all_of(rest.begin(), rest.end(), IsContinuation)) return 0;
  // An overlong form has no bits in the lead byte and too few in the next one: a sequence of n
  // bytes must use a bit above the lowest 8 - n of its first continuation byte.
  if (length == 2) return lead >= 0xC2 ? 2 : 0;
  const auto next = static_cast<unsigned char>(text[1]);
  const bool leadHasBits = static_cast<unsigned char>(lead << length) != 0;
  return leadHasBits || next >= 0x80 + (0x100 >> length) ? static_cast<std::size_t>(length) : 0;
}

// Sixteen bytes at a time and without a question for each: where letters beyond ASCII stand is
// nothing that a processor can foresee, and the plain walk took a seventh of the start of a process
// with a large catalogue.

constexpr std::size_t kBlockBytes = 16;
// The last block has as many bytes before it as a sequence reaches back.
constexpr std::size_t kLeastBytes = kBlockBytes + 3;
using Bytes = std::uint8_t __attribute__((vector_size(kBlockBytes)));

Bytes LoadBlock(std::string_view text, std::size_t at) {
  Bytes block;
  std::memcpy(&block, text.data() + at, sizeof block);
  return block;
}

bool IsNothing(Bytes block) {
  const auto words = std::bit_cast<std::array<std::uint64_t, 2>>(block);
  return (words[0] | words[1]) == 0;
}

/// The bytes of a block that no sequence of up to four bytes has there, given the one, two and
/// three bytes before each.
Bytes Faults(Bytes bytes, Bytes before, Bytes secondBefore, Bytes thirdBefore) {
  const auto isContinuation = (bytes & 0xC0) == 0x80;
  const auto isAwaited = (before >= 0xC0) | (secondBefore >= 0xE0) | (thirdBefore >= 0xF0);
  const auto isOverlong = ((bytes & 0xFE) == 0xC0) | ((before == 0xE0) & (bytes < 0xA0)) |
                          ((before == 0xF0) & (bytes < 0x90));
  return reinterpret_cast<Bytes>((isContinuation ^ isAwaited) | isOverlong | (bytes >= 0xF8));
}

/// The bytes of the first block, moved up by so many places.
template <int... kPlaces>
Bytes FirstBlock(std::string_view text) {
  return __builtin_shufflevector(Bytes{}, LoadBlock(text, 0), kPlaces...);
}

bool IsAscii(std::string_view text) {
  const std::size_t last = text.size() - kBlockBytes;
  Bytes all = LoadBlock(text, last);
  for (std::size_t at = 0; at < last; at += kBlockBytes) all |= LoadBlock(text, at);
  return IsNothing(all & 0x80);
}

/// Whether a text of at least kLeastBytes is made of whole sequences of up to four bytes.
bool IsOfShortSequences(std::string_view text) {
  const auto endsBefore = [text](std::size_t back, unsigned char lead) {
    return static_cast<unsigned char>(text[text.size() - back]) < lead;
  };
  if (!endsBefore(1, 0xC0) || !endsBefore(2, 0xE0) || !endsBefore(3, 0xF0)) return false;
  Bytes faults =
      Faults(LoadBlock(text, 0),
             FirstBlock<15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30>(text),
             FirstBlock<14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29>(text),
             FirstBlock<13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28>(text));
  const auto add = [&faults, text](std::size_t at) {
    faults |= Faults(LoadBlock(text, at), LoadBlock(text, at - 1), LoadBlock(text, at - 2),
                     LoadBlock(text, at - 3));
  };
  const std::size_t last = text.size() - kBlockBytes;
  for (std::size_t at = kBlockBytes; at < last; at += kBlockBytes) add(at);
  add(last);
  return IsNothing(faults);
}

}  // namespace

bool IsWellFormedUtf8(std::string_view text) noexcept {
  if (text.size() >= kLeastBytes && (IsAscii(text) || IsOfShortSequences(text))) return true;
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace kx
