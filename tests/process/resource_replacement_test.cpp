#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/host_tree.h"

namespace {

enum class AtLoad { kBundles, kEmptyDirectory, kNothing };

struct ReplacementCase {
  const char* name;
  AtLoad atLoad;
  std::vector<std::string> steps;  // "@" at the beginning of a word is the tree
  const char* output;
};

/// Runs a host in "product/a/b/c/d", which finds its texts ("loaded") in "product/a/b/c/resources"
/// when there are any; the directories "one", "two" and "three" hold others.
class ResourceReplacement : public testing::TestWithParam<ReplacementCase> {
 protected:
  ResourceReplacement() {
    for (const std::string name : {"one", "two", "three", "work/relative"}) {
      tree_.Write(name + "/agent_fr.properties", "Origin=" + name + "\n");
    }
    tree_.Write("two/only_fr.properties", "Origin=two\n");
    tree_.Write("file", "Origin=file\n");
    tree_.Write("above/resources/agent_fr.properties", "Origin=below\n");
    tree_.MakeDirectory("empty");
    if (GetParam().atLoad == AtLoad::kBundles) {
      tree_.Write("product/a/b/c/resources/agent_fr.properties", "Origin=loaded\nOther=kept\n");
      tree_.Write("product/a/b/c/resources/old_fr.properties", "Origin=old\n");
    }
    if (GetParam().atLoad == AtLoad::kEmptyDirectory) {
      tree_.MakeDirectory("product/a/b/c/resources");
    }
  }

