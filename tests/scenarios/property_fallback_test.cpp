#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "bundles/properties_xlate.h"
#include "bundles/xlate_manager.h"
#include "platform/directories.h"
#include "support/temp_tree.h"

namespace {

struct BundleFile {
  const char* name;
  const char* bytes;
};

struct FallbackCase {
  const char* name;
  std::vector<BundleFile> files;
  const char* bundle;
  const char* locale;
  const char* text;    ///< of the key "K"
  const char* origin;  ///< the name of the file that answers
};

void PrintTo(const FallbackCase& c, std::ostream* os) {
  *os << c.bundle << " in \"" << c.locale << '"';
}

constexpr const char* kNothing = "(nothing)";

class PropertyFallback : public testing::TestWithParam<FallbackCase> {
 protected:
  void Check(const XlateManager& manager) const {
    const FallbackCase& c = GetParam();
    CKxXlate* const translator = kx::GetPropertiesBundle(&manager, c.bundle, c.locale);
    bnd::BundleBase<CKxXlate>* const entry = manager.FindEntry(c.bundle, c.locale);
    if (std::string_view(c.text) == kNothing) {
      EXPECT_EQ(nullptr, translator);
      EXPECT_EQ(nullptr, entry);
      return;
    }
    ASSERT_NE(nullptr, translator);
    ASSERT_NE(nullptr, entry);
    EXPECT_STREQ(c.text, translator->GetText("K"));
    EXPECT_EQ(manager.Root() + '/' + c.origin, entry->GetFile()->Path());
    translator->Release();
  }
};

TEST_P(PropertyFallback, Answers) {
  TempTree tree;
  for (const BundleFile& file : GetParam().files) tree.Write(file.name, file.bytes);
  XlateManager manager(tree.Path());
  ASSERT_EQ(0, KxTraverseDirectory(manager.Root().c_str(), &manager));
  manager.CompleteDefaults();

  Check(manager);
  Check(manager);
  // What is remembered of other requests changes no answer.
  for (const char* locale :
       {"fr-CA-x", "fr-BE", "FR_ca", "de-DE", "en-GB", "zh-Hant-TW", "", "C"}) {
    for (const char* bundle : {"msg", "Msg", "my", "none"}) manager.FindEntry(bundle, locale);
  }
  Check(manager);
}

const std::vector<BundleFile> kFrench = {{"msg.properties", "K=default\n"},
                                         {"msg_fr.properties", "K=French\n"},
                                         {"msg_fr_CA.properties", "K=Canadian\n"}};
const std::vector<BundleFile> kEnglishAndFrench = {{"msg_en.properties", "K=English\n"},
                                                   {"msg_fr.properties", "K=French\n"}};
const std::vector<BundleFile> kFrenchAlone = {{"msg_fr.properties", "K=French\n"}};
const std::vector<BundleFile> kChinese = {{"msg.properties", "K=default\n"},
                                          {"msg_zh.properties", "K=Chinese\n"},
                                          {"msg_zh_Hant.properties", "K=traditional\n"},
                                          {"msg_zh_Hant_TW.properties", "K=Taiwanese\n"}};
const std::vector<BundleFile> kFilipino = {{"msg.properties", "K=default\n"},
                                           {"msg_fil_PH.properties", "K=Philippine\n"}};
const std::vector<BundleFile> kHyphen = {{"msg.properties", "K=default\n"},
                                         {"msg_fr-CA.properties", "K=hyphen\n"}};
const std::vector<BundleFile> kBothSpellings = {{"msg_fr-CA.properties", "K=hyphen\n"},
                                                {"msg_fr_CA.properties", "K=underscore\n"}};
const std::vector<BundleFile> kTwoBundles = {{"Msg_fr.properties", "K=capital\n"},
                                             {"msg_de.properties", "K=small\n"}};
const std::vector<BundleFile> kUnderscoredName = {{"my_msgs_de.properties", "K=German\n"}};
const std::vector<BundleFile> kOddNames = {{"msg.properties", "K=default\n"},
                                           {"msg_.properties", "K=too late\n"},
                                           {"msg_es_419.PROPERTIES", "K=American\n"},
                                           {"msg_x_YY.properties", "K=short\n"},
                                           {"msg_\xC3\xA9.properties", "K=accent\n"}};

const FallbackCase kCases[] = {
    // A bundle with a default, a language and a country
    {"Language", kFrench, "msg", "fr", "French", "msg_fr.properties"},
    {"Country", kFrench, "msg", "fr_CA", "Canadian", "msg_fr_CA.properties"},
    {"CountryWithHyphen", kFrench, "msg", "fr-CA", "Canadian", "msg_fr_CA.properties"},
    {"CountryInOtherCase", kFrench, "msg", "FR_ca", "Canadian", "msg_fr_CA.properties"},
    {"CountryWithHyphenInOtherCase", kFrench, "msg", "fR-Ca", "Canadian", "msg_fr_CA.properties"},
    {"OtherCountry", kFrench, "msg", "fr-BE", "French", "msg_fr.properties"},
    {"OtherCountryWithUnderscore", kFrench, "msg", "fr_BE", "French", "msg_fr.properties"},
    {"OtherLanguage", kFrench, "msg", "de-DE", "default", "msg.properties"},
    {"EnglishIsNothingSpecialBesideADefault", kFrench, "msg", "en", "default", "msg.properties"},
    {"EmptyLocale", kFrench, "msg", "", "default", "msg.properties"},
    {"Variant", kFrench, "msg", "fr_CA_x", "Canadian", "msg_fr_CA.properties"},
    {"VariantWithHyphens", kFrench, "msg", "fr-CA-x", "Canadian", "msg_fr_CA.properties"},
    {"VariantBehindHyphen", kFrench, "msg", "fr_CA-x", "Canadian", "msg_fr_CA.properties"},
    {"VariantBehindUnderscoreIsCutWithItsCountry", kFrench, "msg", "fr-CA_x", "French",
     "msg_fr.properties"},
    {"HyphenAtTheEnd", kFrench, "msg", "fr-", "French", "msg_fr.properties"},
    {"UnderscoreAtTheEnd", kFrench, "msg", "fr_", "French", "msg_fr.properties"},
    {"TwoHyphens", kFrench, "msg", "fr--CA", "French", "msg_fr.properties"},
    {"CountryWithoutALanguage", kFrench, "msg", "-CA", "default", "msg.properties"},
    {"HyphenAlone", kFrench, "msg", "-", "default", "msg.properties"},
    {"UnderscoresAlone", kFrench, "msg", "___", "default", "msg.properties"},
    {"LongerLanguage", kFrench, "msg", "fra", "default", "msg.properties"},
    {"ShorterLanguage", kFrench, "msg", "f", "default", "msg.properties"},
    // What hosts and strangers send that is no locale of ours
    {"EncodingWithHyphenTakesTheCountryAlong", kFrench, "msg", "fr_CA.UTF-8", "French",
     "msg_fr.properties"},
    {"EncodingWithoutHyphen", kFrench, "msg", "fr_CA.utf8", "French", "msg_fr.properties"},
    {"Modifier", kFrench, "msg", "fr_CA@euro", "French", "msg_fr.properties"},
    {"PosixLocale", kFrench, "msg", "C", "default", "msg.properties"},
    {"BlankInFront", kFrench, "msg", " fr", "default", "msg.properties"},
    {"BlankBehind", kFrench, "msg", "fr ", "default", "msg.properties"},
    {"RequestHeader", kFrench, "msg", "fr-CA,fr;q=0.8", "French", "msg_fr.properties"},
    {"Wildcard", kFrench, "msg", "*", "default", "msg.properties"},
    {"OtherDirectory", kFrench, "msg", "../msg_fr", "default", "msg.properties"},
    {"LineFeed", kFrench, "msg", "fr\nCA", "default", "msg.properties"},
    {"PercentSigns", kFrench, "msg", "%s%n", "default", "msg.properties"},
    {"NotUtf8", kFrench, "msg", "fr-\xFF", "French", "msg_fr.properties"},
    {"LongerThanRemembered", kFrench, "msg",
     "fr-CA-xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", "Canadian",
     "msg_fr_CA.properties"},
    // English completes a bundle that has no default
    {"EnglishForOtherLanguage", kEnglishAndFrench, "msg", "de", "English", "msg_en.properties"},
    {"EnglishForOtherCountry", kEnglishAndFrench, "msg", "de_AT", "English", "msg_en.properties"},
    {"EnglishForEmptyLocale", kEnglishAndFrench, "msg", "", "English", "msg_en.properties"},
    {"EnglishForItself", kEnglishAndFrench, "msg", "EN-gb", "English", "msg_en.properties"},
    {"NoEnglishForALanguageOfItsOwn", kEnglishAndFrench, "msg", "fr-CA", "French",
     "msg_fr.properties"},
    {"EnglishInCapitals",
     {{"msg_EN.properties", "K=capital\n"}},
     "msg",
     "de",
     "capital",
     "msg_EN.properties"},
    {"DefaultBeforeEnglish",
     {{"msg.properties", "K=default\n"}, {"msg_en.properties", "K=English\n"}},
     "msg",
     "de",
     "default",
     "msg.properties"},
    {"EnglishBesideADefault",
     {{"msg.properties", "K=default\n"}, {"msg_en.properties", "K=English\n"}},
     "msg",
     "en-GB",
     "English",
     "msg_en.properties"},
    {"OneEnglishCountryIsNoDefault",
     {{"msg_en_US.properties", "K=American\n"}},
     "msg",
     "de",
     kNothing,
     ""},
    {"OneEnglishCountryIsNotTheLanguage",
     {{"msg_en_US.properties", "K=American\n"}},
     "msg",
     "en",
     kNothing,
     ""},
    {"OneEnglishCountryIsNotAnother",
     {{"msg_en_US.properties", "K=American\n"}},
     "msg",
     "en-GB",
     kNothing,
     ""},
    // Neither a default nor English
    {"NothingForOtherLanguage", kFrenchAlone, "msg", "de", kNothing, ""},
    {"NothingForOtherCountry", kFrenchAlone, "msg", "de-DE", kNothing, ""},
    {"NothingForEmptyLocale", kFrenchAlone, "msg", "", kNothing, ""},
    {"NothingForSeparators", kFrenchAlone, "msg", "-_-", kNothing, ""},
    {"NothingForEnglish", kFrenchAlone, "msg", "en", kNothing, ""},
    {"LanguageWithoutADefault", kFrenchAlone, "msg", "fr-CA", "French", "msg_fr.properties"},
    {"LanguageBehindFailures", kFrenchAlone, "msg", "fr-CA-x-y", "French", "msg_fr.properties"},
    // Scripts
    {"Script", kChinese, "msg", "zh-Hant", "traditional", "msg_zh_Hant.properties"},
    {"ScriptAndCountry", kChinese, "msg", "zh-Hant-TW", "Taiwanese", "msg_zh_Hant_TW.properties"},
    {"ScriptAndCountryInOtherCase", kChinese, "msg", "ZH-hANT-tw", "Taiwanese",
     "msg_zh_Hant_TW.properties"},
    {"ScriptAndOtherCountry", kChinese, "msg", "zh-Hant-HK", "traditional",
     "msg_zh_Hant.properties"},
    {"ScriptAndOtherCountryWithUnderscores", kChinese, "msg", "zh_Hant_HK", "traditional",
     "msg_zh_Hant.properties"},
    {"OtherScript", kChinese, "msg", "zh-Hans-CN", "Chinese", "msg_zh.properties"},
    {"CountryWithoutItsScript", kChinese, "msg", "zh-TW", "Chinese", "msg_zh.properties"},
    {"UnderscoreBehindHyphenIsCutWithTheScript", kChinese, "msg", "zh-Hant_TW", "Chinese",
     "msg_zh.properties"},
    {"HyphenBehindUnderscoreLeavesTheScript", kChinese, "msg", "zh_Hant-TW", "traditional",
     "msg_zh_Hant.properties"},
    // Spellings of the file's name
    {"LongLanguageIsKnownAsSpelled", kFilipino, "msg", "fil_ph", "Philippine",
     "msg_fil_PH.properties"},
    {"LongLanguageIsNotKnownWithHyphen", kFilipino, "msg", "fil-PH", "default", "msg.properties"},
    {"HyphenInTheName", kHyphen, "msg", "FR-CA", "hyphen", "msg_fr-CA.properties"},
    {"HyphenInTheNameIsNotKnownWithUnderscore", kHyphen, "msg", "fr_CA", "default",
     "msg.properties"},
    {"HyphenFileKeepsItsSpelling", kBothSpellings, "msg", "fr-ca", "hyphen",
     "msg_fr-CA.properties"},
    {"UnderscoreFileKeepsItsSpelling", kBothSpellings, "msg", "fr_ca", "underscore",
     "msg_fr_CA.properties"},
    {"UpperCaseSuffixAndNumericRegion", kOddNames, "msg", "es-419", "American",
     "msg_es_419.PROPERTIES"},
    {"NumericRegionIsNotItsLanguage", kOddNames, "msg", "es-MX", "default", "msg.properties"},
    {"ShortLanguageIsKnownAsSpelled", kOddNames, "msg", "X_yy", "short", "msg_x_YY.properties"},
    {"ShortLanguageIsNotKnownWithHyphen", kOddNames, "msg", "x-YY", "default", "msg.properties"},
    {"LettersOutsideAsciiAreExact", kOddNames, "msg", "\xC3\xA9-x", "accent",
     "msg_\xC3\xA9.properties"},
    {"LettersOutsideAsciiHaveNoOtherCase", kOddNames, "msg", "\xC3\x89", "default",
     "msg.properties"},
    {"FirstOfTwoDefaults", kOddNames, "msg", "", "default", "msg.properties"},
    // Names of bundles
    {"CapitalBundle", kTwoBundles, "Msg", "fr", "capital", "Msg_fr.properties"},
    {"SmallBundle", kTwoBundles, "msg", "DE", "small", "msg_de.properties"},
    {"CapitalBundleHasNoSmallFiles", kTwoBundles, "Msg", "de", kNothing, ""},
    {"SmallBundleHasNoCapitalFiles", kTwoBundles, "msg", "fr", kNothing, ""},
    {"OtherCaseIsNoBundle", kTwoBundles, "MSG", "fr", kNothing, ""},
    {"UnknownBundle", kFrench, "other", "fr", kNothing, ""},
    {"EmptyBundle", kFrench, "", "fr", kNothing, ""},
    {"BundleWithItsLocale", kFrench, "msg_fr", "", kNothing, ""},
    {"BundleWithItsSuffix", kFrench, "msg.properties", "fr", kNothing, ""},
    {"BundleWithBlank", kFrench, "msg ", "fr", kNothing, ""},
    {"NameSplitAtTheFirstUnderscore", kUnderscoredName, "my", "msgs_de", "German",
     "my_msgs_de.properties"},
    {"NameWithUnderscoreIsNoBundle", kUnderscoredName, "my_msgs", "de", kNothing, ""},
    {"NoFiles", {}, "msg", "fr", kNothing, ""},
};

INSTANTIATE_TEST_SUITE_P(Requests, PropertyFallback, testing::ValuesIn(kCases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
