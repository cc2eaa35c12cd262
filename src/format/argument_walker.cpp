#include "format/argument_walker.h"

#include <bit>

namespace kx {

std::vector<std::uint64_t> TakeArguments(const std::vector<ArgumentKind>& kinds,
                                         std::va_list arguments) {
  std::vector<std::uint64_t> words;
  words.reserve(kinds.size());
  for (const ArgumentKind kind : kinds) {
    // A word is read as one integer whatever the host passed, a pointer or an integer of another
    // rank: both systems pass all of these alike.
    switch (kind) {
      case ArgumentKind::kInt:
        words.push_back(static_cast<std::uint64_t>(va_arg(arguments, int)));
        break;
      case ArgumentKind::kUnread:
      case ArgumentKind::kWord: words.push_back(va_arg(arguments, std::uint64_t)); break;
      case ArgumentKind::kDouble:
        words.push_back(std::bit_cast<std::uint64_t>(va_arg(arguments, double)));
        break;
    }
  }
  return words;
}

}  // namespace kx
