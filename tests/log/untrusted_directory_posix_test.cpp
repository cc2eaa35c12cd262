// Where a log lies in a program that runs with more rights than its caller.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

class LogOfAProgramWithMoreRights : public testing::Test {
 protected:
  LogOfAProgramWithMoreRights() { std::filesystem::current_path(PathFromUtf8(tree_.Path())); }
  ~LogOfAProgramWithMoreRights() override { std::filesystem::current_path(before_); }

  std::string OutputOfLog(const std::string& root) {
    testing::internal::CaptureStdout();
    log_.WriteLine(root, {"a line"});
    return testing::internal::GetCapturedStdout();
  }

  const TempTree tree_;
  kx::TranslationLog& log_ = LastingLog(false);

 private:
  const std::filesystem::path before_ = std::filesystem::current_path();
};

TEST_F(LogOfAProgramWithMoreRights, IsNotInTheWorkingDirectoryWithoutARoot) {
  EXPECT_EQ("a line\n", OutputOfLog(""));
  EXPECT_EQ("a line\n", OutputOfLog(tree_.Path()));  // the first line decides
  EXPECT_TRUE(std::filesystem::is_empty(PathFromUtf8(tree_.Path())));
}

TEST_F(LogOfAProgramWithMoreRights, IsNotUnderARelativeRoot) {
  tree_.MakeDirectory("root/log");
  EXPECT_EQ("a line\n", OutputOfLog("root"));
  EXPECT_FALSE(tree_.Exists("root/log/translate.log"));
}

TEST_F(LogOfAProgramWithMoreRights, IsNotInTheWorkingDirectoryByItsOwnName) {
  EXPECT_EQ("a line\n", OutputOfLog("."));
  EXPECT_TRUE(std::filesystem::is_empty(PathFromUtf8(tree_.Path())));
}

TEST_F(LogOfAProgramWithMoreRights, IsUnderAnAbsoluteRoot) {
  EXPECT_EQ("", OutputOfLog(tree_.Path()));
  EXPECT_EQ("a line\n", tree_.Read("log/translate.log"));
}

}  // namespace
