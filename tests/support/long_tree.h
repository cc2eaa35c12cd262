#ifndef KX_TESTS_SUPPORT_LONG_TREE_H
#define KX_TESTS_SUPPORT_LONG_TREE_H

#include <string>
#include <string_view>

#include "support/temp_tree.h"

/// A directory whose path is far beyond the 260 characters that this system's calls take in their
/// plain form. What the test writes here goes by paths with the prefix that lifts that limit.
class LongTree {
 public:
  LongTree();
  ~LongTree();
  LongTree(const LongTree&) = delete;
  LongTree& operator=(const LongTree&) = delete;

  /// The full path, in UTF-8, with "/" and without the prefix.
  std::string Path(std::string_view relative = "") const;

  /// Makes a directory whose parent is there.
  void MakeDirectory(std::string_view relative) const;

  /// Writes a file into a directory that is there.
  void Write(std::string_view relative, std::string_view bytes) const;

  /// The bytes of a file; "(no file)" when there is none.
  std::string Read(std::string_view relative) const;

 private:
  std::wstring Prefixed(std::string_view relative) const;

  TempTree tree_;
  std::string below_;
};

#endif  // KX_TESTS_SUPPORT_LONG_TREE_H
