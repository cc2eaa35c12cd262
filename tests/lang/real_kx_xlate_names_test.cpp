// What translators are called, and how they are numbered.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "lang/language_translator.h"

namespace {

struct NamesCase {
  const char* name;
  const char* component;
  const char* language;
  const char* country;
  const char* languageCode;
  const char* countryCode;
  const char* displayName;
};

void PrintTo(const NamesCase& c, std::ostream* os) { *os << '"' << c.displayName << '"'; }

class LanguageTranslatorNames : public LanguageTranslator,
                                public testing::WithParamInterface<NamesCase> {};

TEST_P(LanguageTranslatorNames, FollowFromTheRequest) {
  const NamesCase& c = GetParam();
  const Held translator = Load(c.component, c.language, c.country);
  EXPECT_STREQ(c.component, translator->GetName());
  EXPECT_STREQ(c.languageCode, translator->GetLanguageCode());
  EXPECT_STREQ(c.countryCode, translator->GetCountryCode());
  EXPECT_STREQ(c.displayName, translator->GetDisplayName());
}

TEST_P(LanguageTranslatorNames, StandInTheLineOfALanguageWithoutFiles) {
  const NamesCase& c = GetParam();
  const Held translator = Load(c.component, c.language, c.country);
  EXPECT_FALSE(translator->AnyFileFound());
  const std::string line = std::string("No \"") + c.displayName + "\" files found, trying EN.\n";
  EXPECT_EQ(std::string("EN") == c.languageCode ? "(no file)" : line, Log());
}

const NamesCase kNames[] = {
    {"Language", "agent", "fr", nullptr, "FR", "", "FR (agent)"},
    {"EmptyCountry", "agent", "fr", "", "FR", "", "FR (agent)"},
    {"CountryIsShownAsGiven", "agent", "fr", "ca", "FR", "CA", "FR-ca (agent)"},
    {"Capitals", "agent", "FR", "CA", "FR", "CA", "FR-CA (agent)"},
    {"MixedCase", "Agent", "fR", "cA", "FR", "CA", "FR-cA (Agent)"},
    {"EmptyName", "", "fr", nullptr, "FR", "", "FR ()"},
    {"EmptyNameWithCountry", "", "fr", "Ca", "FR", "CA", "FR-Ca ()"},
    {"EmptyLanguage", "agent", "", nullptr, "", "", " (agent)"},
    {"CountryAlone", "agent", "", "at", "", "AT", "-at (agent)"},
    {"OtherLetters", "agent", "\xC3\xA9", "\xC3\xB6", "\xC3\x89", "\xC3\x96",
     "\xC3\x89-\xC3\xB6 (agent)"},
    {"LongCodes", "a.b c", "zh-hant", "tw_x", "ZH-HANT", "TW_X", "ZH-HANT-tw_x (a.b c)"},
    {"English", "agent", "EN", nullptr, "EN", "", "EN (agent)"},
    {"EnglishInSmallLetters", "agent", "en", nullptr, "EN", "", "EN (agent)"},
    {"EnglishOfACountry", "agent", "En", "us", "EN", "US", "EN-us (agent)"},
    {"AlmostEnglish", "agent", "eng", nullptr, "ENG", "", "ENG (agent)"},
};

INSTANTIATE_TEST_SUITE_P(Requests, LanguageTranslatorNames, testing::ValuesIn(kNames),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(LanguageTranslator, IsNamedAfterTheRequestWhateverFilesThereAre) {
  Write("FR-CA/(Common).lang", kWholeFile);
  const Held translator = Load("agent", "fr", "ca");
  EXPECT_STREQ("agent", translator->GetName());
  EXPECT_STREQ("FR", translator->GetLanguageCode());
  EXPECT_STREQ("CA", translator->GetCountryCode());
  EXPECT_STREQ("FR-ca (agent)", translator->GetDisplayName());
}

TEST_F(LanguageTranslator, IdentifiersCountUp) {
  Write("FR/agent.lang", kWholeFile);
  EXPECT_EQ(1u, Load("agent", "fr", nullptr)->GetId());
  EXPECT_EQ(2u, Load("agent", "fr", nullptr)->GetId());
  EXPECT_EQ(3u, Load("agent", "absent", nullptr)->GetId());
  EXPECT_EQ(4u, Load("other", "en", "US")->GetId());
  EXPECT_EQ(5u, nextId_);
}

TEST_F(LanguageTranslator, KeepsItsIdentifier) {
  const Held first = Load("agent", "en", nullptr);
  const Held second = Load("agent", "en", nullptr);
  EXPECT_EQ(1u, first->GetId());
  EXPECT_EQ(2u, second->GetId());
}

}  // namespace
