#ifndef KX_LOG_STANDARD_OUTPUT_H
#define KX_LOG_STANDARD_OUTPUT_H

#include <ostream>
#include <streambuf>
#include <string>

namespace kx {

/// Collects a text and hands it whole to the process's standard output when it is flushed; what is
/// not flushed is never written. A text that cannot be written is lost.
class StandardOutputBuffer final : public std::streambuf {
 protected:
  std::streamsize xsputn(const char* text, std::streamsize size) override;
  int_type overflow(int_type c) override;
  int sync() override;

 private:
  std::string pending_;
};

/// The process's standard output as a stream.
class StandardOutputStream final : public std::ostream {
 public:
  StandardOutputStream() : std::ostream(nullptr) {
    init(&buffer_);
    // Lets std::bad_alloc out, or the writer would take a lost text for a written one.
    exceptions(std::ios::badbit);
  }

 private:
  StandardOutputBuffer buffer_;
};

}  // namespace kx

#endif  // KX_LOG_STANDARD_OUTPUT_H
