#include "arguments.h"

std::vector<std::string> Utf8Arguments(int count, char** values) {
  // A process may be started without even its own name.
  if (count < 1) return {};
  return {values + 1, values + count};
}
