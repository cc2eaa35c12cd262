#ifndef KX_PLATFORM_UTF8_TEXT_H
#define KX_PLATFORM_UTF8_TEXT_H

#include <string>
#include <string_view>

/// Blanks, tabs, line feeds, vertical tabs, form feeds and carriage returns, and no other
/// character, whatever its kind.
constexpr bool KxIsWhiteSpace(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// `text` without the white space at its beginning.
constexpr std::string_view KxUTF8TrimStart(std::string_view text) noexcept {
  while (!text.empty() && KxIsWhiteSpace(text.front())) text.remove_prefix(1);
  return text;
}

/// `text` without the white space at both ends.
constexpr std::string_view KxUTF8Trim(std::string_view text) noexcept {
  text = KxUTF8TrimStart(text);
  while (!text.empty() && KxIsWhiteSpace(text.back())) text.remove_suffix(1);
  return text;
}

/// The upper-case form of a UTF-8 text: the small letters of the plain alphabets (ASCII, Latin-1,
/// Greek without accents, Cyrillic of U+0430 to U+045F) become capitals; all else, broken sequences
/// included, stays as it is. That is more than language codes need, and the same on every system
/// and in every locale of the host.
class CKxUTF8ToUpper {
 public:
  /// @param text  NUL-terminated UTF-8; not null
  explicit CKxUTF8ToUpper(const char* text);

  const std::string& Text() const noexcept { return text_; }

 private:
  std::string text_;
};

#endif  // KX_PLATFORM_UTF8_TEXT_H
