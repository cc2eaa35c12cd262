#include "bundles/properties_xlate.h"

#include <gtest/gtest.h>

#include <atomic>
#include <ctime>
#include <filesystem>
#include <latch>
#include <ostream>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "bundles/properties_translator.h"
#include "support/temp_tree.h"

namespace {

static_assert(!std::is_destructible_v<PropertiesXlate>, "only Release destroys a translator");

struct NamesCase {
  const char* name;
  const char* locale;
  const char* language;
  const char* country;
};

void PrintTo(const NamesCase& c, std::ostream* os) { *os << '"' << c.locale << '"'; }

class PropertiesTranslatorNames : public testing::TestWithParam<NamesCase> {};

TEST_P(PropertiesTranslatorNames, AreThoseOfItsFile) {
  const NamesCase& c = GetParam();
  TempTree tree;
  tree.Write("file", "");
  const bnd::BundleFile<CKxXlate> file("My.Bundle", c.locale, tree.Path("file"));
  auto* const translator = new PropertiesXlate(&file);

  EXPECT_STREQ("My.Bundle", translator->GetName());
  EXPECT_STREQ(c.language, translator->GetLanguageCode());
  EXPECT_STREQ(c.country, translator->GetCountryCode());
  translator->Release();
}

const NamesCase kNames[] = {
    {"Default", "", "", ""},
    {"Language", "fr", "fr", ""},
    {"Underscore", "fr_CA", "fr", "CA"},
    {"Hyphen", "fr-CA", "fr", "CA"},
    {"AsSpelled", "FR_ca", "FR", "ca"},
    {"NumericRegionIsDropped", "es_419", "es", ""},
    {"ScriptWithHyphens", "zh-Hant-TW", "zh", "TW"},
    {"ScriptWithUnderscores", "zh_Hant_TW", "zh", ""},
    {"CountryRunsIntoTheRest", "en-US-x", "en", "US-x"},
};

INSTANTIATE_TEST_SUITE_P(Locales, PropertiesTranslatorNames, testing::ValuesIn(kNames),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(PropertiesTranslator, HasNoHeader) {
  CKxXlate& translator = Read("Name=n\nCharset=c\nImages=i\nDirection=d\nPrompt Suffix=p\n");

  EXPECT_EQ(nullptr, translator.GetLongName());
  EXPECT_EQ(nullptr, translator.GetCharset());
  EXPECT_EQ(0u, translator.GetId());
  EXPECT_EQ(nullptr, translator.GetImageDirectory());
  EXPECT_EQ(nullptr, translator.GetDirection());
  EXPECT_EQ(nullptr, translator.GetPromptSuffix());
}

TEST_F(PropertiesTranslator, FindsKeysInAnyAsciiCase) {
  CKxXlate& translator = Read("Title=Titre\n\xC3\xA9=small\n\xC3\x89=capital\n=empty key\n");

  EXPECT_STREQ("Titre", translator.GetText("Title"));
  EXPECT_STREQ("Titre", translator.GetText("TITLE"));
  EXPECT_STREQ("Titre", translator.GetText("tItLe"));
  EXPECT_STREQ("small", translator.GetText("\xC3\xA9"));
  EXPECT_STREQ("capital", translator.GetText("\xC3\x89"));
  EXPECT_STREQ("empty key", translator.GetText(""));
}

TEST_F(PropertiesTranslator, NullKeyIsNotFound) {
  CKxXlate& translator = Read("=empty key\n(null)=x\n");

  EXPECT_EQ(nullptr, translator.GetText(nullptr));
}

TEST_F(PropertiesTranslator, TextStaysWhereItIs) {
  CKxXlate& translator = Read("Hello=Bonjour\nBye=Adieu\n");

  const char* const text = translator.GetText("Hello");
  EXPECT_STREQ("Adieu", translator.GetText("Bye"));
  EXPECT_EQ(text, translator.GetText("HELLO"));
  EXPECT_STREQ("Bonjour", text);
}

TEST_F(PropertiesTranslator, NotesWhenTheFileWasRead) {
  const std::int64_t before = std::time(nullptr);
  const PropertiesXlate& translator = Read("K=Hello\n");
  const std::int64_t after = std::time(nullptr);

  // The coarse clock behind some systems' calls may be a second behind the fine one.
  EXPECT_GE(translator.LoadTime(), before - 1);
  EXPECT_LE(translator.LoadTime(), after + 1);
}

std::string Dump(const PropertiesXlate& translator) {
  testing::internal::CaptureStdout();
  translator.DumpTable();
  return testing::internal::GetCapturedStdout();
}

TEST_F(PropertiesTranslator, DumpShowsNameLocaleAndTexts) {
  EXPECT_EQ("Xlate agent/fr_CA\n   Hello=>Bonjour %s\n\n", Dump(Read("Hello = Bonjour %s\n")));
}

TEST_F(PropertiesTranslator, DumpShowsTheKeyAsFirstWrittenWithItsLastText) {
  EXPECT_EQ("Xlate agent/fr_CA\n   Title=>y\n\n", Dump(Read("Title=x\nTITLE=y\n")));
}

TEST_F(PropertiesTranslator, DumpOfNoTextsIsItsFrame) {
  EXPECT_EQ("Xlate agent/fr_CA\n\n", Dump(Read("")));
}

TEST_F(PropertiesTranslator, FileThatCannotBeOpenedGivesNoTexts) {
  testing::internal::CaptureStderr();
  translator_ = new PropertiesXlate(&file_);

  EXPECT_EQ("cannot open file: " + file_.Path() + "\n", testing::internal::GetCapturedStderr());
  EXPECT_EQ("Xlate agent/fr_CA\n\n", Dump(*translator_));
  EXPECT_STREQ("agent", translator_->GetName());
  EXPECT_STREQ("fr", translator_->GetLanguageCode());
}

TEST_F(PropertiesTranslator, KeepsItsTextsWhenTheFileChangesOrGoes) {
  CKxXlate& translator = Read("K=before\n");

  tree_.Write("agent_fr_CA.properties", "K=after\n");
  EXPECT_STREQ("before", translator.GetText("K"));
  std::filesystem::remove(PathFromUtf8(file_.Path()));
  EXPECT_STREQ("before", translator.GetText("K"));
}

TEST_F(PropertiesTranslator, ThreadsTakeAndGiveBackReferencesAndLookTextsUp) {
  constexpr int kThreads = 8;
  CKxXlate& translator = Read("Hello=Bonjour\nBye=Adieu\n");
  std::atomic<int> wrong = 0;
  std::latch start(kThreads);
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&] {
        start.arrive_and_wait();
        for (int round = 0; round < 500; ++round) {
          translator.AddRef();
          if (translator.GetText("HELLO") != std::string("Bonjour")) ++wrong;
          translator.AddRef();
          translator.Release();
          if (translator.GetText("bye") != std::string("Adieu")) ++wrong;
          translator.Release();
        }
      });
    }
  }

  EXPECT_EQ(0, wrong);
  EXPECT_STREQ("Bonjour", translator.GetText("Hello"));
}

}  // namespace
