#include <gtest/gtest.h>

#include "support/host_tree.h"

namespace {

// Servers end with worker threads that still show messages, and free what they hold from
// destructors of globals, which run after those of the library's own objects would.
TEST(EndingProcess, MayUseTheLibraryToTheLast) {
  HostTree tree;
  tree.Write("resources/agent.properties", "K=text\n");
  tree.Write("resources/FR/setup.lang", "Name French\n\nKey K\nValue text\n");
  // What the threads hold is still held when the leaks are counted.
  tree.SetEnvironment("ASAN_OPTIONS", "detect_leaks=0");

  const HostRun run = tree.RunCopyIn(".", KXXLATE_ENDING_HOST, {"agent", "setup", "fr", "K"});

  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("ended\n", run.output);
  EXPECT_EQ("", run.errors);
}

}  // namespace
