#ifndef KX_PLATFORM_UTF8_TEXT_H
#define KX_PLATFORM_UTF8_TEXT_H

#include <string>

/// Removes blanks, tabs, line feeds, vertical tabs, form feeds and carriage returns at both ends of
/// `text`, and no other character, whatever its kind.
///
/// @param text  NUL-terminated, changed in place; not null
/// @return the first remaining character, a place inside `text`
char* KxUTF8Trim(char* text);

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
