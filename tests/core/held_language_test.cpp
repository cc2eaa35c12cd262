// Language files that are there but cannot be opened for the moment.

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "core/language_cache.h"
#include "lang/interned_strings.h"
#include "support/held_file.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

struct ReleaseTranslator {
  void operator()(CKxXlate* translator) const { translator->Release(); }
};
using Held = std::unique_ptr<CRealKxXlate, ReleaseTranslator>;

std::string File(const std::string& text) { return "Name n\n\nKey K\nValue " + text + "\n"; }

class HeldLanguage : public testing::Test {
 protected:
  ~HeldLanguage() override { cache_.Clear(); }

  Held Find(const char* language) { return Held(cache_.FindOrLoad("agent", language, nullptr)); }

  TempTree tree_;
  kx::LanguagePaths paths_{true, tree_.Path(), tree_.Path("lang") + "/"};
  kx::InternTable strings_;
  std::uint32_t nextId_ = 1;
  kx::TranslationLog& log_ = LastingLog();
  kx::LanguageContext context_{paths_, strings_, nextId_, log_};
  kx::CRealKxXlateCache cache_{context_};
};

TEST_F(HeldLanguage, KeepsTheTextsThatWereReadBefore) {
  const std::string file = "lang/FR/agent.lang";
  tree_.Write(file, File("old"));
  const Held before = Find("fr");
  tree_.Write(file, File("newer"));
  {
    const HeldFile held(tree_.Path(file));
    for (int request = 0; request < 3; ++request) {
      const Held during = Find("fr");
      EXPECT_EQ(before, during);
      EXPECT_STREQ("old", during->GetText("K"));
    }
  }
  EXPECT_STREQ("newer", Find("fr")->GetText("K"));
  EXPECT_STREQ("old", before->GetText("K"));
}

TEST_F(HeldLanguage, KeepsAllTextsWhenOneOfSeveralFilesIsHeld) {
  tree_.Write("lang/FR/(Common).lang", File("common"));
  tree_.Write("lang/FR/agent.lang", "Name n\n\nKey L\nValue l\n");
  Find("fr");
  tree_.Write("lang/FR/(Common).lang", File("changed"));
  {
    const HeldFile held(tree_.Path("lang/FR/agent.lang"));
    const Held during = Find("fr");
    EXPECT_STREQ("common", during->GetText("K"));
    EXPECT_STREQ("l", during->GetText("L"));
  }
  const Held after = Find("fr");
  EXPECT_STREQ("changed", after->GetText("K"));
  EXPECT_STREQ("l", after->GetText("L"));
}

TEST_F(HeldLanguage, ThatWasNeverReadIsTriedAgain) {
  tree_.Write("lang/FR/agent.lang", File("French"));
  log_.WriteLine(tree_.Path(), {"the log is open"});
  {
    const HeldFile held(tree_.Path("lang/FR/agent.lang"));
    EXPECT_EQ(nullptr, Find("fr"));
  }
  EXPECT_STREQ("French", Find("fr")->GetText("K"));
  EXPECT_EQ("the log is open\nNo \"FR (agent)\" files found, trying EN.\n",
            tree_.Read("log/translate.log"));
}

// English always has a translator, but an empty one that was made so is not the one that stays.
TEST_F(HeldLanguage, EnglishIsTriedAgain) {
  tree_.Write("lang/EN/agent.lang", File("English"));
  {
    const HeldFile held(tree_.Path("lang/EN/agent.lang"));
    const Held first = Find("en");
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(nullptr, first->GetText("K"));
    EXPECT_NE(first, Find("en"));
  }
  const Held english = Find("en");
  EXPECT_STREQ("English", english->GetText("K"));
  EXPECT_EQ(english, Find("en"));
}

// Once it is gone it is absent, and no longer in somebody's hands.
TEST_F(HeldLanguage, ThatVanishesMeanwhileHasNoTexts) {
  tree_.Write("lang/FR/agent.lang", File("old"));
  Find("fr");
  tree_.Write("lang/FR/agent.lang", File("newer"));
  {
    const HeldFile held(tree_.Path("lang/FR/agent.lang"));
    EXPECT_STREQ("old", Find("fr")->GetText("K"));
  }
  std::filesystem::remove(PathFromUtf8(tree_.Path("lang/FR/agent.lang")));
  EXPECT_EQ(nullptr, Find("fr")->GetText("K"));
}

// Rewritten again and again without a pause: each change is noticed by the next request.
TEST_F(HeldLanguage, RewrittenWithoutAPauseIsReadEachTime) {
  std::string text;
  for (int round = 0; round < 50; ++round) {
    text += 'x';
    tree_.Write("lang/FR/agent.lang", File(text));
    ASSERT_STREQ(text.c_str(), Find("fr")->GetText("K"));
  }
}

TEST_F(HeldLanguage, HalfWrittenIsReadAgainWhenItIsWhole) {
  const std::string whole = File("text") + "Key L\nValue l\n";
  for (std::size_t half = 0; half < whole.size(); ++half) {
    tree_.Write("lang/FR/agent.lang", whole.substr(0, half));
    Find("fr");
    tree_.Write("lang/FR/agent.lang", whole);
    const Held french = Find("fr");
    ASSERT_STREQ("text", french->GetText("K")) << half;
    ASSERT_STREQ("l", french->GetText("L")) << half;
  }
}

}  // namespace
