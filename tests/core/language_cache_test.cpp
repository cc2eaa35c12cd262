#include "core/language_cache.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <type_traits>

#include "core/language_cache_fixture.h"

namespace {

static_assert(std::has_virtual_destructor_v<kx::CRealKxXlateCache>);

// What is one entry

TEST_F(LanguageCache, AnswersTheSameTranslatorAgain) {
  Write("FR/agent.lang", File("a"));
  const Held first = FindFrench();
  const Held second = FindFrench();
  ASSERT_NE(nullptr, first);
  EXPECT_EQ(first, second);
  EXPECT_EQ(1u, second->GetId());
  EXPECT_EQ(2u, nextId_);
}

TEST_F(LanguageCache, KeepsTranslatorsThatNobodyHolds) {
  Write("FR/agent.lang", File("a"));
  for (int round = 0; round < 3; ++round) {
    const Held translator = FindFrench();
    EXPECT_EQ(1u, translator->GetId());
    EXPECT_STREQ("a", translator->GetText("K"));
  }
}

TEST_F(LanguageCache, KeysThatDifferInAsciiCaseAreOneEntry) {
  Write("DE/messages.lang", File("a"));
  const Held first = Find("messages", "de", nullptr);
  EXPECT_EQ(first, Find("messages", "DE", nullptr));
  EXPECT_EQ(first, Find("MESSAGES", "De", nullptr));
  const Held austrian = Find("messages", "de", "at");
  EXPECT_NE(first, austrian);
  EXPECT_EQ(austrian, Find("Messages", "dE", "AT"));
}

TEST_F(LanguageCache, KeysThatDifferInOtherLettersAreTwoEntries) {
  Write("\xC3\x89/messages.lang", File("a"));
  const Held small = Find("messages", "\xC3\xA9", nullptr);
  const Held capital = Find("messages", "\xC3\x89", nullptr);
  ASSERT_NE(nullptr, small);
  ASSERT_NE(nullptr, capital);
  EXPECT_NE(small, capital);
  EXPECT_STREQ(small->GetLanguageCode(), capital->GetLanguageCode());
}

TEST_F(LanguageCache, AnEmptyRegionIsNone) {
  Write("FR/agent.lang", File("a"));
  const Held first = Find("agent", "fr", nullptr);
  EXPECT_EQ(first, Find("agent", "fr", ""));
  EXPECT_NE(first, Find("agent", "fr", "CA"));
}

TEST_F(LanguageCache, NamesAndCodesAreNotTrimmed) {
  Write("FR/(Common).lang", File("a"));
  const Held translator = Find("agent", "fr", nullptr);
  EXPECT_NE(translator, Find("agent ", "fr", nullptr));
  EXPECT_NE(translator, Find(" agent", "fr", nullptr));
  EXPECT_NE(translator, Find("agent", "fr", " "));
  EXPECT_EQ(nullptr, Find("agent", "fr ", nullptr));
}

TEST_F(LanguageCache, ComponentsAreEntriesOfTheirOwn) {
  Write("FR/a.lang", File("a"));
  Write("FR/b.lang", File("b"));
  EXPECT_STREQ("a", Find("a", "fr", nullptr)->GetText("K"));
  EXPECT_STREQ("b", Find("b", "fr", nullptr)->GetText("K"));
  EXPECT_STREQ("a", Find("a", "fr", nullptr)->GetText("K"));
  EXPECT_EQ(3u, nextId_);
}

TEST_F(LanguageCache, AnswersAsTheFirstRequestWasSpelled) {
  Write("FR/agent.lang", File("small"), 1000);
  Write("FR/AGENT.lang", File("capital"), 1000);
  EXPECT_STREQ("FR-ca (agent)", Find("agent", "fr", "ca")->GetDisplayName());
  EXPECT_STREQ("FR-ca (agent)", Find("AGENT", "FR", "CA")->GetDisplayName());
  EXPECT_STREQ("small", Find("AGENT", "FR", "CA")->GetText("K"));
  Touch("FR/agent.lang", 2000);
  EXPECT_STREQ("FR-CA (AGENT)", Find("AGENT", "FR", "CA")->GetDisplayName());
  EXPECT_STREQ("capital", Find("agent", "fr", "ca")->GetText("K"));
}

// Languages without files

TEST_F(LanguageCache, AbsentLanguageIsTriedAgain) {
  for (std::uint32_t round = 1; round <= 3; ++round) {
    EXPECT_EQ(nullptr, FindFrench());
    EXPECT_EQ(round + 1, nextId_);
  }
  const std::string line = "No \"FR (agent)\" files found, trying EN.\n";
  EXPECT_EQ(line + line + line, Log());
  Write("FR/agent.lang", File("new"));
  const Held found = FindFrench();
  ASSERT_NE(nullptr, found);
  EXPECT_EQ(4u, found->GetId());
  EXPECT_STREQ("new", found->GetText("K"));
}

TEST_F(LanguageCache, AbsentLanguageLeavesOthersAlone) {
  Write("EN/agent.lang", File("english"));
  const Held english = Find("agent", "EN", nullptr);
  EXPECT_EQ(nullptr, Find("agent", "eng", nullptr));
  EXPECT_EQ(nullptr, Find("agent", "", "EN"));
  EXPECT_EQ(english, Find("agent", "en", nullptr));
}

TEST_F(LanguageCache, EnglishWithoutFilesIsServedAndKept) {
  const Held english = Find("agent", "EN", nullptr);
  ASSERT_NE(nullptr, english);
  EXPECT_FALSE(english->AnyFileFound());
  EXPECT_EQ(nullptr, english->GetText("K"));
  EXPECT_EQ(english, Find("agent", "en", nullptr));
  const Held american = Find("agent", "En", "US");
  ASSERT_NE(nullptr, american);
  EXPECT_NE(english, american);
  EXPECT_EQ(american, Find("agent", "en", "us"));
  EXPECT_EQ(3u, nextId_);
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageCache, EnglishWithoutFilesDoesNotNoticeNewOnes) {
  const Held english = Find("agent", "en", nullptr);
  Write("EN/agent.lang", File("new"));
  EXPECT_EQ(english, Find("agent", "en", nullptr));
  cache_->Clear();
  EXPECT_STREQ("new", Find("agent", "en", nullptr)->GetText("K"));
}

// The end

TEST_F(LanguageCache, ClearMakesLaterLookupsReadAnew) {
  Write("FR/agent.lang", File("a"));
  EXPECT_EQ(1u, FindFrench()->GetId());
  EXPECT_EQ(2u, Find("agent", "en", nullptr)->GetId());
  cache_->Clear();
  EXPECT_EQ(3u, Find("agent", "en", nullptr)->GetId());
  EXPECT_EQ(4u, FindFrench()->GetId());
}

TEST_F(LanguageCache, ClearLeavesHeldTranslatorsUsable) {
  Write("FR/agent.lang", File("a"));
  const Held held = FindFrench();
  cache_->Clear();
  cache_->Clear();
  EXPECT_STREQ("a", held->GetText("K"));
  EXPECT_STREQ("FR (agent)", held->GetDisplayName());
  const Held again = FindFrench();
  EXPECT_NE(held, again);
  EXPECT_EQ(1u, held->GetId());
  EXPECT_EQ(2u, again->GetId());
}

TEST_F(LanguageCache, EndingKeepsTranslators) {
  Write("FR/agent.lang", File("a"));
  const Held callers = FindFrench();
  CRealKxXlate* const unheld = cache_->FindOrLoad("agent", "en", nullptr);
  unheld->Release();
  cache_.reset();
  EXPECT_STREQ("a", callers->GetText("K"));
  EXPECT_STREQ("EN (agent)", unheld->GetDisplayName());
  // The references that the cache left behind.
  callers->Release();
  unheld->Release();
  EXPECT_STREQ("a", callers->GetText("K"));
}

}  // namespace
