// Where language files are looked for, and where the log of their problems is.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/host_tree.h"
#include "support/set_environment.h"

namespace {

std::string File(const std::string& text) { return "Name n\n\nKey K\nValue " + text + "\n"; }

const std::string kNoFrench = "No \"FR (agent)\" files found, trying EN.\n";
const std::vector<std::string> kLookUp = {"text", "agent", "fr", "K"};

std::vector<std::string> Steps(const std::vector<std::vector<std::string>>& parts) {
  std::vector<std::string> steps;
  for (const auto& part : parts) steps.insert(steps.end(), part.begin(), part.end());
  return steps;
}

// The directory of a locale

struct SplitCase {
  const char* name;
  const char* locale;
  const char* directory;  // the most specific one that is read
  const char* codes;
};

void PrintTo(const SplitCase& c, std::ostream* os) { *os << '"' << c.locale << '"'; }

const SplitCase kSplits[] = {
    {"Language", "de", "DE", "DE|"},
    {"Hyphen", "fr-CA", "FR-CA", "FR|CA"},
    {"Underscore", "fr_CA", "FR-CA", "FR|CA"},
    {"SmallLetters", "fr_ca", "FR-CA", "FR|CA"},
    {"Capitals", "FR-CA", "FR-CA", "FR|CA"},
    {"LongRegionIsDropped", "de_AUT", "DE", "DE|"},
    {"LongRegionBehindHyphenIsDropped", "de-AUT", "DE", "DE|"},
    {"NumericRegionIsDropped", "es-419", "ES", "ES|"},
    {"ShortRegionIsDropped", "de-A", "DE", "DE|"},
    {"EmptyRegion", "de-", "DE", "DE|"},
    {"ScriptIsDropped", "zh-Hant-TW", "ZH-TW", "ZH|TW"},
    {"ScriptAlone", "zh-Hant", "ZH", "ZH|"},
    {"ScriptWithUnderscores", "zh_Hant_TW", "ZH", "ZH|"},
    {"RegionRunsIntoTheRestBehindAScript", "zh-Hant-TW-x", "ZH-TW-X", "ZH|TW-X"},
    {"CountIsThePlaceOfTheSecondHyphen", "en-US-POSIX", "EN-US-PO", "EN|US-PO"},
    {"CountEndsWithTheLocale", "de-AT-x", "DE-AT-X", "DE|AT-X"},
    {"SecondHyphenAtTheEnd", "de-AT-", "DE-AT-", "DE|AT-"},
    {"OneLetterInBetween", "de-x-AT", "DE-AT", "DE|AT"},
    {"UnderscoreIsNoSecondSeparator", "en_US_x", "EN", "EN|"},
    {"UnderscoreBehindAHyphen", "fr-CA_x", "FR", "FR|"},
    {"UnderscoreBeforeAHyphen", "fr_CA-BE", "FR_CA-BE", "FR_CA|BE"},
    {"RegionAlone", "-AT", "-AT", "|AT"},
};

class LocaleOfHost : public testing::TestWithParam<SplitCase> {};

TEST_P(LocaleOfHost, LeadsToItsDirectory) {
  HostTree tree;
  for (const SplitCase& c : kSplits) {
    tree.Write(std::string("product/resources/") + c.directory + "/agent.lang", File(c.directory));
  }
  const SplitCase& c = GetParam();
  const HostRun run = tree.RunHostIn("product/bin", {"text", "agent", c.locale, "K", "info",
                                                     "agent", c.locale, "id", "agent", c.locale});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(std::string(c.directory) + "\nagent|" + c.codes + "\n1\n", run.output);
  EXPECT_EQ("", run.errors);
  EXPECT_EQ("(no file)", tree.Read("product/log/translate.log"));
}

INSTANTIATE_TEST_SUITE_P(Locales, LocaleOfHost, testing::ValuesIn(kSplits),
                         [](const auto& row) { return std::string(row.param.name); });

// The directory of all languages

class LanguageDirectory : public testing::Test {
 protected:
  void Provide(const std::string& directory) {
    tree_.Write(directory + "/FR/agent.lang", File(directory));
  }

  void ExpectOutput(const std::string& hostDirectory, const std::vector<std::string>& steps,
                    const std::string& output) {
    const HostRun run = tree_.RunHostIn(hostDirectory, steps);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(output, run.output);
    EXPECT_EQ("", run.errors);
  }

  std::vector<std::string> Use(const std::string& directory) const {
    return {"use", tree_.Path(directory)};
  }

