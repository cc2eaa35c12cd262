// The place of the log as KXXLATE_LOG says it, with programs and streams that only this system has.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/host_tree.h"
#include "support/set_user_id_posix.h"
#include "support/special_files.h"

namespace {

class LogSwitchOnPosix : public testing::Test {
 protected:
  // Where other users come, wherever the directory for temporary files is.
  LogSwitchOnPosix() : tree_("/tmp") {
    tree_.Write("product/a/resources/agent_fr.properties", "Present=yes\n");
    tree_.Write("product/a/resources/bad_fr.properties", "nonsense\nPresent=oui\n");
  }

  std::string Resources() const { return tree_.Path("product/a/resources/"); }
  std::string Line() const { return Resources() + "agent_fr.properties key not found: ABSENT\n"; }

  /// A host that misses a key, and then reads a file with a bad line.
  HostRun RunWith(const std::string& redirection) {
    const std::string host = tree_.CopyProgram("product/a/bin", HostProgram());
    return tree_.Run("/bin/sh", {"-c", "exec \"$@\" " + redirection, "sh", host,  //
                                 "text", "agent", "fr", "ABSENT",                 //
                                 "text", "bad", "fr", "Present"});
  }

  HostTree tree_;
};

TEST_F(LogSwitchOnPosix, LinesForAClosedStandardErrorAreLost) {
  tree_.SetEnvironment("KXXLATE_LOG", "stderr");
  const HostRun run = RunWith("2>&-");
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("(null)\noui\n", run.output);
  EXPECT_EQ("", run.errors);
  EXPECT_FALSE(tree_.Exists("product/a/log"));
}

TEST_F(LogSwitchOnPosix, AFileNeverTakesThePlaceOfAClosedStream) {
  tree_.SetEnvironment("KXXLATE_LOG", tree_.Path("my.log"));
  RunWith("2>&-");
  EXPECT_EQ(Line(), tree_.Read("my.log"));
  RunWith("1>&-");
  EXPECT_EQ(Line() + Line(), tree_.Read("my.log"));
}

TEST_F(LogSwitchOnPosix, APipeIsNotOpened) {
  MakeNamedPipe(tree_.Path("my.log"));
  tree_.SetEnvironment("KXXLATE_LOG", tree_.Path("my.log"));
  EXPECT_EQ(Line() + "(null)\noui\n", RunWith("2>/dev/null").output);
}

/// A host that runs with the rights of another user, or a copy of it that does not.
class LogSwitchWithMoreRights : public LogSwitchOnPosix,
                                public testing::WithParamInterface<const char*> {
 protected:
  LogSwitchWithMoreRights() {
    // Whoever reads the variable can write there.
    tree_.Write("my.log", "");
    std::filesystem::permissions(PathFromUtf8(tree_.Path("my.log")), std::filesystem::perms{0666});
    const std::string value = GetParam();
    tree_.SetEnvironment("KXXLATE_LOG", value == "file" ? tree_.Path("my.log") : value);
  }
};

TEST_P(LogSwitchWithMoreRights, IsNotRead) {
  if (!IsSuperUser()) GTEST_SKIP() << "only the super-user can make another user's program";
  if (!IsSetUserIdHonoured(tree_)) GTEST_SKIP() << "set-user-ID has no effect in this place";
  // The other user may not be let into the folder of the build: see ResourceSearchOnPosix.
  const std::string host = tree_.CopyProgram("product/a/bin", KXXLATE_UNLOADING_HOST);
  const std::string library = tree_.CopyProgram("product/a/bin", KXXLATE_LIBRARY);
  const std::vector<std::string> lookUp = {library, "agent", "fr", "ABSENT", "1"};
  OpenToAllUsers(tree_.Path());

  MakeProgramOfAnotherUser(host, false);
  EXPECT_EQ("(null)\nunloaded\n", tree_.Run(host, lookUp).output);
  const std::string before = GetParam() == std::string("file") ? Line() : "";
  EXPECT_EQ(before, tree_.Read("my.log"));
  MakeProgramOfAnotherUser(host, true);
  const HostRun run = tree_.Run(host, lookUp);
  // The log lies where the other user may not write. The exit code does not count: a leak checker
  // may not look into such a process, and fails.
  EXPECT_EQ(Line() + "(null)\nunloaded\n", run.output) << run.errors;
  EXPECT_EQ(before, tree_.Read("my.log"));
}

INSTANTIATE_TEST_SUITE_P(Each, LogSwitchWithMoreRights, testing::Values("off", "stderr", "file"),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
