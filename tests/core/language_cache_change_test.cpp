// What becomes of cached languages whose files change.

#include <gtest/gtest.h>

#include <string>

#include "core/language_cache_fixture.h"

namespace {

TEST_F(LanguageCache, ReadsAChangedLanguageAgain) {
  Write("FR/agent.lang", File("old"), 1000);
  const Held before = FindFrench();
  Write("FR/agent.lang", File("new"), 2000);
  const Held after = FindFrench();
  EXPECT_NE(before, after);
  EXPECT_EQ(2u, after->GetId());
  EXPECT_STREQ("new", after->GetText("K"));
  EXPECT_EQ(after, FindFrench());
  EXPECT_EQ(3u, nextId_);
}

TEST_F(LanguageCache, ReplacedTranslatorsGoOnForTheirHolders) {
  Write("FR/agent.lang", File("old"), 1000);
  const Held before = FindFrench();
  Write("FR/agent.lang", "Name other\n", 2000);
  const Held after = FindFrench();
  EXPECT_EQ(1u, before->GetId());
  EXPECT_STREQ("old", before->GetText("K"));
  EXPECT_STREQ("n", before->GetLongName());
  EXPECT_EQ(nullptr, before->GetLabel("ABSENT"));
  EXPECT_EQ(nullptr, after->GetText("K"));
  EXPECT_STREQ("other", after->GetLongName());
}

TEST_F(LanguageCache, ReplacesTranslatorsThatNobodyHolds) {
  Write("FR/agent.lang", File("old"), 1000);
  EXPECT_EQ(1u, FindFrench()->GetId());
  Write("FR/agent.lang", File("new"), 500);
  EXPECT_EQ(2u, FindFrench()->GetId());
  EXPECT_STREQ("new", FindFrench()->GetText("K"));
}

TEST_F(LanguageCache, ReadsOnlyTheChangedLanguageAgain) {
  Write("FR/(Common).lang", File("french"), 1000);
  Write("FR-CA/agent.lang", File("canadian"), 1000);
  const Held french = FindFrench();
  const Held canadian = Find("agent", "fr", "CA");
  Touch("FR-CA/agent.lang", 2000);
  EXPECT_EQ(french, FindFrench());
  EXPECT_NE(canadian, Find("agent", "fr", "CA"));
  EXPECT_EQ(4u, nextId_);
}

TEST_F(LanguageCache, AChangeOfASharedFileReachesEachLanguageThatReadIt) {
  Write("FR/(Common).lang", File("old"), 1000);
  EXPECT_EQ(1u, Find("a", "fr", nullptr)->GetId());
  EXPECT_EQ(2u, Find("b", "fr", nullptr)->GetId());
  Write("FR/(Common).lang", File("new"), 2000);
  EXPECT_STREQ("new", Find("a", "fr", nullptr)->GetText("K"));
  EXPECT_STREQ("new", Find("b", "fr", nullptr)->GetText("K"));
  EXPECT_EQ(5u, nextId_);
}

TEST_F(LanguageCache, ANewFileIsNoticedOnlyWhenAnotherChanges) {
  Write("FR/agent.lang", File("language"), 1000);
  const Held before = Find("agent", "fr", "CA");
  Write("FR-CA/agent.lang", File("country"), 1000);
  EXPECT_EQ(before, Find("agent", "fr", "CA"));
  Touch("FR/agent.lang", 2000);
  EXPECT_STREQ("country", Find("agent", "fr", "CA")->GetText("K"));
}

TEST_F(LanguageCache, ADeletedFileIsNoticed) {
  Write("FR/(Common).lang", File("common"), 1000);
  Write("FR/agent.lang", File("named"), 1000);
  EXPECT_STREQ("named", FindFrench()->GetText("K"));
  Remove("FR/agent.lang");
  EXPECT_STREQ("common", FindFrench()->GetText("K"));
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageCache, AReloadThatFindsNoFileIsKept) {
  Write("EN/agent.lang", File("english"));
  Write("FR/agent.lang", File("french"));
  const Held before = FindFrench();
  Remove("FR/agent.lang");
  const Held after = FindFrench();
  ASSERT_NE(nullptr, after);
  EXPECT_NE(before, after);
  EXPECT_STREQ("FR", after->GetLanguageCode());
  EXPECT_EQ(2u, after->GetId());
  EXPECT_FALSE(after->AnyFileFound());
  EXPECT_EQ(nullptr, after->GetText("K"));
  EXPECT_STREQ("french", before->GetText("K"));
  EXPECT_EQ(after, FindFrench());
  EXPECT_EQ("No \"FR (agent)\" files found, trying EN.\n", Log());
}

TEST_F(LanguageCache, AReloadThatFoundNoFileDoesNotNoticeNewOnes) {
  Write("FR/agent.lang", File("old"));
  FindFrench();
  Remove("FR/agent.lang");
  const Held empty = FindFrench();
  Write("FR/agent.lang", File("new"));
  EXPECT_EQ(empty, FindFrench());
  cache_->Clear();
  EXPECT_STREQ("new", FindFrench()->GetText("K"));
}

TEST_F(LanguageCache, ReportsProblemsAgainWhenALanguageIsReadAgain) {
  Write("FR/agent.lang", "x\n", 1000);
  FindFrench();
  FindFrench();
  EXPECT_EQ("Illegal Header Directive in FR/agent.lang at line #1: x\n", Log());
  Write("FR/agent.lang", "y\n", 2000);
  FindFrench();
  EXPECT_EQ(
      "Illegal Header Directive in FR/agent.lang at line #1: x\n"
      "Illegal Header Directive in FR/agent.lang at line #1: y\n",
      Log());
}

}  // namespace
