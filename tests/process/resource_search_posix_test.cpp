// The search with files and programs that only this system has.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "process/resource_search.h"
#include "support/host_tree.h"
#include "support/set_user_id_posix.h"
#include "support/special_files.h"

namespace {

class ResourceSearchOnPosix : public ResourceSearch {
 protected:
  // Where other users come, wherever the directory for temporary files is.
  ResourceSearchOnPosix() : ResourceSearch("/tmp") {}
};

TEST_F(ResourceSearchOnPosix, ALinkToADirectoryIsADirectory) {
  Provide("elsewhere");
  tree_.MakeDirectory("product/a");
  std::filesystem::create_symlink("../../elsewhere/resources",
                                  PathFromUtf8(tree_.Path("product/a/resources")));
  ExpectOrigin("elsewhere");
}

TEST_F(ResourceSearchOnPosix, BelievesNothingOfItsCallerInASetUserIdProgram) {
  if (!IsSuperUser()) GTEST_SKIP() << "only the super-user can make another user's program";
  if (!IsSetUserIdHonoured(tree_)) GTEST_SKIP() << "set-user-ID has no effect in this place";
  Provide("elsewhere");
  Provide("work");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere"));
  // The other user may not be let into the folder of the build. A host that loads the library by
  // its path takes the copy; what tells the loader another place is not heard in such a program.
  const std::string host = tree_.CopyProgram(kHostDirectory, KXXLATE_UNLOADING_HOST);
  const std::string library = tree_.CopyProgram(kHostDirectory, KXXLATE_LIBRARY);
  const std::vector<std::string> lookUp = {library, "agent", "fr", "Origin", "1"};
  OpenToAllUsers(tree_.Path());

  MakeProgramOfAnotherUser(host, false);
  EXPECT_EQ("elsewhere\nunloaded\n", tree_.Run(host, lookUp).output);
  MakeProgramOfAnotherUser(host, true);
  const HostRun run = tree_.Run(host, lookUp);
  // The exit code does not count: a leak checker may not look into such a process, and fails.
  EXPECT_EQ("No \"FR (agent)\" files found, trying EN.\n(null)\nunloaded\n", run.output)
      << run.errors;
}

TEST_F(ResourceSearchOnPosix, APipeInPlaceOfABundleIsNotWaitedFor) {
  tree_.MakeDirectory("product/a/resources");
  MakeNamedPipe(tree_.Path("product/a/resources/x_fr.properties"));
  Provide("product/a");
  const HostRun run = tree_.RunHostIn(
      kHostDirectory,
      {"text", "x", "fr", "Origin", "text", "x", "fr", "Origin", "text", "agent", "fr", "Origin"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("(null)\n(null)\nproduct/a\n", run.output);
  EXPECT_EQ("cannot open file: " + tree_.Path("product/a/resources/x_fr.properties") + "\n",
            run.errors);
}

TEST_F(ResourceSearchOnPosix, ADeviceInPlaceOfABundleIsNotRead) {
  tree_.MakeDirectory("product/a/resources");
  std::filesystem::create_symlink("/dev/zero",
                                  PathFromUtf8(tree_.Path("product/a/resources/x_fr.properties")));
  const HostRun run = tree_.RunHostIn(kHostDirectory, {"text", "x", "fr", "Origin"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("(null)\n", run.output);
  EXPECT_EQ("cannot open file: " + tree_.Path("product/a/resources/x_fr.properties") + "\n",
            run.errors);
}

}  // namespace
