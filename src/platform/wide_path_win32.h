#ifndef KX_PLATFORM_WIDE_PATH_WIN32_H
#define KX_PLATFORM_WIDE_PATH_WIN32_H

#include <string>
#include <string_view>

// UTF-16 exists only in the calls to the system; everything else is UTF-8.

namespace kx {

std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view wide);

/// A path as the wide calls take it. One too long for them in its plain form is made absolute and
/// gets the prefix that lifts their limit.
std::wstring WidePath(const char* path);

}  // namespace kx

#endif  // KX_PLATFORM_WIDE_PATH_WIN32_H
