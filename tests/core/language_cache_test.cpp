#include "core/language_cache.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <type_traits>

#include "lang/interned_strings.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

static_assert(std::has_virtual_destructor_v<kx::CRealKxXlateCache>);

struct ReleaseTranslator {
  void operator()(CKxXlate* translator) const { translator->Release(); }
};
using Held = std::unique_ptr<CRealKxXlate, ReleaseTranslator>;

/// A file with one text, whose key is K.
std::string File(const std::string& text) { return "Name n\n\nKey K\nValue " + text + "\n"; }

class LanguageCache : public testing::Test {
 protected:
  LanguageCache() : cache_(std::make_unique<kx::CRealKxXlateCache>(context_)) {}
  ~LanguageCache() override {
    if (cache_ != nullptr) cache_->Clear();
  }

  /// Writes a file of the language directory, whose time of last change is `seconds`.
  void Write(const std::string& file, const std::string& bytes, std::int64_t seconds = 1000) {
    tree_.Write("lang/" + file, bytes);
    Touch(file, seconds);
  }

  void Touch(const std::string& file, std::int64_t seconds) {
    using std::filesystem::file_time_type;
    const std::chrono::sys_time<std::chrono::nanoseconds> time{std::chrono::seconds(seconds)};
    std::filesystem::last_write_time(PathFromUtf8(tree_.Path("lang/" + file)),
                                     file_time_type::clock::from_sys(time));
  }

  void Remove(const std::string& file) {
    std::filesystem::remove(PathFromUtf8(tree_.Path("lang/" + file)));
  }

  Held Find(const char* name, const char* language, const char* region) {
    return Held(cache_->FindOrLoad(name, language, region));
  }

  Held FindFrench() { return Find("agent", "fr", nullptr); }

  std::string Log() const { return tree_.Read("log/translate.log"); }

  TempTree tree_;
  kx::LanguagePaths paths_{true, tree_.Path(), tree_.Path("lang") + "/"};
  kx::InternTable strings_;
  std::uint32_t nextId_ = 1;
  kx::LanguageContext context_{paths_, strings_, nextId_, LastingLog()};
  std::unique_ptr<kx::CRealKxXlateCache> cache_;
};

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

// Changed files

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
