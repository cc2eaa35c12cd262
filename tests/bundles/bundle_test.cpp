#include "bundles/bundle.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "bundles/bundle_of_files.h"

namespace {

class Bundle : public BundleOfFiles {};

TEST_F(Bundle, KeepsItsName) { EXPECT_EQ("msg", bundle_.Name()); }

TEST_F(Bundle, KnowsNothingAtFirst) {
  bundle_.CompleteDefault();

  EXPECT_EQ(nullptr, Known(""));
  EXPECT_EQ(nullptr, Known("fr"));
  EXPECT_EQ(nullptr, Ask(""));
  EXPECT_EQ(nullptr, Ask("fr-CA"));
}

TEST_F(Bundle, FileServesItsLocale) {
  Add({"", "fr"});

  Entry* french = Known("fr");
  ASSERT_NE(nullptr, french);
  EXPECT_TRUE(french->IsFile());
  EXPECT_FALSE(french->IsDefault());
  EXPECT_EQ("msg", french->BundleName());
  EXPECT_EQ("fr", french->Locale());
  EXPECT_EQ("msg_fr", french->GetFile()->Path());

  Entry* unlocalised = Known("");
  ASSERT_NE(nullptr, unlocalised);
  EXPECT_TRUE(unlocalised->IsFile());
  EXPECT_TRUE(unlocalised->IsDefault());
  EXPECT_EQ("", unlocalised->Locale());
  EXPECT_EQ("msg", unlocalised->GetFile()->Path());
}

TEST_F(Bundle, LocaleIsFoundInAnyAsciiCase) {
  Add({"fr_CA", "\xC3\xA9"});

  EXPECT_EQ(Known("fr_CA"), Known("FR_ca"));
  EXPECT_EQ(Known("fr-CA"), Known("fR-cA"));
  EXPECT_NE(nullptr, Known("\xC3\xA9"));
  EXPECT_EQ(nullptr, Known("\xC3\x89"));
}

TEST_F(Bundle, FirstFileOfALocaleWins) {
  AddFile("FR", "first");
  AddFile("fr", "second");
  AddFile("", "first default");
  AddFile("", "second default");

  EXPECT_EQ("first", PathOf(Known("fr")));
  EXPECT_EQ("FR", Known("fr")->Locale());
  EXPECT_EQ("first default", PathOf(Known("")));
}

TEST_F(Bundle, FileWithUnderscoresIsKnownWithHyphensToo) {
  Add({"zh_Hant_TW"});

  Entry* alias = Known("zh-Hant-TW");
  ASSERT_NE(nullptr, alias);
  EXPECT_FALSE(alias->IsFile());
  EXPECT_FALSE(alias->IsDefault());
  EXPECT_EQ("msg", alias->BundleName());
  EXPECT_EQ("zh-Hant-TW", alias->Locale());
  EXPECT_EQ(Known("zh_Hant_TW"), alias->GetFile());
  EXPECT_EQ(nullptr, Known("zh-Hant_TW"));
  EXPECT_EQ(nullptr, Known("zh_Hant-TW"));
}

TEST_F(Bundle, AliasTakesNoPlaceOfAFile) {
  AddFile("fr-CA", "hyphen");
  AddFile("fr_CA", "underscore");

  EXPECT_TRUE(Known("fr-CA")->IsFile());
  EXPECT_EQ("hyphen", PathOf(Known("fr-CA")));
  EXPECT_EQ("underscore", PathOf(Known("fr_CA")));
}

TEST_F(Bundle, FileTakesNoPlaceOfAnAlias) {
  AddFile("fr_CA", "underscore");
  AddFile("FR-ca", "hyphen");

  EXPECT_EQ("underscore", PathOf(Known("fr-CA")));
  EXPECT_FALSE(Known("fr-CA")->IsFile());
  EXPECT_EQ("fr-CA", Known("fr-CA")->Locale());
}

TEST_F(Bundle, FileThatCameTooLateAddsNoAlias) {
  AddFile("fr_ca_x", "first");
  const Entry* const alias = Known("fr-CA-X");
  AddFile("FR_CA_X", "second");

  EXPECT_EQ(alias, Known("fr-CA-X"));
  EXPECT_EQ("fr-ca-x", alias->Locale());
}

TEST_F(Bundle, LanguageOfThreeBytesGetsNoAlias) {
  Add({"fil_PH"});

  EXPECT_EQ("msg_fil_PH", PathOf(Known("fil_PH")));
  EXPECT_EQ(nullptr, Known("fil-PH"));
}

TEST_F(Bundle, HyphensGetNoAlias) {
  Add({"fr-CA"});

  EXPECT_EQ(nullptr, Known("fr_CA"));
}

TEST_F(Bundle, EnglishBecomesTheMissingDefault) {
  Add({"En", "fr"});
  bundle_.CompleteDefault();

  Entry* completed = Known("");
  ASSERT_NE(nullptr, completed);
  EXPECT_FALSE(completed->IsFile());
  EXPECT_TRUE(completed->IsDefault());
  EXPECT_EQ("msg", completed->BundleName());
  EXPECT_EQ("", completed->Locale());
  EXPECT_EQ(Known("en"), completed->GetFile());
  EXPECT_FALSE(Known("en")->IsDefault());
}

TEST_F(Bundle, DefaultThatIsThereStays) {
  Add({"", "en"});
  bundle_.CompleteDefault();

  EXPECT_TRUE(Known("")->IsFile());
  EXPECT_EQ("msg", PathOf(Known("")));
}

TEST_F(Bundle, OtherEnglishIsNoDefault) {
  Add({"en_US", "en-GB", "eng", "fr"});
  bundle_.CompleteDefault();

  EXPECT_EQ(nullptr, Known(""));
  EXPECT_EQ(nullptr, Ask("de"));
  EXPECT_EQ(nullptr, Ask("en"));
}

TEST_F(Bundle, NothingFallsBackUnlessAllowed) {
  Add({"", "fr"});

  EXPECT_EQ(nullptr, Known("fr-BE"));
  EXPECT_EQ(nullptr, Known("de"));
  EXPECT_EQ(nullptr, Known("fr-BE"));
}

TEST_F(Bundle, FallbackThroughAnAliasReachesItsFile) {
  Add({"fr_CA"});

  ASSERT_NE(nullptr, Ask("fr-CA-x"));
  EXPECT_EQ(Known("fr_CA"), Known("fr-CA-x")->GetFile());
}

TEST_F(Bundle, EmptyLocaleFallsBackToNothing) {
  Add({"fr", "de", "en_US"});

  EXPECT_EQ(nullptr, Ask(""));
}

}  // namespace
