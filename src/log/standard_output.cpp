#include "log/standard_output.h"

#include <cstddef>
#include <utility>

#include "platform/standard_stream.h"

namespace kx {

std::streamsize StandardOutputBuffer::xsputn(const char* text, std::streamsize size) {
  pending_.append(text, static_cast<std::size_t>(size));
  return size;
}

StandardOutputBuffer::int_type StandardOutputBuffer::overflow(int_type c) {
  if (!traits_type::eq_int_type(c, traits_type::eof())) pending_ += traits_type::to_char_type(c);
  return traits_type::not_eof(c);
}

// What cannot be written is lost silently; the stream goes on.
int StandardOutputBuffer::sync() {
  const std::string text = std::exchange(pending_, {});
  WriteToStandardStream(StandardStream::kOutput, text);
  return 0;
}

}  // namespace kx