  HostTree tree_;
};

TEST_P(ResourceReplacement, AnswersInOrder) {
  const ReplacementCase& c = GetParam();
  std::vector<std::string> steps = c.steps;
  for (std::string& word : steps) {
    if (!word.empty() && word[0] == '@') word.replace(0, 1, tree_.Path() + "/");
  }
  const HostRun run = tree_.RunHostIn("product/a/b/c/d", steps);
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(c.output, run.output);
  EXPECT_EQ("", run.errors);
}

std::vector<std::string> Steps(const std::vector<std::vector<std::string>>& parts) {
  std::vector<std::string> steps;
  for (const auto& part : parts) steps.insert(steps.end(), part.begin(), part.end());
  return steps;
}

const std::vector<std::string> kLookUp = {"text", "agent", "fr", "Origin"};

const ReplacementCase kNumberCases[] = {
    {"OneAfterBundlesAtLoad",
     AtLoad::kBundles,
     {"use", "@one", "use", "@two", "use", "@one"},
     "true\nfalse\nfalse\n"},
    {"OneAfterAnEmptyDirectoryAtLoad",
     AtLoad::kEmptyDirectory,
     {"use", "@one", "use", "@two"},
     "true\nfalse\n"},
    {"TwoAfterNothingAtLoad",
     AtLoad::kNothing,
     {"use", "@one", "use", "@two", "use", "@three", "use", "@one"},
     "true\ntrue\nfalse\nfalse\n"},
    {"MissingDirectoriesCount",
     AtLoad::kNothing,
     {"use", "@missing", "use", "@missing", "use", "@one"},
     "true\ntrue\nfalse\n"},
    {"TheSameDirectoryCounts",
     AtLoad::kNothing,
     {"use", "@one", "use", "@one", "use", "@one"},
     "true\ntrue\nfalse\n"},
    {"LookupsInBetweenDoNotMatter", AtLoad::kNothing,
     Steps(
         {kLookUp, {"use", "@one"}, kLookUp, {"use", "@two"}, kLookUp, {"use", "@three"}, kLookUp}),
     "(null)\ntrue\none\ntrue\ntwo\nfalse\ntwo\n"},
    {"NullIsRefusedAndDoesNotCount", AtLoad::kBundles,
     Steps({{"use", "(null)"},
            kLookUp,
            {"use", "(null)", "use", "@one"},
            kLookUp,
            {"use", "(null)", "use", "@two"}}),
     "false\nloaded\nfalse\ntrue\none\nfalse\nfalse\n"},
};

const ReplacementCase kLookupCases[] = {
    {"NewLookupsAnswerFromTheNewDirectory", AtLoad::kBundles,
     Steps({kLookUp, {"use", "@one"}, kLookUp}), "loaded\ntrue\none\n"},
    {"ByLanguageToo",
     AtLoad::kBundles,
     {"use", "@one", "language", "agent", "fr", "CA", "Origin"},
     "true\none\n"},
    {"ARefusedOneChangesNothing", AtLoad::kBundles,
     Steps({{"use", "@one", "use", "@two"}, kLookUp, {"text", "only", "fr", "Origin"}}),
     "true\nfalse\none\n(null)\n"},
    {"BundlesOfTheOldDirectoryAreGone",
     AtLoad::kBundles,
     {"text", "old", "fr", "Origin", "use", "@one", "text", "old", "fr", "Origin"},
     "old\ntrue\n(null)\n"},
    {"BundlesOfTheNewDirectoryAppear",
     AtLoad::kBundles,
     {"text", "only", "fr", "Origin", "use", "@two", "text", "only", "fr", "Origin"},
     "(null)\ntrue\ntwo\n"},
    {"AMissingDirectoryHasNoBundles", AtLoad::kBundles, Steps({{"use", "@missing"}, kLookUp}),
     "true\n(null)\n"},
    {"AnEmptyDirectoryHasNoBundles", AtLoad::kBundles, Steps({{"use", "@empty"}, kLookUp}),
     "true\n(null)\n"},
    {"AFileHasNoBundles", AtLoad::kBundles, Steps({{"use", "@file"}, kLookUp}), "true\n(null)\n"},
    {"TheEmptyNameHasNoBundles", AtLoad::kBundles, Steps({{"use", ""}, kLookUp}), "true\n(null)\n"},
    {"TheDirectoryItselfIsTakenNotOneBelowIt", AtLoad::kBundles,
     Steps({{"use", "@above"}, kLookUp}), "true\n(null)\n"},
    {"ASeparatorMayStandAtTheEnd", AtLoad::kBundles, Steps({{"use", "@one/"}, kLookUp}),
     "true\none\n"},
    {"ItMayBeRelative", AtLoad::kBundles, Steps({{"use", "relative"}, kLookUp}),
     "true\nwork/relative\n"},
};

// A directory is read when it is installed, and not again
const ReplacementCase kLaterFileCases[] = {
    {"FilesAddedAfterTheLoad", AtLoad::kBundles,
     Steps({{"write", "@product/a/b/c/resources/later_fr.properties", "Origin=later"},
            {"text", "later", "fr", "Origin"},
            kLookUp}),
     "(null)\nloaded\n"},
    {"LocalesAddedAfterTheLoad",
     AtLoad::kBundles,
     {"write", "@product/a/b/c/resources/agent_de.properties", "Origin=later",  //
      "text", "agent", "de", "Origin"},
     "(null)\n"},
    {"FilesAddedToAnEmptyDirectory", AtLoad::kEmptyDirectory,
     Steps({{"write", "@product/a/b/c/resources/agent_fr.properties", "Origin=later"}, kLookUp}),
     "(null)\n"},
    {"FilesAddedAfterTheReplacement", AtLoad::kBundles,
     Steps({{"use", "@one", "write", "@one/later_fr.properties", "Origin=later"},
            {"text", "later", "fr", "Origin"},
            kLookUp}),
     "true\n(null)\none\n"},
    {"FilesAddedBeforeTheReplacementAreSeen",
     AtLoad::kBundles,
     {"write", "@one/later_fr.properties", "Origin=later", "use", "@one",  //
      "text", "later", "fr", "Origin"},
     "true\nlater\n"},
};

const ReplacementCase kKeptCases[] = {
    {"KeptTranslatorsGoOn", AtLoad::kBundles,
     Steps({{"keep", "agent", "fr", "use", "@one", "kept", "Origin", "kept", "Other"}, kLookUp}),
     "true\nloaded\nkept\none\n"},
    {"TheNewTranslatorIsAnother",
     AtLoad::kBundles,
     {"keep", "agent", "fr", "same", "agent", "fr", "use", "@one", "same", "agent", "fr"},
     "true\ntrue\nfalse\n"},
    {"EvenForTheSameDirectory",
     AtLoad::kNothing,
     {"use", "@one", "keep", "agent", "fr", "use", "@one", "same", "agent", "fr", "kept", "Origin"},
     "true\ntrue\nfalse\none\n"},
    {"ARefusedOneKeepsTheTranslator",
     AtLoad::kBundles,
     {"use", "@one", "keep", "agent", "fr", "use", "@two", "same", "agent", "fr"},
     "true\nfalse\ntrue\n"},
    {"KeptOnesOfBothDirectoriesGoOn", AtLoad::kNothing,
     Steps({{"use", "@one", "keep", "agent", "fr", "kept", "Origin", "use", "@two"},
            {"kept", "Origin", "keep", "agent", "fr", "use", "@three", "kept", "Origin"}}),
     "true\none\ntrue\none\nfalse\ntwo\n"},
};

const auto kCaseName = [](const auto& row) { return std::string(row.param.name); };

INSTANTIATE_TEST_SUITE_P(Number, ResourceReplacement, testing::ValuesIn(kNumberCases), kCaseName);
INSTANTIATE_TEST_SUITE_P(Lookup, ResourceReplacement, testing::ValuesIn(kLookupCases), kCaseName);
INSTANTIATE_TEST_SUITE_P(LaterFile, ResourceReplacement, testing::ValuesIn(kLaterFileCases),
                         kCaseName);
INSTANTIATE_TEST_SUITE_P(Kept, ResourceReplacement, testing::ValuesIn(kKeptCases), kCaseName);

}  // namespace
