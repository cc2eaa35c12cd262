#include "core/cached_translators.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "lang/language_tree.h"

namespace {

struct KeyCase {
  const char* name;
  std::string component;
  std::string language;
  const char* region;
  std::string expected;
};

void PrintTo(const KeyCase& c, std::ostream* os) { *os << '"' << c.expected << '"'; }

class LanguageKeys : public testing::TestWithParam<KeyCase> {};

TEST_P(LanguageKeys, JoinWhatTheyAreMadeOf) {
  const KeyCase& c = GetParam();
  const kx::LanguageKey key(c.component.c_str(), c.language.c_str(), c.region);
  EXPECT_EQ(c.expected, key.Text());
}

const std::string kLong(200, 'x');

const KeyCase kKeys[] = {
    {"NameAndLanguage", "agent", "fr", nullptr, "agent|fr"},
    {"EmptyRegion", "agent", "fr", "", "agent|fr"},
    {"Region", "agent", "fr", "CA", "agent|fr|CA"},
    {"NothingIsTrimmed", " a ", " b ", " c ", " a | b | c "},
    {"EmptyName", "", "fr", "CA", "|fr|CA"},
    {"EmptyLanguage", "agent", "", "CA", "agent||CA"},
    {"NothingAtAll", "", "", nullptr, "|"},
    {"FillsTheShortOne", std::string(120, 'n'), "la", "regi", std::string(120, 'n') + "|la|regi"},
    {"OneMore", std::string(121, 'n'), "la", "regi", std::string(121, 'n') + "|la|regi"},
    {"LongName", kLong, "fr", "CA", kLong + "|fr|CA"},
    {"LongLanguage", "agent", kLong, nullptr, "agent|" + kLong},
};

INSTANTIATE_TEST_SUITE_P(Keys, LanguageKeys, testing::ValuesIn(kKeys),
                         [](const auto& row) { return std::string(row.param.name); });

class Cached : public LanguageTree {
 protected:
  ~Cached() override { translators_.Clear(); }

  CRealKxXlate* Put(const std::string& key) {
    CRealKxXlate* const translator = Load("agent", "en", nullptr).release();
    translator->AddRef();  // for the table
    translators_.Put(key, translator);
    return translator;
  }

  Held Find(const std::string& key) const { return Held(translators_.Find(key)); }

  kx::CachedTranslators translators_;
};

TEST_F(Cached, TranslatorsAreFoundByTheirKeysInAnyCase) {
  EXPECT_EQ(nullptr, Find("agent|fr"));
  CRealKxXlate* const french = Put("agent|fr");
  CRealKxXlate* const canadian = Put("agent|fr|CA");
  EXPECT_EQ(french, Find("AGENT|fr").get());
  EXPECT_EQ(canadian, Find("agent|FR|ca").get());
  EXPECT_EQ(nullptr, Find("agent|f"));
}

TEST_F(Cached, OneThatIsReplacedGoesOnForItsHolders) {
  CRealKxXlate* const first = Put("agent|fr");
  const Held held = Find("agent|fr");
  CRealKxXlate* const second = Put("AGENT|FR");
  EXPECT_EQ(second, Find("agent|fr").get());
  EXPECT_EQ(first, held.get());
  EXPECT_EQ(1u, held->GetId());
}

TEST_F(Cached, ManyAreKeptAndForgottenTogether) {
  std::vector<CRealKxXlate*> all;
  for (int number = 0; number < 300; ++number) all.push_back(Put(std::to_string(number)));
  for (int number = 0; number < 300; ++number) {
    EXPECT_EQ(all[static_cast<std::size_t>(number)], Find(std::to_string(number)).get());
  }
  translators_.Clear();
  for (int number = 0; number < 300; ++number) EXPECT_EQ(nullptr, Find(std::to_string(number)));
  CRealKxXlate* const again = Put("7");
  EXPECT_EQ(again, Find("7").get());
}

}  // namespace
