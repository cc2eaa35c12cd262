// The search above an executable whose path begins with no drive. It cuts text, and so ends at
// places that a reader of docs/windows.md is told of.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/fake_machine.h"

namespace {

std::vector<std::string> AskedFor(const char* executable) {
  FakeMachine machine;
  machine.executable = executable;
  std::string directory;
  std::string root;
  EXPECT_FALSE(kx::FindResourceDirectory(machine, "resources", directory, root));
  return machine.pathsAsked;
}

TEST(SearchAboveAnExecutable, OnAShareEndsAtTheRootOfTheCurrentDrive) {
  EXPECT_EQ(
      (std::vector<std::string>{"\\\\server\\share\\bin/resources", "\\\\server\\share/resources",
                                "\\\\server/resources", "/resources", "./resources"}),
      AskedFor("\\\\server\\share\\bin\\host.exe"));
}

TEST(SearchAboveAnExecutable, OnAShareStaysThereWhenItLiesThreeDirectoriesDeep) {
  EXPECT_EQ((std::vector<std::string>{
                "\\\\server\\share\\a\\b\\bin/resources", "\\\\server\\share\\a\\b/resources",
                "\\\\server\\share\\a/resources", "\\\\server\\share/resources", "./resources"}),
            AskedFor("\\\\server\\share\\a\\b\\bin\\host.exe"));
}

TEST(SearchAboveAnExecutable, OnAVolumeWithoutADriveKeepsItsPrefix) {
  EXPECT_EQ(
      (std::vector<std::string>{"\\\\?\\Volume{1}\\bin/resources", "\\\\?\\Volume{1}/resources",
                                "\\\\?/resources", "/resources", "./resources"}),
      AskedFor("\\\\?\\Volume{1}\\bin\\host.exe"));
}

}  // namespace
