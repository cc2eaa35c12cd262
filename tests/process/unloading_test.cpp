#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "support/host_tree.h"

namespace {

HostRun LoadAndUnload(HostTree& tree, int rounds) {
  tree.Write("product/resources/agent_fr.properties", "Hello=Bonjour\n");
  // The library never frees its bundles, and once it is unloaded nothing points to them.
  tree.SetEnvironment("ASAN_OPTIONS", "detect_leaks=0");
  return tree.RunCopyIn("product/bin", KXXLATE_UNLOADING_HOST,
                        {KXXLATE_LIBRARY, "agent", "fr", "Hello", std::to_string(rounds)});
}

TEST(Unloading, LeavesNothingOfTheLibraryInTheProcess) {
  HostTree tree;
  const HostRun run = LoadAndUnload(tree, 1);
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("Bonjour\nunloaded\n", run.output);
  EXPECT_EQ("", run.errors);
}

// More rounds than Windows has places for the data of threads, which are 1,088: a runtime that
// takes one at each load does not give it back.
TEST(Unloading, CanBeDoneOverAndOver) {
  HostTree tree;
  const HostRun run = LoadAndUnload(tree, 1200);
  EXPECT_EQ(0, run.exitCode);
  const std::string round = "Bonjour\nunloaded\n";
  std::size_t rounds = 0;
  while (run.output.compare(rounds * round.size(), round.size(), round) == 0) ++rounds;
  EXPECT_EQ(1200u, rounds);
  EXPECT_EQ("", run.output.substr(rounds * round.size()));
  EXPECT_EQ("", run.errors);
}

}  // namespace
