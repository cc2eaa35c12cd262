#include <gtest/gtest.h>

#include <filesystem>
#include <latch>
#include <string>
#include <thread>
#include <vector>

#include "bundles/properties_xlate.h"
#include "bundles/xlate_manager.h"
#include "platform/directories.h"
#include "support/temp_tree.h"

namespace {

/// The translators of a tree's bundles.
class PropertiesBundle : public testing::Test {
 protected:
  ~PropertiesBundle() override {
    for (CKxXlate* translator : held_) translator->Release();
  }

  void Traverse() {
    EXPECT_EQ(0, KxTraverseDirectory(manager_.Root().c_str(), &manager_));
    manager_.CompleteDefaults();
  }

  /// A translator that is held until the test ends.
  CKxXlate* Get(const char* bundle, const char* locale) {
    CKxXlate* const translator = kx::GetPropertiesBundle(&manager_, bundle, locale);
    if (translator != nullptr) held_.push_back(translator);
    return translator;
  }

  TempTree tree_;
  XlateManager manager_{tree_.Path()};

 private:
  std::vector<CKxXlate*> held_;
};

TEST_F(PropertiesBundle, NothingIsThereWithoutAManager) {
  EXPECT_EQ(nullptr, kx::GetPropertiesBundle(nullptr, "msg", "fr"));
  EXPECT_EQ(nullptr, kx::GetPropertiesBundle(nullptr, "", ""));
}

TEST_F(PropertiesBundle, NothingIsThereForUnknownNamesAndLocales) {
  tree_.Write("msg_fr.properties", "K=x\n");
  Traverse();

  EXPECT_EQ(nullptr, Get("other", "fr"));
  EXPECT_EQ(nullptr, Get("MSG", "fr"));
  EXPECT_EQ(nullptr, Get("", "fr"));
  EXPECT_EQ(nullptr, Get("msg", "de"));
  EXPECT_EQ(nullptr, Get("msg", ""));
}

TEST_F(PropertiesBundle, OneTranslatorServesAllThatItsFileAnswers) {
  tree_.Write("msg.properties", "K=default\n");
  tree_.Write("msg_fr_CA.properties", "K=Canadian\n");
  Traverse();

  CKxXlate* const canadian = Get("msg", "fr_CA");
  ASSERT_NE(nullptr, canadian);
  EXPECT_EQ(canadian, Get("msg", "fr_CA"));
  EXPECT_EQ(canadian, Get("msg", "fr-CA"));
  EXPECT_EQ(canadian, Get("msg", "FR-ca"));
  EXPECT_EQ(canadian, Get("msg", "fr-CA-x"));

  CKxXlate* const unlocalised = Get("msg", "");
  EXPECT_NE(canadian, unlocalised);
  EXPECT_EQ(unlocalised, Get("msg", "fr"));
  EXPECT_EQ(unlocalised, Get("msg", "de-DE"));
}

TEST_F(PropertiesBundle, NamesTheFilesLocaleRatherThanTheOneAskedFor) {
  tree_.Write("msg_en.properties", "K=x\n");
  tree_.Write("msg_fr_CA.properties", "K=x\n");
  Traverse();

  CKxXlate* const canadian = Get("msg", "FR-ca-x");
  ASSERT_NE(nullptr, canadian);
  EXPECT_STREQ("msg", canadian->GetName());
  EXPECT_STREQ("fr", canadian->GetLanguageCode());
  EXPECT_STREQ("CA", canadian->GetCountryCode());

  CKxXlate* const completed = Get("msg", "de-DE");
  ASSERT_NE(nullptr, completed);
  EXPECT_STREQ("en", completed->GetLanguageCode());
  EXPECT_STREQ("", completed->GetCountryCode());
}

TEST_F(PropertiesBundle, DefaultFileHasNeitherLanguageNorCountry) {
  tree_.Write("msg.properties", "K=x\n");
  Traverse();

  CKxXlate* const translator = Get("msg", "fr-CA");
  ASSERT_NE(nullptr, translator);
  EXPECT_STREQ("", translator->GetLanguageCode());
  EXPECT_STREQ("", translator->GetCountryCode());
}

TEST_F(PropertiesBundle, FileIsReadWhenItIsFirstAskedFor) {
  tree_.Write("msg_fr.properties", "K=when traversed\n");
  Traverse();
  tree_.Write("msg_fr.properties", "K=when asked for\n");

  CKxXlate* const translator = Get("msg", "fr");
  ASSERT_NE(nullptr, translator);
  EXPECT_STREQ("when asked for", translator->GetText("K"));

  tree_.Write("msg_fr.properties", "K=later\n");
  EXPECT_EQ(translator, Get("msg", "fr"));
  EXPECT_STREQ("when asked for", translator->GetText("K"));
}

TEST_F(PropertiesBundle, LivesOnWhenAllCallersHaveGivenItBack) {
  tree_.Write("msg_fr.properties", "K=x\n");
  Traverse();

  CKxXlate* const translator = kx::GetPropertiesBundle(&manager_, "msg", "fr");
  ASSERT_NE(nullptr, translator);
  translator->Release();
  tree_.Write("msg_fr.properties", "K=another\n");

  EXPECT_EQ(translator, Get("msg", "fr"));
  EXPECT_STREQ("x", translator->GetText("K"));
}

TEST_F(PropertiesBundle, EachCallGivesAReferenceOfItsOwn) {
  tree_.Write("msg_fr.properties", "K=x\n");
  CKxXlate* translator = nullptr;
  {
    XlateManager manager(tree_.Path());
    ASSERT_EQ(0, KxTraverseDirectory(manager.Root().c_str(), &manager));
    translator = kx::GetPropertiesBundle(&manager, "msg", "fr");
    ASSERT_NE(nullptr, translator);
    ASSERT_EQ(translator, kx::GetPropertiesBundle(&manager, "msg", "fr-CA"));
  }

  // The manager's own reference has gone; the callers' two are left.
  EXPECT_STREQ("x", translator->GetText("K"));
  translator->Release();
  EXPECT_STREQ("x", translator->GetText("K"));
  translator->Release();
}

TEST_F(PropertiesBundle, FileThatCannotBeOpenedFallsThroughToNothingElse) {
  tree_.Write("msg.properties", "K=default\n");
  tree_.Write("msg_en.properties", "K=English\n");
  tree_.Write("msg_fr.properties", "K=French\n");
  Traverse();
  std::filesystem::remove(PathFromUtf8(tree_.Path("msg_fr.properties")));

  testing::internal::CaptureStderr();
  CKxXlate* const french = Get("msg", "fr");
  EXPECT_EQ(french, Get("msg", "fr-CA"));
  EXPECT_EQ("cannot open file: " + tree_.Path("msg_fr.properties") + "\n",
            testing::internal::GetCapturedStderr());
  ASSERT_NE(nullptr, french);
  EXPECT_STREQ("fr", french->GetLanguageCode());
  EXPECT_NE(french, Get("msg", ""));
}

TEST_F(PropertiesBundle, ThreadsShareOneTranslatorThatReadTheFileOnce) {
  constexpr int kThreads = 8;
  tree_.Write("msg_fr.properties", "no key here\nK=Bonjour\n");
  Traverse();
  std::vector<CKxXlate*> got(kThreads);
  std::latch start(kThreads);

  testing::internal::CaptureStderr();
  {
    std::vector<std::jthread> threads;
    for (CKxXlate*& slot : got) {
      threads.emplace_back(
          [this, &start, &slot, locale = "fr-x" + std::to_string(&slot - &got[0])] {
            start.arrive_and_wait();
            slot = kx::GetPropertiesBundle(&manager_, "msg", locale.c_str());
          });
    }
  }
  const std::string problems = testing::internal::GetCapturedStderr();

  EXPECT_EQ(tree_.Path("msg_fr.properties") + ":1 does not contain '='. Skipped\n", problems);
  ASSERT_NE(nullptr, got[0]);
  EXPECT_EQ(std::vector<CKxXlate*>(kThreads, got[0]), got);
  EXPECT_STREQ("Bonjour", got[0]->GetText("K"));
  for (CKxXlate* translator : got) translator->Release();
}

TEST_F(PropertiesBundle, ThreadsGetAndGiveBackManyLocales) {
  constexpr int kThreads = 8;
  tree_.Write("msg.properties", "K=default\n");
  tree_.Write("msg_fr.properties", "K=French\n");
  tree_.Write("other_fr.properties", "K=other\n");
  Traverse();
  std::vector<int> wrong(kThreads);
  std::latch start(kThreads);
  const auto text = [this](const char* bundle, const std::string& locale) -> std::string {
    CKxXlate* const translator = kx::GetPropertiesBundle(&manager_, bundle, locale.c_str());
    if (translator == nullptr) return "(nothing)";
    std::string result = translator->GetText("K");
    translator->Release();
    return result;
  };
  {
    std::vector<std::jthread> threads;
    for (int& mistakes : wrong) {
      threads.emplace_back([&] {
        start.arrive_and_wait();
        for (int number = 0; number < 200; ++number) {
          const std::string suffix = "-" + std::to_string(number);
          mistakes += text("msg", "fr" + suffix) == "French" ? 0 : 1;
          mistakes += text("msg", "de" + suffix) == "default" ? 0 : 1;
          mistakes += text("other", "fr" + suffix) == "other" ? 0 : 1;
          mistakes += text("other", "de" + suffix) == "(nothing)" ? 0 : 1;
        }
      });
    }
  }

  EXPECT_EQ(std::vector<int>(kThreads, 0), wrong);
}

}  // namespace
