#include "bundles/split_locale.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

struct SplitCase {
  const char* name;
  const char* locale;
  int parts;
  const char* language;
  const char* country;
};

void PrintTo(const SplitCase& c, std::ostream* os) { *os << '"' << c.locale << '"'; }

class SplitLocale : public testing::TestWithParam<SplitCase> {};

TEST_P(SplitLocale, Yields) {
  const SplitCase& c = GetParam();
  std::string language = "left over";
  std::string country = "left over";

  EXPECT_EQ(c.parts, kx::SplitLocale(c.locale, language, country));
  EXPECT_EQ(c.language, language);
  EXPECT_EQ(c.country, country);
}

const SplitCase kCases[] = {
    // No separator: all of it is the language, whatever it is
    {"EmptyHasNoPart", "", 0, "", ""},
    {"LanguageAlone", "de", 1, "de", ""},
    {"ThreeLetterLanguage", "fil", 1, "fil", ""},
    {"LanguageOfOneByte", "C", 1, "C", ""},
    {"LanguageIsNotTrimmed", " de ", 1, " de ", ""},
    {"LanguageNeedNotBeAscii", "\xE6\x97\xA5\xE6\x9C\xAC", 1, "\xE6\x97\xA5\xE6\x9C\xAC", ""},

    // One separator
    {"Hyphen", "de-AT", 2, "de", "AT"},
    {"Underscore", "de_AT", 2, "de", "AT"},
    {"CaseIsKept", "DE-at", 2, "DE", "at"},
    {"ThreeLetterLanguageWithCountry", "fil-PH", 2, "fil", "PH"},
    {"EmptyLanguageBeforeHyphen", "-AT", 2, "", "AT"},
    {"EmptyLanguageBeforeUnderscore", "_AT", 2, "", "AT"},
    {"AnyTwoBytesAreACountry", "de-1?", 2, "de", "1?"},
    {"CountryIsCountedInBytes", "de-\xC3\x84", 2, "de", "\xC3\x84"},
    {"TwoCharactersOfThreeBytesAreNoCountry", "de-\xC3\x84X", 1, "de", ""},

    // A last part that is not two bytes long is dropped
    {"HyphenAtTheEnd", "de-", 1, "de", ""},
    {"UnderscoreAtTheEnd", "de_", 1, "de", ""},
    {"LastPartOfOneByte", "de-A", 1, "de", ""},
    {"LastPartOfThreeBytes", "de_AUT", 1, "de", ""},
    {"LastPartOfThreeBytesBehindHyphen", "de-AUT", 1, "de", ""},
    {"NumericRegion", "es_419", 1, "es", ""},
    {"NumericRegionBehindHyphen", "es-419", 1, "es", ""},
    {"ScriptAlone", "zh-Hant", 1, "zh", ""},
    {"Modifier", "de_DE@euro", 1, "de", ""},
    {"HyphenAlone", "-", 1, "", ""},
    {"UnderscoreAlone", "_", 1, "", ""},

    // The hyphen comes before the underscore, and the underscore is not looked for again
    {"SecondUnderscoreIsNoSeparator", "en_US_x", 1, "en", ""},
    {"ScriptBehindUnderscore", "zh_Hant_TW", 1, "zh", ""},
    {"UnderscoreInTheLastPart", "fr-CA_x", 1, "fr", ""},
    {"UnderscoresAsTheLastPart", "fr-__", 2, "fr", "__"},
    {"UnderscoreBeforeTheFirstHyphen", "zh_Hant-TW", 2, "zh_Hant", "TW"},
    {"UnderscoreBeforeALongLastPart", "fr_CA-x", 1, "fr_CA", ""},
    {"EncodingWithHyphen", "en_US.UTF-8", 1, "en_US.UTF", ""},

    // A second part that is not two bytes long is skipped: the third is the country
    {"ScriptBeforeCountry", "zh-Hant-TW", 2, "zh", "TW"},
    {"LanguageOfOneByteBeforeScript", "x-Latn-RS", 2, "x", "RS"},
    {"CountryBehindScriptMayHaveAnyLength", "es-Latn-419", 2, "es", "419"},
    {"CountryBehindSecondPartOfOneByte", "de-x-private", 2, "de", "private"},
    {"EmptySecondPart", "de--AT", 2, "de", "AT"},
    {"EmptyLanguageBeforeScript", "-Hant-TW", 2, "", "TW"},
    {"NothingBehindScript", "zh-Hant-", 2, "zh", ""},
    {"TwoHyphens", "--", 2, "", ""},
    {"UnderscoreInThirdPart", "zh-Hant-TW_x", 2, "zh", "TW_x"},

    // How much of the rest becomes the country is told by the place of the next hyphen, not by its
    // distance, so text behind the country runs into it. Hosts have come to rely on that.
    {"LengthIsThePlaceOfTheSecondHyphen", "en-US-POSIX", 2, "en", "US-PO"},
    {"LengthIsAtMostTheRest", "de-AT-x", 2, "de", "AT-x"},
    {"LengthIsExactlyTheRest", "de-AT-xy", 2, "de", "AT-xy"},
    {"LengthIsOneLessThanTheRest", "de-AT-xyz", 2, "de", "AT-xy"},
    {"LengthIsThePlaceAlsoForPrivateUse", "en-US-x", 2, "en", "US-x"},
    {"LengthIsThePlaceBehindALanguageOfOneByte", "a-bb-cc", 2, "a", "bb-c"},
    {"LengthIsThePlaceBehindALanguageOfThreeBytes", "fil-PH-abcdef", 2, "fil", "PH-abc"},
    {"LengthIsThePlaceBehindAnEmptyLanguage", "-AT-x", 2, "", "AT-"},
    {"LengthIsThePlaceWithAHyphenAtTheEnd", "de-AT-", 2, "de", "AT-"},
    {"LengthIsThePlaceWithMoreHyphens", "de-AT-a-b", 2, "de", "AT-a-"},
    {"LengthIsThePlaceBehindScript", "zh-Hant-TW-x", 2, "zh", "TW-x"},
    {"LengthIsThePlaceBehindScriptCutsLongTexts", "zh-Hant-TW-abcdefghij", 2, "zh", "TW-abcdefg"},
    {"LengthIsThePlaceBehindScriptWithExtensions", "zh-Hans-CN-u-ca-chinese", 2, "zh",
     "CN-u-ca-ch"},
    {"LengthIsThePlaceBehindScriptWithAHyphenAtTheEnd", "zh-Hant-TW-", 2, "zh", "TW-"},
    {"LengthIsThePlaceAmongHyphensAlone", "---", 2, "", "-"},
    {"LengthIsThePlaceAmongManyHyphens", "------", 2, "", "--"},
};

INSTANTIATE_TEST_SUITE_P(Rule, SplitLocale, testing::ValuesIn(kCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SplitLocaleOfStrangers, LongLanguageIsKeptWhole) {
  const std::string locale(200'000, 'a');
  std::string language;
  std::string country;

  EXPECT_EQ(1, kx::SplitLocale(locale, language, country));
  EXPECT_EQ(locale, language);
  EXPECT_EQ("", country);
}

TEST(SplitLocaleOfStrangers, ManyPartsAreCutByTheRule) {
  std::string locale = "a";
  while (locale.size() < 200'000) locale += "-a";
  std::string language;
  std::string country;

  EXPECT_EQ(2, kx::SplitLocale(locale, language, country));
  EXPECT_EQ("a", language);
  EXPECT_EQ("a-a-a", country);
}

TEST(SplitLocaleOfStrangers, OutputsMayHoldLongTextsBefore) {
  std::string language(1000, 'x');
  std::string country(1000, 'x');

  EXPECT_EQ(1, kx::SplitLocale("de_AUT", language, country));
  EXPECT_EQ("de", language);
  EXPECT_EQ("", country);
}

}  // namespace
