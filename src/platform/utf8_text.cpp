#include "platform/utf8_text.h"

#include <cstddef>

namespace {

/// Small letters of two-byte sequences, as code points, and how far below them their capitals lie.
struct LetterRange {
  unsigned first;
  unsigned last;
  unsigned distance;
};

constexpr LetterRange kSmallLetters[] = {
    {0x00E0, 0x00F6, 0x20}, {0x00F8, 0x00FE, 0x20},  // Latin-1; between them is a division sign
    {0x03B1, 0x03C1, 0x20}, {0x03C3, 0x03C9, 0x20},  // Greek; between them is the final sigma
    {0x0430, 0x044F, 0x20}, {0x0450, 0x045F, 0x50},  // Cyrillic
};

unsigned ToCapital(unsigned letter) {
  for (const LetterRange& range : kSmallLetters) {
    if (letter >= range.first && letter <= range.last) return letter - range.distance;
  }
  return letter;
}

bool IsTwoByteSequence(unsigned char lead, unsigned char next) {
  return (lead & 0xE0) == 0xC0 && (next & 0xC0) == 0x80;
}

}  // namespace

CKxUTF8ToUpper::CKxUTF8ToUpper(const char* text) : text_(text) {
  for (std::size_t at = 0; at < text_.size(); ++at) {
    const auto lead = static_cast<unsigned char>(text_[at]);
    if (lead >= 'a' && lead <= 'z') text_[at] = static_cast<char>(lead - ('a' - 'A'));
    if (at + 1 == text_.size()) break;
    const auto next = static_cast<unsigned char>(text_[at + 1]);
    if (!IsTwoByteSequence(lead, next)) continue;
    const unsigned capital = ToCapital((lead & 0x1FU) << 6 | (next & 0x3FU));
    text_[at] = static_cast<char>(0xC0 | capital >> 6);
    text_[++at] = static_cast<char>(0x80 | (capital & 0x3F));
  }
}
