// A host whose library is replaced while it runs.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/host_tree.h"

namespace {

/// The command by which docs/operating.md finds such hosts, for the one that runs it.
constexpr char kFind[] = "grep -qs 'libKxXlate.*(deleted)' /proc/$PPID/maps";

TEST(UpgradedLibrary, IsSeenInTheHostThatStillHasTheOldOne) {
  HostTree tree;
  // By the name that hosts ask the loader for.
  const std::string library = tree.Path("lib/" KXXLATE_LIBRARY_NAME);
  tree.MakeDirectory("lib");
  std::filesystem::rename(tree.CopyProgram("new", KXXLATE_LIBRARY), library);
  tree.Write("product/resources/agent_fr.properties", "Hello=Bonjour\n");
  tree.SetEnvironment("LD_LIBRARY_PATH", tree.Path("lib"));
  const HostRun run =
      tree.RunHostIn("product/bin", {"shell", kFind, "remove", library,  //
                                     "shell", kFind, "text", "agent", "fr", "Hello"});
  EXPECT_EQ("false\ntrue\nBonjour\n", run.output);
}

}  // namespace
