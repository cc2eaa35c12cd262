#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "KxXlate.hpp"
#include "support/temp_tree.h"

namespace {

using Names = std::vector<std::string>;

struct LocalesCase {
  const char* name;
  Names files;
  Names locales;  ///< of "agent"
};

void PrintTo(const LocalesCase& c, std::ostream* os) { *os << c.name; }

class FaceLocales : public testing::TestWithParam<LocalesCase> {};

/// Whether the library answers for a locale from what is installed for it, in that spelling.
void ExpectServed(const std::string& locale) {
  const kx::Translator texts = kx::Translator::find("agent", locale);
  ASSERT_TRUE(texts);
  EXPECT_EQ("agent", texts.name());
  std::string served(texts.language());
  if (!texts.country().empty()) served.append("-").append(texts.country());
  EXPECT_EQ(kx::detail::LanguageDirectoryOf(locale), kx::detail::Uppered(served)) << locale;
}

TEST_P(FaceLocales, AreThoseThatTheLibraryServes) {
  const TempTree tree;
  for (const std::string& file : GetParam().files) {
    tree.Write(file, file.back() == 'g' ? "Name x\n\nKey K\nValue x\n" : "K=x\n");
  }
  EXPECT_EQ(GetParam().locales, kx::locales("agent", tree.Path()));
  EXPECT_EQ(Names(), kx::locales("", tree.Path()));
  CKxXlate::SetResourceDirectory(tree.Path().c_str());
  for (const std::string& locale : GetParam().locales) ExpectServed(locale);
  CKxXlate::FreeCache();
}

std::string CaseName(const testing::TestParamInfo<LocalesCase>& test) { return test.param.name; }

INSTANTIATE_TEST_SUITE_P(
    PropertyFiles, FaceLocales,
    testing::Values(
        LocalesCase{"None", {"other_fr.properties", "readme.txt"}, {}},
        LocalesCase{"AreSpelledAsTheirFiles",
                    {"agent_fr_CA.properties", "agent_de-AT.properties", "agent_PT.Properties"},
                    {"PT", "de-AT", "fr_CA"}},
        LocalesCase{"TheDefaultIsNone", {"agent.properties", "agent_fr.properties"}, {"fr"}},
        LocalesCase{"BundlesAreExact", {"Agent_fr.properties", "agents_de.properties"}, {}},
        LocalesCase{"DirectoriesAreNoFiles", {"agent_fr.properties/x"}, {}},
        LocalesCase{"ThirdLetterIsPartOfTheCode", {"agent_fil_PH.properties"}, {"fil_PH"}},
        LocalesCase{"Scripts", {"agent_zh-Hant-TW.properties"}, {"zh-Hant-TW"}}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    LanguageFiles, FaceLocales,
    testing::Values(LocalesCase{"OfTheComponent", {"FR/agent.lang", "DE/other.lang"}, {"FR"}},
                    LocalesCase{"OfAllComponents",
                                {"FR/(Common).lang", "FR-CA/(Common).lang"},
                                {"FR", "FR-CA"}},
                    LocalesCase{"RegionsByThemselves", {"FR-CA/agent.lang"}, {"FR-CA"}},
                    LocalesCase{"OnlyWhereALocaleLeads",
                                {"ES-419/agent.lang", "ZH-HANT/agent.lang", "EN-US-PO/agent.lang",
                                 "HY_FR-CA/agent.lang", "DE/agent.lang/x"},
                                {"EN-US-PO", "HY_FR-CA"}}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Both, FaceLocales,
    testing::Values(
        LocalesCase{"ADefaultShadowsLanguages", {"agent.properties", "FR/agent.lang"}, {}},
        LocalesCase{"EnglishIsADefault", {"agent_en.properties", "FR/agent.lang"}, {"en"}},
        LocalesCase{"AFileShadowsItsRegions",
                    {"agent_fr.properties", "FR/agent.lang", "FR-CA/agent.lang", "DE/agent.lang"},
                    {"DE", "fr"}},
        LocalesCase{"AnAliasShadows",
                    {"agent_fr_CA.properties", "FR/agent.lang", "FR-CA/agent.lang"},
                    {"FR", "fr_CA"}}),
    CaseName);

TEST(FaceLocalesOfOthers, LeadNowhere) {
  const TempTree tree;
  tree.Write("resources/FR/x.lang", "Name x\n");
  tree.Write("resources/secret.lang", "Name x\n");
  const std::string directory = tree.Path("resources");
  EXPECT_EQ(Names(), kx::locales("../secret", directory));
  EXPECT_EQ(Names(), kx::locales("x/../../FR/x", directory));
  EXPECT_EQ(Names(), kx::locales(nullptr, directory));
  EXPECT_EQ(Names(), kx::locales("x", tree.Path("absent")));
  EXPECT_EQ(Names{"FR"}, kx::locales("x", directory));
}

TEST(FaceFallbackChain, GoesFromSpecificToGeneral) {
  const TempTree tree;
  tree.Write("agent.properties", "K=default\nOnlyDefault=x\n");
  tree.Write("agent_fr.properties", "K=fr\nOnlyFrench=y\n");
  tree.Write("agent_fr_CA.properties", "K=fr-CA\n");
  ASSERT_TRUE(CKxXlate::SetResourceDirectory(tree.Path().c_str()));
  const auto chain = kx::fallback_chain("agent", "fr-CA");
  ASSERT_EQ(3U, chain.size());
  EXPECT_EQ("fr-CA", chain[0].text_or("K", ""));
  EXPECT_EQ("fr", chain[1].text_or("K", ""));
  EXPECT_EQ("default", chain[2].text_or("K", ""));
  EXPECT_EQ("fr-CA", kx::first_text(chain, "K").value_or(""));
  EXPECT_EQ("y", kx::first_text(chain, "OnlyFrench").value_or(""));
  EXPECT_EQ("x", kx::first_text(chain, "OnlyDefault").value_or(""));
  EXPECT_FALSE(kx::first_text(chain, "Absent"));
}

TEST(FaceFallbackChain, HasNoTranslatorTwice) {
  const TempTree tree;
  tree.Write("agent.properties", "K=default\n");
  tree.Write("agent_fr.properties", "K=fr\n");
  ASSERT_TRUE(CKxXlate::SetResourceDirectory(tree.Path().c_str()));
  EXPECT_EQ(2U, kx::fallback_chain("agent", "fr-BE-x-y").size());
  EXPECT_EQ(1U, kx::fallback_chain("agent", std::string("de_AT")).size());
  EXPECT_EQ(1U, kx::fallback_chain("agent", nullptr).size());
  EXPECT_EQ(0U, kx::fallback_chain("", "fr").size());
}

TEST(FaceFallbackChain, IsShortForLongLocales) {
  const TempTree tree;
  tree.Write("agent_fr.properties", "K=fr\n");
  ASSERT_TRUE(CKxXlate::SetResourceDirectory(tree.Path().c_str()));
  std::string locale = "fr";
  for (int count = 0; count < 200000; ++count) locale += "-a";
  const auto chain = kx::fallback_chain("agent", locale);
  ASSERT_LE(1U, chain.size());
  EXPECT_EQ("fr", chain[0].text_or("K", ""));
  CKxXlate::FreeCache();
}

}  // namespace
