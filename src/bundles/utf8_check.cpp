#include "bundles/utf8_check.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kx {
namespace {

constexpr int kLongestSequence = 6;
constexpr unsigned char kFirstLeadOfTwo = 0xC2;  // those below make overlong forms only
constexpr unsigned char kFirstLeadOfThree = 0xE0;
constexpr std::uint64_t kTopBits = 0x8080808080808080;

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// Length of the sequence at the start of `text`, whose first byte is not ASCII; 0 when it is
/// broken.
std::size_t SequenceLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  // The letters of most languages of Europe, without the general rules: half of the time.
  const bool isShort = lead >= kFirstLeadOfTwo && lead < kFirstLeadOfThree;
  if (isShort) return text.size() >= 2 && IsContinuation(text[1]) ? 2 : 0;
  const int length = std::countl_one(lead);
  if (length < 3 || length > kLongestSequence) return 0;
  if (text.size() < static_cast<std::size_t>(length)) return 0;
  const std::string_view rest = text.substr(1, static_cast<std::size_t>(length) - 1);
  if (!std::all_of(rest.begin(), rest.end(), IsContinuation)) return 0;
  // An overlong form has no bits in the lead byte and too few in the next one: a sequence of n
  // bytes must use a bit above the lowest 8 - n of its first continuation byte.
  const auto next = static_cast<unsigned char>(text[1]);
  const bool leadHasBits = static_cast<unsigned char>(lead << length) != 0;
  return leadHasBits || next >= 0x80 + (0x100 >> length) ? static_cast<std::size_t>(length) : 0;
}

/// How many bytes at the beginning of `text` are ASCII. Eight at a time, since most texts are
/// little else, and in those that are not the first other byte of a word is found without a loop.
std::size_t AsciiLength(std::string_view text) {
  std::size_t at = 0;
  for (std::uint64_t word; at + sizeof word <= text.size(); at += sizeof word) {
    std::memcpy(&word, text.data() + at, sizeof word);
    const std::uint64_t others = word & kTopBits;
    if (others == 0) continue;
    constexpr bool kLittle = std::endian::native == std::endian::little;
    const int bits = kLittle ? std::countr_zero(others) : std::countl_zero(others);
    return at + static_cast<std::size_t>(bits) / 8;
  }
  while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80) ++at;
  return at;
}

/// Whether all bytes are ASCII: most lines are, and to look at all of a line takes less time than
/// to look where the first other byte is.
bool IsAscii(std::string_view text) {
  constexpr std::size_t kBlockBytes = 16;
  using Block = std::uint64_t __attribute__((vector_size(kBlockBytes)));
  if (text.size() < kBlockBytes) return AsciiLength(text) == text.size();
  Block all = {};
  const auto add = [&all, text](std::size_t at) {
    Block block;
    std::memcpy(&block, text.data() + at, sizeof block);
    all |= block;
  };
  const std::size_t last = text.size() - kBlockBytes;
  for (std::size_t at = 0; at < last; at += kBlockBytes) add(at);
  add(last);
  return ((all[0] | all[1]) & kTopBits) == 0;
}

}  // namespace

bool IsWellFormedUtf8(std::string_view text) noexcept {
  if (IsAscii(text)) return true;
  for (;;) {
    text.remove_prefix(AsciiLength(text));
    if (text.empty()) return true;
    const std::size_t length = SequenceLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
}

}  // namespace kx
