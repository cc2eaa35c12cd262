#ifndef KX_PLATFORM_STANDARD_STREAM_H
#define KX_PLATFORM_STANDARD_STREAM_H

#include <string_view>

namespace kx {

enum class StandardStream { kOutput, kErrors };

/// Writes a text whole to the stream that this process has at the moment of the call: a host may
/// have replaced or closed the one that it was started with. Nothing stays in a buffer. Any thread;
/// texts of different threads do not mix, but for those too long for one call of a console.
///
/// On Linux the stream is that of the C library, and so the text stands behind what the host has
/// printed. On Windows it is the system's handle, because the C library that this library uses
/// learns nothing of what the host's does with it. There a line ends as in all texts that a C
/// library writes, with a carriage return and a line feed, and a console shows UTF-8 right,
/// whatever its code page.
///
/// @return false when not all of it could be written, as to a stream that was closed
bool WriteToStandardStream(StandardStream stream, std::string_view text);

}  // namespace kx

#endif  // KX_PLATFORM_STANDARD_STREAM_H
