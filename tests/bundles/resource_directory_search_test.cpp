#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "bundles/resource_directory.h"
#include "support/fake_machine.h"

namespace {

using Paths = std::vector<std::string>;

struct SearchCase {
  std::string name;
  std::optional<std::string> executable = std::nullopt;
  std::map<std::string, std::string> variables = {};
  std::set<std::string> directories = {};
  std::string subdirectory = "resources";
  std::string directory = {};  // empty: nothing is found
  std::string root = {};
  Paths asked = {};
};

class ResourceDirectorySearch : public testing::TestWithParam<SearchCase> {};

TEST_P(ResourceDirectorySearch, AsksInOrderAndStopsAtTheFirst) {
  const SearchCase& c = GetParam();
  FakeMachine machine;
  machine.executable = c.executable;
  machine.variables = c.variables;
  machine.directories = c.directories;
  std::string directory = "left over";
  std::string root;

  EXPECT_EQ(!c.directory.empty(),
            kx::FindResourceDirectory(machine, c.subdirectory.c_str(), directory, root));
  EXPECT_EQ(c.directory, directory);
  EXPECT_EQ(c.root, root);
  EXPECT_EQ(c.asked, machine.pathsAsked);
}

const std::string kDeepPath = "C:\\a\\b\\c\\d\\e\\x.exe";
const Paths kAboveDeepPath = {"C:\\a\\b\\c\\d\\e/resources", "C:\\a\\b\\c\\d/resources",
                              "C:\\a\\b\\c/resources", "C:\\a\\b/resources"};

Paths FirstOf(const Paths& paths, std::size_t count) {
  return {paths.begin(), paths.begin() + static_cast<std::ptrdiff_t>(count)};
}

Paths Joined(Paths first, const Paths& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

// The executable's own directory and the three above it
const SearchCase kExecutableCases[] = {
    {.name = "OwnDirectory",
     .executable = kDeepPath,
     .directories = {kAboveDeepPath.begin(), kAboveDeepPath.end()},
     .directory = "C:\\a\\b\\c\\d\\e/resources",
     .root = "C:\\a\\b\\c\\d\\e",
     .asked = FirstOf(kAboveDeepPath, 1)},
    {.name = "Parent",
     .executable = kDeepPath,
     .directories = {kAboveDeepPath.begin() + 1, kAboveDeepPath.end()},
     .directory = "C:\\a\\b\\c\\d/resources",
     .root = "C:\\a\\b\\c\\d",
     .asked = FirstOf(kAboveDeepPath, 2)},
    {.name = "Grandparent",
     .executable = kDeepPath,
     .directories = {kAboveDeepPath.begin() + 2, kAboveDeepPath.end()},
     .directory = "C:\\a\\b\\c/resources",
     .root = "C:\\a\\b\\c",
     .asked = FirstOf(kAboveDeepPath, 3)},
    {.name = "GreatGrandparent",
     .executable = kDeepPath,
     .directories = {"C:\\a\\b/resources", "C:\\a/resources"},
     .directory = "C:\\a\\b/resources",
     .root = "C:\\a\\b",
     .asked = kAboveDeepPath},
    {.name = "FifthLevelIsNeverTried",
     .executable = kDeepPath,
     .directories = {"C:\\a/resources"},
     .root = "C:\\a\\b",
     .asked = Joined(kAboveDeepPath, {"./resources"})},
    {.name = "SlashesAndBackslashesBothCount",
     .executable = "C:/a\\b/c\\d/x",
     .root = "C:/a",
     .asked = {"C:/a\\b/c\\d/resources", "C:/a\\b/c/resources", "C:/a\\b/resources",
               "C:/a/resources", "./resources"}},
    {.name = "BackslashesCountBelowASlashRoot",
     .executable = "/a\\b/x",
     .asked = {"/a\\b/resources", "/a/resources", "./resources"}},
    {.name = "BeginsWithABackslash",
     .executable = "\\a\\x.exe",
     .asked = {"\\a/resources", "./resources"}},
    {.name = "NetworkShare",
     .executable = "\\\\server\\share\\x.exe",
     .asked = {"\\\\server\\share/resources", "\\\\server/resources", "/resources", "./resources"}},
    {.name = "DoubledSeparatorCostsALevel",
     .executable = "/a//b/x",
     .asked = {"/a//b/resources", "/a/resources", "/a/resources", "./resources"}},
    {.name = "RootKeepsTheRestOfADoubledSeparator",
     .executable = "/a//x",
     .directories = {"/a/resources"},
     .directory = "/a/resources",
     .root = "/a/",
     .asked = {"/a/resources"}},
    {.name = "EndsInASeparator",
     .executable = "/a/b/",
     .asked = {"/a/b/resources", "/a/resources", "./resources"}},
    {.name = "FewerThanFourLevels", .executable = "/a/x", .asked = {"/a/resources", "./resources"}},
    {.name = "DirectlyBelowTheFileSystem", .executable = "/x", .asked = {"./resources"}},
    {.name = "OnlyASeparator", .executable = "/", .asked = {"./resources"}},
    {.name = "DirectlyBelowADrive",
     .executable = "C:\\x.exe",
     .root = "C:",
     .asked = {"C:/resources", "./resources"}},
    {.name = "DriveWithoutSeparator",
     .executable = "C:x.exe",
     .root = "C:x.exe",
     .asked = {"./resources"}},
    {.name = "OnlyADrive", .executable = "C:", .root = "C:", .asked = {"./resources"}},
    {.name = "DriveRelativeDirectory",
     .executable = "C:a\\x.exe",
     .root = "C:a",
     .asked = {"C:a/resources", "./resources"}},
    {.name = "AnySecondCharacterColonIsAbsolute",
     .executable = "1:/x",
     .root = "1:",
     .asked = {"1:/resources", "./resources"}},
    {.name = "BytesAboveAscii",
     .executable = "/\xC3\xA9t\xC3\xA9/x",
     .directories = {"/\xC3\xA9t\xC3\xA9/resources"},
     .directory = "/\xC3\xA9t\xC3\xA9/resources",
     .root = "/\xC3\xA9t\xC3\xA9",
     .asked = {"/\xC3\xA9t\xC3\xA9/resources"}},
    {.name = "AbsentPath", .asked = {"./resources"}},
    {.name = "EmptyPath", .executable = "", .asked = {"./resources"}},
    {.name = "RelativePath",
     .executable = "a/b/x",
     .directories = {"a/b/resources", "a/resources"},
     .asked = {"./resources"}},
    {.name = "DotPath",
     .executable = "./x",
     .directories = {"./resources"},
     .directory = "./resources",
     .root = ".",
     .asked = {"./resources"}},
    {.name = "BareName", .executable = "x", .asked = {"./resources"}},
    {.name = "ColonAfterTheSecondCharacter", .executable = "ab:/x", .asked = {"./resources"}},
};

// What lies in the environment, and the working directory behind it
const SearchCase kEnvironmentCases[] = {
    {.name = "ExecutableComesBeforeTheEnvironment",
     .executable = "/a/x",
     .variables = {{"TAVI_XLATE_ROOT", "/v"}},
     .directories = {"/a/resources", "/v/resources"},
     .directory = "/a/resources",
     .root = "/a",
     .asked = {"/a/resources"}},
    {.name = "EnvironmentComesBehindAllFourLevels",
     .executable = kDeepPath,
     .variables = {{"TAVI_XLATE_ROOT", "/v"}},
     .directories = {"/v/resources", "./resources"},
     .directory = "/v/resources",
     .root = "/v",
     .asked = Joined(kAboveDeepPath, {"/v/resources"})},
    {.name = "AllFiveAreTriedInOrder",
     .variables = {{"TAVI_POLSRV_ROOT", "/5"},
                   {"TAVI_PROXY_ROOT", "/4"},
                   {"PWSVC_HOME", "/3"},
                   {"TAVI_AGENT_ROOT", "/2"},
                   {"TAVI_XLATE_ROOT", "/1"}},
     .asked = {"/1/resources", "/2/resources", "/3/resources", "/4/resources", "/5/resources",
               "./resources"}},
    {.name = "OtherVariablesAreNotTried",
     .variables = {{"XLATE_ROOT", "/v"}, {"HOME", "/v"}},
     .asked = {"./resources"}},
    {.name = "EmptyVariableIsSkipped",
     .variables = {{"TAVI_XLATE_ROOT", ""}, {"TAVI_AGENT_ROOT", "/v"}},
     .directories = {"/resources", "/v/resources"},
     .directory = "/v/resources",
     .root = "/v",
     .asked = {"/v/resources"}},
    {.name = "TrailingBackslashStaysInTheRootOnly",
     .variables = {{"TAVI_XLATE_ROOT", "D:\\tree\\"}},
     .directories = {"D:\\tree/resources"},
     .directory = "D:\\tree/resources",
     .root = "D:\\tree\\",
     .asked = {"D:\\tree/resources"}},
    {.name = "TrailingSlashStaysInTheRootOnly",
     .variables = {{"PWSVC_HOME", "/v/"}},
     .directories = {"/v/resources"},
     .directory = "/v/resources",
     .root = "/v/",
     .asked = {"/v/resources"}},
    {.name = "OnlyOneTrailingSeparatorIsDropped",
     .variables = {{"TAVI_XLATE_ROOT", "/v//"}},
     .directories = {"/v//resources"},
     .directory = "/v//resources",
     .root = "/v//",
     .asked = {"/v//resources"}},
    {.name = "RelativeVariableIsTakenAsItIs",
     .variables = {{"TAVI_XLATE_ROOT", "../v"}},
     .directories = {"../v/resources"},
     .directory = "../v/resources",
     .root = "../v",
     .asked = {"../v/resources"}},
    {.name = "BlankVariableIsNotEmpty",
     .variables = {{"TAVI_XLATE_ROOT", " "}},
     .asked = {" /resources", "./resources"}},
    {.name = "WorkingDirectoryComesLast",
     .executable = "/a/x",
     .variables = {{"TAVI_POLSRV_ROOT", "/v"}},
     .directories = {"./resources"},
     .directory = "./resources",
     .root = ".",
     .asked = {"/a/resources", "/v/resources", "./resources"}},
    {.name = "NothingLeavesTheRootOfTheExecutable",
     .executable = "/1/2/3/4/5/x",
     .variables = {{"TAVI_XLATE_ROOT", "/v"}},
     .root = "/1/2",
     .asked = {"/1/2/3/4/5/resources", "/1/2/3/4/resources", "/1/2/3/resources", "/1/2/resources",
               "/v/resources", "./resources"}},
};

// A separator in front of the subdirectory is dropped behind the first source only
const SearchCase kSubdirectoryCases[] = {
    {.name = "AnotherName",
     .executable = "/a/x",
     .variables = {{"TAVI_XLATE_ROOT", "/v"}},
     .directories = {"/v/Language"},
     .subdirectory = "Language",
     .directory = "/v/Language",
     .root = "/v",
     .asked = {"/a/Language", "/v/Language"}},
    {.name = "BeginsWithASlash",
     .executable = "/a/x",
     .variables = {{"TAVI_XLATE_ROOT", "/v"}},
     .directories = {"./resources"},
     .subdirectory = "/resources",
     .directory = "./resources",
     .root = ".",
     .asked = {"/a//resources", "/v/resources", "./resources"}},
    {.name = "BeginsWithABackslash",
     .executable = "/a/x",
     .variables = {{"TAVI_XLATE_ROOT", "/v"}},
     .subdirectory = "\\resources",
     .asked = {"/a/\\resources", "/v/resources", "./resources"}},
    {.name = "FoundWithTheSeparator",
     .executable = "/a/x",
     .directories = {"/a//resources"},
     .subdirectory = "/resources",
     .directory = "/a//resources",
     .root = "/a",
     .asked = {"/a//resources"}},
    {.name = "OnlyOneOfTwoIsDropped",
     .executable = "/a/x",
     .variables = {{"TAVI_XLATE_ROOT", "/v"}},
     .subdirectory = "//resources",
     .asked = {"/a///resources", "/v//resources", ".//resources"}},
};

const auto kCaseName = [](const testing::TestParamInfo<SearchCase>& info) {
  return info.param.name;
};

INSTANTIATE_TEST_SUITE_P(Executable, ResourceDirectorySearch, testing::ValuesIn(kExecutableCases),
                         kCaseName);
INSTANTIATE_TEST_SUITE_P(Environment, ResourceDirectorySearch, testing::ValuesIn(kEnvironmentCases),
                         kCaseName);
INSTANTIATE_TEST_SUITE_P(Subdirectory, ResourceDirectorySearch,
                         testing::ValuesIn(kSubdirectoryCases), kCaseName);

TEST(ResourceDirectorySearchOfAProgramWithMoreRights, DoesNotAskForTheWorkingDirectory) {
  FakeMachine machine;
  machine.trustsWorkingDirectory = false;
  machine.executable = "/a/x";
  machine.directories = {"./resources"};
  std::string directory = "left over";
  std::string root;
  EXPECT_FALSE(kx::FindResourceDirectory(machine, "resources", directory, root));
  EXPECT_EQ("", directory);
  EXPECT_EQ("", root);
  EXPECT_EQ((Paths{"/a/resources"}), machine.pathsAsked);
}

}  // namespace
