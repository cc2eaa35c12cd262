#include "support/loaders.h"

#include "floor/flat_table.h"
#include "floor/scan_files.h"
#include "rows/own_texts.h"
#include "support/tree.h"

namespace bench {

namespace {

class FloorLangTexts {
 public:
  explicit FloorLangTexts(int size)
      : table_(ScanLang(TreePath("resources/FR/texts" + std::to_string(size) + "lang.lang"))) {}
  const char* Find(const char* key) const { return table_.Find(key); }

 private:
  FlatTable table_;
};

[[maybe_unused]] const bool kRegistered = RegisterLoader<PropertyTexts>("ours.properties") &&
                                          RegisterLoader<LanguageTexts>("ours.lang") &&
                                          RegisterLoader<FloorTexts>("floor.properties") &&
                                          RegisterLoader<FloorLangTexts>("floor.lang");

}  // namespace

std::map<std::string, Loader>& Loaders() {
  static std::map<std::string, Loader> loaders;
  return loaders;
}

}  // namespace bench
