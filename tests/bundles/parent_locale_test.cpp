#include "bundles/parent_locale.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::vector<std::string> Walk(std::string_view locale) {
  kx::ParentLocales parents(locale);
  std::vector<std::string> walk{std::string(parents.Current())};
  while (parents.Next()) walk.emplace_back(parents.Current());
  return walk;
}

struct WalkCase {
  const char* name;
  std::vector<std::string> walk;  ///< begins with the locale
};

void PrintTo(const WalkCase& c, std::ostream* os) { *os << '"' << c.walk.front() << '"'; }

class ParentLocales : public testing::TestWithParam<WalkCase> {};

TEST_P(ParentLocales, AreWalked) { EXPECT_EQ(GetParam().walk, Walk(GetParam().walk.front())); }

const WalkCase kWalks[] = {
    {"Empty", {""}},
    {"Language", {"fr", ""}},
    {"Hyphen", {"fr-CA", "fr", ""}},
    {"Underscore", {"fr_CA", "fr", ""}},
    {"Hyphens", {"zh-Hant-TW", "zh-Hant", "zh", ""}},
    {"Underscores", {"fr_CA_x", "fr_CA", "fr", ""}},
    {"CaseIsKept", {"ZH-hant-Tw", "ZH-hant", "ZH", ""}},
    // The last hyphen comes before any underscore, even one behind it
    {"HyphenBehindUnderscore", {"zh_Hant-TW", "zh_Hant", "zh", ""}},
    {"HyphenBeforeUnderscore", {"zh-Hant_TW", "zh", ""}},
    {"HyphensAmongUnderscores", {"a_b-c_d-e_f", "a_b-c_d", "a_b", "a", ""}},
    {"EncodingWithHyphen", {"fr_CA.UTF-8", "fr_CA.UTF", "fr", ""}},
    // Nothing between separators, or beside them
    {"HyphenAtTheEnd", {"fr-", "fr", ""}},
    {"UnderscoreAtTheEnd", {"fr_", "fr", ""}},
    {"HyphenInFront", {"-CA", ""}},
    {"UnderscoreInFront", {"_CA", ""}},
    {"HyphenAlone", {"-", ""}},
    {"UnderscoreAlone", {"_", ""}},
    {"TwoHyphens", {"fr--CA", "fr-", "fr", ""}},
    {"TwoUnderscores", {"fr__CA", "fr_", "fr", ""}},
    {"HyphensAlone", {"---", "--", "-", ""}},
    {"UnderscoresAlone", {"___", "__", "_", ""}},
    {"HyphenBehindUnderscoreAlone", {"_-", "_", ""}},
    {"UnderscoreBehindHyphenAlone", {"-_", ""}},
    {"NotAscii", {"\xC3\xA9-\xC3\xA9", "\xC3\xA9", ""}},
};

INSTANTIATE_TEST_SUITE_P(Walks, ParentLocales, testing::ValuesIn(kWalks),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ParentLocalesEnd, NothingChangesAtTheEmptyLocale) {
  kx::ParentLocales parents("fr");

  EXPECT_TRUE(parents.Next());
  EXPECT_EQ("", parents.Current());
  EXPECT_FALSE(parents.Next());
  EXPECT_EQ("", parents.Current());
  EXPECT_FALSE(parents.Next());
  EXPECT_EQ("", parents.Current());
}

// Locales of strangers: a walk of this length has to end at once, else the test runs into its time
// limit.
constexpr std::size_t kPairs = 1'000'000;

std::string Repeated(std::string_view text) {
  std::string result;
  for (std::size_t count = 0; count < kPairs; ++count) result += text;
  return result;
}

std::size_t Steps(std::string_view locale) {
  kx::ParentLocales parents(locale);
  std::size_t steps = 0;
  while (parents.Next()) ++steps;
  EXPECT_EQ("", parents.Current());
  return steps;
}

TEST(ParentLocalesOfStrangers, ManyHyphens) { EXPECT_EQ(kPairs + 1, Steps(Repeated("a-") + "a")); }

TEST(ParentLocalesOfStrangers, ManyUnderscores) {
  EXPECT_EQ(kPairs + 1, Steps(Repeated("a_") + "a"));
}

TEST(ParentLocalesOfStrangers, ManyHyphensBehindManyUnderscores) {
  EXPECT_EQ(2 * kPairs + 1, Steps(Repeated("a_") + Repeated("a-") + "a"));
}

TEST(ParentLocalesOfStrangers, ManyUnderscoresBehindManyHyphens) {
  // The cut at the last hyphen takes all underscores away at once.
  EXPECT_EQ(kPairs + 1, Steps(Repeated("a-") + Repeated("a_") + "a"));
}

TEST(ParentLocalesOfStrangers, SeparatorsAlone) {
  EXPECT_EQ(kPairs, Steps(Repeated("-")));
  EXPECT_EQ(kPairs, Steps(Repeated("_")));
}

TEST(ParentLocalesOfStrangers, NoSeparator) { EXPECT_EQ(1u, Steps(Repeated("aa"))); }

}  // namespace
