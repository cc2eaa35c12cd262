#include "platform/executable_path.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temp_tree.h"

namespace {

TEST(ExecutablePath, IsTheFullPathOfThisProgram) {
  const CKxExecutablePath executable;
  const std::filesystem::path path = PathFromUtf8(executable.Path());
  EXPECT_TRUE(path.is_absolute()) << path;
  EXPECT_TRUE(std::filesystem::is_regular_file(path)) << path;
  EXPECT_EQ("platform_test", path.stem());
}

TEST(ExecutablePath, DoesNotDependOnTheWorkingDirectory) {
  const CKxExecutablePath before;
  const TempTree tree;
  const std::filesystem::path home = std::filesystem::current_path();
  std::filesystem::current_path(PathFromUtf8(tree.Path()));
  const CKxExecutablePath after;
  std::filesystem::current_path(home);
  EXPECT_STREQ(before.Path(), after.Path());
}

}  // namespace
