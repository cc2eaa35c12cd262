#ifndef KX_TESTS_SUPPORT_TEMP_TREE_H
#define KX_TESTS_SUPPORT_TEMP_TREE_H

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

/// A directory of its own for one test; removed with all its contents at the end.
class TempTree {
 public:
  /// So deep below the directory for temporary files that all the directories in which the library
  /// looks above a program of the tree are the tree's own, whatever else lies there.
  TempTree();

  /// Directly in `directory`.
  explicit TempTree(const std::filesystem::path& directory);

  ~TempTree();
  TempTree(const TempTree&) = delete;
  TempTree& operator=(const TempTree&) = delete;

  /// The full path, in UTF-8 and with "/", of a place in the tree; "" is the tree itself.
  std::string Path(std::string_view relative = "") const;

  /// The same as the system itself writes it when it tells a program's place: on Windows with "\\".
  std::string SystemPath(std::string_view relative = "") const;

  /// Writes a file, byte for byte; makes the directories that it needs.
  void Write(std::string_view relative, std::string_view bytes) const;

  void MakeDirectory(std::string_view relative) const;

  /// Sets the time of the last change of a file that is there.
  void SetModified(std::string_view relative, std::chrono::nanoseconds since1970) const;

  /// The bytes of a file; "(no file)" when there is none.
  std::string Read(std::string_view relative) const;

  bool Exists(std::string_view relative) const;

 private:
  std::filesystem::path top_;  ///< what is removed
  std::filesystem::path root_;
};

/// A path for std::filesystem from UTF-8 text, on every platform.
std::filesystem::path PathFromUtf8(std::string_view text);

#endif  // KX_TESTS_SUPPORT_TEMP_TREE_H
