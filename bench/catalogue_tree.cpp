#include "catalogue_tree.h"

#include <fstream>
#include <random>
#include <sstream>

#include "CKxXlate.h"

namespace {

std::string PropertiesOfAllKeys() {
  std::ostringstream text;
  for (int number = 0; number < CatalogueTree::kKeys; ++number) {
    text << CatalogueTree::Key(number) << " = The task %0 on server %1 ended with state " << number
         << ".\n";
  }
  return text.str();
}

std::string LanguageOfAllKeys() {
  std::ostringstream text;
  text << "Name French\n\n";
  for (int number = 0; number < CatalogueTree::kKeys; ++number) {
    text << "Key " << CatalogueTree::Key(number)
         << "\nValue The task %0 on server %1 ended with state " << number << ".\n";
  }
  return text.str();
}

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace

const CatalogueTree& CatalogueTree::Use() {
  static const CatalogueTree tree;
  return tree;
}

CatalogueTree::CatalogueTree() {
  root_ = std::filesystem::temp_directory_path() /
          ("kxxlate-bench-" + std::to_string(std::random_device()()));
  std::filesystem::create_directory(root_);
  const std::string properties = PropertiesOfAllKeys();
  for (const char* locale : {"", "_fr", "_fr_CA", "_de"}) {
    WriteFile(root_ / ("bench" + std::string(locale) + ".properties"), properties);
  }
  for (int number = 0; number < kLoadBundles; ++number) {
    WriteFile(root_ / ("load" + std::to_string(number) + ".properties"), properties);
  }
  std::filesystem::create_directory(root_ / "FR");
  WriteFile(root_ / "FR" / "language.lang", LanguageOfAllKeys());
  CKxXlate::SetResourceDirectory(root_.string().c_str());
}

CatalogueTree::~CatalogueTree() { std::filesystem::remove_all(root_); }

std::string CatalogueTree::Key(int number) { return "TASK_ENDED_STATE_" + std::to_string(number); }
