// Which of several files for one locale serves it, when they were listed in no order.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "bundles/bundle_of_files.h"

namespace {

using LocaleAndPath = std::pair<std::string, std::string>;

class BundleOrder : public BundleOfFiles {};

TEST_F(BundleOrder, IsThatOfThePathsOnceTheyAreSorted) {
  AddFile("fr", "msg_fr");
  AddFile("FR", "msg_FR");
  bundle_.SortFiles();

  EXPECT_EQ("msg_FR", PathOf(Known("fr")));
  EXPECT_EQ("FR", Known("fr")->Locale());
}

TEST_F(BundleOrder, DecidesWhetherAnAliasTakesThePlaceOfAFile) {
  AddFile("fr_CA", "msg_fr_CA");
  AddFile("fr-CA", "msg_fr-CA");
  AddFile("de-at", "msg_de-at");
  AddFile("DE_AT", "msg_DE_AT");
  bundle_.SortFiles();

  EXPECT_TRUE(Known("fr-CA")->IsFile());
  EXPECT_EQ("msg_fr-CA", PathOf(Known("fr-CA")));
  EXPECT_FALSE(Known("de-at")->IsFile());
  EXPECT_EQ("msg_DE_AT", PathOf(Known("de-at")));
}

TEST_F(BundleOrder, TakesBytesOutsideAsciiForTheGreatest) {
  AddFile("fr", "\xC3\xA9");
  AddFile("FR", "z");
  bundle_.SortFiles();

  EXPECT_EQ("z", PathOf(Known("fr")));
}

TEST_F(BundleOrder, IsSettledBeforeTheDefaultIsCompleted) {
  AddFile("en", "msg_en");
  AddFile("EN", "msg_EN");
  bundle_.SortFiles();
  bundle_.CompleteDefault();

  EXPECT_EQ("msg_EN", Answer("de"));
}

TEST_F(BundleOrder, OfTheListingDoesNotMatterOnceTheyAreSorted) {
  std::vector<LocaleAndPath> files = {{"", "msg.properties"},
                                      {"fr-CA", "msg_fr-CA.properties"},
                                      {"fr_CA", "msg_fr_CA.PROPERTIES"},
                                      {"fr_CA", "msg_fr_CA.properties"},
                                      {"FR_ca", "msg_FR_ca.properties"}};
  do {
    bnd::Bundle<FakeTranslator> bundle("msg");
    for (const auto& [locale, path] : files) bundle.AddFile(Keep(locale, path));
    bundle.SortFiles();
    EXPECT_EQ("msg_FR_ca.properties", PathOf(bundle.Resolve("fr_CA", false)));
    EXPECT_EQ("msg_FR_ca.properties", PathOf(bundle.Resolve("fr-CA", false)));
    EXPECT_EQ("FR-ca", bundle.Resolve("fr-CA", false)->Locale());
    EXPECT_EQ("msg.properties", PathOf(bundle.Resolve("", false)));
  } while (std::next_permutation(files.begin(), files.end()));
}

}  // namespace
