#ifndef KX_TEXTS_MEASURED_TEXT_H
#define KX_TEXTS_MEASURED_TEXT_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include "platform/copy_bytes.h"

// Texts with their size before them, so that whoever copies one need not look for its end.

namespace kx {

using TextMeasure = std::uint16_t;

/// Bytes that a measured text takes.
constexpr std::size_t MeasuredBytes(std::size_t size) noexcept {
  return sizeof(TextMeasure) + size + 1;
}

/// Puts the size of `text`, the text and a NUL to `place`; answers where the text is.
inline char* PutMeasuredText(char* place, std::string_view text) noexcept {
  constexpr std::size_t kMost = std::numeric_limits<TextMeasure>::max();
  const auto measure = static_cast<TextMeasure>(std::min(text.size(), kMost));
  std::memcpy(place, &measure, sizeof measure);
  char* const copy = place + sizeof measure;
  if (!text.empty()) std::memcpy(copy, text.data(), text.size());
  copy[text.size()] = '\0';
  return copy;
}

/// The size of a text that PutMeasuredText answered.
inline std::size_t MeasuredSize(const char* text) noexcept {
  TextMeasure measure;
  std::memcpy(&measure, text - sizeof measure, sizeof measure);
  // Longer ones are measured up to there.
  const bool isWhole = measure != std::numeric_limits<TextMeasure>::max();
  return isWhole ? measure : measure + std::strlen(text + measure);
}

/// Copies a measured text, or as much of it as there is room for, and a NUL.
///
/// @param size  of the memory at `dst`; not 0
inline void CopyMeasuredText(char* dst, std::size_t size, const char* text) noexcept {
  const std::size_t length = std::min(MeasuredSize(text), size - 1);
  CopyBytes(dst, text, length);
  dst[length] = '\0';
}

}  // namespace kx

#endif  // KX_TEXTS_MEASURED_TEXT_H
