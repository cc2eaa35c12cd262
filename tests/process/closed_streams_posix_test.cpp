// Hosts that were started with a standard stream closed. Its number is then the first that is free,
// and whoever prints to the stream writes to whatever took it.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/host_tree.h"

namespace {

class HostWithAClosedStream : public testing::Test {
 protected:
  HostWithAClosedStream() {
    tree_.Write("product/resources/agent_fr.properties", "Hello=Bonjour\n");
    tree_.Write("product/resources/bad_fr.properties", "nonsense\nHello=Salut\n");
  }

  /// Misses a key, which opens the log; then reads a file with a bad line, which is reported on
  /// standard error; and prints what each look-up answers.
  HostRun RunWith(const std::string& redirection) {
    const std::string host = tree_.CopyProgram("product/bin", HostProgram());
    return tree_.Run("/bin/sh", {"-c", "exec \"$@\" " + redirection, "sh", host,  //
                                 "text", "agent", "fr", "Missing",                //
                                 "text", "bad", "fr", "Hello"});
  }

  void ExpectLog() {
    EXPECT_EQ(tree_.Path("product/resources/agent_fr.properties") + " key not found: Missing\n",
              tree_.Read("product/log/translate.log"));
  }

  HostTree tree_;
};

TEST_F(HostWithAClosedStream, GetsNoReportsIntoItsLog) {
  const HostRun run = RunWith("2>&-");
  EXPECT_EQ("(null)\nSalut\n", run.output);
  EXPECT_EQ("", run.errors);
  ExpectLog();
}

TEST_F(HostWithAClosedStream, GetsNoneOfItsOwnOutputIntoItsLog) {
  const HostRun run = RunWith("1>&-");
  EXPECT_EQ("", run.output);
  EXPECT_EQ(
      tree_.Path("product/resources/bad_fr.properties") + ":1 does not contain '='. Skipped\n",
      run.errors);
  ExpectLog();
}

TEST_F(HostWithAClosedStream, MayHaveClosedThemAll) {
  const HostRun run = RunWith("0<&- 1>&- 2>&-");
  EXPECT_EQ("", run.output);
  EXPECT_EQ("", run.errors);
  ExpectLog();
}

}  // namespace
