// A host that runs as a service does: as a user of its own, who may not write to the host's tree,
// and with a capability that it was given when it was started.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/host_tree.h"
#include "support/set_user_id_posix.h"
#include "support/special_files.h"

namespace {

using Rights = std::filesystem::perms;

constexpr Rights kSearch = Rights::owner_all | Rights::group_exec | Rights::others_exec;
constexpr Rights kList = Rights::owner_all | Rights::group_read | Rights::others_read;
constexpr Rights kSearchAndList = kSearch | kList;

class ServiceRights : public testing::Test {
 protected:
  // Where other users come, wherever the directory for temporary files is.
  ServiceRights() : tree_("/tmp") {
    tree_.Write("share/resources/agent_fr.properties", "Hello=Bonjour\n");
    tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("share"));
  }

  /// Runs a host that looks a key up as another user.
  HostRun Run(const std::vector<std::string>& rights, const std::string& key) {
    const std::string host = tree_.CopyProgram("bin", KXXLATE_UNLOADING_HOST);
    const std::string library = tree_.CopyProgram("bin", KXXLATE_LIBRARY);
    OpenToAllUsers(tree_.Path());
    std::filesystem::permissions(tree_.Path("share/resources"), rightsOfResources_);
    std::vector<std::string> arguments = {"--reuid=65534", "--regid=65534", "--clear-groups"};
    arguments.insert(arguments.end(), rights.begin(), rights.end());
    for (const std::string& word :
         {host, library, std::string("agent"), std::string("fr"), key, std::string("1")}) {
      arguments.push_back(word);
    }
    return tree_.Run("/usr/bin/setpriv", arguments);
  }

  std::string Line() const {
    return tree_.Path("share/resources/agent_fr.properties") + " key not found: ABSENT\n";
  }

  HostTree tree_;
  std::filesystem::perms rightsOfResources_ = kSearchAndList;
};

TEST_F(ServiceRights, ACapabilityOfItsUnitLeavesItTheVariables) {
  if (!IsSuperUser()) GTEST_SKIP() << "only the super-user can start another user's program";
  const HostRun run =
      Run({"--inh-caps=+net_bind_service", "--ambient-caps=+net_bind_service"}, "Hello");
  EXPECT_EQ("Bonjour\nunloaded\n", run.output) << run.errors;
}

TEST_F(ServiceRights, FindsABundleWhereItMaySearchAndListItsDirectory) {
  if (!IsSuperUser()) GTEST_SKIP() << "only the super-user can start another user's program";
  tree_.SetEnvironment("KXXLATE_LOG", "off");
  EXPECT_EQ("Bonjour\nunloaded\n", Run({}, "Hello").output);
  for (const Rights rights : {kSearch, kList}) {
    rightsOfResources_ = rights;
    EXPECT_EQ("(null)\nunloaded\n", Run({}, "Hello").output);
  }
}

TEST_F(ServiceRights, LinesOfItsLogAreOnStandardOutputWhereItMayNotWrite) {
  if (!IsSuperUser()) GTEST_SKIP() << "only the super-user can start another user's program";
  EXPECT_EQ(Line() + "(null)\nunloaded\n", Run({}, "ABSENT").output);
  EXPECT_FALSE(tree_.Exists("share/log"));
}

TEST_F(ServiceRights, LinesOfItsLogAreOnStandardErrorWhereItIsToldSo) {
  if (!IsSuperUser()) GTEST_SKIP() << "only the super-user can start another user's program";
  tree_.SetEnvironment("KXXLATE_LOG", "stderr");
  const HostRun run = Run({}, "ABSENT");
  EXPECT_EQ("(null)\nunloaded\n", run.output);
  EXPECT_EQ(Line(), run.errors.substr(0, Line().size()));
}

}  // namespace
