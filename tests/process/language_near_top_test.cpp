// A host so near the top that the search for "resources" ends with nothing, so that "Language" is
// searched for.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "process/language_directory.h"
#include "process/near_top.h"

namespace {

class LanguageDirectoryNearTheTop : public LanguageDirectory {
 protected:
  LanguageDirectoryNearTheTop() : LanguageDirectory(PlaceNearTheTop()) {}
};

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
