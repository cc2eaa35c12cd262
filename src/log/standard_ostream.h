#ifndef KX_LOG_STANDARD_OSTREAM_H
#define KX_LOG_STANDARD_OSTREAM_H

#include <ostream>
#include <streambuf>
#include <string>

#include "platform/standard_stream.h"

namespace kx {

/// Collects a text and hands it whole to a standard stream of the process when it is flushed; what
/// is not flushed is never written. A text that cannot be written is lost.
class StandardStreamBuffer final : public std::streambuf {
 public:
  explicit StandardStreamBuffer(StandardStream stream) : stream_(stream) {}

 protected:
  std::streamsize xsputn(const char* text, std::streamsize size) override;
  int_type overflow(int_type c) override;
  int sync() override;

 private:
  const StandardStream stream_;
  std::string pending_;
};

/// The process's standard output or standard error as a stream.
class StandardOstream final : public std::ostream {
 public:
  explicit StandardOstream(StandardStream stream) : std::ostream(nullptr), buffer_(stream) {
    init(&buffer_);
    // Lets std::bad_alloc out, or the writer would take a lost text for a written one.
    exceptions(std::ios::badbit);
  }

 private:
  StandardStreamBuffer buffer_;
};

}  // namespace kx

#endif  // KX_LOG_STANDARD_OSTREAM_H
