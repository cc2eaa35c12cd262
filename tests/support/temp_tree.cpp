#include "support/temp_tree.h"

#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>

std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

TempTree::TempTree() {
  std::random_device random;
  do {
    root_ = std::filesystem::temp_directory_path() / ("kxxlate-" + std::to_string(random()));
  } while (!std::filesystem::create_directory(root_));
}

TempTree::~TempTree() {
  std::error_code ignored;  // a test that failed may have left something that cannot be removed
  std::filesystem::remove_all(root_, ignored);
}

std::string TempTree::Path(std::string_view relative) const {
  const std::u8string path = (root_ / PathFromUtf8(relative)).generic_u8string();
  std::string text(path.begin(), path.end());
  if (relative.empty()) text.pop_back();  // joining with nothing leaves a separator
  return text;
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
