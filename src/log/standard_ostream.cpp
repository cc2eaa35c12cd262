#include "log/standard_ostream.h"

#include <cstddef>
#include <utility>

namespace kx {

std::streamsize StandardStreamBuffer::xsputn(const char* text, std::streamsize size) {
  pending_.append(text, static_cast<std::size_t>(size));
  return size;
}

StandardStreamBuffer::int_type StandardStreamBuffer::overflow(int_type c) {
  if (!traits_type::eq_int_type(c, traits_type::eof())) pending_ += traits_type::to_char_type(c);
  return traits_type::not_eof(c);
}

// What cannot be written is lost silently; the stream goes on.
int StandardStreamBuffer::sync() {
  const std::string text = std::exchange(pending_, {});
  WriteToStandardStream(stream_, text);
  return 0;
}

}  // namespace kx
