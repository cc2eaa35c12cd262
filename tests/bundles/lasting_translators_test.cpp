// The translators of a manager that is never destroyed, as those of the process are.

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <string>
#include <thread>
#include <vector>

#include "bundles/install_manager.h"
#include "bundles/properties_xlate.h"
#include "bundles/xlate_manager.h"
#include "support/held_file.h"
#include "support/temp_tree.h"

namespace {

/// What a test installs is static, because managers are never destroyed.
class LastingTranslators : public testing::Test {
 protected:
  LastingTranslators() {
    tree_.Write("msg.properties", "K=default\n");
    tree_.Write("msg_fr.properties", "K=French\n");
    tree_.Write("other_fr.properties", "K=other\n");
  }

  void Install(kx::InstalledManagers& managers) {
    EXPECT_TRUE(managers.InstallXlateManager(tree_.Path().c_str(), resources_));
  }

  static std::string Text(CKxXlate* translator) {
    if (translator == nullptr) return "(nothing)";
    std::string text = translator->GetText("K");
    translator->Release();
    return text;
  }

  TempTree tree_;
  kx::ResourceLocation resources_;
};

TEST_F(LastingTranslators, AreOneForAllRequestsOfOneFile) {
  static kx::InstalledManagers managers;
  Install(managers);
  const XlateManager* const manager = managers.Current();

  CKxXlate* const first = kx::GetPropertiesBundle(manager, "msg", "fr-CA");
  for (int round = 0; round < 3; ++round) {
    for (const char* locale : {"fr", "FR", "fr-CA", "fr_BE", "fr-CA-a-locale-of-many-parts"}) {
      EXPECT_EQ(first, kx::GetPropertiesBundle(manager, "msg", locale)) << locale;
      first->Release();
    }
    EXPECT_NE(first, kx::GetPropertiesBundle(manager, "msg", "de"));
    EXPECT_EQ("other", Text(kx::GetPropertiesBundle(manager, "other", "fr")));
    EXPECT_EQ("(nothing)", Text(kx::GetPropertiesBundle(manager, "other", "de")));
    EXPECT_EQ("(nothing)", Text(kx::GetPropertiesBundle(manager, "MSG", "fr")));
  }
  EXPECT_EQ("French", Text(first));
}

// Their bundle's reference cannot be given back, so no host can destroy what others hold.
TEST_F(LastingTranslators, OutliveWhateverIsGivenBack) {
  static kx::InstalledManagers managers;
  Install(managers);

  CKxXlate* const translator = kx::GetPropertiesBundle(managers.Current(), "msg", "fr");
  translator->AddRef();
  for (int release = 0; release < 5; ++release) translator->Release();
  EXPECT_STREQ("French", translator->GetText("K"));
  EXPECT_EQ(translator, kx::GetPropertiesBundle(managers.Current(), "msg", "fr"));
}

// Its caller's release must destroy it, or the leak would be found.
TEST_F(LastingTranslators, OfAFileThatIsHeldAreTheirCallersAlone) {
  static kx::InstalledManagers managers;
  Install(managers);
  testing::internal::CaptureStderr();
  {
    const HeldFile held(tree_.Path("msg_fr.properties"));
    CKxXlate* const first = kx::GetPropertiesBundle(managers.Current(), "msg", "fr");
    CKxXlate* const second = kx::GetPropertiesBundle(managers.Current(), "msg", "fr");
    EXPECT_NE(first, second);
    first->AddRef();
    first->Release();
    EXPECT_STREQ("msg", first->GetName());
    first->Release();
    second->Release();
  }
  testing::internal::GetCapturedStderr();
  EXPECT_EQ("French", Text(kx::GetPropertiesBundle(managers.Current(), "msg", "fr")));
}

TEST_F(LastingTranslators, AreAcquiredAndGivenBackWhileManagersAreInstalled) {
  constexpr int kThreads = 8;
  constexpr int kRounds = 300;
  static kx::InstalledManagers managers;
  Install(managers);
  std::atomic<int> wrong = 0;
  std::latch start(kThreads);
  const auto isRight = [](const char* text, const char* bundle, const std::string& locale) {
    return text == Text(kx::GetPropertiesBundle(managers.Current(), bundle, locale.c_str()));
  };
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&, thread] {
        start.arrive_and_wait();
        if (thread == 0) Install(managers);
        for (int round = 0; round < kRounds; ++round) {
          const std::string own = "fr-x" + std::to_string(thread) + "-" + std::to_string(round);
          if (!isRight("French", "msg", "fr-CA")) ++wrong;
          if (!isRight("French", "msg", own)) ++wrong;
          if (!isRight("default", "msg", "de-" + std::to_string(round))) ++wrong;
          if (!isRight("other", "other", "FR")) ++wrong;
          if (!isRight("(nothing)", "other", "de")) ++wrong;
        }
      });
    }
  }
  EXPECT_EQ(0, wrong);
}

}  // namespace
