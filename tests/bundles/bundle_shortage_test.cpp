// What is left of a bundle when memory runs out in its first request, which makes its entries.

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "bundles/bundle_of_files.h"
#include "support/failing_new.h"

namespace {

class BundleShortage : public BundleOfFiles {
 protected:
  using Bundle = bnd::Bundle<FakeTranslator>;

  void Fill(Bundle& bundle) {
    const std::string path = "a path of more than sixteen bytes_";
    for (const char* locale : {"zh_Hant_TW", "fr_CA", "en"}) {
      bundle.AddFile(Keep(locale, path + locale));
    }
    bundle.SortFiles();
    bundle.CompleteDefault();
  }

  static void ExpectComplete(Bundle& bundle) {
    for (const char* locale : {"zh_Hant_TW", "zh-Hant-TW", "fr_CA", "fr-CA", "en", ""}) {
      SCOPED_TRACE(locale);
      ASSERT_NE(nullptr, bundle.Resolve(locale, false));
      EXPECT_EQ(locale, bundle.Resolve(locale, false)->Locale());
    }
    for (const auto& [alias, locale] :
         {std::pair{"fr-CA", "fr_CA"}, {"zh-Hant-TW", "zh_Hant_TW"}}) {
      EXPECT_FALSE(bundle.Resolve(alias, false)->IsFile());
      EXPECT_EQ(bundle.Resolve(locale, false), bundle.Resolve(alias, false)->GetFile());
    }
    EXPECT_TRUE(bundle.Resolve("", false)->IsDefault());
    EXPECT_EQ(bundle.Resolve("en", false), bundle.Resolve("", false)->GetFile());
  }
};

TEST_F(BundleShortage, LeavesTheRestToTheNextRequest) {
  // The requests of one bundle, which get a little further each time.
  Bundle resumed("a bundle of some length");
  Fill(resumed);
  EXPECT_GT(FailEachAllocation([&] { resumed.Resolve("zh-Hant-TW-x-y", true); }, [] {}), 5);
  ExpectComplete(resumed);

  // Bundles whose first request fails at each place.
  for (int allowed = 0, failed = 1; failed == 1; ++allowed) {
    Bundle bundle("a bundle of some length");
    Fill(bundle);
    failed = 0;
    try {
      const FailingNew failing(allowed);
      bundle.Resolve("zh-Hant-TW-x-y", true);
    } catch (const std::bad_alloc&) {
      failed = 1;
    }
    ExpectComplete(bundle);
  }
}

}  // namespace
