#ifndef KX_PLATFORM_WIDE_PATH_WIN32_H
#define KX_PLATFORM_WIDE_PATH_WIN32_H

#include <string>
#include <string_view>

// UTF-16 exists only in the calls to the system; everything else is UTF-8.

namespace kx {

/// Empty when the text is not well-formed.
std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view wide);

/// A UTF-8 path as the wide calls take it: absolute, and with the prefix that lifts their limit
/// when it is too long for them without. Empty, which every call refuses, for what is no path of a
/// file: the name of a device, which on older systems may stand in any directory, and broken UTF-8.
std::wstring WidePath(const char* path);

/// The path as one writes it: without that prefix in front of a drive or a share, to which programs
/// deep in a tree are started by a path with it. Elsewhere the prefix stays, as in the path of a
/// volume that has no drive, which is nothing without it.
std::wstring WithoutLongPrefix(std::wstring path);

}  // namespace kx

#endif  // KX_PLATFORM_WIDE_PATH_WIN32_H
