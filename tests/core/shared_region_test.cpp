// A region without files of its own says what its language says, and keeps no copy of it.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>

#include "core/language_cache_fixture.h"
#include "support/held_file.h"

namespace {

/// What is the same to the byte and of the same time, as packages made twice from other texts are.
constexpr std::int64_t kOneTime = 1000;

class SharedRegion : public LanguageCache {
 protected:
  Held Canadian() { return Find("agent", "fr", "CA"); }
  Held Swiss() { return Find("agent", "fr", "CH"); }
};

TEST_F(SharedRegion, SaysWhatItsLanguageSaysUnderItsOwnName) {
  Write("FR/(Common).lang", "Name French\nDirectory help /docs\nDirection RTL\n\nKey C\nValue c\n");
  Write("FR/agent.lang", "Prompt Suffix :\nImages /i\n\nKey K\nValue k\nButton B\nLabel b\n");
  const Held french = FindFrench();
  const Held canadian = Canadian();
  for (const Held* each : {&french, &canadian}) {
    EXPECT_STREQ("k", (*each)->GetText("K"));
    EXPECT_STREQ("c", (*each)->GetText("C"));
    EXPECT_STREQ("b", (*each)->GetLabel("B"));
    EXPECT_STREQ("/docs", (*each)->GetDirectory("help"));
    EXPECT_STREQ("French", (*each)->GetLongName());
    EXPECT_STREQ("/i", (*each)->GetImageDirectory());
    EXPECT_STREQ(":", (*each)->GetPromptSuffix());
    EXPECT_STREQ("RTL", (*each)->GetDirection());
    EXPECT_STREQ("ISO-8859-1", (*each)->GetCharset());
    EXPECT_STREQ("FR", (*each)->GetLanguageCode());
    EXPECT_STREQ("agent", (*each)->GetName());
  }
  EXPECT_STREQ("", french->GetCountryCode());
  EXPECT_STREQ("CA", canadian->GetCountryCode());
  EXPECT_STREQ("FR (agent)", french->GetDisplayName());
  EXPECT_STREQ("FR-CA (agent)", canadian->GetDisplayName());
  EXPECT_EQ(1u, french->GetId());
  EXPECT_EQ(2u, canadian->GetId());
  EXPECT_EQ(french->GetCharset(), canadian->GetCharset()) << "a copy";
}

TEST_F(SharedRegion, MayComeBeforeItsLanguageAndOtherRegions) {
  Write("FR/agent.lang", File("text"));
  Write("FR/other.lang", File("text"));
  const Held canadian = Canadian();
  EXPECT_EQ(canadian->GetCharset(), FindFrench()->GetCharset());
  EXPECT_EQ(canadian->GetCharset(), Swiss()->GetCharset());
  EXPECT_NE(canadian->GetCharset(), Find("other", "fr", "CA")->GetCharset());
}

TEST_F(SharedRegion, ReportsTheKeysThatItLacksForItself) {
  Write("FR/agent.lang", File("text"));
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(nullptr, FindFrench()->GetText("ABSENT"));
    EXPECT_EQ(nullptr, Canadian()->GetText("ABSENT"));
  }
  EXPECT_EQ("FR (agent) key not found: ABSENT\nFR-CA (agent) key not found: ABSENT\n", Log());
}

TEST_F(SharedRegion, ReportsTheProblemsOfTheFilesAsIfItHadReadThem) {
  Write("FR/(Common).lang", "x\nCharset a\n");
  Write("FR/agent.lang", "Charset b\n\nodd\n");
  const std::string lines =
      "Illegal Header Directive in FR/(Common).lang at line #1: x\n"
      "FR/agent.lang contains a differing value for CHARSET from default language\n"
      "Unrecognized text in FR/agent.lang at line #3: odd\n";
  FindFrench();
  EXPECT_EQ(lines, Log());
  Canadian();
  EXPECT_EQ(lines + lines, Log());
  Canadian();
  EXPECT_EQ(lines + lines, Log());
}

TEST_F(SharedRegion, ReportsAllProblemsHoweverManyThereAre) {
  std::string before;
  for (const int count : {1000, 1001}) {
    const std::string name = "agent" + std::to_string(count);
    std::string file = "Name n\n\n";
    for (int line = 0; line < count; ++line) file += "odd\n";
    Write("FR/" + name + ".lang", file);
    Find(name.c_str(), "fr", nullptr);
    const std::string ofLanguage = Log().substr(before.size());
    EXPECT_EQ(count, std::count(ofLanguage.begin(), ofLanguage.end(), '\n'));
    Find(name.c_str(), "fr", "CA");
    before += ofLanguage + ofLanguage;
    EXPECT_EQ(before, Log());
  }
}

TEST_F(SharedRegion, WithAFileOfItsOwnIsMergedAsEver) {
  Write("FR/(Common).lang", "Name French\n\nKey A\nValue language\nKey B\nValue language\n");
  Write("FR-CA/agent.lang", "Images /ca\n\nKey b\nValue region\n");
  const Held french = FindFrench();
  const Held canadian = Canadian();
  const Held swiss = Swiss();
  EXPECT_STREQ("language", canadian->GetText("A"));
  EXPECT_STREQ("region", canadian->GetText("B"));
  EXPECT_STREQ("/ca", canadian->GetImageDirectory());
  for (const Held* each : {&french, &swiss}) {
    EXPECT_STREQ("language", (*each)->GetText("B"));
    EXPECT_EQ(nullptr, (*each)->GetImageDirectory());
  }
}

