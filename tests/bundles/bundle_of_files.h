#ifndef KX_TESTS_BUNDLES_BUNDLE_OF_FILES_H
#define KX_TESTS_BUNDLES_BUNDLE_OF_FILES_H

#include <gtest/gtest.h>

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
      bundle_.AddFile(locale, locale.empty() ? "msg" : "msg_" + locale);
    }
  }

  Entry* Known(std::string_view locale) { return bundle_.Resolve(locale, false); }
  Entry* Ask(std::string_view locale) { return bundle_.Resolve(locale, true); }

  /// The path of the file that answers with fallback.
  std::string Answer(std::string_view locale) { return PathOf(Ask(locale)); }

  static std::string PathOf(Entry* entry) {
    return entry == nullptr ? "(nothing)" : entry->GetFile()->Path();
  }

  bnd::Bundle<FakeTranslator> bundle_{"msg"};
};

#endif  // KX_TESTS_BUNDLES_BUNDLE_OF_FILES_H
