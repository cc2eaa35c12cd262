#ifndef KX_LOG_STANDARD_OUTPUT_H
#define KX_LOG_STANDARD_OUTPUT_H

#include <ostream>
#include <streambuf>

namespace kx {

/// Passes everything on to the C library's standard output, which may be used from any thread;
/// std::cout may not once a host has unhooked it from stdio.
class StandardOutputBuffer final : public std::streambuf {
 protected:
  std::streamsize xsputn(const char* text, std::streamsize size) override;
  int_type overflow(int_type c) override;
  int sync() override;
};

/// The process's standard output as a stream.
class StandardOutputStream final : public std::ostream {
 public:
  StandardOutputStream() : std::ostream(nullptr) { init(&buffer_); }

 private:
  StandardOutputBuffer buffer_;
};

}  // namespace kx

#endif  // KX_LOG_STANDARD_OUTPUT_H
