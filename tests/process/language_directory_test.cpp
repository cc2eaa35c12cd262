// Where language files are looked for, and where the log of their problems is.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "process/language_directory.h"

namespace {

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

}  // namespace
