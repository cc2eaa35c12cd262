#ifndef KX_BENCH_TREE_H
#define KX_BENCH_TREE_H

#include <string>

namespace bench {

/// A path below the directory of generated catalogues, which TAVI_XLATE_ROOT names so that the
/// library finds its own part of it when it is loaded.
std::string TreePath(const std::string& relative);

}  // namespace bench

#endif  // KX_BENCH_TREE_H
