#include "bundles/resource_directory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "support/fake_machine.h"
#include "support/temp_tree.h"

namespace {

using Paths = std::vector<std::string>;

const Paths kVariables = {"TAVI_XLATE_ROOT", "TAVI_AGENT_ROOT", "PWSVC_HOME", "TAVI_PROXY_ROOT",
                          "TAVI_POLSRV_ROOT"};

Paths FirstOf(const Paths& paths, std::size_t count) {
  return {paths.begin(), paths.begin() + static_cast<std::ptrdiff_t>(count)};
}

struct DirectoryTestCase {
  const char* name;
  const char* base;
  const char* subdirectory;
  std::optional<std::string> joined;  // none: the machine is not even asked
};

class DirectoryUnder : public testing::TestWithParam<DirectoryTestCase> {};

TEST_P(DirectoryUnder, IsTheJoinedPathWhenThatIsADirectory) {
  const DirectoryTestCase& c = GetParam();
  FakeMachine machine;
  machine.directories = {c.joined.value_or("")};
  std::string joined;

  EXPECT_EQ(c.joined.has_value(), kx::IsDirectoryUnder(machine, c.base, c.subdirectory, joined));
  EXPECT_EQ(c.joined.value_or(""), joined);
  EXPECT_EQ(c.joined ? Paths{*c.joined} : Paths{}, machine.pathsAsked);
}

TEST_P(DirectoryUnder, IsNoneWhenNothingLiesThere) {
  const DirectoryTestCase& c = GetParam();
  FakeMachine machine;
  std::string joined;

  EXPECT_FALSE(kx::IsDirectoryUnder(machine, c.base, c.subdirectory, joined));
  EXPECT_EQ(c.joined ? Paths{*c.joined} : Paths{}, machine.pathsAsked);
}

const DirectoryTestCase kDirectoryTestCases[] = {
    {"NullBase", nullptr, "resources", std::nullopt},
    {"EmptyBase", "", "resources", std::nullopt},
    {"NullBaseAndSubdirectory", nullptr, nullptr, std::nullopt},
    {"PlainBase", "/a/b", "resources", "/a/b/resources"},
    {"RelativeBase", "a", "resources", "a/resources"},
    {"BaseOfOneBlank", " ", "resources", " /resources"},
    {"BaseEndsInSlash", "/a/b/", "resources", "/a/b/resources"},
    {"BaseEndsInBackslash", "C:\\a\\", "resources", "C:\\a/resources"},
    {"OnlyOneSlashIsDropped", "/a//", "resources", "/a//resources"},
    {"OnlyOneBackslashIsDropped", "C:\\a\\\\", "resources", "C:\\a\\/resources"},
    {"OnlyTheLastOfMixedIsDropped", "a\\/", "resources", "a\\/resources"},
    {"ColonAtTheEndStays", "C:", "resources", "C:/resources"},
    {"OnlyASlash", "/", "resources", "/resources"},
    {"OnlyABackslash", "\\", "resources", "/resources"},
    {"NullSubdirectoryIsTheBase", "/a/b", nullptr, "/a/b"},
    {"NullSubdirectoryDropsASeparatorToo", "/a/b/", nullptr, "/a/b"},
    {"EmptySubdirectoryStillGetsASlash", "/a/b", "", "/a/b/"},
    {"SubdirectoryIsNotLookedInto", "/a", "/resources/", "/a//resources/"},
    {"BytesAboveAscii", "/\xC3\xA9t\xC3\xA9/", "r\xC3\xA9s", "/\xC3\xA9t\xC3\xA9/r\xC3\xA9s"},
};

INSTANTIATE_TEST_SUITE_P(Search, DirectoryUnder, testing::ValuesIn(kDirectoryTestCases),
                         [](const auto& row) { return std::string(row.param.name); });

class ResourceVariable : public testing::TestWithParam<std::size_t> {};

TEST_P(ResourceVariable, IsReadBehindThoseBeforeItAndEndsTheSearch) {
  const std::string& name = kVariables[GetParam()];
  FakeMachine machine;
  machine.executable = "/a/x";
  for (const std::string& variable : kVariables) machine.variables[variable] = "/" + variable;
  for (std::size_t at = GetParam(); at < kVariables.size(); ++at) {
    machine.directories.insert("/" + kVariables[at] + "/resources");
  }
  std::string directory;
  std::string root;

  EXPECT_TRUE(kx::FindResourceDirectory(machine, "resources", directory, root));
  EXPECT_EQ("/" + name + "/resources", directory);
  EXPECT_EQ("/" + name, root);
  EXPECT_EQ(FirstOf(kVariables, GetParam() + 1), machine.variablesAsked);
}

INSTANTIATE_TEST_SUITE_P(Environment, ResourceVariable,
                         testing::Range(std::size_t{0}, kVariables.size()),
                         [](const auto& row) { return kVariables[row.param]; });

TEST(ResourceDirectory, EnvironmentIsNotReadWhenTheExecutableTells) {
  FakeMachine machine;
  machine.executable = "/a/x";
  machine.directories = {"/a/resources"};
  std::string directory;
  std::string root;

  EXPECT_TRUE(kx::FindResourceDirectory(machine, "resources", directory, root));
  EXPECT_EQ(Paths{}, machine.variablesAsked);
}

TEST(ResourceDirectory, ReplacesWhatTheOutputsHeld) {
  FakeMachine machine;
  machine.directories = {"./resources"};
  std::string directory = "old directory";
  std::string root = "old root";

  EXPECT_TRUE(kx::FindResourceDirectory(machine, "resources", directory, root));
  EXPECT_EQ("./resources", directory);
  EXPECT_EQ(".", root);
}

TEST(ResourceDirectory, IsLookedForOnThisMachine) {
  const TempTree tree;
  tree.MakeDirectory("only-in-this-test");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(PathFromUtf8(tree.Path()));
  std::string directory;
  std::string root;

  EXPECT_TRUE(kx::FindResourceDirectory("only-in-this-test", directory, root));
  std::filesystem::current_path(before);
  EXPECT_EQ("./only-in-this-test", directory);
  EXPECT_EQ(".", root);
}

TEST(ResourceDirectory, OfTheProcessIsTheLastOneSet) {
  const TempTree tree;
  kx::ResourceLocation& resources = kx::ProcessResources();
  const std::string root = resources.Root();
  const std::size_t replacements = resources.Directory().empty() ? 2 : 1;
  for (std::size_t number = 0; number < replacements; ++number) {
    const std::string directory = tree.Path("missing") + std::to_string(number) + "/";
    ASSERT_TRUE(CKxXlate::SetResourceDirectory(directory.c_str()))
        << "a process can do this only once or twice: run the tests by ctest";
    EXPECT_EQ(directory, resources.Directory());
  }
  const std::string last = resources.Directory();

  EXPECT_FALSE(CKxXlate::SetResourceDirectory(tree.Path("refused").c_str()));
  EXPECT_FALSE(CKxXlate::SetResourceDirectory(nullptr));
  EXPECT_EQ(last, resources.Directory());
  EXPECT_EQ(root, resources.Root());
}

TEST(ResourceDirectory, NullIsRefusedAndChangesNothing) {
  const std::string directory = kx::ProcessResources().Directory();
  const std::string root = kx::ProcessResources().Root();
  EXPECT_FALSE(CKxXlate::SetResourceDirectory(nullptr));
  EXPECT_EQ(directory, kx::ProcessResources().Directory());
  EXPECT_EQ(root, kx::ProcessResources().Root());
}

}  // namespace
