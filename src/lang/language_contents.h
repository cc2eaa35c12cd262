#ifndef KX_LANG_LANGUAGE_CONTENTS_H
#define KX_LANG_LANGUAGE_CONTENTS_H

#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/key_hash.h"

namespace kx {

/// Interned values by key; a key is found in any ASCII case. Only changed while files are read.
class LanguageTable {
 public:
  /// The value of `key`, or null. Allocates nothing.
  const char* Find(std::string_view key) const {
    const auto found = values_.find(key);
    return found == values_.end() ? nullptr : found->second;
  }

  /// Replaces the value that `key` has in whatever case.
  void Set(const std::string& key, const char* value) { values_[key] = value; }

 private:
  std::unordered_map<std::string, const char*, KeyHash, KeyEqual> values_;
};

/// What the files of a language say. Each file that is read replaces what it names and leaves the
/// rest, so the file read last wins. All pointers are interned strings.
struct LanguageContents {
  const char* longName = nullptr;
  const char* imageDirectory = nullptr;
  std::string charset;
  std::string direction;
  const char* promptSuffix = nullptr;
  /// Kept for people who look at the object in a debugger; nothing asks for it.
  bool debug = false;
  LanguageTable texts;
  LanguageTable labels;
  LanguageTable directories;
};

}  // namespace kx

#endif  // KX_LANG_LANGUAGE_CONTENTS_H
