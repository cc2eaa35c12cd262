// The search, the catalogues and the log on paths as only this system has them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "process/resource_search.h"
#include "support/host_tree.h"
#include "support/long_tree.h"

namespace {

// Letters of two, three and four bytes in UTF-8; the last one takes two places in UTF-16.
const std::string kForeignName = "d\xC3\xA9p\xC3\xB4t \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80";

class WindowsSearch : public ResourceSearch {
 protected:
  void ExpectOutput(const std::string& output, const std::vector<std::string>& steps) {
    const HostRun run = tree_.RunHostIn(kHostDirectory, steps);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(output, run.output);
    EXPECT_EQ("", run.errors);
  }

  void SetRoot(const std::string& path) { tree_.SetEnvironment("TAVI_XLATE_ROOT", path); }
};

/// The path with every second of its separators turned into a backslash.
std::string Mixed(std::string path) {
  bool turn = false;
  for (char& c : path) {
    if (c != '/') continue;
    if (turn) c = '\\';
    turn = !turn;
  }
  return path;
}

TEST_F(WindowsSearch, VariableMayNameADriveAndHaveBackslashes) {
  Provide("elsewhere");
  const std::string path = tree_.SystemPath("elsewhere");
  ASSERT_EQ(":\\", path.substr(1, 2));
  SetRoot(path);
  ExpectOrigin("elsewhere");
}

TEST_F(WindowsSearch, VariableMayHaveBothSeparators) {
  Provide("elsewhere/deep/down");
  SetRoot(Mixed(tree_.Path("elsewhere/deep/down")));
  ExpectOrigin("elsewhere/deep/down");
}

TEST_F(WindowsSearch, DriveLetterMayHaveEitherCase) {
  Provide("elsewhere");
  std::string path = tree_.SystemPath("elsewhere");
  path[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(path[0])));
  SetRoot(path);
  ExpectOrigin("elsewhere");
  path[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(path[0])));
  SetRoot(path);
  ExpectOrigin("elsewhere");
}

TEST_F(WindowsSearch, BackslashAtTheEndIsNotInThePathsOfBundlesAndNotDoubledForTheLog) {
  Provide("elsewhere");
  SetRoot(tree_.SystemPath("elsewhere") + "\\");
  ExpectOutput("(null)\n", {"text", "agent", "fr", "ABSENT"});
  EXPECT_EQ(
      tree_.SystemPath("elsewhere") + "/resources/agent_fr.properties key not found: ABSENT\n",
      tree_.Read("elsewhere/log/translate.log"));
}

TEST_F(WindowsSearch, BackslashAtTheEndStaysWhenTheLogLiesInTheRootItself) {
  Provide("elsewhere");
  tree_.Write("elsewhere/log", "a file in the way");
  SetRoot(tree_.SystemPath("elsewhere") + "\\");
  ExpectOutput("(null)\n", {"text", "agent", "fr", "ABSENT"});
  EXPECT_EQ(
      tree_.SystemPath("elsewhere") + "/resources/agent_fr.properties key not found: ABSENT\n",
      tree_.Read("elsewhere/translate.log"));
}

TEST_F(WindowsSearch, FourDirectoriesAreLookedAtAboveAProgramAndAFifthIsNot) {
  const std::vector<std::string> lookUp = {"text", "agent", "fr", "Origin"};
  Provide("a");
  EXPECT_EQ("(null)\n", tree_.RunHostIn("a/b/c/d/e", lookUp).output);
  Provide("elsewhere");
  SetRoot(tree_.SystemPath("elsewhere"));
  EXPECT_EQ("elsewhere\n", tree_.RunHostIn("a/b/c/d/e", lookUp).output);
  for (const std::string directory : {"a/b", "a/b/c", "a/b/c/d", "a/b/c/d/e"}) {
    Provide(directory);
    EXPECT_EQ(directory + "\n", tree_.RunHostIn("a/b/c/d/e", lookUp).output);
  }
}

TEST_F(WindowsSearch, SuffixOfABundleFileMayBeInCapitals) {
  tree_.Write("product/a/resources/agent_fr.PROPERTIES", "Hello=Bonjour\n");
  tree_.Write("product/a/resources/agent_de.Properties", "Hello=Hallo\n");
  ExpectOutput("Bonjour\nHallo\n",
               {"text", "agent", "fr", "Hello", "text", "agent", "de", "Hello"});
}

TEST_F(WindowsSearch, NamesOfDirectoriesCountInEitherCase) {
  tree_.Write("product/a/RESOURCES/agent_fr.properties", "Hello=Bonjour\n");
  ExpectOutput("Bonjour\n", {"text", "agent", "fr", "Hello"});
}

