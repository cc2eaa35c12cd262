// A log that cannot be opened for the moment.

#include <gtest/gtest.h>

#include <string>

#include "support/held_file.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

class HeldLog : public testing::Test {
 protected:
  /// What the line writes to standard output.
  std::string OutputOf(const std::string& root, const char* line) {
    testing::internal::CaptureStdout();
    log_.WriteLine(root, {line});
    return testing::internal::GetCapturedStdout();
  }

  std::string OutputWhileHeld(const std::string& root, const char* line) {
    testing::internal::CaptureStdout();
    {
      const HeldFile held(tree_.Path("root/log/translate.log"));
      log_.WriteLine(root, {line});
    }
    return testing::internal::GetCapturedStdout();
  }

  const TempTree tree_;
  kx::TranslationLog& log_ = LastingLog();
};

TEST_F(HeldLog, IsTriedAgainWithTheNextLine) {
  tree_.Write("root/log/translate.log", "before\n");
  EXPECT_EQ("one\n", OutputWhileHeld(tree_.Path("root"), "one"));
  EXPECT_EQ("two\n", OutputWhileHeld(tree_.Path("root"), "two"));
  EXPECT_EQ("", OutputOf(tree_.Path("root"), "three"));
  EXPECT_EQ("before\nthree\n", tree_.Read("root/log/translate.log"));
}

TEST_F(HeldLog, StaysWhereTheFirstLineWantedIt) {
  tree_.Write("root/log/translate.log", "");
  EXPECT_EQ("one\n", OutputWhileHeld(tree_.Path("root"), "one"));
  EXPECT_EQ("", OutputOf(tree_.Path("other"), "two"));
  EXPECT_EQ("two\n", tree_.Read("root/log/translate.log"));
  EXPECT_FALSE(tree_.Exists("other"));
}

TEST_F(HeldLog, OnceOpenIsNotGivenUp) {
  tree_.Write("root/log/translate.log", "");
  EXPECT_EQ("", OutputOf(tree_.Path("root"), "one"));
  EXPECT_EQ("one\n", tree_.Read("root/log/translate.log"));
}

}  // namespace
