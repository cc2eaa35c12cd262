#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "process/resource_search.h"
#include "support/host_tree.h"

namespace {

const std::vector<std::string> kVariables = {"TAVI_XLATE_ROOT", "TAVI_AGENT_ROOT", "PWSVC_HOME",
                                             "TAVI_PROXY_ROOT", "TAVI_POLSRV_ROOT"};

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
