#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "KxXlate.hpp"

namespace {

struct NegotiationCase {
  const char* name;
  const char* header;
  std::vector<std::string> locales;
  const char* locale;
};

void PrintTo(const NegotiationCase& c, std::ostream* os) { *os << '"' << c.header << '"'; }

class FaceNegotiate : public testing::TestWithParam<NegotiationCase> {};

TEST_P(FaceNegotiate, Picks) {
  EXPECT_EQ(GetParam().locale, kx::negotiate(GetParam().header, GetParam().locales));
}

std::string CaseName(const testing::TestParamInfo<NegotiationCase>& test) {
  return test.param.name;
}

const std::vector<std::string> kSome = {"de", "en", "fr", "fr_CA", "zh-Hant-TW"};

// Each range is cut from its end until it is a locale that is there.
INSTANTIATE_TEST_SUITE_P(
    Lookup, FaceNegotiate,
    testing::Values(
        NegotiationCase{"Exact", "fr", kSome, "fr"},
        NegotiationCase{"HyphenForUnderscore", "fr-CA", kSome, "fr_CA"},
        NegotiationCase{"AnyCase", "FR-ca", kSome, "fr_CA"},
        NegotiationCase{"Parent", "fr-CH", kSome, "fr"},
        NegotiationCase{"Grandparent", "fr-CA-x-private", kSome, "fr_CA"},
        NegotiationCase{"SingleLetterGoesWithWhatItIntroduces", "de-x-de", {"de-x", "de"}, "de"},
        NegotiationCase{"SingleLettersGoTogether", "de-x-a-de", {"de-x", "de", "zh-Hant-TW"}, "de"},
        NegotiationCase{"NeverMoreSpecific", "zh", kSome, ""},
        NegotiationCase{"NotAPartOfAWord", "fra", kSome, ""},
        NegotiationCase{"SpelledAsInstalled", "zh-hant-tw", {"ZH_hANT_tw"}, "ZH_hANT_tw"},
        NegotiationCase{"FirstOfTwoSpellings", "fr-ca", {"FR-CA", "fr_CA"}, "FR-CA"},
        NegotiationCase{"NoneFits", "ja, ko", kSome, ""},
        NegotiationCase{"NothingAsked", "", kSome, ""},
        NegotiationCase{"NothingInstalled", "fr, *", {}, ""},
        NegotiationCase{"DefaultIsNoLocale", "*", {""}, ""}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Weights, FaceNegotiate,
    testing::Values(NegotiationCase{"OrderWhereEqual", "de, fr", kSome, "de"},
                    NegotiationCase{"HeaviestFirst", "de;q=0.5, fr;q=0.8", kSome, "fr"},
                    NegotiationCase{"NoneIsOne", "de;q=0.999, fr", kSome, "fr"},
                    NegotiationCase{"Thousandths", "de;q=0.001, fr;q=0.002", kSome, "fr"},
                    NegotiationCase{"Spaces", " de ; q=0.1 ,\tfr\t;\tq=0.2 ", kSome, "fr"},
                    NegotiationCase{"CapitalQ", "de;Q=0.1, fr;Q=0.2", kSome, "fr"},
                    NegotiationCase{"PointWithoutDigits", "de;q=0., fr;q=1.", kSome, "fr"},
                    NegotiationCase{"ParentOfTheHeaviest", "fr-CH, de;q=0.9", kSome, "fr"},
                    NegotiationCase{"FirstOfTwoForOneRange", "fr;q=0.1, de;q=0.5, fr", kSome,
                                    "de"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Exclusion, FaceNegotiate,
    testing::Values(NegotiationCase{"ZeroIsNotWanted", "fr;q=0", kSome, ""},
                    NegotiationCase{"ZeroWithDigits", "fr;q=0.000, *", {"fr", "de"}, "de"},
                    NegotiationCase{"OfAllBelow", "fr;q=0, *;q=0.1", {"fr_CA", "de"}, "de"},
                    NegotiationCase{"NotOfWhatIsNamed", "fr;q=0, fr-CA;q=0.1", kSome, "fr_CA"},
                    NegotiationCase{"OfAParent", "de-AT, de;q=0, en;q=0.1", kSome, "en"},
                    NegotiationCase{"OfEverythingElse", "fr-CA, *;q=0", {"fr", "de"}, ""},
                    NegotiationCase{"OfEverythingElseButThis", "de, *;q=0", kSome, "de"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Wildcard, FaceNegotiate,
    testing::Values(
        NegotiationCase{"IsTheFirst", "*", kSome, "de"},
        NegotiationCase{"IsTheFirstThatIsNotNamed", "*, de;q=0.5, en;q=0.7", kSome, "fr"},
        NegotiationCase{"IsTheFirstWhereAllAreNamed", "*, fr;q=0.5", {"fr", "fr_CA"}, "fr"},
        NegotiationCase{"ComesInItsTurn", "ja, *;q=0.5, en;q=0.1", kSome, "de"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Malformed, FaceNegotiate,
    testing::Values(NegotiationCase{"Weight", "fr;q=high, de;q=0.1", kSome, "de"},
                    NegotiationCase{"WeightAboveOne", "fr;q=1.001, de;q=0.1", kSome, "de"},
                    NegotiationCase{"WeightOfFourDigits", "fr;q=0.1234, de;q=0.1", kSome, "de"},
                    NegotiationCase{"WeightNegative", "fr;q=-1, de;q=0.1", kSome, "de"},
                    NegotiationCase{"WeightMissing", "fr;q=, de;q=0.1", kSome, "de"},
                    NegotiationCase{"NoWeightBehindASemicolon", "fr;, de;q=0.1", kSome, "de"},
                    NegotiationCase{"OtherParameter", "fr;level=1, de;q=0.1", kSome, "de"},
                    NegotiationCase{"TwoParameters", "fr;q=1;q=1, de;q=0.1", kSome, "de"},
                    NegotiationCase{"Underscore", "fr_CA, de;q=0.1", kSome, "de"},
                    NegotiationCase{"EmptyPart", "fr--CA, -fr, fr-, de;q=0.1", kSome, "de"},
                    NegotiationCase{"LongPart", "fr-abcdefghi, de;q=0.1", kSome, "de"},
                    NegotiationCase{"DigitsFirst", "1fr, de;q=0.1", kSome, "de"},
                    NegotiationCase{"WildcardWithin", "fr-*, *-CA, de;q=0.1", kSome, "de"},
                    NegotiationCase{"EmptyRanges", ",,;q=1, ,de,", kSome, "de"},
                    NegotiationCase{"OtherBytes", "\xFF\xFE, ../../etc, de;q=0.1", kSome, "de"}),
    CaseName);

TEST(FaceNegotiateAbsent, NoHeaderIsAnEmptyOne) {
  const char* const absent = nullptr;
  EXPECT_EQ("", kx::negotiate(absent, kSome));
  EXPECT_EQ("", kx::negotiate(nullptr, kSome));
}

TEST(FaceNegotiateHostile, AnswersWhatIsInstalledOrNothing) {
  constexpr std::string_view kBytes = "fffrrrdee--__CCAA,,,;;q==01..*  \t\0\xC3";
  std::mt19937 random(12);
  for (int round = 0; round < 20000; ++round) {
    std::string header(random() % 60, '\0');
    for (char& byte : header) byte = kBytes[random() % kBytes.size()];
    const std::string locale = kx::negotiate(header, kSome);
    EXPECT_TRUE(locale.empty() || std::find(kSome.begin(), kSome.end(), locale) != kSome.end());
  }
}

// Each would take minutes if the time grew with the square of the length.
TEST(FaceNegotiateHostile, TakesNoLongForLongHeaders) {
  constexpr std::size_t kTimes = 400000;
  std::string parts = "fr";
  std::string ranges;
  std::string different;
  for (std::size_t count = 0; count < kTimes; ++count) {
    parts += "-a";
    ranges += "ja;q=0.5,";
    std::string letters;
    for (std::size_t rest = count; rest > 0; rest /= 26) {
      letters += static_cast<char>('a' + rest % 26);
    }
    different += "x" + letters + ",";
  }
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ("fr", kx::negotiate(parts, kSome));
  EXPECT_EQ("de", kx::negotiate(ranges + "de", kSome));
  EXPECT_EQ("de", kx::negotiate(different + "de", kSome));
  EXPECT_EQ("", kx::negotiate(std::string(kTimes, '-'), kSome));
  EXPECT_EQ("de", kx::negotiate(std::string(kTimes, ',') + "de", kSome));
  EXPECT_GT(std::chrono::seconds(30), std::chrono::steady_clock::now() - start);
}

}  // namespace
