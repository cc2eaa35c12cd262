#include "log/problem_sink.h"

#include <cstdio>

namespace kx {

void StandardErrorSink::Line(const std::string& text) {
  // One call for the whole line. std::cerr would not do: a host that has unhooked it from stdio
  // makes its use from two threads a data race.
  const std::string line = text + '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
  // Not every runtime leaves standard error without a buffer when it goes to a file or a pipe.
  std::fflush(stderr);
}

}  // namespace kx
