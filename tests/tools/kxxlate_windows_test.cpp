// The tool with what only this system tells it. What it shows on a console: check_console.py.

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "support/host_tree.h"
#include "support/run_process.h"

namespace {

class KxxlateOnWindows : public testing::Test {
 protected:
  HostRun Run(const std::vector<std::string>& arguments) const {
    return tree_.RunCopyIn("a/b/c/bin", KXXLATE_TOOL, arguments);
  }

  HostTree tree_;
};

std::string SystemLocale() {
  wchar_t name[LOCALE_NAME_MAX_LENGTH];
  const int length = ::GetSystemDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
  return {name, name + (length - 1)};
}

TEST_F(KxxlateOnWindows, AdministratorsLocaleIsTheSystems) {
  tree_.Write("texts/agent_" + SystemLocale() + ".properties", "Hello=of the system\n");
  tree_.Write("texts/agent_xx.properties", "Hello=of the command line\n");

  const HostRun run =
      Run({"--resources", tree_.Path("texts"), "format", "--admin-locale", "agent", "xx", "Hello"});
  EXPECT_EQ("of the system\n", run.output);
}

TEST_F(KxxlateOnWindows, DirectoryOfTheCataloguesMayHaveBackslashes) {
  tree_.Write("texts/agent_en.properties", "Hello=Hello\n");
  EXPECT_EQ(
      "Hello\n",
      Run({"--resources", tree_.SystemPath("texts") + "\\", "get", "agent", "en", "Hello"}).output);
}

TEST_F(KxxlateOnWindows, BytesOfATextAreNotChanged) {
  tree_.Write("texts/agent_en.properties", "Hello=one\\ntwo\\r\\n\n");
  ProcessStart start;
  start.program = tree_.CopyProgram("a/b/c/bin", KXXLATE_TOOL);
  start.arguments = {"--resources", tree_.Path("texts"), "get", "agent", "en", "Hello"};
  start.workingDirectory = tree_.Path();
  start.outputFile = tree_.Path("output");
  start.errorFile = tree_.Path("errors");
  EXPECT_EQ(0, RunProcess(start));
  EXPECT_EQ("one\ntwo\r\n\n", tree_.Read("output"));

  start.arguments.back() = "NOPE";
  EXPECT_EQ(1, RunProcess(start));
  EXPECT_EQ("kxxlate: no key \"NOPE\" in bundle \"agent\" for locale \"en\"\n",
            tree_.Read("errors"));
}

}  // namespace
