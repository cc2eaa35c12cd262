#include "platform/directories.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

struct Entry {
  std::string name;
  bool isDirectory;
};

class Entries final : public CKxTraverseCallback {
 public:
  bool OnEntry(const char* name, bool isDirectory) override {
    all.push_back({name, isDirectory});
    return true;
  }

  std::vector<Entry> all;
};

}  // namespace

int KxTraverseDirectory(const char* directory, CKxTraverseCallback* callback) {
  Entries entries;
  if (KxTraverseUnsorted(directory, &entries) != 0) return -1;
  std::sort(entries.all.begin(), entries.all.end(),
            [](const Entry& a, const Entry& b) { return a.name < b.name; });
  for (const Entry& entry : entries.all) {
    if (!callback->OnEntry(entry.name.c_str(), entry.isDirectory)) break;
  }
  return 0;
}
