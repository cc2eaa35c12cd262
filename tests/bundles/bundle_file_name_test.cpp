#include "bundles/bundle_file_name.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

namespace {

struct FileNameCase {
  const char* name;
  const char* fileName;
  const char* bundle;
  const char* locale;
};

void PrintTo(const FileNameCase& c, std::ostream* os) { *os << '"' << c.fileName << '"'; }

class BundleFileName : public testing::TestWithParam<FileNameCase> {};

TEST_P(BundleFileName, IsSplit) {
  const FileNameCase& c = GetParam();
  const std::optional<kx::BundleFileName> parts = kx::SplitBundleFileName(c.fileName);

  ASSERT_TRUE(parts.has_value());
  EXPECT_EQ(c.bundle, parts->bundle);
  EXPECT_EQ(c.locale, parts->locale);
}

const FileNameCase kNames[] = {
    {"NoLocale", "messages.properties", "messages", ""},
    {"Language", "messages_fr.properties", "messages", "fr"},
    {"LanguageAndCountry", "messages_fr_CA.properties", "messages", "fr_CA"},
    {"Hyphen", "messages_fr-CA.properties", "messages", "fr-CA"},
    {"Script", "messages_zh_Hant_TW.properties", "messages", "zh_Hant_TW"},
    // The first "_" separates, so a bundle's name can never hold one
    {"BundleEndsAtTheFirstUnderscore", "my_msgs_de.properties", "my", "msgs_de"},
    {"HyphenBelongsToTheBundle", "my-msgs_de.properties", "my-msgs", "de"},
    {"NothingBehindTheUnderscore", "msg_.properties", "msg", ""},
    {"TwoUnderscores", "msg__fr.properties", "msg", "_fr"},
    {"UnderscoreAtTheEnd", "msg_fr_.properties", "msg", "fr_"},
    {"UnderscoreAlone", "_.properties", "", ""},
    {"NoBundle", "_fr.properties", "", "fr"},
    {"SuffixAlone", ".properties", "", ""},
    // Case
    {"UpperCaseSuffix", "msg_fr.PROPERTIES", "msg", "fr"},
    {"MixedCaseSuffix", "msg_fr.PrOpErTiEs", "msg", "fr"},
    {"CaseOfTheNameIsKept", "Msg_FR_ca.properties", "Msg", "FR_ca"},
    // Everything in front of the suffix is a name
    {"DotInTheBundle", "my.msgs_fr.properties", "my.msgs", "fr"},
    {"DotInTheLocale", "msg_fr.CA.properties", "msg", "fr.CA"},
    {"SuffixTwice", "msg.properties.properties", "msg.properties", ""},
    {"SuffixWithinTheLocale", "msg_x.properties.properties", "msg", "x.properties"},
    {"Blanks", " my msgs _ fr .properties", " my msgs ", " fr "},
    {"NotAscii", "\xC3\xA9t\xC3\xA9_\xC3\xA9.properties", "\xC3\xA9t\xC3\xA9", "\xC3\xA9"},
    {"NotUtf8", "\xFF_\xFE.properties", "\xFF", "\xFE"},
    {"PathSeparator", "sub/msg_fr.properties", "sub/msg", "fr"},
};

INSTANTIATE_TEST_SUITE_P(Names, BundleFileName, testing::ValuesIn(kNames),
                         [](const auto& row) { return std::string(row.param.name); });

struct OtherNameCase {
  const char* name;
  const char* fileName;
};

void PrintTo(const OtherNameCase& c, std::ostream* os) { *os << '"' << c.fileName << '"'; }

class OtherFileName : public testing::TestWithParam<OtherNameCase> {};

TEST_P(OtherFileName, IsNoBundleFile) {
  EXPECT_FALSE(kx::SplitBundleFileName(GetParam().fileName).has_value());
}

const OtherNameCase kOtherNames[] = {
    {"Empty", ""},
    {"OneByte", "m"},
    {"ShorterThanTheSuffix", "properties"},
    {"SuffixWithoutItsDot", "msg_frproperties"},
    {"SuffixWithOtherSeparator", "msg_fr-properties"},
    {"SuffixLacksItsEnd", "msg_fr.propertie"},
    {"SomethingBehindTheSuffix", "msg_fr.properties.bak"},
    {"TildeBehindTheSuffix", "msg_fr.properties~"},
    {"BlankBehindTheSuffix", "msg_fr.properties "},
    {"SuffixInFront", ".properties_fr"},
    {"OtherSuffix", "msg_fr.lang"},
    {"NoSuffix", "msg_fr"},
    {"LettersThatOnlyUnicodeFolds", "msg_fr.propertie\xC5\xBF"},
};

INSTANTIATE_TEST_SUITE_P(Names, OtherFileName, testing::ValuesIn(kOtherNames),
                         [](const auto& row) { return std::string(row.param.name); });

struct AliasCase {
  const char* name;
  const char* locale;
  const char* alias;
};

void PrintTo(const AliasCase& c, std::ostream* os) { *os << '"' << c.locale << '"'; }

class HyphenAlias : public testing::TestWithParam<AliasCase> {};

TEST_P(HyphenAlias, IsFormed) { EXPECT_EQ(GetParam().alias, kx::HyphenAlias(GetParam().locale)); }

const AliasCase kAliases[] = {
    {"Country", "fr_CA", "fr-CA"},
    {"EveryUnderscore", "zh_Hant_TW", "zh-Hant-TW"},
    {"CaseIsKept", "FR_ca", "FR-ca"},
    {"HyphensStay", "fr_CA-x_y", "fr-CA-x-y"},
    {"NumericRegion", "es_419", "es-419"},
    {"NothingBehindTheUnderscore", "fr_", "fr-"},
    {"OnlyFromTheThirdByteOn", "_a_b_c", "_a-b-c"},
    {"UnderscoresAlone", "____", "__--"},
    {"BytesAreCounted", "\xC3\xA9_CA", "\xC3\xA9-CA"},
    // No "_" as the third byte: no alias
    {"NoneForTheDefault", "", ""},
    {"NoneForOneByte", "f", ""},
    {"NoneForALanguage", "fr", ""},
    {"NoneForTwoUnderscores", "__", ""},
    {"NoneForALanguageOfThreeBytes", "fil", ""},
    {"NoneForALanguageOfThreeBytesWithCountry", "fil_PH", ""},
    {"NoneForALanguageOfOneByteWithCountry", "x_YY", ""},
    {"NoneForHyphens", "fr-CA", ""},
    {"NoneForHyphenBeforeUnderscore", "zh-Hant_TW", ""},
    {"NoneForUnderscoresInOtherPlacesAlone", "_a-b_c", ""},
};

INSTANTIATE_TEST_SUITE_P(Locales, HyphenAlias, testing::ValuesIn(kAliases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