TEST_F(WindowsSearch, NamesOfLanguageFilesCountInEitherCase) {
  tree_.Write("product/a/resources/fr-ca/AGENT.LANG", "Name x\n\nKey Hello\nValue Salut\n");
  ExpectOutput("Salut\n", {"text", "agent", "fr-CA", "Hello"});
}

TEST_F(WindowsSearch, VariableMayHaveThePrefixOfLongPaths) {
  Provide("elsewhere");
  SetRoot("\\\\?\\" + tree_.SystemPath("elsewhere"));
  ExpectOrigin("elsewhere");
}

TEST_F(WindowsSearch, ReplacementMayHaveThePrefixOfLongPaths) {
  tree_.Write("texts/agent_fr.properties", "Hello=Bonjour\n");
  ExpectOutput("true\nBonjour\n", {"use", "\\\\?\\" + tree_.SystemPath("texts"),  //
                                   "text", "agent", "fr", "Hello"});
}

TEST_F(WindowsSearch, ProgramMayLieInADirectoryWithAForeignName) {
  Provide(kForeignName);
  const HostRun run = tree_.RunHostIn(
      kForeignName + "/bin", {"text", "agent", "fr", "Origin", "text", "agent", "fr", "ABSENT"});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(kForeignName + "\n(null)\n", run.output);
  EXPECT_EQ(
      tree_.SystemPath(kForeignName) + "/resources/agent_fr.properties key not found: ABSENT\n",
      tree_.Read(kForeignName + "/log/translate.log"));
}

TEST_F(WindowsSearch, VariableMayNameADirectoryWithAForeignName) {
  Provide(kForeignName);
  SetRoot(tree_.SystemPath(kForeignName));
  ExpectOrigin(kForeignName);
}

TEST_F(WindowsSearch, WorkingDirectoryMayHaveAForeignName) {
  Provide(kForeignName);
  tree_.SetWorkingDirectory(kForeignName);
  ExpectOrigin(kForeignName);
}

TEST_F(WindowsSearch, CataloguesMayHaveForeignNames) {
  tree_.Write("product/a/resources/" + kForeignName + "_fr.properties", "Hello=Bonjour\n");
  tree_.Write("product/a/resources/FR/" + kForeignName + "2.lang",
              "Name x\n\nKey Hello\nValue Salut\n");
  ExpectOutput("Bonjour\nSalut\n", {"text", kForeignName, "fr", "Hello",  //
                                    "text", kForeignName + "2", "fr", "Hello"});
}

TEST_F(WindowsSearch, DeviceNamesAreNoLanguageFiles) {
  tree_.Write("product/a/resources/FR/(Common).lang", "Name x\n\nKey Hello\nValue Bonjour\n");
  std::vector<std::string> steps;
  std::string answers;
  for (const char* const device : {"NUL", "nul", "CON", "AUX", "PRN", "COM1", "LPT1", "CONIN$"}) {
    steps.insert(steps.end(), {"text", device, "fr", "Hello"});
    answers += "Bonjour\n";
  }
  ExpectOutput(answers, steps);
}

TEST_F(WindowsSearch, DevicesAreNoResources) {
  Provide("work");
  for (const char* const device : {"NUL", "\\\\.\\NUL", "CON"}) {
    SetRoot(device);
    ExpectOrigin("work");
  }
}

TEST_F(WindowsSearch, PathOfTheResourcesMayBeLong) {
  const LongTree deep;
  deep.MakeDirectory("resources");
  deep.Write("resources/agent_fr.properties", "Hello=Bonjour\n");
  SetRoot(deep.Path());
  ExpectOutput("Bonjour\n(null)\n",
               {"text", "agent", "fr", "Hello", "text", "agent", "fr", "ABSENT"});
  EXPECT_EQ(deep.Path("resources/agent_fr.properties key not found: ABSENT\n"),
            deep.Read("log/translate.log"));
}

TEST_F(WindowsSearch, PathOfLanguageFilesMayBeLong) {
  const LongTree deep;
  deep.MakeDirectory("resources");
  deep.MakeDirectory("resources/FR");
  deep.Write("resources/FR/setup.lang", "Name x\n\nKey Hello\nValue Bonjour\n");
  SetRoot(deep.Path());
  ExpectOutput("Bonjour\n", {"text", "setup", "fr", "Hello"});
}

TEST_F(WindowsSearch, PathOfAReplacementMayBeLong) {
  const LongTree deep;
  deep.MakeDirectory("texts");
  deep.Write("texts/agent_fr.properties", "Hello=Bonjour\n");
  std::string backslashes = deep.Path("texts");
  std::replace(backslashes.begin(), backslashes.end(), '/', '\\');
  ExpectOutput("true\nBonjour\n", {"use", backslashes, "text", "agent", "fr", "Hello"});
}

}  // namespace
