#include "support/temp_tree.h"

#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "support/modified_time.h"

namespace {

/// Three directories, since the library looks beside a program and in three more above.
constexpr char kBelowTop[] = "of/one/test";

std::filesystem::path NewDirectoryIn(const std::filesystem::path& directory) {
  std::random_device random;
  std::filesystem::path made;
  do {
    made = directory / ("kxxlate-" + std::to_string(random()));
  } while (!std::filesystem::create_directory(made));
  return made;
}

}  // namespace

std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

// Without links, as the system tells a program's place.
TempTree::TempTree()
    : top_(NewDirectoryIn(std::filesystem::canonical(std::filesystem::temp_directory_path()))),
      root_(top_ / kBelowTop) {
  std::filesystem::create_directories(root_);
}

TempTree::TempTree(const std::filesystem::path& directory)
    : top_(NewDirectoryIn(directory)), root_(top_) {}

TempTree::~TempTree() {
  // Not remove_all, which on Windows tries for ever when a file is still open, as a log always is.
  using Entries = std::filesystem::recursive_directory_iterator;
  std::error_code ignored;  // a test that failed may have left something that cannot be removed
  std::vector<std::filesystem::path> found = {top_};
  for (Entries entry(top_, ignored); entry != Entries(); entry.increment(ignored)) {
    found.push_back(entry->path());
  }
  // What lies in a directory was found behind it.
  while (!found.empty()) {
    std::filesystem::remove(found.back(), ignored);
    found.pop_back();
  }
}

std::string TempTree::Path(std::string_view relative) const {
  const std::u8string path = (root_ / PathFromUtf8(relative)).generic_u8string();
  std::string text(path.begin(), path.end());
  if (relative.empty()) text.pop_back();  // joining with nothing leaves a separator
  return text;
}

std::string TempTree::SystemPath(std::string_view relative) const {
  const std::u8string path = PathFromUtf8(Path(relative)).make_preferred().u8string();
  return std::string(path.begin(), path.end());
}

void TempTree::Write(std::string_view relative, std::string_view bytes) const {
  const std::filesystem::path path = root_ / PathFromUtf8(relative);
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("cannot write " + Path(relative));
}

void TempTree::MakeDirectory(std::string_view relative) const {
  std::filesystem::create_directories(root_ / PathFromUtf8(relative));
}

void TempTree::SetModified(std::string_view relative, std::chrono::nanoseconds since1970) const {
  SetModifiedTime(Path(relative), since1970);
}

std::string TempTree::Read(std::string_view relative) const {
  std::ifstream file(root_ / PathFromUtf8(relative), std::ios::binary);
  if (!file) return "(no file)";
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

bool TempTree::Exists(std::string_view relative) const {
  return std::filesystem::exists(root_ / PathFromUtf8(relative));
}
