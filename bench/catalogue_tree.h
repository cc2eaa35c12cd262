#ifndef KX_BENCH_CATALOGUE_TREE_H
#define KX_BENCH_CATALOGUE_TREE_H

#include <filesystem>
#include <string>

/// A directory of generated catalogues, which the library uses from the first call of Use on.
class CatalogueTree {
 public:
  /// Keys of each generated catalogue.
  static constexpr int kKeys = 10000;

  /// Bundles that were not asked for yet, to measure the load of a file: load0, load1, ...
  static constexpr int kLoadBundles = 200;

  /// The one tree of the process; made, and put into use, by the first call.
  static const CatalogueTree& Use();

  ~CatalogueTree();
  CatalogueTree(const CatalogueTree&) = delete;
  CatalogueTree& operator=(const CatalogueTree&) = delete;

  /// The key of a text, 0 to kKeys - 1.
  static std::string Key(int number);

 private:
  CatalogueTree();

  std::filesystem::path root_;
};

#endif  // KX_BENCH_CATALOGUE_TREE_H
