#include <gtest/gtest.h>

#include "support/host_tree.h"

namespace {

TEST(Unloading, LeavesNothingOfTheLibraryInTheProcess) {
  HostTree tree;
  tree.Write("product/resources/agent_fr.properties", "Hello=Bonjour\n");
  // The library never frees its bundles, and once it is unloaded nothing points to them.
  tree.SetEnvironment("ASAN_OPTIONS", "detect_leaks=0");

  const HostRun run = tree.RunCopyIn("product/bin", KXXLATE_UNLOADING_HOST,
                                     {KXXLATE_LIBRARY, "agent", "fr", "Hello"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("Bonjour\nunloaded\n", run.output);
  EXPECT_EQ("", run.errors);
}

}  // namespace
