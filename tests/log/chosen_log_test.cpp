// A log whose place the operator has chosen.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/held_file.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

using kx::LogChoice;

class ChosenLog : public testing::Test {
 protected:
  ChosenLog() { tree_.MakeDirectory("root"); }

  struct Written {
    std::string output;
    std::string errors;
  };

  /// What reaches the standard streams when the log gets some lines.
  Written Write(kx::TranslationLog& log, std::initializer_list<const char*> lines) const {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    for (const char* line : lines) log.WriteLine(tree_.Path("root"), {line});
    Written written;
    written.errors = testing::internal::GetCapturedStderr();
    written.output = testing::internal::GetCapturedStdout();
    return written;
  }

  static kx::TranslationLog& LogIn(const std::string& path) {
    return LastingLog(true, {LogChoice::Place::kFile, path});
  }

  bool IsRootEmpty() const { return std::filesystem::is_empty(PathFromUtf8(tree_.Path("root"))); }

  const TempTree tree_;
};

TEST_F(ChosenLog, IsTheFileAsItIsNamed) {
  const Written written = Write(LogIn(tree_.Path("my.log")), {"one", "two"});
  EXPECT_EQ("one\ntwo\n", tree_.Read("my.log"));
  EXPECT_EQ("", written.output + written.errors);
  EXPECT_TRUE(IsRootEmpty());
}

TEST_F(ChosenLog, IsContinued) {
  tree_.Write("my.log", "before\n");
  Write(LogIn(tree_.Path("my.log")), {"one"});
  EXPECT_EQ("before\none\n", tree_.Read("my.log"));
}

TEST_F(ChosenLog, IsStandardOutputWhereItsDirectoryIsMissing) {
  const Written written = Write(LogIn(tree_.Path("missing/my.log")), {"one", "two"});
  EXPECT_EQ("one\ntwo\n", written.output);
  EXPECT_EQ("", written.errors);
  EXPECT_FALSE(tree_.Exists("missing"));
  EXPECT_TRUE(IsRootEmpty());
}

TEST_F(ChosenLog, IsStandardOutputForGoodWhereItCannotBeOpened) {
  kx::TranslationLog& log = LogIn(tree_.Path("missing/my.log"));
  Write(log, {"one"});
  tree_.MakeDirectory("missing");
  EXPECT_EQ("two\n", Write(log, {"two"}).output);
  EXPECT_FALSE(tree_.Exists("missing/my.log"));
}

TEST_F(ChosenLog, IsStandardOutputWhereADirectoryIsInTheWay) {
  tree_.MakeDirectory("my.log");
  EXPECT_EQ("one\n", Write(LogIn(tree_.Path("my.log")), {"one"}).output);
  EXPECT_TRUE(IsRootEmpty());
}

TEST_F(ChosenLog, IsTriedAgainWithTheNextLineWhereItIsHeld) {
  tree_.Write("my.log", "");
  kx::TranslationLog& log = LogIn(tree_.Path("my.log"));
  testing::internal::CaptureStdout();
  {
    const HeldFile held(tree_.Path("my.log"));
    log.WriteLine(tree_.Path("root"), {"one"});
  }
  EXPECT_EQ("one\n", testing::internal::GetCapturedStdout());
  EXPECT_EQ("", Write(log, {"two"}).output);
  EXPECT_EQ("two\n", tree_.Read("my.log"));
}

TEST_F(ChosenLog, OfARelativePathIsInTheWorkingDirectoryOfTheFirstLine) {
  tree_.MakeDirectory("later");
  kx::TranslationLog& log = LogIn("my.log");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(PathFromUtf8(tree_.Path()));
  Write(log, {"one"});
  std::filesystem::current_path(PathFromUtf8(tree_.Path("later")));
  Write(log, {"two"});
  std::filesystem::current_path(before);
  EXPECT_EQ("one\ntwo\n", tree_.Read("my.log"));
  EXPECT_FALSE(tree_.Exists("later/my.log"));
}

TEST_F(ChosenLog, MayBeStandardError) {
  kx::TranslationLog& log = LastingLog(true, {LogChoice::Place::kStandardErrors});
  const Written written = Write(log, {"one", "100%n of\n%s"});
  EXPECT_EQ("one\n100%n of\\n%s\n", written.errors);
  EXPECT_EQ("", written.output);
  EXPECT_TRUE(IsRootEmpty());
}

TEST_F(ChosenLog, MayBeNone) {
  kx::TranslationLog& log = LastingLog(true, {LogChoice::Place::kNowhere});
  const Written written = Write(log, {"one", "two"});
  EXPECT_EQ("", written.output + written.errors);
  EXPECT_TRUE(IsRootEmpty());
}

TEST_F(ChosenLog, IsUnderTheRootWhereNothingWasSaid) {
  Write(LastingLog(true, {}), {"one"});
  EXPECT_EQ("one\n", tree_.Read("root/log/translate.log"));
}

}  // namespace
