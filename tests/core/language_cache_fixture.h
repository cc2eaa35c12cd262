#ifndef KX_TESTS_CORE_LANGUAGE_CACHE_FIXTURE_H
#define KX_TESTS_CORE_LANGUAGE_CACHE_FIXTURE_H

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "core/language_cache.h"
#include "lang/language_tree.h"

/// A file with one text, whose key is K.
inline std::string File(const std::string& text) { return "Name n\n\nKey K\nValue " + text + "\n"; }

/// A cache of the languages of a tree.
class LanguageCache : public LanguageTree {
 protected:
  LanguageCache() : cache_(std::make_unique<kx::CRealKxXlateCache>(context_)) {}
  ~LanguageCache() override {
    if (cache_ != nullptr) cache_->Clear();
  }

  /// Writes a file of the language directory, whose time of last change is `seconds`.
  void Write(const std::string& file, const std::string& bytes, std::int64_t seconds = 1000) {
    LanguageTree::Write(file, bytes);
    Touch(file, seconds);
  }

  void Remove(const std::string& file) {
    std::filesystem::remove(PathFromUtf8(tree_.Path("lang/" + file)));
  }

  Held Find(const char* name, const char* language, const char* region) {
    return Held(cache_->FindOrLoad(name, language, region));
  }

  Held FindFrench() { return Find("agent", "fr", nullptr); }

  std::unique_ptr<kx::CRealKxXlateCache> cache_;
};

#endif  // KX_TESTS_CORE_LANGUAGE_CACHE_FIXTURE_H
