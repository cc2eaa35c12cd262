// The tool with what only this system tells it. What it shows on a console: check_console.py.

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "support/host_tree.h"

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

}  // namespace
