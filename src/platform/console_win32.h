#ifndef KX_PLATFORM_CONSOLE_WIN32_H
#define KX_PLATFORM_CONSOLE_WIN32_H

#include <cstddef>
#include <string_view>

namespace kx {

/// @param handle  a HANDLE; one that is closed or null is no console
bool IsConsole(void* handle);

/// Shows a UTF-8 text, whatever the code page of the console, which other programs share. What is
/// not well-formed is shown as U+FFFD. The text must hold its characters whole: consoles do not put
/// one together from several calls.
///
/// @return false when not all of it could be written
bool WriteToConsole(void* console, std::string_view utf8);

/// How much from the beginning of a UTF-16 text goes into one call: not more than older consoles
/// take, and no character of two units is torn.
std::size_t ConsolePieceLength(std::wstring_view text);

}  // namespace kx

#endif  // KX_PLATFORM_CONSOLE_WIN32_H
