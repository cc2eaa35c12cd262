#include "log/standard_output.h"

#include <cstddef>

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

int StandardOutputBuffer::sync() {
  const bool isWhole = WriteToStandardStream(StandardStream::kOutput, pending_);
  pending_.clear();
  return isWhole ? 0 : -1;
}

}  // namespace kx
