// What becomes of a log that is put away while a host writes it.

#include <gtest/gtest.h>

#include <string>

#include "support/host_tree.h"

namespace {

class LogRotation : public testing::Test {
 protected:
  LogRotation() { tree_.Write("product/resources/agent_fr.properties", "Present=yes\n"); }

  std::string Line(const std::string& key) const {
    return tree_.SystemPath("product") + "/resources/agent_fr.properties key not found: " + key +
           "\n";
  }

  HostTree tree_;
};

TEST_F(LogRotation, AFileEmptiedInPlaceGoesOnAtItsBeginning) {
  tree_.RunHostIn("product/bin", {"text", "agent", "fr", "FIRST",                        //
                                  "write", tree_.Path("product/log/translate.log"), "",  //
                                  "text", "agent", "fr", "SECOND",                       //
                                  "text", "agent", "fr", "THIRD"});
  EXPECT_EQ(Line("SECOND") + Line("THIRD"), tree_.Read("product/log/translate.log"));
}

TEST_F(LogRotation, AFileEmptiedInPlaceGoesOnWhereItWasChosen) {
  tree_.SetEnvironment("KXXLATE_LOG", tree_.Path("my.log"));
  tree_.RunHostIn("product/bin", {"text", "agent", "fr", "FIRST",     //
                                  "write", tree_.Path("my.log"), "",  //
                                  "text", "agent", "fr", "SECOND"});
  EXPECT_EQ(Line("SECOND"), tree_.Read("my.log"));
}

TEST_F(LogRotation, AFileThatWasRemovedIsNotMadeAgain) {
  const HostRun run =
      tree_.RunHostIn("product/bin", {"text", "agent", "fr", "FIRST",                     //
                                      "remove", tree_.Path("product/log/translate.log"),  //
                                      "free",                                             //
                                      "text", "agent", "fr", "SECOND"});
  EXPECT_EQ("(null)\n(null)\n", run.output);
  EXPECT_FALSE(tree_.Exists("product/log/translate.log"));
}

}  // namespace
