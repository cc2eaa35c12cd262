// What a host finds whose executable lies as near the top as in "/usr/bin", where programs usually
// are. One that lies deeper: LanguageDirectory.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "process/language_directory.h"
#include "process/near_top.h"

namespace {

class HostNearTheTop : public LanguageDirectory {
 protected:
  HostNearTheTop() : LanguageDirectory(PlaceNearTheTop()) {
    tree_.Write("share/product/resources/agent_fr.properties", "K=bundle\n");
    tree_.Write("share/product/resources/FR/gateway.lang", File("file"));
  }

  const std::vector<std::string> ask_ = {"text", "agent", "fr", "K", "text", "gateway", "fr", "K"};
};

TEST_F(HostNearTheTop, FindsBothKindsByAVariable) {
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("share/product"));
  ExpectOutput("", ask_, "bundle\nfile\n");
}

TEST_F(HostNearTheTop, FindsNoLanguageFilesInADirectoryThatItNames) {
  ExpectOutput("", Steps({Use("share/product/resources"), ask_}), "true\nbundle\n(null)\n");
}

TEST_F(HostNearTheTop, FindsNothingByItself) { ExpectOutput("", ask_, "(null)\n(null)\n"); }

TEST_F(HostNearTheTop, FindsBothKindsInADirectoryThatItNamesWhereItLiesFourDirectoriesDeep) {
  ExpectOutput("lib/product/bin", Steps({Use("share/product/resources"), ask_}),
               "true\nbundle\nfile\n");
}

}  // namespace
