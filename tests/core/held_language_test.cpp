// Language files that are there but cannot be opened for the moment.

#include <gtest/gtest.h>

#include <string>

#include "core/language_cache_fixture.h"
#include "support/held_file.h"

namespace {

class HeldLanguage : public LanguageCache {
 protected:
  HeldLanguage() { context_.log.WriteLine(tree_.Path(), {"the log is open"}); }

  using LanguageTree::Write;  // the time of last change is that of the writing

  Held Find(const char* language) { return LanguageCache::Find("agent", language, nullptr); }

  std::string PathOf(const std::string& file) const { return tree_.Path("lang/" + file); }
};

TEST_F(HeldLanguage, KeepsTheTextsThatWereReadBefore) {
  const std::string file = "FR/agent.lang";
  Write(file, File("old"));
  const Held before = Find("fr");
  Write(file, File("newer"));
  {
    const HeldFile held(PathOf(file));
    for (int request = 0; request < 3; ++request) {
      const Held during = Find("fr");
      EXPECT_EQ(before, during);
      EXPECT_STREQ("old", during->GetText("K"));
    }
  }
  EXPECT_EQ("the log is open\n", Log());  // there are files, and no other language was tried
  EXPECT_STREQ("newer", Find("fr")->GetText("K"));
  EXPECT_STREQ("old", before->GetText("K"));
}

TEST_F(HeldLanguage, KeepsAllTextsWhenOneOfSeveralFilesIsHeld) {
  Write("FR/(Common).lang", File("common"));
  Write("FR/agent.lang", "Name n\n\nKey L\nValue l\n");
  Find("fr");
  Write("FR/(Common).lang", File("changed"));
  {
    const HeldFile held(PathOf("FR/agent.lang"));
    const Held during = Find("fr");
    EXPECT_STREQ("common", during->GetText("K"));
    EXPECT_STREQ("l", during->GetText("L"));
  }
  const Held after = Find("fr");
  EXPECT_STREQ("changed", after->GetText("K"));
  EXPECT_STREQ("l", after->GetText("L"));
}

TEST_F(HeldLanguage, ThatWasNeverReadIsTriedAgain) {
  Write("FR/agent.lang", File("French"));
  {
    const HeldFile held(PathOf("FR/agent.lang"));
    EXPECT_EQ(nullptr, Find("fr"));
  }
  EXPECT_STREQ("French", Find("fr")->GetText("K"));
  EXPECT_EQ("the log is open\n", Log());
}

// English always has a translator, but an empty one that was made so is not the one that stays.
TEST_F(HeldLanguage, EnglishIsTriedAgain) {
  Write("EN/agent.lang", File("English"));
  {
    const HeldFile held(PathOf("EN/agent.lang"));
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
  Write("FR/agent.lang", File("old"));
  Find("fr");
  Write("FR/agent.lang", File("newer"));
  {
    const HeldFile held(PathOf("FR/agent.lang"));
    EXPECT_STREQ("old", Find("fr")->GetText("K"));
  }
  Remove("FR/agent.lang");
  EXPECT_EQ(nullptr, Find("fr")->GetText("K"));
}

// Rewritten again and again without a pause: each change is noticed by the next request.
TEST_F(HeldLanguage, RewrittenWithoutAPauseIsReadEachTime) {
  std::string text;
  for (int round = 0; round < 50; ++round) {
    text += 'x';
    Write("FR/agent.lang", File(text));
    ASSERT_STREQ(text.c_str(), Find("fr")->GetText("K"));
  }
}

TEST_F(HeldLanguage, HalfWrittenIsReadAgainWhenItIsWhole) {
  const std::string whole = File("text") + "Key L\nValue l\n";
  for (std::size_t half = 0; half < whole.size(); ++half) {
    Write("FR/agent.lang", whole.substr(0, half));
    Find("fr");
    Write("FR/agent.lang", whole);
    const Held french = Find("fr");
    ASSERT_STREQ("text", french->GetText("K")) << half;
    ASSERT_STREQ("l", french->GetText("L")) << half;
  }
}

}  // namespace
