// A host that is started by a link to it.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "process/resource_search.h"

namespace {

using LinkedHost = ResourceSearch;

TEST_F(LinkedHost, FindsWhatLiesAboveTheTargetAndNotAboveTheLink) {
  Provide("opt/product");
  Provide("usr");
  const std::string host = tree_.CopyProgram("opt/product/bin", HostProgram());
  tree_.MakeDirectory("usr/bin");
  std::filesystem::create_symlink(PathFromUtf8(host), PathFromUtf8(tree_.Path("usr/bin/server")));
  const HostRun run = tree_.Run(tree_.Path("usr/bin/server"), {"text", "agent", "fr", "Origin"});
  EXPECT_EQ("opt/product\n", run.output);
}

}  // namespace