  HostTree tree_;
};

TEST_F(LanguageDirectory, IsTheResourceDirectory) {
  Provide("product/a/resources");
  Provide("product/Language");
  Provide("product/a/b/c/d/Language");
  ExpectOutput("product/a/b/c/d", kLookUp, "product/a/resources\n");
}

TEST_F(LanguageDirectory, IsTheResourceDirectoryOfAVariable) {
  Provide("elsewhere/resources");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere") + "/");
  ExpectOutput("product/a/b/c/d", kLookUp, "elsewhere/resources\n");
}

TEST_F(LanguageDirectory, IsTheResourceDirectoryOfTheWorkingDirectory) {
  Provide("work/resources");
  ExpectOutput("product/a/b/c/d", kLookUp, "work/resources\n");
}

TEST_F(LanguageDirectory, IsMovedByAReplacementBeforeTheFirstLanguage) {
  Provide("product/resources");
  Provide("elsewhere");
  ExpectOutput("product/bin", Steps({Use("elsewhere"), kLookUp}), "true\nelsewhere\n");
}

TEST_F(LanguageDirectory, IsMovedByAReplacementAfterABundleWasServed) {
  Provide("product/resources");
  Provide("elsewhere");
  tree_.Write("product/resources/bundle_fr.properties", "K=bundle\n");
  ExpectOutput("product/bin", Steps({{"text", "bundle", "fr", "K"}, Use("elsewhere"), kLookUp}),
               "bundle\ntrue\nelsewhere\n");
}

TEST_F(LanguageDirectory, IsNotMovedByAReplacementAfterTheFirstLanguage) {
  Provide("product/resources");
  Provide("elsewhere");
  tree_.Write("elsewhere/bundle_fr.properties", "K=bundle\n");
  ExpectOutput("product/bin",
               Steps({{"text", "other", "en", "K"},
                      Use("elsewhere"),
                      kLookUp,
                      {"free"},
                      kLookUp,
                      {"text", "bundle", "fr", "K"}}),
               "(null)\ntrue\nproduct/resources\nproduct/resources\nbundle\n");
}

TEST_F(LanguageDirectory, IsNotMovedByARefusedReplacement) {
  Provide("one");
  Provide("two");
  tree_.MakeDirectory("product/resources");
  ExpectOutput("product/bin", Steps({Use("one"), Use("two"), kLookUp}), "true\nfalse\none\n");
}

TEST_F(LanguageDirectory, IsMovedByTheLastOfTwoReplacements) {
  Provide("one");
  Provide("two");
  ExpectOutput("product/a/b/c/d", Steps({Use("one"), Use("two"), kLookUp}), "true\ntrue\ntwo\n");
}

TEST_F(LanguageDirectory, MayBeGivenWithASlashAtTheEnd) {
  Provide("elsewhere");
  ExpectOutput("product/a/b/c/d", Steps({{"use", tree_.Path("elsewhere") + "/"}, kLookUp}),
               "true\nelsewhere\n");
}

// The search for "resources" has left the place where it ended, which ends every other search.
TEST_F(LanguageDirectory, IsNotSearchedForWhenTheExecutableLiesDeep) {
  for (const std::string place : {"product/a/b/c/d", "product/a", "elsewhere", "work"}) {
    Provide(place + "/Language");
  }
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere"));
  ExpectOutput("product/a/b/c/d", kLookUp, "(null)\n");
  EXPECT_EQ(kNoFrench, tree_.Read("product/a/log/translate.log"));
}

TEST_F(LanguageDirectory, IsTheTopOfTheFileSystemWithoutResources) {
  Provide("elsewhere");
  // A locale without a language leaves the name alone to lead anywhere.
  const std::string name = tree_.Path("elsewhere/FR/agent").substr(1);
  ExpectOutput("product/a/b/c/d", {"text", name, "-AT", "K"}, "elsewhere\n");
}

TEST_F(LanguageDirectory, MayHaveAnyUtf8Name) {
  const std::string place = "d\xC3\xA9p\xC3\xB4t \xE2\x82\xAC";
  Provide(place + "/resources");
  ExpectOutput(place + "/bin", kLookUp, place + "/resources\n");
}

// The log

TEST_F(LanguageDirectory, HasItsLogUnderTheResourceRoot) {
  tree_.Write("product/resources/FR/(Common).lang", "x\nName n\n\nKay a\nKey b\n");
  tree_.Write("product/resources/FR/agent.lang", "Charset A\n\n&more\nValue v\n");
  tree_.Write("product/resources/FR-CA/agent.lang", "Charset B\n");
  ExpectOutput("product/bin", {"text", "agent", "fr-ca", "K", "text", "agent", "de", "K"},
               "(null)\n(null)\n");
  EXPECT_EQ(
      "Illegal Header Directive in FR/(Common).lang at line #1: x\n"
      "Unrecognized text in FR/(Common).lang at line #4: Kay a\n"
      "Two KEY clauses without intervening VALUE in FR/(Common).lang at line #6: \n"
      "Unrecognized continuation text in FR/agent.lang at line #3: &more\n"
      "VALUE found without a KEY in FR/agent.lang at line #4: Value v\n"
      "FR-CA/agent.lang contains a differing value for CHARSET from default language\n"
      "FR-ca (agent) key not found: K\n"
      "No \"DE (agent)\" files found, trying EN.\n",
      tree_.Read("product/log/translate.log"));
}

TEST_F(LanguageDirectory, KeepsItsLogWhenItIsMoved) {
  tree_.MakeDirectory("product/resources");
  ExpectOutput("product/bin", Steps({Use("elsewhere"), kLookUp}), "true\n(null)\n");
  EXPECT_EQ(kNoFrench, tree_.Read("product/log/translate.log"));
  EXPECT_FALSE(tree_.Exists("elsewhere/log"));
}

TEST_F(LanguageDirectory, LogsToStandardOutputWhenNoFileCanBeOpened) {
  tree_.Write("product/resources/FR/agent.lang", "x\n");
  tree_.Write("product/log", "x");
  tree_.MakeDirectory("product/translate.log");
  ExpectOutput("product/bin", {"text", "agent", "fr", "K", "text", "agent", "de", "K"},
               "Illegal Header Directive in FR/agent.lang at line #1: x\n"
               "FR (agent) key not found: K\n"
               "(null)\n"
               "No \"DE (agent)\" files found, trying EN.\n"
               "(null)\n");
}

TEST_F(LanguageDirectory, SharesItsLogWithTheBundles) {
  tree_.Write("product/resources/bundle_fr.properties", "A=a\n");
  ExpectOutput("product/bin", Steps({kLookUp, {"text", "bundle", "fr", "K"}, kLookUp}),
               "(null)\n(null)\n(null)\n");
  EXPECT_EQ(kNoFrench + tree_.SystemPath("product") +
                "/resources/bundle_fr.properties key not found: K\n" + kNoFrench,
            tree_.Read("product/log/translate.log"));
}

// A host so near the top that the search for "resources" ends with nothing

/// Makes the tree directly in /tmp, wherever others are made.
struct InTmp {
  InTmp() { SetVariable("TMPDIR", "/tmp"); }
};

class LanguageDirectoryNearTheTop : public InTmp, public LanguageDirectory {};

TEST_F(LanguageDirectoryNearTheTop, IsNamedLanguageBesideTheExecutable) {
  Provide("Language");
  Provide("elsewhere/Language");
  Provide("work/Language");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere"));
  ExpectOutput("", Steps({kLookUp, {"text", "agent", "de", "K"}}), "Language\n(null)\n");
  EXPECT_EQ("No \"DE (agent)\" files found, trying EN.\n", tree_.Read("log/translate.log"));
}

TEST_F(LanguageDirectoryNearTheTop, IsNamedLanguageAboveTheExecutable) {
  Provide("Language");
  ExpectOutput("bin", kLookUp, "Language\n");
}

TEST_F(LanguageDirectoryNearTheTop, IsNamedLanguageUnderAVariable) {
  Provide("elsewhere/Language");
  Provide("work/Language");
  tree_.SetEnvironment("TAVI_POLSRV_ROOT", tree_.Path("elsewhere") + "/");
  ExpectOutput("", Steps({kLookUp, {"text", "agent", "de", "K"}}), "elsewhere/Language\n(null)\n");
  EXPECT_EQ("No \"DE (agent)\" files found, trying EN.\n",
            tree_.Read("elsewhere/log/translate.log"));
}

TEST_F(LanguageDirectoryNearTheTop, IsNamedLanguageInTheWorkingDirectory) {
  Provide("work/Language");
  ExpectOutput("", Steps({kLookUp, {"text", "agent", "de", "K"}}), "work/Language\n(null)\n");
  EXPECT_EQ("No \"DE (agent)\" files found, trying EN.\n", tree_.Read("work/log/translate.log"));
}

TEST_F(LanguageDirectoryNearTheTop, IsNotNamedLanguageBesideResources) {
  Provide("Language");
  Provide("resources");
  ExpectOutput("", kLookUp, "resources\n");
}

TEST_F(LanguageDirectoryNearTheTop, IsNotNamedLanguageInSmallLetters) {
  Provide("language");
  ExpectOutput("", kLookUp, "(null)\n");
  EXPECT_EQ(kNoFrench, tree_.Read("work/log/translate.log"));
}

TEST_F(LanguageDirectoryNearTheTop, IsNotMovedByAReplacement) {
  Provide("Language");
  Provide("elsewhere");
  ExpectOutput("", Steps({Use("elsewhere"), kLookUp}), "true\nLanguage\n");
}

TEST_F(LanguageDirectoryNearTheTop, WhoeverWritesFirstDecidesWhereTheLogIs) {
  tree_.MakeDirectory("Language");
  tree_.Write("elsewhere/bundle_fr.properties", "A=a\n");
  const std::vector<std::string> miss = {"text", "bundle", "fr", "K"};
  const std::string missLine = tree_.Path("elsewhere/bundle_fr.properties") + " key not found: K\n";

  ExpectOutput("", Steps({Use("elsewhere"), miss, kLookUp}), "true\n(null)\n(null)\n");
  EXPECT_EQ(missLine + kNoFrench, tree_.Read("work/log/translate.log"));
  EXPECT_FALSE(tree_.Exists("log"));

  tree_.SetWorkingDirectory("work2");
  ExpectOutput("", Steps({Use("elsewhere"), kLookUp, miss}), "true\n(null)\n(null)\n");
  EXPECT_EQ(kNoFrench + missLine, tree_.Read("log/translate.log"));
  EXPECT_FALSE(tree_.Exists("work2/log"));
}

}  // namespace