TEST_F(SharedRegion, WhoseOwnFileComesHasItAtItsFirstRequestOrAfterAChange) {
  Write("FR/agent.lang", File("language"), kOneTime);
  FindFrench();
  Swiss();
  Write("FR-CA/agent.lang", File("Canadian"));
  Write("FR-CH/agent.lang", File("Swiss"));
  EXPECT_STREQ("Canadian", Canadian()->GetText("K"));
  EXPECT_STREQ("language", Swiss()->GetText("K"));
  Touch("FR/agent.lang", kOneTime + 1);
  EXPECT_STREQ("Swiss", Swiss()->GetText("K"));
}

TEST_F(SharedRegion, ReadsAnewWhatHasChangedSinceItsLanguageWasRead) {
  Write("FR/agent.lang", File("old"), kOneTime);
  const Held french = FindFrench();
  Write("FR/agent.lang", File("new"), kOneTime + 1);
  EXPECT_STREQ("new", Canadian()->GetText("K"));
  EXPECT_STREQ("old", french->GetText("K"));
  EXPECT_STREQ("new", FindFrench()->GetText("K"));
  EXPECT_EQ(Canadian()->GetCharset(), FindFrench()->GetCharset()) << "read twice";
}

TEST_F(SharedRegion, ReadsAnewWhereAFileOfTheLanguageIsNewOrGone) {
  Write("FR/agent.lang", File("agent"));
  const Held french = FindFrench();
  Write("FR/(Common).lang", "Images /common\n");
  EXPECT_STREQ("/common", Canadian()->GetImageDirectory());
  EXPECT_EQ(nullptr, french->GetImageDirectory());
  Remove("FR/agent.lang");
  EXPECT_EQ(nullptr, Swiss()->GetText("K"));
  EXPECT_STREQ("/common", Swiss()->GetImageDirectory());
}

// A time and a size do not tell one file from another for sure, and a region that has never been
// asked for has always been read from the disk.
TEST_F(SharedRegion, ReadsAnewWhenAnotherFileOfTheSameTimeAndSizeIsThere) {
  Write("FR/agent.lang", File("one"), kOneTime);
  const Held french = FindFrench();
  Write("FR/agent.lang.new", File("two"), kOneTime);
  std::filesystem::rename(PathFromUtf8(tree_.Path("lang/FR/agent.lang.new")),
                          PathFromUtf8(tree_.Path("lang/FR/agent.lang")));
  EXPECT_EQ(french, FindFrench());
  EXPECT_STREQ("two", Canadian()->GetText("K"));
}

TEST_F(SharedRegion, IsNotMadeOfFilesOfWhichOneCouldNotBeReadForTheMoment) {
  Write("FR/(Common).lang", File("common"));
  Write("FR/agent.lang", "Name n\n");
  Held during;
  {
    const HeldFile held(tree_.Path("lang/FR/(Common).lang"));
    during = FindFrench();
    EXPECT_EQ(nullptr, during->GetText("K"));
  }
  EXPECT_STREQ("common", Canadian()->GetText("K"));
}

TEST_F(SharedRegion, GoesOnWhenItsLanguageIsReadAgainOrForgotten) {
  Write("FR/agent.lang", File("old"), kOneTime);
  FindFrench();
  const Held canadian = Canadian();
  Write("FR/agent.lang", File("new"), kOneTime + 1);
  EXPECT_STREQ("new", FindFrench()->GetText("K"));
  EXPECT_STREQ("old", canadian->GetText("K"));
  cache_->Clear();
  EXPECT_STREQ("old", canadian->GetText("K"));
  EXPECT_STREQ("new", Canadian()->GetText("K"));
}

TEST_F(SharedRegion, IsReadAnewAfterFreeCacheThoughSomebodyHoldsItsLanguage) {
  Write("FR/agent.lang", File("text"));
  const Held held = FindFrench();
  cache_->Clear();
  EXPECT_NE(held->GetCharset(), Canadian()->GetCharset());
}

TEST_F(SharedRegion, OfANameThatLeadsElsewhereSharesTheCommonFile) {
  Write("FR/(Common).lang", File("common"));
  tree_.Write("secret.lang", File("secret"));
  const Held french = Find("../../secret", "fr", nullptr);
  const Held canadian = Find("../../secret", "fr", "CA");
  EXPECT_STREQ("common", canadian->GetText("K"));
  EXPECT_EQ(french->GetCharset(), canadian->GetCharset());
}

// Their named files are one file, and each has a common file of its own.
TEST_F(SharedRegion, DoesNotShareWithALanguageOfWhichItsNamesBeginningIsAPart) {
  Write("FR/(Common).lang", File("French"));
  Write("FR/X/(Common).lang", File("of X"));
  Write("FR/X/agent.lang", "Images /x\n");
  const Held inFrench = Find("X/agent", "fr", nullptr);
  const Held inX = Find("agent", "fr/x", nullptr);
  EXPECT_STREQ("French", inFrench->GetText("K"));
  EXPECT_STREQ("of X", inX->GetText("K"));
  EXPECT_STREQ("French", Find("X/agent", "fr", "CA")->GetText("K"));
  EXPECT_STREQ("of X", Find("agent", "fr/x", "CA")->GetText("K"));
  EXPECT_STREQ("/x", inFrench->GetImageDirectory());
}

TEST_F(SharedRegion, WithoutANameReadsTheCommonFileTwiceForEach) {
  Write("FR/(Common).lang", "x\nName n\n");
  const std::string line = "Illegal Header Directive in FR/(Common).lang at line #1: x\n";
  Find("", "fr", nullptr);
  EXPECT_EQ(line + line, Log());
  EXPECT_STREQ("n", Find("", "fr", "CA")->GetLongName());
  EXPECT_EQ(line + line + line + line, Log());
}

}  // namespace
