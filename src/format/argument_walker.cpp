#include "format/argument_walker.h"

#include "platform/long_double.h"

namespace kx {

std::vector<ArgumentValue> TakeArguments(const std::vector<ArgumentKind>& kinds,
                                         std::va_list arguments) {
  std::vector<ArgumentValue> values;
  values.reserve(kinds.size());
  for (const ArgumentKind kind : kinds) {
    // A word is read as one integer whatever the host passed, a pointer or an integer of another
    // rank: both systems pass all of these alike.
    switch (kind) {
      case ArgumentKind::kInt:
        values.emplace_back(static_cast<std::uint64_t>(va_arg(arguments, int)));
        break;
      case ArgumentKind::kUnread:
      case ArgumentKind::kWord: values.emplace_back(va_arg(arguments, std::uint64_t)); break;
      case ArgumentKind::kDouble: values.emplace_back(va_arg(arguments, double)); break;
      case ArgumentKind::kLongDouble: values.emplace_back(va_arg(arguments, HostLongDouble)); break;
    }
  }
  return values;
}

}  // namespace kx
