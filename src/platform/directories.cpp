#include "platform/directories.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/directory_entries.h"

int KxTraverseDirectory(const char* directory, CKxTraverseCallback* callback) {
  std::vector<kx::DirectoryEntry> entries;
  if (!kx::ListDirectory(directory, entries)) return -1;
  std::sort(entries.begin(), entries.end(),
            [](const auto& a, const auto& b) { return a.name < b.name; });
  for (const kx::DirectoryEntry& entry : entries) {
    if (!callback->OnEntry(entry.name.c_str(), entry.isDirectory)) break;
  }
  return 0;
}
