#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/host_tree.h"
#include "support/special_files.h"

namespace {

const std::vector<std::string> kVariables = {"TAVI_XLATE_ROOT", "TAVI_AGENT_ROOT", "PWSVC_HOME",
                                             "TAVI_PROXY_ROOT", "TAVI_POLSRV_ROOT"};

/// So deep that all four directories that the search looks at above a host lie in the tree.
const char* const kHostDirectory = "product/a/b/c/d";

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

class ResourceSearch : public testing::Test {
 protected:
  /// Makes a "resources" in `directory`, whose bundle tells that it was this one.
  void Provide(const std::string& directory) {
    tree_.Write(directory + "/resources/agent_fr.properties", "Origin=" + directory + "\n");
  }

  void ExpectOrigin(const std::string& origin) {
    const HostRun run = tree_.RunHostIn(kHostDirectory, {"text", "agent", "fr", "Origin"});
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(origin + "\n", run.output);
    EXPECT_EQ("", run.errors);
  }

  HostTree tree_;
};

TEST_F(ResourceSearch, AncestorsOfTheExecutableComeBeforeTheEnvironment) {
  Provide("product/a");
  Provide("elsewhere");
  for (const std::string& name : kVariables) tree_.SetEnvironment(name, tree_.Path("elsewhere"));
  ExpectOrigin("product/a");
}

struct NearCase {
  const char* name;
  const char* directory;
  const char* above;
};

class NearExecutable : public ResourceSearch, public testing::WithParamInterface<NearCase> {};

TEST_P(NearExecutable, IsFoundBeforeTheNextDirectoryAbove) {
  Provide(GetParam().directory);
  Provide(GetParam().above);
  ExpectOrigin(GetParam().directory);
}

const NearCase kNearCases[] = {
    {"Own", "product/a/b/c/d", "product/a/b/c"},
    {"FirstAbove", "product/a/b/c", "product/a/b"},
    {"SecondAbove", "product/a/b", "product/a"},
    {"ThirdAbove", "product/a", "product"},
};

INSTANTIATE_TEST_SUITE_P(Ancestors, NearExecutable, testing::ValuesIn(kNearCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(ResourceSearch, TheFourthDirectoryAboveIsNotLookedAt) {
  Provide("product");
  ExpectOrigin("(null)");
}

TEST_F(ResourceSearch, AFileNamedResourcesIsPassedOver) {
  tree_.Write("product/a/b/c/d/resources", "x");
  Provide("product/a/b");
  ExpectOrigin("product/a/b");
}

TEST_F(ResourceSearch, ALinkToADirectoryIsADirectory) {
  Provide("elsewhere");
  tree_.MakeDirectory("product/a");
  std::filesystem::create_symlink("../../elsewhere/resources",
                                  PathFromUtf8(tree_.Path("product/a/resources")));
  ExpectOrigin("elsewhere");
}

TEST_F(ResourceSearch, ADirectoryWithoutBundlesEndsItToo) {
  tree_.MakeDirectory("product/a/b/resources");
  Provide("product/a");
  ExpectOrigin("(null)");
}

TEST_F(ResourceSearch, PathsMayBeUtf8) {
  const std::string place = "d\xC3\xA9p\xC3\xB4t \xE2\x82\xAC";
  Provide(place);
  const HostRun run = tree_.RunHostIn(place + "/bin", {"text", "agent", "fr", "Origin"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(place + "\n", run.output);
}

class VariableOfSearch : public ResourceSearch, public testing::WithParamInterface<std::size_t> {};

TEST_P(VariableOfSearch, IsEnoughAlone) {
  Provide("elsewhere");
  tree_.SetEnvironment(kVariables[GetParam()], tree_.Path("elsewhere"));
  ExpectOrigin("elsewhere");
}

TEST_P(VariableOfSearch, ComesBeforeThoseBehindItAndTheWorkingDirectory) {
  for (std::size_t at = 0; at < kVariables.size(); ++at) {
    if (at >= GetParam()) Provide(kVariables[at]);
    tree_.SetEnvironment(kVariables[at], tree_.Path(kVariables[at]));
  }
  Provide("work");
  ExpectOrigin(kVariables[GetParam()]);
}

TEST_P(VariableOfSearch, IsSkippedWhenEmpty) {
  Provide("work");
  tree_.SetEnvironment(kVariables[GetParam()], "");
  ExpectOrigin("work");
}

INSTANTIATE_TEST_SUITE_P(Environment, VariableOfSearch,
                         testing::Range(std::size_t{0}, kVariables.size()),
                         [](const auto& row) { return kVariables[row.param]; });

TEST_F(ResourceSearch, EmptyVariableGivesWayToTheNext) {
  Provide("elsewhere");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", "");
  tree_.SetEnvironment("TAVI_AGENT_ROOT", tree_.Path("elsewhere"));
  ExpectOrigin("elsewhere");
}

TEST_F(ResourceSearch, VariableMayEndInASlash) {
  Provide("elsewhere");
  tree_.SetEnvironment("PWSVC_HOME", tree_.Path("elsewhere") + "/");
  ExpectOrigin("elsewhere");
}

TEST_F(ResourceSearch, VariableMayEndInABackslash) {
  Provide("elsewhere");
  tree_.SetEnvironment("PWSVC_HOME", tree_.Path("elsewhere") + "\\");
  ExpectOrigin("elsewhere");
}

TEST_F(ResourceSearch, VariableMayBeRelativeToTheWorkingDirectory) {
  Provide("elsewhere");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", "../elsewhere");
  ExpectOrigin("elsewhere");
}

TEST_F(ResourceSearch, VariableNamesTheDirectoryAboveResources) {
  Provide("elsewhere");
  Provide("work");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere/resources"));
  ExpectOrigin("work");
}

TEST_F(ResourceSearch, WorkingDirectoryComesLast) {
  tree_.SetWorkingDirectory("here");
  Provide("here");
  ExpectOrigin("here");
  tree_.SetEnvironment("TAVI_POLSRV_ROOT", tree_.Path("there"));
  ExpectOrigin("here");
  Provide("there");
  ExpectOrigin("there");
}

TEST_F(ResourceSearch, WithoutAnyDirectoryNothingIsFoundAndNothingIsSaid) {
  ExpectOrigin("(null)");
}

TEST_F(ResourceSearch, ReadsNoVariablesInASetUserIdProgram) {
  if (!IsSuperUser()) GTEST_SKIP() << "only the super-user can make another user's program";
  if (!IsSetUserIdHonoured(tree_)) GTEST_SKIP() << "set-user-ID has no effect in this place";
  Provide("elsewhere");
  Provide("work");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere"));
  const std::vector<std::string> lookUp = {"text", "agent", "fr", "Origin"};
  const std::string host = tree_.CopyProgram(kHostDirectory, HostProgram());
  OpenToAllUsers(tree_.Path());

  MakeProgramOfAnotherUser(host, false);
  EXPECT_EQ("elsewhere\n", tree_.Run(host, lookUp).output);
  MakeProgramOfAnotherUser(host, true);
  const HostRun run = tree_.Run(host, lookUp);
  // The exit code does not count: a leak checker may not look into such a process, and fails.
  EXPECT_EQ("work\n", run.output) << run.errors;
}

// A name in the directory that no texts can be read from

TEST_F(ResourceSearch, APipeInPlaceOfABundleIsNotWaitedFor) {
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

TEST_F(ResourceSearch, ADeviceInPlaceOfABundleIsNotRead) {
  tree_.MakeDirectory("product/a/resources");
  std::filesystem::create_symlink("/dev/zero",
                                  PathFromUtf8(tree_.Path("product/a/resources/x_fr.properties")));
  const HostRun run = tree_.RunHostIn(kHostDirectory, {"text", "x", "fr", "Origin"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("(null)\n", run.output);
  EXPECT_EQ("cannot open file: " + tree_.Path("product/a/resources/x_fr.properties") + "\n",
            run.errors);
}

TEST_F(ResourceSearch, ADirectoryInPlaceOfABundleIsNone) {
  tree_.Write("product/a/resources/x_fr.properties/x_fr.properties", "Origin=inside\n");
  Provide("product/a");
  const HostRun run = tree_.RunHostIn(
      kHostDirectory, {"text", "x", "fr", "Origin", "text", "agent", "fr", "Origin"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("(null)\nproduct/a\n", run.output);
  EXPECT_EQ("", run.errors);
}

}  // namespace
