#ifndef KX_PLATFORM_UTF8_TEXT_H
#define KX_PLATFORM_UTF8_TEXT_H

/// Removes blanks, tabs, line feeds, vertical tabs, form feeds and carriage returns at both ends of
/// `text`, and no other character, whatever its kind.
///
/// @param text  NUL-terminated, changed in place; not null
/// @return the first remaining character, a place inside `text`
char* KxUTF8Trim(char* text);

#endif  // KX_PLATFORM_UTF8_TEXT_H
