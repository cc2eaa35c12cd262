#ifndef KX_KXXLATE_LOCALE_TEXT_HPP
#define KX_KXXLATE_LOCALE_TEXT_HPP

#include <algorithm>
#include <string>
#include <string_view>

// Locales as texts: how the library cuts and compares them.

namespace kx::detail {

constexpr char Lower(char c) noexcept {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char Upper(char c) noexcept {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

inline std::string Lowered(std::string_view text) {
  std::string lowered(text);
  std::transform(lowered.begin(), lowered.end(), lowered.begin(), Lower);
  return lowered;
}

inline std::string Uppered(std::string_view text) {
  std::string uppered(text);
  std::transform(uppered.begin(), uppered.end(), uppered.begin(), Upper);
  return uppered;
}

/// What a locale falls back to: what stands before its last "-", or, if it has none, before its
/// last "_"; empty behind the last of them.
inline std::string_view ParentLocale(std::string_view locale) noexcept {
  std::size_t cut = locale.rfind('-');
  if (cut == std::string_view::npos) cut = locale.rfind('_');
  return locale.substr(0, cut == std::string_view::npos ? 0 : cut);
}

/// The directory of language files to which a locale leads, in capitals, such as "FR-CA". That the
/// lengths of regions are positions in the whole locale is the library's rule.
inline std::string LanguageDirectoryOf(std::string_view locale) {
  std::size_t separator = locale.find('-');
  if (separator == std::string_view::npos) separator = locale.find('_');
  if (separator == std::string_view::npos) return Uppered(locale);
  const std::size_t begin = separator + 1;
  const std::size_t next = locale.find('-', begin);
  std::string_view region;
  if (next == std::string_view::npos) {
    if (locale.size() - begin == 2) region = locale.substr(begin);
  } else if (next - begin == 2) {
    region = locale.substr(begin, next);
  } else {
    region = locale.substr(next + 1, locale.find('-', next + 1));
  }
  std::string directory = Uppered(locale.substr(0, separator));
  if (!region.empty()) directory.append("-").append(Uppered(region));
  return directory;
}

}  // namespace kx::detail

#endif  // KX_KXXLATE_LOCALE_TEXT_HPP
