#ifndef KX_TESTS_BUNDLES_BUNDLE_OF_FILES_H
#define KX_TESTS_BUNDLES_BUNDLE_OF_FILES_H

#include <gtest/gtest.h>

#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <vector>

#include "bundles/bundle.h"

/// A bundle "msg" whose files lie at "msg_LOCALE", and what it knows of locales.
class BundleOfFiles : public testing::Test {
 protected:
  struct FakeTranslator {
    void Release() {}
  };

  using Entry = bnd::BundleBase<FakeTranslator>;

  void Add(const std::vector<std::string>& locales) {
    for (const std::string& locale : locales) {
      AddFile(locale, locale.empty() ? "msg" : "msg_" + locale);
    }
  }

  void AddFile(const std::string& locale, const std::string& path) {
    bundle_.AddFile(Keep(locale, path));
  }

  /// A file that is kept until the test ends.
  bnd::ListedFile& Keep(const std::string& locale, const std::string& path) {
    const auto size = [](const std::string& text) {
      return static_cast<std::uint32_t>(text.size());
    };
    texts_.push_back(path + locale);
    return files_.emplace_back(bnd::ListedFile{texts_.back().data(), size(path), size(locale)});
  }

  Entry* Known(std::string_view locale) { return bundle_.Resolve(locale, false); }
  Entry* Ask(std::string_view locale) { return bundle_.Resolve(locale, true); }

  /// The path of the file that answers with fallback.
  std::string Answer(std::string_view locale) { return PathOf(Ask(locale)); }

  static std::string PathOf(Entry* entry) {
    return entry == nullptr ? "(nothing)" : entry->GetFile()->Path();
  }

  std::list<std::string> texts_;  // of the files
  std::list<bnd::ListedFile> files_;
  bnd::Bundle<FakeTranslator> bundle_{"msg"};
};

#endif  // KX_TESTS_BUNDLES_BUNDLE_OF_FILES_H
