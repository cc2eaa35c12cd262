// Hosts that close or replace their standard streams. The C library of the library learns nothing
// of it, and the handle that it remembers soon belongs to something else.

#include <gtest/gtest.h>

#include <string>

#include "support/host_tree.h"

namespace {

class StreamsOfAHost : public testing::Test {
 protected:
  StreamsOfAHost() {
    tree_.Write("product/a/resources/agent_fr.properties", "a line without its sign\n");
    // So that the log is standard output.
    tree_.Write("product/a/log", "a file in the way");
    tree_.MakeDirectory("product/a/translate.log");
  }

  HostRun Run(const std::string& stream, const std::string& replacement) const {
    return tree_.RunCopyIn(
        "product/a/bin", KXXLATE_STREAMS_HOST,
        {stream, tree_.Path("data.db"), replacement.empty() ? "" : tree_.Path(replacement)});
  }

  std::string Catalogue() const {
    return tree_.SystemPath("product/a") + "/resources/agent_fr.properties";
  }
  std::string Report() const { return Catalogue() + ":1 does not contain '='. Skipped"; }
  std::string LogLine() const { return Catalogue() + " key not found: ABSENT"; }

  HostTree tree_;
};

TEST_F(StreamsOfAHost, ReportsAreLostWhereStandardErrorWasClosed) {
  const HostRun run = Run("errors", "");
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", tree_.Read("data.db"));
  EXPECT_EQ("", run.errors);
  EXPECT_EQ(LogLine() + "\n", run.output);
}

TEST_F(StreamsOfAHost, LinesOfTheLogAreLostWhereStandardOutputWasClosed) {
  const HostRun run = Run("output", "");
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", tree_.Read("data.db"));
  EXPECT_EQ(Report() + "\n", run.errors);
  EXPECT_EQ("", run.output);
}

TEST_F(StreamsOfAHost, ReportsFollowAReplacedStandardError) {
  const HostRun run = Run("errors", "errors.txt");
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", tree_.Read("data.db"));
  EXPECT_EQ(Report() + "\r\n", tree_.Read("errors.txt"));
  EXPECT_EQ("", run.errors);
}

TEST_F(StreamsOfAHost, LinesOfTheLogFollowAReplacedStandardOutput) {
  const HostRun run = Run("output", "output.txt");
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("", tree_.Read("data.db"));
  EXPECT_EQ(LogLine() + "\r\n", tree_.Read("output.txt"));
  EXPECT_EQ("", run.output);
}

}  // namespace
