// The search with files and programs that only this system has.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "process/resource_search.h"
#include "support/host_tree.h"
#include "support/special_files.h"

namespace {

class ResourceSearchOnPosix : public ResourceSearch {
 protected:
  // Where other users come, wherever the directory for temporary files is.
  ResourceSearchOnPosix() : ResourceSearch("/tmp") {}
};

void MakeProgramOfAnotherUser(const std::string& path, bool setUserId) {
  constexpr uid_t kNobody = 65534;
  constexpr gid_t kSameGroup = static_cast<gid_t>(-1);
  if (::chown(path.c_str(), kNobody, kSameGroup) != 0 ||
      ::chmod(path.c_str(), setUserId ? 04755 : 0755) != 0) {
    throw std::runtime_error("cannot give away " + path);
  }
}

/// Whether set-user-ID has an effect where the tree lies: mounts and containers can switch it off.
bool IsSetUserIdHonoured(const HostTree& tree) {
  const std::string probe = tree.CopyProgram("probe", "/usr/bin/id");
  MakeProgramOfAnotherUser(probe, true);
  return tree.Run(probe, {"-u"}).output == "65534\n";
}

void OpenToAllUsers(const std::string& directory) {
  using std::filesystem::perms;
  const auto open = [](const std::filesystem::path& path) {
    std::filesystem::permissions(path, perms::others_read | perms::others_exec,
                                 std::filesystem::perm_options::add);
  };
  open(PathFromUtf8(directory));
  for (const auto& entry : std::filesystem::recursive_directory_iterator(PathFromUtf8(directory))) {
    open(entry.path());
  }
}

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
