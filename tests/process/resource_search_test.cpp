#include <gtest/gtest.h>

#include "support/host_tree.h"

namespace {

TEST(ResourceSearch, AncestorsOfTheExecutableComeBeforeTheEnvironment) {
  HostTree tree;
  tree.Write("product/resources/agent_fr.properties", "Hello=Bonjour\n");
  tree.Write("elsewhere/resources/agent_fr.properties", "Hello=Salut\n");
  tree.SetEnvironment("TAVI_XLATE_ROOT", tree.Path("elsewhere"));

  const HostRun run = tree.RunHostIn("product/bin/x64", {"text", "agent", "fr", "Hello"});

  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("Bonjour\n", run.output);
  EXPECT_EQ("", run.errors);
}

}  // namespace
