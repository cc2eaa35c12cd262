#include <gtest/gtest.h>

#include "support/host_tree.h"

namespace {

TEST(ExampleHost, GreetsInTheLocaleOfItsArgument) {
  HostTree tree;
  tree.SetEnvironment("TAVI_XLATE_ROOT", KXXLATE_EXAMPLE_CATALOGUES);

  const HostRun run = tree.RunCopyIn("bin", KXXLATE_EXAMPLE_HOST, {"de-AT"});

  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("Willkommen, Ann. Sie haben 3 ungelesene Nachrichten.\n", run.output);
}

TEST(ExampleHost, ShowsItsDefaultWithoutCatalogues) {
  HostTree tree;

  const HostRun run = tree.RunCopyIn("a/b/c/bin", KXXLATE_EXAMPLE_HOST, {});

  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("Ann (3)\n", run.output);
}

}  // namespace
