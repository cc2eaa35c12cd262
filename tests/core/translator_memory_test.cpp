// When language translators are destroyed, and that nothing of them is left.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/counted_new.h"
#include "core/language_cache.h"
#include "lang/interned_strings.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

class TranslatorMemory : public testing::Test {
 protected:
  TranslatorMemory() {
    tree_.Write("lang/FR/agent.lang",
                "Name French\nDirectory K which is not a short one at all\n\n"
                "Key LONGER_THAN_WHAT_FITS\nValue without an allocation of its own\n");
    // Makes what lasts: the log's stream and the values.
    New("agent", "fr")->Release();
  }

  CRealKxXlate* New(const char* name, const char* language) {
    auto* const translator = new CRealKxXlate(context_, name, language, "ca");
    EXPECT_EQ(nullptr, translator->GetText("ABSENT_AND_LONGER_THAN_WHAT_FITS"));
    return translator;
  }

  TempTree tree_;
  kx::LanguagePaths paths_{true, tree_.Path(), tree_.Path("lang") + "/"};
  kx::InternTable strings_;
  std::uint32_t nextId_ = 1;
  const kx::LanguageContext context_{paths_, strings_, nextId_, LastingLog()};
};

TEST_F(TranslatorMemory, ReleaseDestroysOneThatNobodyHolds) {
  const long before = LiveBlocks();
  CRealKxXlate* const translator = New("agent", "fr");
  EXPECT_LT(before, LiveBlocks());
  translator->Release();
  EXPECT_EQ(before, LiveBlocks());
}

TEST_F(TranslatorMemory, TheLastOfSeveralReleasesDestroys) {
  const long before = LiveBlocks();
  CRealKxXlate* const translator = New("agent", "fr");
  for (int reference = 0; reference < 3; ++reference) translator->AddRef();
  translator->Release();
  translator->Release();
  EXPECT_LT(before, LiveBlocks());
  EXPECT_STREQ("FR-ca (agent)", translator->GetDisplayName());
  translator->Release();
  EXPECT_EQ(before, LiveBlocks());
}

TEST_F(TranslatorMemory, OneReferenceIsEndedByOneRelease) {
  const long before = LiveBlocks();
  CRealKxXlate* const translator = New("agent", "fr");
  translator->AddRef();
  translator->Release();
  EXPECT_EQ(before, LiveBlocks());
}

TEST_F(TranslatorMemory, AReplacedTranslatorIsDestroyedWithItsLastHolder) {
  kx::CRealKxXlateCache cache(context_);
  CRealKxXlate* const held = cache.FindOrLoad("agent", "fr", "ca");
  tree_.Write("lang/FR/agent.lang", "Name other\n");
  std::filesystem::last_write_time(PathFromUtf8(tree_.Path("lang/FR/agent.lang")),
                                   std::filesystem::file_time_type());
  EXPECT_TRUE(FreedBy({held}, [&] { cache.FindOrLoad("agent", "fr", "ca")->Release(); }).empty());
  EXPECT_EQ(std::vector<void*>{held}, FreedBy({held}, [held] { held->Release(); }));
  cache.Clear();
}

TEST_F(TranslatorMemory, AReplacedTranslatorThatNobodyHoldsIsDestroyedAtOnce) {
  kx::CRealKxXlateCache cache(context_);
  CRealKxXlate* const old = cache.FindOrLoad("agent", "fr", "ca");
  old->Release();
  tree_.Write("lang/FR/agent.lang", "Name other\n");
  std::filesystem::last_write_time(PathFromUtf8(tree_.Path("lang/FR/agent.lang")),
                                   std::filesystem::file_time_type());
  EXPECT_EQ(std::vector<void*>{old},
            FreedBy({old}, [&] { cache.FindOrLoad("agent", "fr", "ca")->Release(); }));
  cache.Clear();
}

TEST_F(TranslatorMemory, ClearReleasesInTheOrderOfTheKeys) {
  kx::CRealKxXlateCache cache(context_);
  const auto find = [&cache](const char* name, const char* region) -> void* {
    CRealKxXlate* const translator = cache.FindOrLoad(name, "EN", region);
    translator->Release();
    return translator;
  };
  void* const sixth = find("\xC3\xA9", "");
  void* const third = find("B", "");
  void* const fourth = find("b", "us");
  void* const second = find("bA", "");  // letters stand behind "_" because they are compared small
  void* const first = find("b_", "");   // and "|", which ends a name, behind all of them
  void* const fifth = find("c", "");
  EXPECT_EQ((std::vector<void*>{first, second, third, fourth, fifth, sixth}),
            FreedBy({sixth, second, third, fifth, fourth, first}, [&cache] { cache.Clear(); }));
}

TEST_F(TranslatorMemory, EndingTheCacheDestroysNoTranslator) {
  CRealKxXlate* translator = nullptr;
  EXPECT_TRUE(FreedBy({}, [&] {
                kx::CRealKxXlateCache cache(context_);
                translator = cache.FindOrLoad("agent", "fr", "ca");
                translator->Release();
                WatchBlocks({translator});
              }).empty());
  EXPECT_EQ(std::vector<void*>{translator}, FreedBy({translator}, [&] { translator->Release(); }));
}

TEST_F(TranslatorMemory, NothingIsLeftOfACacheThatWasCleared) {
  const long before = LiveBlocks();
  {
    kx::CRealKxXlateCache cache(context_);
    for (const char* language : {"fr", "en", "nl", "FR"}) {
      CRealKxXlate* const translator = cache.FindOrLoad("agent", language, "");
      if (translator != nullptr) translator->Release();
    }
    cache.Clear();
  }
  EXPECT_EQ(before, LiveBlocks());
}

}  // namespace
