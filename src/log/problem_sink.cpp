#include "log/problem_sink.h"

#include "platform/standard_stream.h"

namespace kx {

void StandardErrorSink::Line(const std::string& text) {
  WriteToStandardStream(StandardStream::kErrors, text + '\n');
}

}  // namespace kx
