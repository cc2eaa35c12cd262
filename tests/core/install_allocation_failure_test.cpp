// What is left of bundle managers when memory runs out while one is installed.

#include <gtest/gtest.h>

#include <filesystem>
#include <list>
#include <string>

#include "bundles/install_manager.h"
#include "bundles/resource_directory.h"
#include "bundles/xlate_manager.h"
#include "core/counted_new.h"
#include "support/temp_tree.h"

namespace {

/// What a process has of both. Managers are never destroyed, so neither is this.
struct Installation {
  kx::ResourceLocation resources;
  kx::InstalledManagers managers;

  bool Install(const std::string& directory) {
    return managers.InstallXlateManager(directory.c_str(), resources);
  }

  std::string Root() const {
    return managers.Current() == nullptr ? "(none)" : managers.Current()->Root();
  }
};

Installation& NewInstallation() {
  static auto& installations = *new std::list<Installation>;
  return installations.emplace_back();
}

class InstallAllocationFailure : public testing::Test {
 protected:
  InstallAllocationFailure() {
    for (const std::string directory : {"resources", "another directory of bundles"}) {
      tree_.Write(directory + "/a_bundle_of_some_length_en.properties", "K=text\n");
      tree_.Write(directory + "/a_bundle_of_some_length_fr_CA.properties", "K=texte\n");
    }
    std::filesystem::current_path(PathFromUtf8(tree_.Path()));
  }
  ~InstallAllocationFailure() override { std::filesystem::current_path(before_); }

  const std::filesystem::path before_ = std::filesystem::current_path();
  TempTree tree_;
};

// Were anything thrown, the process would end.
TEST_F(InstallAllocationFailure, AtLoadInstallsNothingAndLeavesRoomForTwo) {
  FailEachAllocation([this](long number) {
    Installation& process = NewInstallation();
    FailAllocation(number);
    const bool installed = kx::InstallBundlesAtLoad(process.resources, process.managers);
    const bool failed = AllocationsUntilFailure() == 0;
    FailAllocation(0);
    EXPECT_NE(failed, installed);
    EXPECT_EQ(installed ? "./resources" : "(none)", process.Root());

    EXPECT_EQ(failed, process.Install(tree_.Path("one")) && process.Install(tree_.Path("two")));
    EXPECT_FALSE(process.Install(tree_.Path("three")));
    return failed;
  });
}

TEST_F(InstallAllocationFailure, OfAReplacementLeavesTheManagerInUseAndItsDirectory) {
  FailEachAllocation([this](long number) {
    Installation& process = NewInstallation();
    const std::string first = tree_.Path("resources");
    const std::string second = tree_.Path("another directory of bundles");
    EXPECT_TRUE(process.Install(first));

    static const bool kInstalled = true;
    const bool* result = nullptr;
    const bool failed = CallWithFailure(number, result, [&process, &second] {
      return process.managers.InstallXlateManager(second.c_str(), process.resources) ? &kInstalled
                                                                                     : nullptr;
    });
    EXPECT_EQ(failed, result == nullptr);
    EXPECT_EQ(failed ? first : second, process.Root());
    EXPECT_EQ(failed ? first : second, process.resources.Directory());

    EXPECT_EQ(failed, process.Install(second)) << "one replacement, and no more";
    EXPECT_FALSE(process.Install(first));
    EXPECT_EQ(second, process.Root());
    return failed;
  });
}

}  // namespace
