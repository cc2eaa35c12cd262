#ifndef KX_TESTS_PLATFORM_STREAM_BYTES_H
#define KX_TESTS_PLATFORM_STREAM_BYTES_H

#include <ostream>
#include <sstream>
#include <string>

#include "platform/file_streams.h"

/// The bytes that a stream opened on `path` delivers; "(not open)" when it is in the fail state.
inline std::string ReadThroughStream(const std::string& path) {
  CKxIfstream stream;
  KxIfstreamOpen(stream, path.c_str());
  if (!stream) return "(not open)";
  std::ostringstream bytes;
  bytes << stream.rdbuf();
  return bytes.str();
}

/// Writes `bytes` at the end of the file `path`; whether that was possible.
inline bool Append(const std::string& path, const std::string& bytes) {
  CKxOfstream stream;
  KxOfstreamOpen(stream, path.c_str());
  stream << bytes << std::flush;
  return static_cast<bool>(stream);
}

#endif  // KX_TESTS_PLATFORM_STREAM_BYTES_H
