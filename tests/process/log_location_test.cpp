#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/host_tree.h"

namespace {

const std::string kHostDirectory = "product/a/b/c/d";

class LogLocation : public testing::Test {
 protected:
  /// Makes a bundle in `directory`; every key but one is absent from it.
  void Provide(const std::string& directory) {
    tree_.Write(directory + "/agent_fr.properties", "Present=yes\n");
  }

  /// Runs a host that does `steps`, which must not print anything but `output`.
  void RunHost(const std::vector<std::string>& steps, const std::string& output) {
    const HostRun run = tree_.RunHostIn(kHostDirectory, steps);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(output, run.output);
    EXPECT_EQ("", run.errors);
  }

  void MissAKey() { RunHost({"text", "agent", "fr", "ABSENT"}, "(null)\n"); }

  /// What a missing key is reported as, for the bundle in a directory of the tree.
  std::string Line(const std::string& directory) const {
    return tree_.Path(directory) + "/agent_fr.properties key not found: ABSENT\n";
  }

  /// The same for the bundle in the "resources" above the executable: their path begins as the
  /// system tells the executable's.
  std::string LineAbove(const std::string& directory, const std::string& key = "ABSENT") const {
    return tree_.SystemPath(directory) + "/resources/agent_fr.properties key not found: " + key +
           "\n";
  }

  HostTree tree_;
};

TEST_F(LogLocation, IsBesideTheResourcesFoundAboveTheExecutable) {
  Provide("product/a/b/resources");
  MissAKey();
  EXPECT_EQ(LineAbove("product/a/b"), tree_.Read("product/a/b/log/translate.log"));
}

TEST_F(LogLocation, IsBesideTheResourcesFoundInTheExecutablesDirectory) {
  Provide("product/a/b/c/d/resources");
  MissAKey();
  EXPECT_EQ(LineAbove("product/a/b/c/d"), tree_.Read("product/a/b/c/d/log/translate.log"));
}

TEST_F(LogLocation, IsBesideTheResourcesFoundByAVariable) {
  Provide("elsewhere/resources");
  tree_.SetEnvironment("TAVI_AGENT_ROOT", tree_.Path("elsewhere"));
  MissAKey();
  EXPECT_EQ(Line("elsewhere/resources"), tree_.Read("elsewhere/log/translate.log"));
}

TEST_F(LogLocation, TheVariableMayEndInASlash) {
  Provide("elsewhere/resources");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere") + "/");
  MissAKey();
  EXPECT_EQ(Line("elsewhere/resources"), tree_.Read("elsewhere/log/translate.log"));
}

TEST_F(LogLocation, TheVariableMayEndInABackslash) {
  Provide("elsewhere/resources");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere") + "\\");
  MissAKey();
  EXPECT_EQ(Line("elsewhere/resources"), tree_.Read("elsewhere/log/translate.log"));
}

TEST_F(LogLocation, IsTheVariablesDirectoryItselfWhenLogIsAFile) {
  Provide("elsewhere/resources");
  tree_.Write("elsewhere/log", "x");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere") + "/");
  MissAKey();
  EXPECT_EQ(Line("elsewhere/resources"), tree_.Read("elsewhere/translate.log"));
}

TEST_F(LogLocation, IsInTheWorkingDirectoryWhenTheResourcesAre) {
  Provide("work/resources");
  MissAKey();
  EXPECT_EQ("./resources/agent_fr.properties key not found: ABSENT\n",
            tree_.Read("work/log/translate.log"));
}

TEST_F(LogLocation, IsWhereAnUnsuccessfulSearchEnded) {
  Provide("elsewhere");
  RunHost({"use", tree_.Path("elsewhere"), "text", "agent", "fr", "ABSENT"}, "true\n(null)\n");
  EXPECT_EQ(Line("elsewhere"), tree_.Read("product/a/log/translate.log"));
  EXPECT_FALSE(tree_.Exists("elsewhere/log"));
  EXPECT_FALSE(tree_.Exists("work/log"));
}

TEST_F(LogLocation, IsNotMovedByAReplacementBeforeTheFirstLine) {
  Provide("product/a/b/resources");
  Provide("elsewhere");
  RunHost({"use", tree_.Path("elsewhere"), "text", "agent", "fr", "ABSENT"}, "true\n(null)\n");
  EXPECT_EQ(Line("elsewhere"), tree_.Read("product/a/b/log/translate.log"));
  EXPECT_FALSE(tree_.Exists("elsewhere/log"));
}

TEST_F(LogLocation, IsNotMovedByAReplacementBetweenTwoLines) {
  Provide("product/a/b/resources");
  Provide("elsewhere");
  RunHost({"text", "agent", "fr", "ABSENT", "use", tree_.Path("elsewhere"),  //
           "text", "agent", "fr", "ABSENT"},
          "(null)\ntrue\n(null)\n");
  EXPECT_EQ(LineAbove("product/a/b") + Line("elsewhere"),
            tree_.Read("product/a/b/log/translate.log"));
  EXPECT_FALSE(tree_.Exists("elsewhere/log"));
}

TEST_F(LogLocation, PathsInLinesAreJoinedFromTheDirectoryAsGiven) {
  Provide("product/a/b/resources");
  Provide("elsewhere");
  RunHost({"use", tree_.Path("elsewhere") + "/", "text", "agent", "fr", "ABSENT"},
          "true\n(null)\n");
  EXPECT_EQ(Line("elsewhere/"), tree_.Read("product/a/b/log/translate.log"));
}

TEST_F(LogLocation, IsStandardOutputWhenNoFileCanBeOpened) {
  Provide("product/a/b/resources");
  tree_.Write("product/a/b/log", "x");
  tree_.MakeDirectory("product/a/b/translate.log");
  RunHost({"text", "agent", "fr", "ABSENT", "text", "agent", "fr", "Present"},
          LineAbove("product/a/b") + "(null)\nyes\n");
}

TEST_F(LogLocation, IsNotMadeWithoutAProblem) {
  Provide("product/a/b/resources");
  RunHost({"text", "agent", "fr", "Present"}, "yes\n");
  EXPECT_FALSE(tree_.Exists("product/a/b/log"));
  EXPECT_FALSE(tree_.Exists("product/a/b/translate.log"));
}

TEST_F(LogLocation, TheNextProcessContinuesTheLog) {
  Provide("product/a/b/resources");
  MissAKey();
  MissAKey();
  EXPECT_EQ(LineAbove("product/a/b") + LineAbove("product/a/b"),
            tree_.Read("product/a/b/log/translate.log"));
}

TEST_F(LogLocation, ALineFeedInAKeyDoesNotMakeASecondLine) {
  Provide("product/a/b/resources");
  RunHost({"text", "agent", "fr", "ABS\r\nENT"}, "(null)\n");
  EXPECT_EQ(LineAbove("product/a/b", "ABS\\r\\nENT"), tree_.Read("product/a/b/log/translate.log"));
}

TEST_F(LogLocation, ThreadsOfAHostWriteEachLineWhole) {
  Provide("product/a/b/resources");
  RunHost({"misses", "8", "agent", "fr"}, "");
  const std::string log = tree_.Read("product/a/b/log/translate.log");
  std::size_t lines = 0;
  for (int key = 0; key < 50; ++key) {
    const std::string line = LineAbove("product/a/b", "ABSENT" + std::to_string(key));
    EXPECT_NE(std::string::npos, log.find(line)) << line;
    lines += line.size();
  }
  EXPECT_EQ(lines, log.size());
}

}  // namespace
