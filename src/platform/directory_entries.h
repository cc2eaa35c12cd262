#ifndef KX_PLATFORM_DIRECTORY_ENTRIES_H
#define KX_PLATFORM_DIRECTORY_ENTRIES_H

#include <string>
#include <vector>

namespace kx {

/// One entry of a directory, as the system listed it.
struct DirectoryEntry {
  std::string name;
  bool isDirectory;
};

/// The entries of `directory` in the system's order; false when it cannot be read.
bool ListDirectory(const char* directory, std::vector<DirectoryEntry>& entries);

}  // namespace kx

#endif  // KX_PLATFORM_DIRECTORY_ENTRIES_H
