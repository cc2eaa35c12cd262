// The place of the log as KXXLATE_LOG says it.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/host_tree.h"

namespace {

class LogSwitch : public testing::Test {
 protected:
  LogSwitch() {
    tree_.Write("product/resources/agent_fr.properties", "Present=yes\n");
    tree_.Write("product/resources/bad_fr.properties", "nonsense\nPresent=oui\n");
  }

  /// Runs a host that misses a key, and a language, and reads a file with a bad line.
  HostRun RunHost() const {
    return tree_.RunHostIn("product/bin", {"text", "agent", "fr", "ABSENT",  //
                                           "text", "other", "de", "ABSENT",  //
                                           "text", "bad", "fr", "Present"});
  }

  std::string Resources() const { return tree_.SystemPath("product") + "/resources/"; }

  std::string Lines() const {
    return Resources() + "agent_fr.properties key not found: ABSENT\n" +
           "No \"DE (other)\" files found, trying EN.\n";
  }

  /// What is told of a property file, wherever the log is.
  std::string Report() const {
    return Resources() + "bad_fr.properties:1 does not contain '='. Skipped\n";
  }

  void ExpectNoUsualLog() const {
    EXPECT_FALSE(tree_.Exists("product/log"));
    EXPECT_FALSE(tree_.Exists("product/translate.log"));
  }

  HostTree tree_;
};

constexpr char kAnswers[] = "(null)\n(null)\noui\n";

TEST_F(LogSwitch, NotSetLeavesTheLogWhereItWas) {
  const HostRun run = RunHost();
  EXPECT_EQ(kAnswers, run.output);
  EXPECT_EQ(Report(), run.errors);
  EXPECT_EQ(Lines(), tree_.Read("product/log/translate.log"));
}

TEST_F(LogSwitch, EmptyIsNotSet) {
  tree_.SetEnvironment("KXXLATE_LOG", "");
  const HostRun run = RunHost();
  EXPECT_EQ(kAnswers, run.output);
  EXPECT_EQ(Report(), run.errors);
  EXPECT_EQ(Lines(), tree_.Read("product/log/translate.log"));
}

TEST_F(LogSwitch, OffWritesNoLineAndMakesNothing) {
  tree_.SetEnvironment("KXXLATE_LOG", "off");
  const HostRun run = RunHost();
  EXPECT_EQ(kAnswers, run.output);
  EXPECT_EQ(Report(), run.errors);
  ExpectNoUsualLog();
  EXPECT_FALSE(tree_.Exists("work/off"));
}

TEST_F(LogSwitch, StderrIsStandardError) {
  tree_.SetEnvironment("KXXLATE_LOG", "stderr");
  const HostRun run = RunHost();
  EXPECT_EQ(kAnswers, run.output);
  EXPECT_EQ(Lines() + Report(), run.errors);
  ExpectNoUsualLog();
  EXPECT_FALSE(tree_.Exists("work/stderr"));
}

TEST_F(LogSwitch, AnythingElseIsAFile) {
  tree_.MakeDirectory("logs");
  tree_.SetEnvironment("KXXLATE_LOG", tree_.Path("logs/d\xC3\xA9p\xC3\xB4t.log"));
  const HostRun run = RunHost();
  EXPECT_EQ(kAnswers, run.output);
  EXPECT_EQ(Report(), run.errors);
  EXPECT_EQ(Lines(), tree_.Read("logs/d\xC3\xA9p\xC3\xB4t.log"));
  ExpectNoUsualLog();
}

TEST_F(LogSwitch, TheNextProcessContinuesTheFile) {
  tree_.SetEnvironment("KXXLATE_LOG", tree_.Path("my.log"));
  RunHost();
  RunHost();
  EXPECT_EQ(Lines() + Lines(), tree_.Read("my.log"));
}

TEST_F(LogSwitch, ARelativePathIsFollowedFromTheWorkingDirectory) {
  tree_.SetEnvironment("KXXLATE_LOG", "my.log");
  RunHost();
  EXPECT_EQ(Lines(), tree_.Read("work/my.log"));
  ExpectNoUsualLog();
}

TEST_F(LogSwitch, AFileThatCannotBeOpenedIsStandardOutput) {
  tree_.SetEnvironment("KXXLATE_LOG", tree_.Path("missing/my.log"));
  const HostRun run = tree_.RunHostIn("product/bin", {"text", "agent", "fr", "ABSENT"});
  EXPECT_EQ(Resources() + "agent_fr.properties key not found: ABSENT\n(null)\n", run.output);
  EXPECT_EQ("", run.errors);
  EXPECT_FALSE(tree_.Exists("missing"));
  ExpectNoUsualLog();
}

TEST_F(LogSwitch, IsNotWhatTheHostSetsLater) {
  tree_.RunHostIn("product/bin", {"set", "KXXLATE_LOG", tree_.Path("my.log"),  //
                                  "text", "agent", "fr", "ABSENT"});
  EXPECT_EQ(Resources() + "agent_fr.properties key not found: ABSENT\n",
            tree_.Read("product/log/translate.log"));
  EXPECT_FALSE(tree_.Exists("my.log"));
}

TEST_F(LogSwitch, MakesNoFileWithoutAProblem) {
  tree_.SetEnvironment("KXXLATE_LOG", tree_.Path("my.log"));
  EXPECT_EQ("yes\n", tree_.RunHostIn("product/bin", {"text", "agent", "fr", "Present"}).output);
  EXPECT_FALSE(tree_.Exists("my.log"));
}

}  // namespace
