#include "log/standard_output.h"

#include <cstddef>
#include <cstdio>

namespace kx {

std::streamsize StandardOutputBuffer::xsputn(const char* text, std::streamsize size) {
  return static_cast<std::streamsize>(std::fwrite(text, 1, static_cast<std::size_t>(size), stdout));
}

StandardOutputBuffer::int_type StandardOutputBuffer::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  return std::fputc(c, stdout) == EOF ? traits_type::eof() : c;
}

int StandardOutputBuffer::sync() { return std::fflush(stdout) == 0 ? 0 : -1; }

}  // namespace kx
