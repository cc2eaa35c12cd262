#include "support/tree.h"

#include <cstdlib>

namespace bench {

std::string TreePath(const std::string& relative) {
  const char* root = std::getenv("TAVI_XLATE_ROOT");
  return std::string(root == nullptr ? "." : root) + "/" + relative;
}

}  // namespace bench
