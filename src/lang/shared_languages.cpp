#include "lang/shared_languages.h"

#include <algorithm>

namespace kx {
namespace {

bool IsUnchanged(const SharedLanguage::File& file) {
  if (!file.isWithin) return true;
  KxFileStatus now;  // stays so when there is nothing of that name
  KxStat(file.candidate.path.c_str(), &now);
  return now == file.seen;
}

}  // namespace

std::shared_ptr<const SharedLanguage> SharedLanguages::FindUnchanged(const Key& key) const {
  const auto found = languages_.find(key);
  if (found == languages_.end()) return nullptr;
  auto language = found->second.lock();
  if (language == nullptr) return nullptr;
  const auto& files = language->files;
  return std::all_of(files.begin(), files.end(), IsUnchanged) ? language : nullptr;
}

void SharedLanguages::Remember(const Key& key,
                               const std::shared_ptr<const SharedLanguage>& language) {
  languages_[key] = language;
}

}  // namespace kx
