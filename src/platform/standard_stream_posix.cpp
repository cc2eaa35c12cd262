#include <cstdio>

#include "platform/standard_stream.h"

namespace kx {

bool WriteToStandardStream(StandardStream stream, std::string_view text) {
  std::FILE* const file = stream == StandardStream::kOutput ? stdout : stderr;
  // One call for the whole text. std::cout and std::cerr would not do: a host that has unhooked
  // them from stdio makes their use from two threads a data race.
  const bool isWhole = std::fwrite(text.data(), 1, text.size(), file) == text.size();
  // A host may have given standard error a buffer, too.
  return std::fflush(file) == 0 && isWhole;
}

}  // namespace kx
